// The receive path of one frame in the core, with no tick wait: the frame put in the LAN slot,
// one core tick (split, paint, hand-offs, buffer limit, alarm tests), as frames per second;
// the buffer limit's replacement of the Monitor text when one frame has gone past it; and a
// tick with no frame, the beacon off and on with nothing due (the beacon's decision must stay
// within a microsecond of the plain tick).
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "core/monitor_console.h"
#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"

namespace tesk {
namespace {

const std::string kFrame =
    " 1:Fm PA3ABC-7 To APRS Via RS0ISS*,WIDE2-1 <UI pid=F0 Len=62 >[12:00:00]\r"
    "=5213.45N/00456.78E-Greetings from a station on the pass, 73\r";

struct Bench {
  Bench() {
    StationOptions options;
    options.appPath = (std::filesystem::temp_directory_path() / "tesk-core-bench").string();
    std::filesystem::create_directories(options.appPath);
    station = std::make_unique<Station>(platform, options);
    station->run().LanMode = -1;
    station->run().AppPath = options.appPath;
    station->config().YourCallSign = "XX9TK";
  }
  void put(const std::string& text) {
    FrameSlot& slot = station->parts().tcpLink.FrameSlot_;
    slot.FrameReady = -1;
    slot.FrameKind = "U";
    slot.FrameFrom = "PA3ABC-7";
    slot.FrameData = text + std::string(1, '\0');
    slot.FrameLen = static_cast<int16_t>(text.size());
  }
  SimPlatform platform;
  std::unique_ptr<Station> station;
};

// Whole receive path per frame; the Monitor held inside the limit given as the argument
// (0: the buffer grows, emptied now and then outside the timing).
void BM_ReceivePathPerFrame(benchmark::State& state) {
  Bench b;
  StationConfig& config = b.station->config();
  config.SlowPC = state.range(0) > 0 ? -1 : 0;
  config.MonBufferLimit = static_cast<float>(state.range(0));
  config.AlarmSet = 1;
  config.AlarmSetHeaderText = "RS0ISS*";
  RichText& monitor = b.station->mainWindow().txtMonitor;
  for (auto _ : state) {
    b.put(kFrame);
    b.station->parts().core.Tick();
    if (monitor.length() > 4000000) {
      state.PauseTiming();
      monitor.clear();
      state.ResumeTiming();
    }
  }
  state.counters["frames/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_ReceivePathPerFrame)->Arg(0)->Arg(64000)->Arg(512000);

// A tick with no frame: argument 0 the beacon off, 1 on with two items and nothing due.
void BM_CoreTickBeaconNotDue(benchmark::State& state) {
  Bench b;
  StationConfig& config = b.station->config();
  BeaconScheduler& beacon = b.station->parts().beacon;
  if (state.range(0) != 0) {
    config.Beacon = -1;
    config.BeaconInterval = 60;
    config.SelectedBeacon = 110001;
    config.SelectedBeaconItems = 2;
  }
  for (auto _ : state) {
    beacon.BeaconSeconds = 30;
    b.station->parts().core.Tick();
  }
  benchmark::DoNotOptimize(beacon.BeaconSeconds);
}
BENCHMARK(BM_CoreTickBeaconNotDue)->Arg(0)->Arg(1);

// One buffer-limit cut: a Monitor one frame past its limit L, cut to its L/2 characters.
void BM_BufferLimitReplacement(benchmark::State& state) {
  Bench b;
  StationConfig& config = b.station->config();
  config.SlowPC = -1;
  config.MonBufferLimit = static_cast<float>(state.range(0));
  RichText& monitor = b.station->mainWindow().txtMonitor;
  MonitorConsole& console = b.station->parts().monitor;
  const std::string header(70, 'h');
  const std::string data(60, 'd');
  for (auto _ : state) {
    state.PauseTiming();
    monitor.clear();
    while (monitor.length() <= static_cast<std::size_t>(state.range(0))) {
      monitor.append(header + "\r\n", TextStyle{65535, false, 9});
      monitor.append(data + "\r\n", TextStyle{0xFFFF00, false, 9});
    }
    state.ResumeTiming();
    console.BufferLimit();
  }
  benchmark::DoNotOptimize(monitor.length());
}
BENCHMARK(BM_BufferLimitReplacement)
    ->Arg(16000)
    ->Arg(128000)
    ->Arg(512000)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tesk
