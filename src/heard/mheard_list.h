// The list of stations heard: every distinct source of a shown frame with the moment it was
// first heard, kept in a fixed array in the order heard and shown in LstMHeardList (sorted or
// not), the seven-entry last-heard list, the auto-clear, and the list's operations and save.
// Reports on the air and the details window read what is kept here.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class MHeardList {
 public:
  static constexpr int kLines = 254;  // array indices 0 to 253
  static constexpr int16_t kMaxCount = 250;
  static constexpr int kLastHeard = 7;  // indices 0 to 6
  static constexpr std::size_t kCallWidth = 21;

  MHeardList(Platform& platform, StationConfig& config, RunState& run, MainWindow& main);

  // Registers the commands of this part once the station is complete.
  void RegisterCommands(CommandTable& commands);

  // Enters the sender of a shown frame's header.
  void AddToMheardList(const std::string& header);
  // sort false adds `call` to the last-heard list; true sorts that list, newest first.
  void AddToLastMheard(const std::string& call, bool sort);
  void SortMHeard();
  void OptSort_Click();
  void OptUnsort_Click();
  // Runs whenever StationTeller's caption is set: the heard-report button follows the count.
  void StationTeller_Change();
  // The auto-clear's share of the one-second tick tmrKlokken.
  void AutoClearTick();

  // ---- operations of the list box and its menu ----
  void LstMHeardList_DblClick();
  void LstMHeardList_RightPress(long row);
  void LstMHeardList_RightRelease();
  // Ends the popup: the items shown only inside it are hidden again.
  void PopupClosed();
  // The text a drag of the list offers: the call of the selected row.
  std::string DragText() const;
  // 10 To, 20 Via, 30 For.
  void menumheardoptionspaste_Click(int index);
  // 20 copy call, 30 copy list, 40 clear, 45 remove, 60 open log, 65 save log, 70 details,
  // 100 setup.
  void menumheardoptions_Click(int index);
  void cmdMHeardClear_Click();
  void cmdMheardSave_Click();
  void RemoveSelectedCall();
  void OpenMHeardLog();
  // Writes `rows` (each trimmed) under the head line to a file the operator picks in MHeard.
  void SaveRows(const std::vector<std::string>& rows);

  // The call of a line: always the first 10 characters, trimmed.
  static std::string CallOf(const std::string& line);
  // The first-heard time text: short date and time, or date " | " the UTC clock.
  std::string TimeText() const;
  std::string MHeardFolder() const;
  // The selected row of the list box as it reads, "" when none.
  std::string SelectedRow() const;
  // The call of the selected row of the list box, "" when none.
  std::string SelectedCall() const;

  // The array in the order heard, the number of lines in use, and the last-heard list.
  std::array<std::string, kLines> MHeardLines{};
  int16_t count = 0;
  std::array<std::string, kLastHeard> LastMHeard{};
  int16_t lastIndex = 0;  // write index of the last-heard list
  // Seconds counted by the one-second clock toward the auto-clear, zeroed by the core.
  int16_t QuietSeconds = 0;

  // Windows that come with other parts: the MHeard page of the setup window, the details window.
  std::function<void()> openSetupMHeard;
  std::function<void()> openViewHeard;

 private:
  std::string NowText() const;
  void SetTeller(const std::string& caption);
  void EraseList();
  void Paste(ComboBox& field);

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
};

}  // namespace tesk
