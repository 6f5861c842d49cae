// Add-on modules and external programs: the "&Modules" and "&Launch" menus, and the /RUN
// switch that starts a program at once.
#pragma once

#include <string>

#include "platform/platform.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class AddOns {
 public:
  AddOns(Platform& platform, RunState& run, MainWindow& main)
      : m_platform(platform), m_run(run), m_main(main) {}
  // Reads the add-on descriptors and builds the Modules menu (built later).
  void TESKAddOns() {}
  // Builds the external programs menu (built later).
  void BuildExternalProgramsMenu() {}
  // "/RUN" + path starts the program; an empty text reads the process's command line.
  void RunBatchApplication(const std::string& text);

 private:
  void runProgram(const std::string& program);
  Platform& m_platform;
  RunState& m_run;
  MainWindow& m_main;
};

}  // namespace tesk
