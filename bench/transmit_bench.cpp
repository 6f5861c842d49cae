// The cost of sending, from the press to the bytes on the LAN link (in-memory, no wire time):
// one Text/data frame cut by the Via rule, one Multi-Line page (with the load and save of its
// file beside it), one compressed position report, and the heard report of
// a full MHeard list (type 1: the dry run, then every frame through the 80-character sender). The
// engine's side only counts what arrives; the frames leave in virtual time, so the pauses cost
// nothing here.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <string>

#include "bench/lan_bench_station.h"
#include "main/station.h"
#include "main/station_parts.h"
#include "transmit/tx_multi_line_file.h"

namespace tesk {
namespace {

struct Bench : LanBenchStation {
  Bench() : LanBenchStation("tesk-transmit-bench", 8123) { station->run().TagText = " {TESK54}"; }
};

void BM_TextDataPressToWire(benchmark::State& state) {
  Bench b;
  b.station->mainWindow().cmbDataText.text = std::string(120, 'x');
  for (auto _ : state) {
    b.station->parts().txPanel.Press(SendButton::DataText);
    b.platform.simLoop.run(0.01);
  }
  state.counters["frames/s"] =
      benchmark::Counter(static_cast<double>(b.frames), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_TextDataPressToWire);

// A Multi-Line page of nine lines, longer than the frame, from its send button to the wire: the
// line signs of all three pages, the cut with the CR LF pairs counted, the frame.
void BM_MultiLinePressToWire(benchmark::State& state) {
  Bench b;
  TxMultiLineForm& multi = b.station->parts().txMultiLine;
  multi.Form_Load();
  std::string page;
  for (int i = 1; i <= 9; ++i)
    page += (i > 1 ? "\r\n" : "") + std::string(12, static_cast<char>('a' + i));
  multi.window().TxtMultiLine[1].text = page;
  multi.TxtMultiLine_Change(1);
  for (auto _ : state) {
    multi.cmdTXMultiLines_Click(1);
    b.platform.simLoop.run(0.01);
  }
  state.counters["frames/s"] =
      benchmark::Counter(static_cast<double>(b.frames), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_MultiLinePressToWire);

// TXMultiLine.ini with three full pages (nine lines of 80 characters each), read and written
// once, as a window's load and unload do.
void BM_MultiLineFileLoadAndSave(benchmark::State& state) {
  const std::string path =
      (std::filesystem::temp_directory_path() / "tesk-multiline-bench.ini").string();
  MultiLinePages pages;
  for (std::string& page : pages)
    for (int i = 0; i < 9; ++i)
      page += (i > 0 ? "\r\n" : "") + std::string(80, static_cast<char>('A' + i));
  SaveMultiLineFile(path, pages);
  for (auto _ : state) {
    MultiLinePages loaded = LoadMultiLineFile(path);
    benchmark::DoNotOptimize(loaded);
    SaveMultiLineFile(path, loaded);
  }
  std::filesystem::remove(path);
}
BENCHMARK(BM_MultiLineFileLoadAndSave)->Unit(benchmark::kMicrosecond);

// The position send button with the compressed form, comment cut by the same Via rule.
void BM_APRSCompressedPressToWire(benchmark::State& state) {
  Bench b;
  StationConfig& config = b.station->config();
  config.APRS = "=5053.25N/00440.50E-";
  config.APRSEnabled = -1;
  config.APRSCompressed = "=/4g%<O^\\E-  B";
  b.station->mainWindow().cmbAPRSPos.text = std::string(60, 'x');
  for (auto _ : state) {
    b.station->parts().aprsPosition.cmdTXAPRS_Click();
    b.platform.simLoop.run(0.01);
  }
  state.counters["frames/s"] =
      benchmark::Counter(static_cast<double>(b.frames), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_APRSCompressedPressToWire);

void BM_HeardReportFullList(benchmark::State& state) {
  Bench b;
  ListBox& list = b.station->mainWindow().LstMHeardList;
  for (int i = 0; i < 250; ++i) {
    std::string row = "PA" + std::to_string(i % 10) + "A" + std::string(1, 'A' + i / 26 % 26) +
                      std::string(1, 'A' + i % 26);
    row.resize(21, ' ');
    list.list.push_back(row + "22-11-2026 12:00:00");
  }
  const long before = b.frames;
  long reports = 0;
  for (auto _ : state) {
    b.station->parts().heardReports.SendMheardList(1);
    ++reports;
  }
  state.counters["frames/report"] =
      static_cast<double>(b.frames - before) / static_cast<double>(reports);
}
BENCHMARK(BM_HeardReportFullList)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tesk
