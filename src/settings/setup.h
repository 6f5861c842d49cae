// The Setup window's behaviour: load from the settings, Apply with its checks in a fixed order
// (a failed check keeps the window open with what went before already in memory, and writes
// nothing), the two resets, the history resets, and the buttons that open other windows. What
// belongs to the link, the ports and the heard reports is handed in as hooks.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/platform.h"
#include "settings/settings_file.h"
#include "settings/setup_controls.h"
#include "settings/setup_window.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/form_script.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

// Each hook may be left empty; an empty hook is simply not run.
struct SetupHooks {
  // Direct mode: the engine is told the new call at once; non-zero when it answered.
  std::function<int16_t(const std::string& call)> AGWStartPoll;
  // The port labels after a change of port.
  std::function<void()> ToonAktievePoort;
  // The example of a heard report form.
  std::function<std::string(int16_t type)> SetTXMHeardType;
  // A note in the self-closing note window.
  std::function<void(const std::string&)> ShowMeld;
};

class Setup {
 public:
  static constexpr WindowKind kWindowKind = WindowKind::Setup;

  Setup(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
        SettingsFile& settings, CommandTable& commands, SetupHooks hooks = {});
  Setup(const Setup&) = delete;
  Setup& operator=(const Setup&) = delete;

  // Loads the window (unless it is open already) and shows it on `page`.
  void Show(SetupPage page = SetupPage::Station);

  void Form_Load();
  void Command1_Click();                  // Apply
  void Command2_Click();                  // Cancel: closes, changes nothing more
  void CmdReset_Click(int index);         // 0 reset to defaults, 1 total reset
  void cmdResetHistory_Click(int index);  // 0 To, 1 Via, 2 Message for
  void SelectSetupFrame(int page);
  // The help line shows what the control under the mouse does.
  void HoverOptie(const std::string& controlName);
  // The example labels in the colours of the settings.
  void ResetExampleLabels();
  // The example of the chosen heard report form.
  void SetTXMHeardType();
  void cmdColor_Click(int index);
  void cmdAPRSSetup_Click();
  void cmdBeaconSetup_Click();
  void cmdLanSetup_Click();

  // A control's value changed (the view wrote it, or the console set it): the controls that
  // depend on it follow.
  void Changed(const SetupControl& row);
  // Sets a control as the operator would: a check box's value, a text typed key by key (a
  // refused key does nothing), an option row's row, a combo's text; presses a button.
  void Set(const SetupControl& row, const std::string& value);
  void Press(const SetupControl& row);

  // The Options menu's "Setup..." and the console's :setup.
  void RegisterCommands(CommandTable& commands);
  void Console(const std::string& argument);
  // The window as the console's scripts drive it.
  ScriptForm scriptForm();

  SetupWindow& window() { return m_window; }
  const SetupHooks& hooks() const { return m_hooks; }
  SetupHooks& hooks() { return m_hooks; }

 private:
  // The steps of Apply; each returns false when its check failed (the box is shown).
  void storeSimpleKeys();
  bool applyPicture();
  bool applyUtc();
  bool applyBbs();
  bool checkAlarmTexts();
  bool applyCallSign();
  void applyTextsAndFont();
  void applyModem();
  void applyPorts();
  bool refuse(const std::string& field, const std::string& text, const std::string& caption);
  void fillControls();
  void updateEnabled();
  void Unload();
  void refresh();
  void refreshMain();

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  SettingsFile& m_settings;
  CommandTable& m_commands;
  SetupHooks m_hooks;
  SetupWindow m_window;
  // The ports as the load found them: Apply reselects only when they changed.
  int32_t m_loadedTxPort = 0;
  int16_t m_loadedRxPort = 0;
};

}  // namespace tesk
