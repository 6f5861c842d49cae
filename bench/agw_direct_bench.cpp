// Frames per second the direct-mode client takes from an engine with none lost: bursts of
// packets as Dire Wolf writes them (raw frame, then monitor text), in one write or cut into
// TCP-sized or tiny reads, through reassembly, pairing and the rebuilt texts, drained with
// AGWGetData the way the core polls. A burst that loses a frame stops the benchmark.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>
#include <vector>

#include "link/agw_direct.h"
#include "link/ax25_frame.h"
#include "platform/sim/sim_platform.h"

namespace {

constexpr int kBurst = 1000;

std::vector<uint8_t> Frame(char kind, const std::string& data) {
  tesk::AgwFrame f;
  f.kind = kind;
  f.callFrom = "XX9TK-7";
  f.callTo = "APRS";
  f.data = data;
  return f.encode();
}

// One packet heard through the ISS, as Dire Wolf sends it: "K" then "U".
std::vector<uint8_t> Heard(int i) {
  const std::string info = "=5213.12N/00521.34E-TESK bench frame " + std::to_string(i);
  std::vector<uint8_t> ax25 =
      tesk::EncodeAx25Ui("APRS", "XX9TK-7", {"RS0ISS", "ARISS"}, 0xF0, info);
  ax25[20] |= 0x80;  // RS0ISS has repeated it
  std::vector<uint8_t> out =
      Frame('K', std::string(1, '\0') + std::string(ax25.begin(), ax25.end()));
  const std::string text =
      " 1:Fm XX9TK-7 To APRS Via RS0ISS,ARISS <UI pid=F0 Len=" + std::to_string(info.size()) +
      " PF=0 >[12:00:00]\r" + info + "\r" + std::string(1, '\0');
  const std::vector<uint8_t> u = Frame('U', text);
  out.insert(out.end(), u.begin(), u.end());
  return out;
}

void BM_DirectBurstNoLoss(benchmark::State& state) {
  const std::size_t segment = static_cast<std::size_t>(state.range(0));  // 0: one write
  tesk::SimPlatform platform;
  tesk::StationConfig config;
  tesk::RunState run;
  std::shared_ptr<tesk::SimConnection> engine;
  platform.network.listen("127.0.0.1", 8000, [&](std::shared_ptr<tesk::SimConnection> c) {
    engine = c;
    std::weak_ptr<tesk::SimConnection> weak = c;
    c->onReceive = [weak](const std::vector<uint8_t>& b) {
      auto self = weak.lock();
      if (self && b.size() >= 36 && b[4] == 'R') self->send(Frame('R', std::string(8, '\0')));
    };
  });
  tesk::AgwDirect direct(platform, config, run);
  if (direct.AGWStartPoll("XX9TK", "", 5, 0) == 0) {
    state.SkipWithError("no engine");
    return;
  }
  std::vector<uint8_t> burst;
  for (int i = 0; i < kBurst; ++i) {
    const std::vector<uint8_t> h = Heard(i);
    burst.insert(burst.end(), h.begin(), h.end());
  }
  std::string call, text;
  int32_t kind = 0, length = 0, port = 0;
  for (auto _ : state) {
    if (segment == 0) {
      engine->send(burst);
    } else {
      for (std::size_t at = 0; at < burst.size(); at += segment)
        engine->send(std::vector<uint8_t>(
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
