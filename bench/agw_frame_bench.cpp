// Throughput of the AGWPE frame codec: the LAN decoder runs on every socket read and the UI
// builder on every transmission, so both should stay far below a tick's budget.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "link/agw_frame.h"

namespace {

void BM_DecodeMonitorRead(benchmark::State& state) {
  tesk::AgwFrame f;
  f.kind = 'U';
  f.callFrom = "XX9TK-15";
  f.callTo = "APRS";
  f.data = " 1:Fm XX9TK-15 To APRS Via RS0ISS <UI pid=F0 Len=60 >[12:00:00]\r" +
           std::string(static_cast<size_t>(state.range(0)), 'x') + "\r";
  const std::vector<uint8_t> read = f.encode();
  tesk::FrameSlot slot;
  std::string ports, status;
  for (auto _ : state) {
    tesk::AGWWinsockGetDataLAN(read, slot, ports, status);
    benchmark::DoNotOptimize(slot.FrameData.data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(read.size()));
}
BENCHMARK(BM_DecodeMonitorRead)->Arg(16)->Arg(200)->Arg(2000);

void BM_BuildUiViaTwoDigis(benchmark::State& state) {
  const std::string data = "=5030.00N/00400.00E-TESK test position with a comment";
  for (auto _ : state) {
    std::vector<uint8_t> frame = tesk::BuildControlUI(0, "", "XX9TK", "CQ", data, "RS0ISS,ARISS");
    benchmark::DoNotOptimize(frame.data());
  }
}
BENCHMARK(BM_BuildUiViaTwoDigis);

}  // namespace
