// The station: one object that owns the settings, the run state, the main window's data and
// every subsystem, and hands each the references it needs. Two stations can live side by side
// in a test; nothing here is global.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

struct StationParts;

struct StationOptions {
  std::string appPath;       // the program folder (created and filled by the caller)
  std::string overrideHost;  // a run-only engine address (the demo engine), never saved
  int overridePort = 0;
  bool demo = false;
};

class Station {
 public:
  Station(Platform& platform, StationOptions options);
  ~Station();
  Station(const Station&) = delete;
  Station& operator=(const Station&) = delete;

  // The entry routine: splash, then the main window's load pass. Returns when the load pass has
  // ended (timers running) or the process was ended at once.
  void Start();
  // Shut-down in its fixed order; ends the process.
  void Einde();
  // True once the load pass has run to its end.
  bool loaded() const;

  // An operator console line (headless standard input, no box waiting).
  void consoleLine(const std::string& line);

  Platform& platform() { return m_platform; }
  StationConfig& config() { return m_config; }
  RunState& run() { return m_run; }
  MainWindow& mainWindow() { return m_main; }
  // The operator's commands, registered once every subsystem is built.
  CommandTable& commands() { return m_commands; }
  const StationOptions& options() const { return m_options; }
  // Every subsystem, for the routines that reach across them and for tests.
  StationParts& parts() { return *m_parts; }

 private:
  void RegisterCommands();

  Platform& m_platform;
  StationOptions m_options;
  StationConfig m_config;
  RunState m_run;
  MainWindow m_main;
  CommandTable m_commands;
  std::unique_ptr<StationParts> m_parts;
};

}  // namespace tesk
