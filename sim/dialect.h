// The ways the real engines speak the host interface, chosen when the simulated engine starts:
// version and port-list replies, the registration reply's kind, which requests get an answer,
// the monitor text (Via marks, note, time base, terminator) and the raw frame's port byte.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "link/ax25_frame.h"
#include "platform/date_time.h"

namespace tesk::sim {

enum class Dialect { DireWolf16, DireWolfNew, QtSoundModem, AgwPacketEngine };

// "direwolf16", "direwolf", "qtsoundmodem", "agwpe".
std::optional<Dialect> ParseDialect(const std::string& name);
const char* DialectName(Dialect d);

// The 8 bytes of the "R" reply: major and minor version, little-endian.
std::string VersionReply(Dialect d);
// The "G" reply's text with its closing NUL.
std::string PortListReply(Dialect d);
// The 12 bytes of the "g" reply for the one radio port.
std::string PortCapabilities();
// "X" for most engines; the UZ7HO family answers a registration with "x".
char RegisterReplyKind(Dialect d);
// Whether the engine answers "y" (frames waiting on a port) and "Y" (on a link).
bool AnswersPortQueue(Dialect d);
bool AnswersLinkQueue(Dialect d);
// Some builds of the UZ7HO family ignore a "V" request; a client must use "K" with them.
bool IgnoresViaRequest(Dialect d);
// Newer engines put the header's PID on the air; the older ones always send 0xF0.
bool UsesHeaderPid(Dialect d);
// The UZ7HO family writes the monitor text before the raw frame; the others the raw first.
bool MonitorBeforeRaw(Dialect d);

// The monitor text of a frame for kind "U" (heard) or "T" (sent), terminator included.
// `local` and `utc` are the moment; each engine takes its own time base.
std::string MonitorText(Dialect d, const Ax25Frame& f, int port, const DateTime& local,
                        const DateTime& utc);
// The data of a "K" frame: the port byte, then the AX.25 frame with its H bits.
std::string RawFrameData(Dialect d, const Ax25Frame& f, int port);

}  // namespace tesk::sim
