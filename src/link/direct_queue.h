// The frames that wait in direct mode between the engine and the core's next poll. The engine
// may send many frames between two ticks; the core takes one per tick, so every frame waits
// here in order. Raw frames (kind "K") do not reach the core: each is paired with the monitor
// text of the same packet (the one after it, or for engines that send it second, the one
// before it) so that the text can carry the Via marks read from the raw frame. The engine's
// port list goes to the core as one text per usable port, each beginning "Port".
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

#include "link/agw_frame.h"
#include "link/ax25_frame.h"
#include "link/monitor_text.h"
#include "platform/platform.h"

namespace tesk {

// One frame as the core receives it.
struct DirectFrame {
  char kind = 0;  // "U", "I", "S", "T" monitor texts; "c", "D", "d" for connected mode; "G" ports
  int port = 0;   // 0-based
  std::string call;
  std::string text;
};

class DirectFrameQueue {
 public:
  // Far more than an engine delivers between polls; only a core that stopped polling for hours
  // reaches it, and then the oldest frames give way.
  static constexpr std::size_t kMaxFrames = 10000;

  // Takes one frame from the engine, received at local time `at`. Kinds the core has no use
  // for (replies to requests other than the port list) are passed over.
  void push(const AgwFrame& frame, const DateTime& at);
  // A notice made up by the link itself (the engine went away while a connection was open).
  void pushNotice(char kind, int port, const std::string& call, const std::string& text);
  std::optional<DirectFrame> pop();

  std::size_t size() const { return m_entries.size(); }
  bool empty() const { return m_entries.empty(); }
  void clear();
  std::size_t dropped() const { return m_dropped; }

 private:
  struct Entry {
    DirectFrame frame;
    std::optional<MonitorText> monitor;  // parsed monitor text, built at hand-out
    std::optional<Ax25Frame> raw;        // the paired raw frame
    DateTime at;
  };
  struct PendingRaw {
    int port = 0;
    Ax25Frame raw;
  };
  void pushRaw(const AgwFrame& frame);
  void pushPorts(const AgwFrame& frame);
  void pushMonitor(const AgwFrame& frame, const DateTime& at);
  void add(Entry entry);

  std::deque<Entry> m_entries;
  std::optional<PendingRaw> m_pendingRaw;  // a raw frame waiting for its monitor text
  // Set once the engine was seen sending the raw frame after its text; from then on a raw
  // frame is never held for a later text, which could belong to another copy of the packet.
  bool m_rawFollowsText = false;
  std::size_t m_dropped = 0;
};

}  // namespace tesk
