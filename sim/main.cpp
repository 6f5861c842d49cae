// tesk-sim: the simulated packet engine as a standalone server on 127.0.0.1, for trying the
// console by hand or with any other AGWPE client. It prints what it does on standard output.
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "qt/qt_clock.h"
#include "qt/qt_event_loop.h"
#include "sim/qt_agw_listener.h"
#include "sim/sim_engine.h"

namespace {

const char* const kUsage =
    "usage: tesk-sim [--port N] [--dialect NAME] [--scale X] [--seed N] [--pass FILE] [--quiet]\n"
    "  --port N        TCP port on 127.0.0.1 (default 8000; 0 takes a free one)\n"
    "  --dialect NAME  direwolf16 (default), direwolf, qtsoundmodem or agwpe\n"
    "  --scale X       run the pass X times faster than real time (default 1)\n"
    "  --seed N        seed of the random choices (default 1)\n"
    "  --pass FILE     the pass scenario (default: the shipped default pass)\n"
    "  --quiet         print only the listening line\n";

struct SimArgs {
  int port = 8000;
  std::string dialect = "direwolf16", pass;
  double scale = 1;
  unsigned long seed = 1;
  bool quiet = false;
  std::string error;
};

SimArgs ParseArgs(int argc, char** argv) {
  SimArgs a;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    const bool hasValue = i + 1 < argc;
    if (arg == "--quiet") {
      a.quiet = true;
    } else if (!hasValue) {
      a.error = "unknown or incomplete option " + arg;
    } else if (arg == "--port") {
      a.port = std::atoi(argv[++i]);
    } else if (arg == "--dialect") {
      a.dialect = argv[++i];
    } else if (arg == "--scale") {
      a.scale = std::atof(argv[++i]);
    } else if (arg == "--seed") {
      a.seed = std::strtoul(argv[++i], nullptr, 10);
    } else if (arg == "--pass") {
      a.pass = argv[++i];
    } else {
      a.error = "unknown option " + arg;
    }
    if (!a.error.empty()) break;
  }
  if (a.error.empty() && (a.port < 0 || a.port > 65535)) a.error = "port out of range";
  if (a.error.empty() && a.scale <= 0) a.error = "scale must be above 0";
  return a;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  const SimArgs args = ParseArgs(argc, argv);
  const std::optional<tesk::sim::Dialect> dialect = tesk::sim::ParseDialect(args.dialect);
  if (!args.error.empty() || !dialect) {
    std::fprintf(stderr, "tesk-sim: %s\n%s",
                 args.error.empty() ? "unknown dialect" : args.error.c_str(), kUsage);
    return 2;
  }
  const std::string passFile =
      args.pass.empty()
          ? tesk::sim::FindDefaultPass("", QCoreApplication::applicationDirPath().toStdString())
          : args.pass;
  std::string error;
  std::optional<tesk::sim::Scenario> scenario = tesk::sim::LoadScenario(passFile, error);
  if (!scenario) {
    std::fprintf(stderr, "tesk-sim: %s\n", passFile.empty() ? "no pass file" : error.c_str());
    return 1;
  }
  tesk::QtEventLoop loop;
  tesk::QtClock clock;
  tesk::sim::EngineOptions options{*dialect, args.scale, static_cast<uint32_t>(args.seed),
                                   std::move(*scenario)};
  tesk::sim::SimEngine engine(loop, clock, std::move(options));
  if (!args.quiet)
    engine.setLog([](const std::string& line) {
      std::printf("%s\n", line.c_str());
      std::fflush(stdout);
    });
  tesk::sim::QtAgwListener listener(engine);
  if (!listener.listen("127.0.0.1", args.port, error)) {
    std::fprintf(stderr, "tesk-sim: cannot listen on 127.0.0.1:%d: %s\n", args.port, error.c_str());
    return 1;
  }
  std::printf("tesk-sim: %s engine, pass \"%s\", scale %g, seed %lu, listening on 127.0.0.1:%d\n",
              tesk::sim::DialectName(*dialect), engine.scenario().name.c_str(), args.scale,
              args.seed, listener.port());
  std::fflush(stdout);
  return app.exec();
}
