// The receive and transmit ports: their choice from the two popup rows and their display in
// FrameComm. Ports count from 0 in the data and from 1 on the screen. The receive choice is
// applied in the core alone, by the port in each frame's text; nothing goes to the engine.
#pragma once

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class Meld;

class Ports {
 public:
  static constexpr int kRows = 7;  // each popup has 7 rows; receive row 6 is "all ports"

  Ports(Platform& platform, StationConfig& config, RunState& run, MainWindow& main, Meld& meld)
      : m_platform(platform), m_config(config), m_run(run), m_main(main), m_meld(meld) {}

  // Registers the commands of this part once the station is complete.
  void RegisterCommands(CommandTable& commands);
  // Refreshes the caption of FrameComm (and CurrentPort).
  void ToonAktievePoort();
  // A receive row chosen (index 0 to 6).
  void AGWPortRX(int index);
  // A transmit row chosen (index 0 to 6); only 0 to 4 can be taken here.
  void AGWPorts(int index);
  // The images that open the popups.
  void imgRXPortSelector_Click();
  void imgTXPortSelector_Click();

 private:
  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  Meld& m_meld;
};

}  // namespace tesk
