// The scenario-test station and its temporary program folder.
#include "support/station_fixture.h"

#include <fstream>
#include <random>
#include <sstream>

namespace tesk::testing {

TempDir::TempDir() {
  std::random_device rd;
  const auto base = std::filesystem::temp_directory_path();
  for (int i = 0; i < 100; ++i) {
    auto p = base / ("tesk-test-" + std::to_string(rd()));
    if (std::filesystem::create_directory(p)) {
      m_path = p.string();
      return;
    }
  }
}

TempDir::~TempDir() {
  std::error_code ec;
  if (!m_path.empty()) {
    // A test may have made a folder read-only; give it back before removing.
    std::filesystem::permissions(m_path, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, ec);
    std::filesystem::remove_all(m_path, ec);
  }
}

std::string ReadFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  std::ostringstream ss;
  ss << in.rdbuf();
  return ss.str();
}

void WriteFile(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << bytes;
}

std::string LanIni(const std::string& host, int port, int lanMode, int registerCall,
                   const std::string& password, int emulate) {
  const char* crlf = "\r\n";
  std::string s;
  auto line = [&](const std::string& l) { s += l + crlf; };
  line(";TESK Lan Mode Settings");
  line(";FreeWare");
  line("[HostName_IP_Default]");
  line(host);
  line("[HostName_IP]");
  for (int i = 0; i < 5; ++i)
    line("");
  line("[LanPort]");
  line(" " + std::to_string(port) + " ");
  line("[TESKLanMode]");
  line(lanMode < 0 ? std::to_string(lanMode) + " " : " " + std::to_string(lanMode) + " ");
  line("[RegisterCall]");
  line(registerCall < 0 ? std::to_string(registerCall) + " "
                        : " " + std::to_string(registerCall) + " ");
  line("[Emulate_TXFrames_On_SlowNetPC]");
  line(" " + std::to_string(emulate) + " ");
  line("[Lan_Password]");
  line(password);
  for (int i = 0; i < 5; ++i) {
    line("[reserved]");
    line("");
  }
  return s;
}

Station& StationTest::make(const std::string& commandLine) {
  platform.systemInfo.commandLine = commandLine;
  StationOptions options;
  options.appPath = home.path();
  station = std::make_unique<Station>(platform, options);
  return *station;
}

Station& StationTest::start(const std::string& commandLine, const std::string& call) {
  make(commandLine);
  platform.simDialogs.answers.push_back(call);
  station->Start();
  platform.simLoop.run(0.01);  // let the last frames reach the engine
  return *station;
}

}  // namespace tesk::testing
