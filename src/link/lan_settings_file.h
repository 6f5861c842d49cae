// TESKLanMode.ini: where the packet engine is reached in LAN mode, kept apart from tesk.ini.
// A positional file of 30 lines in the program folder; the tag lines are skipped by place, and
// a missing file or an empty value gives the defaults (127.0.0.1, port 8000, flags off).
#pragma once

#include <string>

#include "settings/station_config.h"
#include "state/run_state.h"

namespace tesk {

inline constexpr const char* kLanSettingsFileName = "TESKLanMode.ini";
inline constexpr const char* kLanDefaultHost = "127.0.0.1";
inline constexpr int32_t kLanDefaultPort = 8000;

// Reads the file in `appPath` into the LAN fields of `config` and `run.LanMode`. Never fails:
// what cannot be read keeps its default.
void LoadLANINI(StationConfig& config, RunState& run, const std::string& appPath);
inline void LoadLANINI(StationConfig& config, RunState& run) {
  LoadLANINI(config, run, run.AppPath);
}

// Writes the file in `appPath` from the same fields. A failure is passed over in silence.
void SaveLANINI(const StationConfig& config, const RunState& run, const std::string& appPath);
inline void SaveLANINI(const StationConfig& config, const RunState& run) {
  SaveLANINI(config, run, run.AppPath);
}

}  // namespace tesk
