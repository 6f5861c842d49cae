// Frames on the simulated air: the TNC-2 text form the scenario files use ("SRC>DST,D1*,D2:info")
// and the raw AX.25 bytes with the has-been-repeated bits, which the link's own encoder leaves
// clear because a station never sends a frame already repeated.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "link/ax25_frame.h"

namespace tesk::sim {

// A "*" after a digipeater sets its H bit and those of every one before it. Nothing when the
// text has no ">" or ":".
std::optional<Ax25Frame> ParseTnc2(const std::string& line);
// The TNC-2 form with a "*" after the last digipeater that has repeated the frame.
std::string FormatTnc2(const Ax25Frame& frame);
// Address field, control, PID and info; H bits as the frame holds them.
std::vector<uint8_t> EncodeAir(const Ax25Frame& frame);

}  // namespace tesk::sim
