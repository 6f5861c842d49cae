// The message part of the main window's APRS panel: the retry counts of the messages sent with
// an ack request, the key of the newest message heard and the messenger's button.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/controls.h"

namespace tesk {

// Rows 0 to 20 only, while the pending table has 41: deliberately the smaller table, so rows
// 21 and up have no count of their own.
constexpr int kPendingTriesRows = 21;

struct AprsMessagePanel {
  std::array<int16_t, kPendingTriesRows> PendingTries{};
  // The key of the newest message heard: from, " | To:", to, " | Message:", text.
  std::string LastMessageKey;
  // Opens the messenger; red from a message for this station until an entry is clicked there.
  Button cmdLoadMessenger = [] {
    Button b;
    b.caption = "Messenger";
    b.toolTip = "APRS Messenger: received and sent messages";
    b.backColor = kButtonFace;
    return b;
  }();
};

}  // namespace tesk
