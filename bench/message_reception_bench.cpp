// The cost of storing a message heard when the list is full: LogAPRSMessages with 200 entries,
// whose duplicate test walks them all before the new message takes the last place. Messages for
// another station, so no answer and no sign is raised.
#include <benchmark/benchmark.h>

#include <memory>
#include <string>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"

namespace tesk {
namespace {

std::string Data(long n) {
  std::string data =
      ":XX7ZZ    :a message heard through the satellite, number " + std::to_string(n) + "\r\r\n";
  data.push_back('\0');
  return data + std::string(40, ' ');
}

void BM_LogAPRSMessagesFullList(benchmark::State& state) {
  SimPlatform platform;
  StationOptions options;
  options.appPath = "/nonexistent/tesk-reception-bench";
  Station station(platform, options);
  station.config().YourCallSign = "XX9TK";
  station.config().LogDigipeatedMessages = 0;
  MessageReception& reception = station.parts().messageReception;
  const std::string header = "Fm XX8AB To APRS Via ARISS* <UI pid=F0 Len=60 >[12:00:00]";
  long n = 0;
  for (; n < 200; ++n) {
    std::string h = header;
    std::string d = Data(n);
    reception.LogAPRSMessages(h, d);
  }
  for (auto _ : state) {
    state.PauseTiming();
    std::string h = header;
    std::string d = Data(n++);
    state.ResumeTiming();
    reception.LogAPRSMessages(h, d);
  }
  state.counters["stored"] = station.run().MessageLogCount;
}
BENCHMARK(BM_LogAPRSMessagesFullList);

}  // namespace
}  // namespace tesk
