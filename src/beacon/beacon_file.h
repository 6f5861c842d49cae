// The fifth beacon item: up to four lines of a text file, with the APRS position in front when
// chosen and the program tag behind, cut to the last 160 characters and sent in frames of 80.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "settings/station_config.h"
#include "state/run_state.h"

namespace tesk {

class BeaconFile {
 public:
  struct Hooks {
    std::function<void()> StuurMonitorTekst;                // sends RunState::MonitorSendText
    std::function<void(const std::string&, int)> ShowMeld;  // the self-closing note
  };
  BeaconFile(StationConfig& config, RunState& run, Hooks hooks)
      : m_config(config), m_run(run), m_hooks(std::move(hooks)) {}

  void TX_BeaconFile();

  // The lines of a file as the beacon reads them: at most five, ending at CR LF, CR or LF.
  // Nothing when it can't be opened; `error` is then 53 (missing) or 75 (no access, a folder).
  static std::vector<std::string> ReadLines(const std::string& path, int& error);
  // The text of the selection (0 line 1, 1 line 2, 2 lines 1 and 2, 3 lines 1 to 4).
  static std::string Selected(const std::vector<std::string>& lines, int selection);

 private:
  StationConfig& m_config;
  RunState& m_run;
  Hooks m_hooks;
};

}  // namespace tesk
