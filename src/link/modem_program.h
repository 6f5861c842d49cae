// The outside modem program: which one lies in the program folder, its start at load when
// asked, its close at exit, and the outside terminal program prepared for LAN mode. On this
// platform a modem program's "window" is the running program of a matching name, of this user.
#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class LinkEvents;

// The modem number of the programs found in `appPath` (0 none, 1 SoundModem, 2 AGW Packet
// Engine, 3 Dire Wolf or Packet Engine Pro). The files are tested in a fixed order and the last
// one found decides.
void CheckForSoundModem(const std::string& appPath, int16_t& result);

// The path of a SoundModem program in `appPath` ("soundmodem.exe", "soundmodem" or
// "QtSoundModem", the first found), or "" when there is none.
std::string SoundModemInFolder(const std::string& appPath);

// The program names that stand for a modem window's title: "soundmodem" is either SoundModem,
// "Packet Engine" the AGW engines and Dire Wolf; any other title is a program name itself.
std::vector<std::string> ModemProgramNames(const std::string& title);

// The handle of the first running program that stands for `title`, or 0.
long FindModemWindow(Shell& shell, const std::string& title);

// Rewrites an outside terminal's settings file so that it reaches the same engine: at most 61
// lines are kept, and the incoming call, host and port lines are replaced.
void RewriteTermIni(const std::string& path, const std::string& call, const std::string& host,
                    long port);

class ModemProgram {
 public:
  // `events` starts the program through the add-on runner.
  ModemProgram(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
               LinkEvents& events)
      : m_platform(platform), m_config(config), m_run(run), m_main(main), m_events(events) {}
  // Load-pass step: starts the modem program unless its window is already there.
  void StartModemProgram();
  // Closes the modem program ("window" of the type's title); nothing is waited for.
  void DetectProgWindow();
  // In LAN mode: offers the Connect button for an outside terminal program in the program
  // folder, and points that program at the same engine.
  void CheckForTerminal();

 private:
  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  LinkEvents& m_events;
};

}  // namespace tesk
