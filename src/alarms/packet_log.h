// Packet logging to dated files. Built later; the load pass and the settings reader already
// call AutoLog in their places.
#pragma once

namespace tesk {

class PacketLog {
 public:
  // Shows the automatic log mode in its menu and label.
  void AutoLog() {}
};

}  // namespace tesk
