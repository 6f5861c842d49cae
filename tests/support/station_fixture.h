// A station on the sim platform in a temporary program folder, for scenario tests.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

#include "main/station.h"
#include "main/station_parts.h"
#include "platform/sim/sim_platform.h"

namespace tesk::testing {

class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  const std::string& path() const { return m_path; }
  std::string file(const std::string& name) const { return m_path + "/" + name; }

 private:
  std::string m_path;
};

// Reads a whole file as bytes ("" when missing).
std::string ReadFile(const std::string& path);
void WriteFile(const std::string& path, const std::string& bytes);

// TESKLanMode.ini as the settings window writes it.
std::string LanIni(const std::string& host, int port, int lanMode, int registerCall = 0,
                   const std::string& password = "", int emulate = 0);

class StationTest : public ::testing::Test {
 protected:
  static constexpr const char* kHost = "127.0.0.1";
  static constexpr int kPort = 8123;

  // Builds the station with `commandLine` as the engine command line.
  Station& make(const std::string& commandLine = "/LAN");
  // Builds and starts it, answering the first-run call sign question with `call`.
  Station& start(const std::string& commandLine = "/LAN", const std::string& call = "XX9TK");
  std::string monitorText() { return station->mainWindow().txtMonitor.text(); }

  SimPlatform platform;
  TempDir home;
  std::unique_ptr<Station> station;
};

}  // namespace tesk::testing
