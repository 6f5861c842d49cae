// Standard texts and sounds of connected mode. Built later; the load pass restores missing
// files through it.
#pragma once

namespace tesk {

class TextSending {
 public:
  // Puts back standard text and sound files that are missing from the program folder.
  void RestoreMissingFiles() {}
};

}  // namespace tesk
