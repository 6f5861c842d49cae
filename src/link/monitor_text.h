// Monitor texts of the engines, brought to the one shape the core reads,
// " 1:Fm CALL To DEST Via D1*,D2 <UI pid=F0 Len=n >[hh:mm:ss]" CR data CR, whereas each engine
// writes its own (Via marks on no, the last or every used digipeater; UTC or local time; its own
// notes and terminators). The Via marks come from the frame's raw form when the engine sent one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "link/ax25_frame.h"
#include "platform/platform.h"

namespace tesk {

struct MonitorText {
  int port = 1;           // radio port as written, counted from 1
  std::string from, to;   // calls as written
  std::string via;        // the Via list as written, with the engine's own marks
  std::string type;       // what stands between "<" and ">", e.g. "UI pid=F0 Len=5 "
  std::string afterType;  // anything between ">" and the time (an FRMR's bytes)
  std::string rawInfo;    // everything behind the header's CR, the terminator included
};

// Nothing when the text does not start with " n:Fm CALL To CALL" and a "<...>" part.
std::optional<MonitorText> ParseMonitorText(std::string_view text);

// The frame's data without the engine's terminator: trailing NULs go; then the text is cut to
// the "Len=" the engine reported when it is longer (the terminator's CRs), or else loses one
// closing CR (engines that filter or cut the data report the full length).
std::string MonitorInfo(const MonitorText& m);

// The digipeater calls of a Via text, marks and blanks removed.
std::vector<std::string> ViaCalls(std::string_view via);

// "D1*,D2*,D3": a "*" after every digipeater whose has-been-repeated bit is set.
std::string ViaFromRaw(const Ax25Frame& raw);

// True when the raw frame carries the same source, destination and digipeaters.
bool SamePacket(const MonitorText& m, const Ax25Frame& raw);

// The text in the core's shape: the Via list from the raw frame when there is one (the engine's
// own otherwise), a UI type as "UI pid=XX Len=n ", the local time, CR, the data, and one CR to
// close the data as the engines do: the core shows the data up to the NUL behind the text, so
// that CR is what ends the data line.
std::string BuildMonitorText(const MonitorText& m, const Ax25Frame* raw, const DateTime& local);

}  // namespace tesk
