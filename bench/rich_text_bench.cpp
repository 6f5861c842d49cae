// The Monitor's cost per line: appending one 80-character line to a buffer that already holds
// 512,000 characters, alone and with the buffer limit cut the Monitor applies after each frame,
// and the "Fm " walk of the statistics over a full buffer.
#include <benchmark/benchmark.h>

#include <string>

#include "platform/rich_text.h"

namespace tesk {
namespace {

constexpr std::size_t kFull = 512000;
const TextStyle kHeader{0x0000FF, false, 9};
const TextStyle kData{0x008000, false, 9};

std::string Line(char fill) {
  return std::string(78, fill).append("\r\n");
}

// A buffer of alternating header and data lines, as the Monitor fills it.
void Fill(RichText& t, std::size_t length) {
  const std::string header = std::string("Fm XX9TK-1 To CQ Via ARISS <UI pid=F0 Len=40 >[12:00:00]")
                                 .append(20, ' ')
                                 .append("\r\n");
  const std::string data = Line('d');
  while (t.length() < length) {
    t.append(header, kHeader);
    t.append(data, kData);
  }
}

void BM_AppendLine(benchmark::State& state) {
  RichText t;
  Fill(t, kFull);
  std::size_t lines = 0;
  t.setListener([&lines](const RichText::Change&) { ++lines; });
  const std::string line = Line('x');
  bool header = false;
  for (auto _ : state) {
    t.append(line, header ? kHeader : kData);
    header = !header;
  }
  benchmark::DoNotOptimize(lines);
  state.counters["chars"] = static_cast<double>(t.length());
}
// A bounded count keeps the buffer near its Monitor size (512,000 + 8 MB at most).
BENCHMARK(BM_AppendLine)->Iterations(100000);

// The append plus the cut that keeps the buffer inside its limit, as the Monitor runs it.
void BM_AppendLineWithLimit(benchmark::State& state) {
  RichText t;
  Fill(t, kFull);
  const std::string line = Line('x');
  bool header = false;
  for (auto _ : state) {
    t.append(line, header ? kHeader : kData);
    header = !header;
    if (t.length() > kFull) {
      const std::size_t h = kFull - kFull / 2;
      t.setRuns(t.runs(h, h));
      t.setSelection(t.length(), 0);
    }
  }
  state.counters["chars"] = static_cast<double>(t.length());
}
BENCHMARK(BM_AppendLineWithLimit);

void BM_FindWalkFull(benchmark::State& state) {
  RichText t;
  Fill(t, kFull);
  for (auto _ : state) {
    long hits = 0;
    for (long at = t.find("Fm ", 0, {}); at >= 0; at = t.find("Fm ", at + 1, {}))
      ++hits;
    benchmark::DoNotOptimize(hits);
  }
}
BENCHMARK(BM_FindWalkFull)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tesk
