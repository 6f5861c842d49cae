// The cost of one received line on screen: appending an 80-character coloured line to the view
// of a Monitor that already holds 512,000 characters (the largest buffer limit), painted at once.
// Needs the Qt platform library; a bench build without it leaves this file empty.
#if __has_include(<QApplication>)
#include <benchmark/benchmark.h>

#include <QApplication>

#include "qt/views/monitor_view.h"

namespace {

QApplication& App() {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static int argc = 1;
  static char name[] = "monitor_view_bench";
  static char* argv[] = {name, nullptr};
  static QApplication* app = new QApplication(argc, argv);  // never destroyed, as Qt prefers
  return *app;
}

void BM_AppendLineToFullMonitor(benchmark::State& state) {
  App();
  tesk::RichText text;
  tesk::MonitorView view(text);
  view.resize(900, 500);
  view.show();
  const std::string header = "Fm PA3XYZ-1 To CQ Via ARISS* <UI pid=F0 Len=45> [12:00:00]";
  const std::string data(78, 'x');
  while (text.length() < 512000) {
    text.append(header.substr(0, 78) + "\r\n", tesk::RGB(255, 255, 0));
    text.append(data + "\r\n", tesk::RGB(0, 255, 255));
  }
  view.flush();
  QApplication::processEvents();
  const std::string line = std::string(78, 'y') + "\r\n";
  for (auto _ : state) {
    text.append(line, tesk::RGB(0, 255, 0));
    view.flush();
  }
  state.counters["chars"] = static_cast<double>(text.length());
}
BENCHMARK(BM_AppendLineToFullMonitor)->Unit(benchmark::kMicrosecond);

// The same with Qt's repaint of the visible widget included.
void BM_AppendLineAndRepaint(benchmark::State& state) {
  App();
  tesk::RichText text;
  tesk::MonitorView view(text);
  view.resize(900, 500);
  view.show();
  const std::string data(78, 'x');
  while (text.length() < 512000)
    text.append(data + "\r\n", tesk::RGB(0, 255, 255));
  view.flush();
  QApplication::processEvents();
  const std::string line = std::string(78, 'y') + "\r\n";
  for (auto _ : state) {
    text.append(line, tesk::RGB(0, 255, 0));
    view.flush();
    view.viewport()->repaint();
  }
}
BENCHMARK(BM_AppendLineAndRepaint)->Unit(benchmark::kMicrosecond);

}  // namespace
#endif
