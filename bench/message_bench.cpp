// The cost of APRS messages out: the retry tick's search over a full table with nothing
// pending (one event pass between rows), and the press of a message with an ack request from
// the button to the bytes on the LAN link, to set beside BM_TextDataPressToWire.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "bench/lan_bench_station.h"
#include "main/station.h"
#include "main/station_parts.h"

namespace tesk {
namespace {

struct MessageBench : LanBenchStation {
  MessageBench() : LanBenchStation("tesk-message-bench", 8124) {
    station->config().AckUIViewType = 2;
  }
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
