// Helpers of the settings tests: a throw-away program folder, whole-file bytes, the lines of a
// CR LF file, and a SettingsFile wired to the sim platform with hooks that record their calls.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "platform/sim/sim_platform.h"
#include "settings/settings_file.h"
#include "settings/station_config.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk::settings_test {

class Folder {
 public:
  Folder() {
    std::random_device rd;
    for (int i = 0; i < 100 && m_path.empty(); ++i) {
      const auto p =
          std::filesystem::temp_directory_path() / ("tesk-settings-" + std::to_string(rd()));
      if (std::filesystem::create_directory(p)) m_path = p.string();
    }
  }
  ~Folder() {
    std::error_code ec;
    std::filesystem::remove_all(m_path, ec);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  const std::string& path() const { return m_path; }
  std::string file(const std::string& name) const { return m_path + "/" + name; }

 private:
  std::string m_path;
};

inline std::string Slurp(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void Spit(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

// The lines of a CR LF text; a missing CR before a LF makes the line carry a "<LF>" mark.
inline std::vector<std::string> CrLfLines(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t pos = 0;
  while (pos < text.size()) {
    const std::size_t lf = text.find('\n', pos);
    if (lf == std::string::npos) {
      lines.push_back(text.substr(pos) + "<no end>");
      break;
    }
    const bool cr = lf > pos && text[lf - 1] == '\r';
    lines.push_back(text.substr(pos, lf - pos - (cr ? 1 : 0)) + (cr ? "" : "<LF>"));
    pos = lf + 1;
  }
  return lines;
}

inline std::string JoinCrLf(const std::vector<std::string>& lines) {
  std::string out;
  for (const std::string& l : lines)
    out += l + "\r\n";
  return out;
}

// One station's worth of settings state in a temporary program folder.
struct Rig {
  Rig() {
    run.AppPath = folder.path();
    run.SettingsPath = folder.file("tesk.ini");
    run.VersionText = "5.4.4";
    SettingsHooks hooks;
    hooks.menufilters_Click = [this](int i) { filterClicks.push_back(i); };
    hooks.setFilterText = [this](const std::string& t) { filterText = t; };
    hooks.AutoLog = [this](int mode) { autoLogs.push_back(mode); };
    hooks.CalcUTC = [this] { ++calcUtcCalls; };
    hooks.erasePendingMessages = [this] { ++erases; };
    settings = std::make_unique<SettingsFile>(config, run, main, platform, hooks);
  }
  std::string iniText() const { return Slurp(run.SettingsPath); }

  Folder folder;
  SimPlatform platform;
  StationConfig config;
  RunState run;
  MainWindow main;
  std::unique_ptr<SettingsFile> settings;
  std::vector<int> filterClicks, autoLogs;
  std::string filterText;
  int calcUtcCalls = 0, erases = 0;
};

}  // namespace tesk::settings_test
