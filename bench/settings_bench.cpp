// The cost of one LoadSettings and one SaveSettings of a full tesk.ini (factory values with
// full histories) in a temporary program folder, on the sim platform; and of the Setup window
// opened and applied with nothing changed, which saves and reads the file again.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <random>
#include <string>

#include "platform/sim/sim_platform.h"
#include "settings/settings_file.h"
#include "settings/setup.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace {

struct BenchStation {
  BenchStation() {
    std::random_device rd;
    folder =
        (std::filesystem::temp_directory_path() / ("tesk-bench-" + std::to_string(rd()))).string();
    std::filesystem::create_directories(folder);
    run.AppPath = folder;
    run.SettingsPath = folder + "/tesk.ini";
    config.YourCallSign = "PA3XYZ";
    settings.SetFactoryDefaults();
    for (int i = 0; i < 25; ++i) {
      main.cmbDataText.list.push_back("beacon text number " + std::to_string(i));
      main.cmbAPRSMessage.list.push_back("message text number " + std::to_string(i));
    }
    main.form = tesk::Window{"TESK", true, true, 0, 1200, 900, 12000, 9000};
    settings.SaveSettings();
  }
  ~BenchStation() {
    std::error_code ec;
    std::filesystem::remove_all(folder, ec);
  }
  std::string folder;
  tesk::SimPlatform platform;
  tesk::StationConfig config;
  tesk::RunState run;
  tesk::MainWindow main;
  tesk::SettingsFile settings{config, run, main, platform};
  tesk::CommandTable commands;
  tesk::Setup setup{platform, config, run, main, settings, commands};
};

void BM_LoadSettings(benchmark::State& state) {
  BenchStation s;
  for (auto _ : state) {
    s.settings.LoadSettings();
    benchmark::DoNotOptimize(s.config.YourCallSign);
  }
}
BENCHMARK(BM_LoadSettings);

void BM_SaveSettings(benchmark::State& state) {
  BenchStation s;
  for (auto _ : state) {
    s.settings.SaveSettings();
  }
}
BENCHMARK(BM_SaveSettings);

// Target: under 5 ms for the whole Apply.
void BM_SetupApplyUnchanged(benchmark::State& state) {
  BenchStation s;
  for (auto _ : state) {
    s.setup.Form_Load();
    s.setup.Command1_Click();
    benchmark::DoNotOptimize(s.setup.window().form.loaded);
  }
}
BENCHMARK(BM_SetupApplyUnchanged)->Unit(benchmark::kMicrosecond);

}  // namespace
