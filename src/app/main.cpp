// The program: picks the windowed or the headless form, prepares the program folder, builds the
// station on the Qt platform, and runs the entry routine from the event loop. SIGINT, SIGTERM
// and closing the main window all go through the station's shut-down.
#include <unistd.h>

#include <QApplication>
#include <QCoreApplication>
#include <QDateTime>
#include <QGuiApplication>
#include <QIcon>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/app_options.h"
#include "app/signal_pipe.h"
#include "main/station.h"
#include "main/station_parts.h"
#include "qt/console_monitor.h"
#include "qt/qt_platform.h"
#include "qt/qt_views.h"
#include "sim/qt_agw_listener.h"
#include "sim/qt_demo_engine.h"

namespace {

std::unique_ptr<QCoreApplication> MakeApplication(bool headless, int& argc, char** argv) {
  if (headless) return std::make_unique<QCoreApplication>(argc, argv);
  auto app = std::make_unique<QApplication>(argc, argv);
  // Boxes shown before the main window must not end the program when they close.
  app->setQuitOnLastWindowClosed(false);
  // Ties the windows to the installed desktop entry, and gives them its icon where the icon
  // theme has it (an installed TESK); a build tree's windows simply go without.
  QGuiApplication::setDesktopFileName(QStringLiteral("org.tesk.Tesk"));
  app->setWindowIcon(QIcon::fromTheme(QStringLiteral("org.tesk.Tesk")));
  return app;
}

// Shut-down on request, once: a second request while it runs ends the process at once.
class ShutDown {
 public:
  ShutDown(tesk::Station& station, tesk::Platform& platform)
      : m_station(station), m_platform(platform) {}
  void operator()() {
    if (m_running) m_platform.loop().endNow(1);
    m_running = true;
    m_station.Einde();
    m_platform.loop().endNow(0);  // Einde ends the process; this is only a backstop
  }

 private:
  tesk::Station& m_station;
  tesk::Platform& m_platform;
  bool m_running = false;
};

void WireHeadless(tesk::QtPlatform& platform, tesk::Station& station,
                  tesk::ConsoleMonitor& monitor) {
  monitor.attach();
  tesk::ConsoleInput& input = *platform.consoleInput();
  input.setConsoleHandler([&station](const std::string& line) { station.consoleLine(line); });
  input.attach(STDIN_FILENO);
}

void WireWindows(tesk::QtPlatform& platform, tesk::Station& station, ShutDown& shutDown) {
  tesk::QtViews& views = *platform.qtViews();
  views.setSplashText([&station]() { return "Version " + station.run().VersionText; });
  tesk::StationParts& parts = station.parts();
  views.attachLanSetup(parts.lanSetup);
  views.attachMeld(parts.meld);
  views.attachFind(parts.find);
  views.attachViewHeard(parts.viewHeard);
  views.attachEditTXData(parts.txPanel.editor());
  views.attachAprsSetup(parts.aprsSetup);
  views.attachTxMultiLine(parts.txMultiLine);
  views.attachSetup(parts.setup);
  views.attachMessenger(parts.messenger);
  views.attachStatistics(parts.statistics);
  views.attachBeacon(parts.beaconSetup);
  views.attachMainWindow(
      station.mainWindow(), station.commands(),
      tesk::MainWindowHandlers{&parts.txPanel, &parts.monitor, &parts.heardList,
                               &parts.uiTextSender},
      [&station]() {
        const tesk::StationConfig& c = station.config();
        return tesk::MonitorLook{c.ScreenColor, c.MonitorFontname, c.FontSize, c.FontBold != 0};
      },
      [&shutDown]() { shutDown(); });
}

// Starts the simulated engine for --demo and points the station at it for this run only.
bool StartDemoEngine(tesk::sim::QtDemoEngine& engine, const std::string& appPath,
                     tesk::StationOptions& stationOptions) {
  const std::string passFile =
      tesk::sim::FindDefaultPass(appPath, QCoreApplication::applicationDirPath().toStdString());
  std::string error = "no pass file found";
  std::optional<tesk::sim::Scenario> scenario;
  if (!passFile.empty()) scenario = tesk::sim::LoadScenario(passFile, error);
  int port = 0;
  if (scenario) {
    tesk::sim::EngineOptions options;
    options.scenario = std::move(*scenario);
    options.seed = static_cast<uint32_t>(QDateTime::currentSecsSinceEpoch());
    port = engine.start(std::move(options), {}, error);
  }
  if (port == 0) {
    std::fprintf(stderr, "tesk: the simulated engine did not start: %s\n", error.c_str());
    return false;
  }
  std::fprintf(stderr, "tesk: simulated satellite pass on 127.0.0.1:%d\n", port);
  stationOptions.overrideHost = "127.0.0.1";
  stationOptions.overridePort = port;
  stationOptions.demo = true;
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  const tesk::AppOptions options = tesk::ParseAppOptions(args);
  if (options.help || !options.error.empty()) {
    if (!options.error.empty()) std::fprintf(stderr, "tesk: %s\n", options.error.c_str());
    std::fputs(tesk::kUsage, options.help ? stdout : stderr);
    return options.help ? 0 : 2;
  }
  std::unique_ptr<QCoreApplication> app = MakeApplication(options.headless, argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("tesk"));

  const std::string appPath = tesk::ResolveAppPath(options);
  const std::string note =
      tesk::PrepareAppPath(appPath, QCoreApplication::applicationDirPath().toStdString());
  if (!note.empty()) std::fprintf(stderr, "tesk: %s\n", note.c_str());

  tesk::QtPlatform platform(
      options.headless, tesk::QtPlatform::DescribeSystem(options.commandLine, options.headless));
  tesk::StationOptions stationOptions;
  stationOptions.appPath = appPath;
  tesk::sim::QtDemoEngine demoEngine;
  if (options.demo && !StartDemoEngine(demoEngine, appPath, stationOptions)) return 1;
  tesk::Station station(platform, stationOptions);
  ShutDown shutDown(station, platform);
  tesk::ConsoleMonitor monitor(station.mainWindow().txtMonitor, isatty(STDOUT_FILENO) != 0);
  if (options.headless) {
    WireHeadless(platform, station, monitor);
  } else {
    WireWindows(platform, station, shutDown);
  }
  tesk::SignalPipe signalPipe([&shutDown](int) { shutDown(); });

  QTimer::singleShot(0, [&]() {
    station.Start();
    if (platform.consoleInput() != nullptr) platform.consoleInput()->setLoadPassEnded();
  });
  return app->exec();
}
