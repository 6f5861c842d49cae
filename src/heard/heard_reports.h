// Heard reports on the air. Built later; the load pass already asks for the system version.
#pragma once

namespace tesk {

class HeardReports {
 public:
  // Detects the operating system's version for the report texts.
  void DetectWindows() {}
};

}  // namespace tesk
