// Digipeat tracking: whether a painted header is the station's own frame come back through a
// digipeater. Built later; until then no header counts.
#pragma once

#include <string>

namespace tesk {

class Digipeat {
 public:
  // True when the frame counted as an own digipeat; the header is then painted in [DigiColor].
  bool LogDigi(const std::string& header) {
    (void)header;
    return false;
  }
};

}  // namespace tesk
