// The outside modem program: started at load when asked, closed at exit, and the outside
// terminal program prepared for LAN mode.
#pragma once

#include "main/main_window.h"
#include "main/run_state.h"
#include "platform/platform.h"
#include "settings/station_config.h"

namespace tesk {

class AddOns;

class ModemProgram {
 public:
  ModemProgram(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
               AddOns& addOns)
      : m_platform(platform), m_config(config), m_run(run), m_main(main), m_addOns(addOns) {}
  // Load-pass step: starts the modem program unless its window is already there.
  void StartModemProgram();
  // Closes the modem program ("window" of the type's title); nothing is waited for.
  void DetectProgWindow();
  // Enables the Connect button for an outside terminal program in LAN mode (built later).
  void CheckForTerminal() {}

 private:
  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  AddOns& m_addOns;
};

}  // namespace tesk
