// The LAN settings window: where the operator picks the engine's host, port and password, the
// mode (LAN or direct) and the radio ports. A change of host or port in LAN mode reconnects at
// once; a change of mode is saved and asks for a restart.
#pragma once

#include <memory>
#include <string>

#include "platform/controls.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/run_state.h"

namespace tesk {

class LinkEvents;
class ModemProgram;
class TcpLink;

// The window's data, named as its controls.
struct LanSetupWindow {
  Window form;
  CheckBox chkEnableLAN, chkRegisterCall, chkForceDisplayTXFrames, ChkPassword;
  TextBox TxtPassword, txtAGWLANPort;
  ComboBox cmbLANIPAddress, cmbRX, cmbTX;
  Label Label4;               // the link status, refreshed by Timer1
  Label lblNote;              // what this mode can do
  Button Command1, Command2;  // Apply, Cancel
};

class LanSetup {
 public:
  struct Parts {
    TcpLink& tcpLink;
    LinkEvents& events;
    ModemProgram& modem;
  };
  static constexpr const char* kWindowName = "LAN_Setup";
  static constexpr WindowKind kWindowKind = WindowKind::LanSetup;
  static constexpr int kStatusInterval = 1000;  // ms between two refreshes of Label4

  LanSetup(Platform& platform, StationConfig& config, RunState& run, Parts parts);
  ~LanSetup();

  // Loads the window (unless it is open already) and shows it.
  void Show();

  // Registers the commands of this part once the station is complete.
  void RegisterCommands(CommandTable& commands);
  void Form_Load();
  void ChkPassword_Click();
  void chkForceDisplayTXFrames_Click();
  void Timer1_Timer();
  void Command1_Click();  // Apply
  void Command2_Click();  // Cancel
  void ShowLanStatusmsg();
  void AddIPHosts();

  LanSetupWindow& window() { return m_window; }
  Timer& Timer1() { return *m_timer1; }

 private:
  void Unload();
  void refresh();

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  Parts m_parts;
  LanSetupWindow m_window;
  std::unique_ptr<Timer> m_timer1;
};

}  // namespace tesk
