// Packet logging to dated files. Built later; the load pass and the settings reader already
// call AutoLog in their places, and the Monitor's frame routine hands every shown frame to
// LogPacketToDisk.
#pragma once

#include <string>

namespace tesk {

class PacketLog {
 public:
  // Shows the automatic log mode in its menu and label.
  void AutoLog() {}
  // mode 0: the alarm log; 1: the automatic log; 2: the Digi LogBook.
  void LogPacketToDisk(int mode, const std::string& header, const std::string& data) {
    (void)mode;
    (void)header;
    (void)data;
  }
};

}  // namespace tesk
