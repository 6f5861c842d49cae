// The statistics window's counts over the largest Monitor (512,000 characters, about 8000
// frames of stations heard direct, through the satellite and the station's own): every count
// together, as one press of the window runs them. The target is well under 100 ms.
#include <benchmark/benchmark.h>

#include <string>

#include "alarms/statistics.h"
#include "base/text.h"

namespace tesk {
namespace {

constexpr std::size_t kFull = 512000;
const TextStyle kHeader{0x0000FF, false, 9};
const TextStyle kDigi{0x00FF00, true, 9};
const TextStyle kData{0x008000, false, 9};

// Short frames of 300 stations, one in ten the own and one in twenty to a beacon.
void Fill(RichText& t) {
  long n = 0;
  while (t.length() < kFull) {
    const bool own = n % 10 == 0;
    const std::string from = own ? "XX9TK-1" : "ST" + FormatZeros(n % 300, 4);
    const std::string to = n % 20 == 1 ? "BEACON" : "APRS";
    const std::string via = n % 3 == 0 ? " Via ARISS*" : " Via ARISS";
    t.append("Fm " + from + " To " + to + via + " <UI pid=F0 Len=9 >[12:00:00]\r\n",
             own && n % 3 == 0 ? kDigi : kHeader);
    t.append("=5053.25N\r\n", kData);
    ++n;
  }
}

void BM_StatisticsOfAFullMonitor(benchmark::State& state) {
  RichText t;
  Fill(t);
  long frames = 0;
  for (auto _ : state) {
    const MonitorCounts c = CountMonitor(t, "Courier New", "XX9TK-1", {});
    frames = c.total;
    benchmark::DoNotOptimize(c);
  }
  state.counters["chars"] = static_cast<double>(t.length());
  state.counters["frames"] = static_cast<double>(frames);
}
BENCHMARK(BM_StatisticsOfAFullMonitor)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tesk
