// The message part of the main window's APRS panel: the retry counts of the messages sent with
// an ack request.
#pragma once

#include <array>
#include <cstdint>

namespace tesk {

// Rows 0 to 20 only, while the pending table has 41: deliberately the smaller table, so rows
// 21 and up have no count of their own.
constexpr int kPendingTriesRows = 21;

struct AprsMessagePanel {
  std::array<int16_t, kPendingTriesRows> PendingTries{};
};

}  // namespace tesk
