// libFuzzer target: any bytes as tesk.ini, loaded into a fresh station's settings, then written
// back and loaded again. Reading must never fault, whatever the file holds.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

#include "platform/sim/sim_platform.h"
#include "settings/settings_file.h"
#include "settings/station_config.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace {

std::string Folder() {
  static const std::string folder = [] {
    const auto p = std::filesystem::temp_directory_path() /
                   ("tesk-fuzz-settings-" + std::to_string(::getpid()));
    std::filesystem::create_directories(p);
    return p.string();
  }();
  return folder;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  tesk::SimPlatform platform;
  tesk::StationConfig config;
  tesk::RunState run;
  tesk::MainWindow main;
  run.AppPath = Folder();
  run.SettingsPath = run.AppPath + "/tesk.ini";
  {
    std::ofstream out(run.SettingsPath, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }
  tesk::SettingsFile settings(config, run, main, platform);
  settings.LoadSettings();
  settings.SaveSettings();
  settings.LoadSettings();
  return 0;
}
