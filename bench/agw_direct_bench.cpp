// Frames per second the direct-mode client takes from an engine with none lost: bursts of
// packets as the Dire Wolf test engine writes them (raw frame, then monitor text), in one write
// or cut into TCP-sized or tiny reads, through reassembly, pairing and the rebuilt texts, drained
// with AGWGetData the way the core polls. A burst that loses a frame stops the benchmark.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "link/agw_direct.h"
#include "platform/sim/sim_platform.h"
#include "support/dialect_engine.h"

namespace {

constexpr int kBurst = 1000;

// One packet heard through the ISS, as the engine writes it to a client that asked for both
// forms (Dire Wolf: the raw frame "K", then the monitor text "U").
std::string Heard(int i) {
  return "XX9TK-7>APRS,RS0ISS*,ARISS:=5213.12N/00521.34E-TESK bench frame " + std::to_string(i);
}

void BM_DirectBurstNoLoss(benchmark::State& state) {
  const std::size_t segment = static_cast<std::size_t>(state.range(0));  // 0: one write
  tesk::SimPlatform platform;
  tesk::StationConfig config;
  tesk::RunState run;
  config.LanPort = 8000;
  tesk::testing::DialectEngine engine(platform, tesk::testing::Dialect::DireWolf16, "127.0.0.1",
                                      8000);
  engine.start();
  tesk::AgwDirect direct(platform, config, run);
  if (direct.AGWStartPoll("XX9TK", "", 5, 0) == 0) {
    state.SkipWithError("no engine");
    return;
  }
  // The engine's own first frames (its port list) are not part of a burst.
  platform.simLoop.run(1);
  {
    std::string call, text;
    int32_t kind = 0, length = 0, port = 0;
    while (direct.AGWGetData(call, text, kind, length, port) != 0) {
    }
  }
  std::vector<uint8_t> burst;
  for (int i = 0; i < kBurst; ++i) {
    const std::vector<uint8_t> h = engine.heardBytes(Heard(i));
    burst.insert(burst.end(), h.begin(), h.end());
  }
  std::string call, text;
  int32_t kind = 0, length = 0, port = 0;
  for (auto _ : state) {
    if (segment == 0) {
      engine.write(burst);
    } else {
      for (std::size_t at = 0; at < burst.size(); at += segment)
        engine.write(std::vector<uint8_t>(
            burst.begin() + static_cast<long>(at),
            burst.begin() + static_cast<long>(std::min(burst.size(), at + segment))));
    }
    platform.simLoop.run(0.01);
    int got = 0;
    while (direct.AGWGetData(call, text, kind, length, port) != 0)
      ++got;
    if (got != kBurst || text.find("RS0ISS*") == std::string::npos) {
      state.SkipWithError("frames lost or unmarked");
      return;
    }
  }
  state.SetItemsProcessed(state.iterations() * kBurst);
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(burst.size()));
}
BENCHMARK(BM_DirectBurstNoLoss)->Arg(0)->Arg(1460)->Arg(64)->Unit(benchmark::kMillisecond);

}  // namespace
