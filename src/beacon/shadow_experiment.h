// The ISS Shadow Experiment mode of authorised stations: while it is on, each beacon turn sends
// one short frame with the time, the country code and the date to BEACON via ARISS, for a minute,
// then the beacon pauses and starts again. The wizard sets it up in four questions.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "beacon/beacon_scheduler.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class CommandTable;

class ShadowExperiment {
 public:
  struct Hooks {
    std::function<void(std::string&, int16_t)> AGWPE_UI_Send;
    std::function<void(const std::string&, int)> NotaInMonitor;
  };
  ShadowExperiment(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                   BeaconScheduler& beacon, Hooks hooks);

  // One frame to the Shadow destination; the working destination is put back afterwards.
  void ExecuteShadowExp();
  // Once a second after the UTC clock was set: the minute of frames and the pause after it.
  void UTC_Klok_Change();
  // The wizard of the Beacon menu; a wrong or cancelled answer ends it without a word.
  void Wizard();
  void RegisterCommands(CommandTable& commands);

  // The frame's text for the time and date given.
  std::string FrameText(const std::string& time, const DateTime& date) const;

  int16_t PauseAnnounced = 0;  // the pause of this round was noted in the Monitor

 private:
  bool askInterval();
  bool askPause();
  bool askCountry();

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  BeaconScheduler& m_beacon;
  Hooks m_hooks;
};

}  // namespace tesk
