// The picture panel beside the Monitor and the station look-up links. Built later; the load
// pass already calls its routines in their places.
#pragma once

namespace tesk {

class ViewPort {
 public:
  // Checks the look-up URL file (IgateURLs.ini) at start.
  void CheckHelpURLs() {}
  // Sets up the picture timer tmrBackground.
  void SetupPictureTimer() {}
};

}  // namespace tesk
