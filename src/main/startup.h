// The order in which the station comes up and goes down: the entry routine with its splash,
// the main window's load pass in its numbered steps, and Einde. Each step runs even when the
// one before it failed; a failing step is skipped silently.
#pragma once

#include <string>

namespace tesk {

class Station;

// 11 characters handed to the engine library at the start of direct mode.
inline constexpr const char* kAppKey = "TESKAPPKEY1";

class Startup {
 public:
  explicit Startup(Station& station) : m_station(station) {}

  // The entry routine: splash, then the load pass.
  void EntryRoutine();
  // The main window's load pass; ends with the timers running.
  void LoadPass();
  // Shut-down in its fixed order; ends the process.
  void Einde();
  // The tick of tmrKlokken: clocks and, in LAN mode, the link supervision.
  void KlokkenTick();
  // The three-line box for a component that could not be created; ends the process.
  void ComponentErrorBox(int number);

  bool loaded() const { return m_loaded; }
  // The step the load pass is at (for tests of the order), 0 before it starts.
  int step() const { return m_step; }

 private:
  void stepsPathsAndSettings();   // 1 to 9
  void stepsProgramsAndWindow();  // 10 to 14
  bool FirstRunCallSign();        // 15; false when the process ended
  void stepsLogsAndTicks();       // 16 to 19
  void StartLanLink();            // 20
  bool StartDirectLink();         // 22; false when the process ended
  void stepsCoreAndLabels();      // 23 to 26
  void stepsMailboxAndTray();     // 27 to 30
  void WriteCheck();              // 31
  void ApplyCommandLine();
  void CheckForHelpFiles() {}  // the help files of the operator's tools (not built)
  bool soundModemInFolder() const;

  Station& m_station;
  bool m_loaded = false;
  int m_step = 0;
};

}  // namespace tesk
