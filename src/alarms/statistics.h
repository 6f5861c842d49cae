// The window FrmStatistics ("Statistics and Properties"): what the Monitor holds counted (frames,
// own frames sent and digipeated, stations, size), the transmit counters, the history boxes, the
// stations heard, the engine and ports in use, the module mode and the profile. The counts walk
// the whole Monitor several times, so the routine yields between them and the core keeps
// receiving meanwhile.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/rich_text.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class Digipeat;
class MonitorConsole;
class MonitorFind;

struct StatisticsWindow {
  Window form = [] {
    Window w;
    w.caption = "Statistics and Properties";
    return w;
  }();
  Label Label1;  // the counts of the Monitor, one a line
  // Each pair: the names one a line, and beside them their values.
  Label lblTXbut, lblTXbutRes;
  Label LblFields, lblFieldsRes;
  Label lblHeard, lblHeardres;
  Label lblStatus, lblMode, lblProfile;
  Button Command1 = [] {
    Button b;
    b.caption = "&Close";
    return b;
  }();
  Button Command2 = [] {
    Button b;
    b.caption = "&Setup...";
    b.toolTip = "Setup Monitor";
    return b;
  }();
  Button Command3 = [] {
    Button b;
    b.caption = "Count &Words...";
    return b;
  }();
  bool busy = false;  // the pointer shows busy while counting
};

// What the Monitor holds, counted on its plain text.
struct MonitorCounts {
  long total = 0;  // "Fm "
  long ui = 0;     // " <UI "
  long beacons = 0;
  long tx = 0;    // own frames without the digipeat mark
  long digi = 0;  // own frames with it
  long heard = 0;
  long dama = 0;
  long rx = 0;
  double efficiency = 0;  // per cent
  long characters = 0;
  long lines = 0;
  long size = 0;  // the length of the Monitor as rich text
};

// Counts the Monitor. `between` runs between the big counts (the yield to the event loop); the
// text is copied first, so frames painted meanwhile don't disturb the walks.
MonitorCounts CountMonitor(const RichText& monitor, const std::string& fontName,
                           const std::string& ownCall, const std::function<void()>& between);
// The lines of Label1 for these counts.
std::string CountsText(const MonitorCounts& counts, const std::string& ownCall);

class Statistics {
 public:
  static constexpr const char* kWindowName = "FrmStatistics";
  static constexpr WindowKind kWindowKind = WindowKind::Statistics;
  // Spelt as the window has always shown it.
  static constexpr const char* kPleaseWait = "Please wait while calulating ";
  static constexpr std::size_t kHeardCap = 256;

  struct Parts {
    MonitorConsole& monitor;  // its opener of the Monitor's setup page
    MonitorFind& find;        // the word count
    const Digipeat& digipeat;
  };

  Statistics(Platform& platform, const StationConfig& config, const RunState& run, MainWindow& main,
             Parts parts);

  // cmdStatistics, the Edit menu's entry and the console's :stats.
  void RegisterCommands(CommandTable& commands);

  // Loads the window, shows it and counts (again, when it is open already).
  void Show();
  void Form_Load();
  // The counting, once the window is up.
  void Form_Activate();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();

  StatisticsWindow& window() { return m_window; }
  const MonitorCounts& counts() const { return m_counts; }
  // The window's texts as the console prints them, one "label value" a line.
  std::vector<std::string> ConsoleLines() const;

 private:
  void FillCounters();
  void FillFields();
  void FillHeard();
  void FillStatus();
  void refresh();

  Platform& m_platform;
  const StationConfig& m_config;
  const RunState& m_run;
  MainWindow& m_main;
  Parts m_parts;
  StatisticsWindow m_window;
  MonitorCounts m_counts;
  bool m_counting = false;
};

}  // namespace tesk
