// The receive and transmit ports and their display in FrameComm. Ports count from 0 in the
// data and from 1 on the screen.
#pragma once

#include "main/main_window.h"
#include "main/run_state.h"
#include "settings/station_config.h"

namespace tesk {

class Ports {
 public:
  Ports(StationConfig& config, RunState& run, MainWindow& main)
      : m_config(config), m_run(run), m_main(main) {}
  // Refreshes the caption of FrameComm (and CurrentPort).
  void ToonAktievePoort();

 private:
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
};

}  // namespace tesk
