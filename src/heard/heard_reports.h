// Heard reports on the air: during a pass stations tell each other whom they heard. The MHeard
// list becomes UI frames in one of four forms, cut to the room a frame has, and goes out
// through the 80-character text sender. Also the report's button and menus, the list of calls
// never to report, and the example text the setup shows for each form.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class Meld;
class MHeardList;
class TxPanel;
class UiTextSender;

class HeardReports {
 public:
  static constexpr int kTypes = 4;
  static constexpr long kIgnoreMax = 255;

  struct Parts {
    TxPanel& panel;
    UiTextSender& sender;
    MHeardList& heardList;
    Meld& meld;
  };
  HeardReports(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
               Parts parts);
  HeardReports(const HeardReports&) = delete;
  HeardReports& operator=(const HeardReports&) = delete;

  // Detects the operating system's version for the report texts.
  void DetectWindows() {}

  // The report button (F8), its right press, both report menus and the console's line.
  void RegisterCommands(CommandTable& commands);

  void SendMheardList(int16_t type);
  // "M&Heard" (F8): validates To and Via, then sends with [TXMHeardType].
  void cmdTXMHeard_Click();
  // A right press on the button: the view pops up the report menu.
  void cmdTXMHeard_RightPress();
  // 0 to 3: the check moves to that type and the list goes out with it; 4 or more opens the
  // MHeard page of the setup. The main menu's copy (menuheardsend) does the same.
  void menumheardsend_Click(int index);
  void menuheardsend_Click(int index);
  void EditMheardIgnore();
  // Builds the example of the chosen form for the setup.
  void SetTXMHeardType(int16_t type);
  // The check of both report menus on the item of `type`.
  void CheckType(int type);

  // The menu caption and the frame prefix of a form; part and total count type 1's frames.
  static std::string TypeCaption(int type);
  static std::string Prefix(int type, int part, int total);
  // The example text SetTXMHeardType built last.
  const std::string& example() const { return m_example; }

 private:
  // The number of type 1 frames the walk will send.
  int CountParts(const std::vector<std::string>& rows, long overhead, const std::string& tag);
  // The walk of the list rows; sends when `send`, otherwise only counts the flushes.
  int WalkRows(const std::vector<std::string>& rows, int16_t type, long overhead,
               const std::string& tag, int total, bool send);
  void SendLastHeard(const std::string& prefix, const std::string& tag);
  void Send(const std::string& text);
  bool Ignored(const std::string& call) const;

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  Parts m_parts;
  std::string m_example;
};

}  // namespace tesk
