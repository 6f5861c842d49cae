// Command-line options and the program folder.
#include "app/app_options.h"

#include "base/shared_files.h"

#include <QStandardPaths>
#include <cstdlib>
#include <filesystem>

namespace tesk {

namespace fs = std::filesystem;

const char* const kUsage =
    "usage: tesk [--headless] [--home DIR] [--demo] [engine command line...]\n"
    "  --headless   no windows: the Monitor goes to standard output, boxes and console\n"
    "               commands are read from standard input (:quit ends the program)\n"
    "  --home DIR   the program folder (default $TESK_HOME, else ~/.local/share/tesk)\n"
    "  --demo       run against the built-in simulated packet engine\n"
    "  /LAN, /AGW   link over TCP or through the engine's library, for this run\n"
    "  /RUN prog    start a program\n";

AppOptions ParseAppOptions(const std::vector<std::string>& args) {
  AppOptions o;
  std::vector<std::string> rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--headless") {
      o.headless = true;
    } else if (a == "--demo") {
      o.demo = true;
    } else if (a == "--help" || a == "-h") {
      o.help = true;
    } else if (a == "--home") {
      if (i + 1 >= args.size()) {
        o.error = "--home needs a folder";
      } else {
        o.home = args[++i];
      }
    } else if (a.rfind("--home=", 0) == 0) {
      o.home = a.substr(7);
    } else {
      rest.push_back(a);
    }
  }
  for (const std::string& r : rest)
    o.commandLine += (o.commandLine.empty() ? "" : " ") + r;
  return o;
}

std::string ResolveAppPath(const AppOptions& options) {
  std::string path = options.home;
  if (path.empty()) {
    const char* env = std::getenv("TESK_HOME");
    if (env != nullptr) path = env;
  }
  if (path.empty()) {
    path = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString() +
           "/tesk";
  }
  std::error_code ec;
  const fs::path absolute = fs::absolute(path, ec);
  if (!ec) path = absolute.lexically_normal().string();
  while (path.size() > 1 && path.back() == '/')
    path.pop_back();
  return path;
}

std::string PrepareAppPath(const std::string& appPath, const std::string& exeDir) {
  std::error_code ec;
  const bool existed = fs::exists(appPath, ec);
  if (!existed && !fs::create_directories(appPath, ec)) {
    return "cannot create the program folder " + appPath + ": " + ec.message();
  }
  // A folder the operator already uses is never written over.
  if (existed && !fs::is_empty(appPath, ec)) return "";
  const SharedFilesSearch shared = FindSharedFiles(exeDir);
  if (shared.found.empty()) return DescribeMissingSharedFiles(shared);
  fs::copy(shared.found, appPath, fs::copy_options::recursive | fs::copy_options::skip_existing,
           ec);
  if (ec) return "cannot copy " + shared.found.string() + " to " + appPath + ": " + ec.message();
  return "filled the new program folder " + appPath + " from " + shared.found.string();
}

}  // namespace tesk
