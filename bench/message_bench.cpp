// The cost of APRS messages out: the retry tick's search over a full table with nothing
// pending (one event pass between rows), and the press of a message with an ack request from
// the button to the bytes on the LAN link, to set beside BM_TextDataPressToWire.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"

namespace tesk {
namespace {

struct MessageBench {
  MessageBench() {
    StationOptions options;
    options.appPath = (std::filesystem::temp_directory_path() / "tesk-message-bench").string();
    std::filesystem::create_directories(options.appPath);
    platform.network.listen("127.0.0.1", 8124, [this](std::shared_ptr<SimConnection> c) {
      engine = std::move(c);
      engine->onReceive = [this](const std::vector<uint8_t>&) { ++frames; };
    });
    station = std::make_unique<Station>(platform, options);
    StationConfig& config = station->config();
    config.YourCallSign = "XX9TK";
    config.HostName_IP_Default = "127.0.0.1";
    config.LanPort = 8124;
    config.ToCall = "CQ";
    config.AckUIViewType = 2;
    station->run().LanMode = -1;
    station->parts().tcpLink.AGWWinsockInitialiseLan();
    MainWindow& main = station->mainWindow();
    main.cmbToCall.text = "CQ";
    main.cmbViaCall.text = "RS0ISS,ARISS";
  }
  SimPlatform platform;
  std::shared_ptr<SimConnection> engine;
  long frames = 0;
  std::unique_ptr<Station> station;
};

void BM_MessageRetryTickNothingPending(benchmark::State& state) {
  MessageBench b;
  for (int i = 0; i < 40; ++i) {
    PendingMessage& row = b.station->run().PendingMessages[static_cast<std::size_t>(i)];
    row.PendingFor = "XX" + std::to_string(i % 10) + "AB";
    row.PendingText = ":" + row.PendingFor + "    :hello [TESK]{00";
    row.PendingDone = 100;
  }
  MessageSending& sending = b.station->parts().messageSending;
  const long framesBefore = b.frames;
  for (auto _ : state)
    sending.SendAckMesTick();
  state.counters["retries"] = static_cast<double>(b.frames - framesBefore);
}
BENCHMARK(BM_MessageRetryTickNothingPending);

void BM_MessageWithAckPressToWire(benchmark::State& state) {
  MessageBench b;
  MainWindow& main = b.station->mainWindow();
  main.cmbFor.text = "XX9AB";
  main.cmbAPRSMessage.text = std::string(60, 'x');
  long presses = 0;
  for (auto _ : state) {
    b.station->parts().txPanel.Press(SendButton::APRSMessage);
    b.platform.simLoop.run(0.01);
    // The numbers start again now and then, as a clearing of the sent list does.
    if (++presses % 1000 == 0) b.station->parts().messageSending.ClearSent();
  }
  state.counters["frames/s"] =
      benchmark::Counter(static_cast<double>(b.frames), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_MessageWithAckPressToWire);

}  // namespace
}  // namespace tesk
