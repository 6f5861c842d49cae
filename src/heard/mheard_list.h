// The list of stations heard. Built later; the Monitor's frame routine already hands it every
// shown header, and the core zeroes the quiet counter that the auto-clear runs on.
#pragma once

#include <cstdint>
#include <string>

namespace tesk {

class MHeardList {
 public:
  // Enters the sender of a shown frame's header.
  void AddToMheardList(const std::string& header) { (void)header; }

  // Seconds since the last frame, counted by the one-second clock, zeroed by the core.
  int16_t QuietSeconds = 0;
};

}  // namespace tesk
