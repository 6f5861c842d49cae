// The // commands of a connected station. Built later; connected text already reaches
// PackCommand, one piece at a time. The text is by reference: the real routine may change it.
#pragma once

#include <string>

namespace tesk {

class RemoteCommands {
 public:
  void PackCommand(std::string& text) { (void)text; }
};

}  // namespace tesk
