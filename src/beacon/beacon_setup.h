// The beacon window "TESK Beacon Settings": which items go out, the interval, Smart Beacon, four
// time windows, the automatic stop, the beacon file and the Shadow Experiment frame. Apply checks
// and stores in a fixed order; a failed check leaves the window open with the steps before it
// applied. When the window closes, a changed beacon, Smart Beacon or interval restarts the count.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>

#include "beacon/beacon_scheduler.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class CommandTable;
struct ScriptForm;

inline constexpr int kBeaconTimeWindows = 4;
inline constexpr int kBeaconLineChoices = 4;

// Beacon, named as its controls.
struct BeaconWindow {
  Window form;
  CheckBox chkBeaconActiv, chkAutoTimedBeacon, chkBeaconIntelligentAktiv;
  TextBox txtIntelligenBeaconString;
  TextBox txtBeaconInterval;
  Label lblBeaconIntervalTime;  // the interval as hours, minutes and seconds
  CheckBox chkItemData, chkItemAPRS, chkItemAPRSMessage, chkItemFile, chkItemMHeard;
  // The file item's fields, enabled while chkItemFile is checked.
  TextBox txtAddFilePath;
  Button cmdEditAddFile, cmdBrowseAddFilePath;
  std::array<OptionButton, kBeaconLineChoices> OptWhichBeaconLines;
  CheckBox chkItemFileAddLoc;
  // The time windows: start and stop "hh:mm", one pair per row.
  std::array<TextBox, kBeaconTimeWindows> TxtStart, TxtStop;
  std::array<Button, kBeaconTimeWindows> CmdClear, cmdPasteCurrentStartime, cmdPasteCurrentStoptime;
  Label LblPCTime;  // the system time, blinking while the beacon runs
  CheckBox chkStopBeacon;
  ComboBox cmbStopBeacon;  // "1" to "5" own digipeats
  Frame FrmShadowExp;
  CheckBox ChkShadow, ChkShExpGMT;
  TextBox txtISOcode, txtShExpPause;
  Button Command1;  // Apply
  Button Command2;  // Cancel
  // The control with the keyboard focus, by name; the view follows it.
  std::string focus;
};

class BeaconSetup {
 public:
  BeaconSetup(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
              BeaconScheduler& beacon);
  BeaconSetup(const BeaconSetup&) = delete;
  BeaconSetup& operator=(const BeaconSetup&) = delete;
  ~BeaconSetup();

  // menubeaconpopups: loads and shows the window; its close compares the watched values.
  void menubeaconpopups_Click();
  void Form_Load();

  // The check boxes' clicks: the value is already the new one.
  void chkBeaconActiv_Click();
  void chkAutoTimedBeacon_Click();
  void chkBeaconIntelligentAktiv_Click();
  void chkItemFile_Click();
  void ChkShadow_Click();
  void OptWhichBeaconLines_Click(int index);
  // The file fields follow chkItemFile.
  void CheckAktief();
  void CheckInaktief();

  // Typing: each key of a text box as the operator presses it (digits only where it says so);
  // leaving the box.
  void txtBeaconInterval_KeyPress(char key);
  void txtBeaconInterval_Change();
  void txtBeaconInterval_LostFocus();
  void TxtStart_KeyPress(int index, char key);
  void TxtStop_KeyPress(int index, char key);
  void TxtStart_LostFocus(int index);
  void TxtStop_LostFocus(int index);
  void txtShExpPause_KeyPress(char key);
  void CmdClear_Click(int index);
  void cmdPasteCurrentStartime_Click(int index);
  void cmdPasteCurrentStoptime_Click(int index);
  void PCTimer1_Timer();
  // The beacon file: handed to the desktop's editor, or picked with the file dialog.
  void cmdEditAddFile_Click();
  void cmdBrowseAddFilePath_Click();

  void Command1_Click();  // Apply
  void Command2_Click();  // Cancel

  // The menu entry and the console's :beacon.
  void RegisterCommands(CommandTable& commands);
  void ConsoleBeacon(const std::string& argument);
  // The window's controls as a console script sees them.
  ScriptForm scriptForm();

  BeaconWindow& window() { return m_window; }

  // "(0h 1m 0s)": the interval as the label beside it shows it.
  static std::string IntervalText(long seconds);
  // A typed time completed and shown as "hh:mm"; an empty text stays empty.
  static std::string TimeText(const std::string& typed);

 private:
  bool applyChecks();
  bool applyTimes();
  bool applyItems();
  bool applyShortInterval();
  bool applyShadow();
  void showShadowFrameByInterval();
  void applyRest();
  void Unload();
  void refresh();
  void typeDigit(TextBox& box, char key, long maxLength, bool addColon);
  bool shadowFrameShown() const { return m_window.FrmShadowExp.visible; }

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  BeaconScheduler& m_beacon;
  BeaconWindow m_window;
  BeaconScheduler::Watched m_before;  // the watched values when the menu opened the window
  std::unique_ptr<Timer> m_pcTimer;
  bool m_blink = false;
};

}  // namespace tesk
