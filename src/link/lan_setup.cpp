// The LAN settings window's load, its check boxes, its status label and Apply in its fixed
// order. Apply writes the file before it checks the entries, so an empty host is saved.
#include "link/lan_setup.h"

#include <cmath>
#include <limits>

#include "base/text.h"
#include "link/lan_settings_file.h"
#include "link/link_events.h"
#include "link/modem_program.h"
#include "link/tcp_link.h"

namespace tesk {

namespace {

constexpr int kRadioPorts = 6;
constexpr size_t kHostRowsBeforeAdd = 4;  // a box with this many rows loses one before an add
constexpr const char* kNormalModeText = "LAN Mode not active. TESK running in Normal Mode";

bool On(int v) {
  return v != 0;
}

int16_t Flag(const CheckBox& box) {
  return box.checked() ? -1 : 0;
}

// The window as it is designed, before its load fills it.
LanSetupWindow DesignedWindow() {
  LanSetupWindow w;
  w.form.caption = "LAN Settings";
  w.chkEnableLAN.caption = "Enable LAN Mode";
  w.chkEnableLAN.toolTip = "Enable LAN for AGW or use AGW DLL";
  w.chkRegisterCall.caption = "Register Call at LogIn";
  w.chkForceDisplayTXFrames.caption = "Always Display TX-Frames";
  w.ChkPassword.caption = "Password";
  w.ChkPassword.toolTip = "Password (this option has not been tested)";
  w.TxtPassword.enabled = false;
  w.cmbLANIPAddress.toolTip = "Host name or IP address of the packet engine";
  w.txtAGWLANPort.toolTip = "TCP port of the packet engine (8000 by default)";
  w.cmbRX.toolTip = "Radio port to receive from";
  w.cmbTX.toolTip = "Radio port to transmit on";
  w.lblNote.caption = "Note: This mode is limited to UnProto RX/TX communication only";
  w.Label4.caption = kNormalModeText;
  w.Command1.caption = "Apply";
  w.Command2.caption = "Cancel";
  return w;
}

void Select(ComboBox& box, long index) {
  const bool inList = index >= 0 && index < static_cast<long>(box.list.size());
  box.listIndex = inList ? index : -1;
  box.text = inList ? box.list[static_cast<size_t>(index)] : std::string();
}

}  // namespace

LanSetup::LanSetup(Platform& platform, StationConfig& config, RunState& run, Parts parts)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_parts(parts),
      m_window(DesignedWindow()),
      m_timer1(platform.loop().createTimer()) {
  m_timer1->setInterval(kStatusInterval);
  m_timer1->setHandler([this] { Timer1_Timer(); });
}

LanSetup::~LanSetup() = default;

void LanSetup::Show() {
  if (!m_window.form.loaded) Form_Load();
  m_window.form.visible = true;
  m_platform.views().show(kWindowKind);
}

void LanSetup::Form_Load() {
  m_window = DesignedWindow();
  LanSetupWindow& w = m_window;
  w.form.loaded = true;
  // The file is read again on purpose: what the window shows is what is saved, and the mode
  // read here replaces a mode given on the command line for this run.
  LoadLANINI(m_config, m_run);
  w.TxtPassword.text = m_config.Lan_Password;
  if (!m_config.Lan_Password.empty()) {
    w.ChkPassword.value = 1;
    ChkPassword_Click();
  }
  if (On(m_config.Emulate_TXFrames_On_SlowNetPC)) {
    w.chkForceDisplayTXFrames.value = 1;
    chkForceDisplayTXFrames_Click();
  }
  w.chkEnableLAN.value = On(m_run.LanMode) ? 1 : 0;
  w.chkRegisterCall.value = On(m_config.RegisterCall) ? 1 : 0;
  for (const std::string& host : m_config.HostName_IP) {
    if (!host.empty()) w.cmbLANIPAddress.list.push_back(host);
  }
  w.cmbLANIPAddress.text = m_config.HostName_IP_Default;
  w.txtAGWLANPort.text = std::to_string(m_config.LanPort);
  for (int port = 1; port <= kRadioPorts; ++port) {
    w.cmbRX.list.push_back(std::to_string(port));
    w.cmbTX.list.push_back(std::to_string(port));
  }
  w.cmbRX.list.push_back("All");
  Select(w.cmbRX, m_config.AGWPERXPort);
  Select(w.cmbTX, m_config.AGWPERadioPort);
  m_timer1->setEnabled(true);
}

void LanSetup::ChkPassword_Click() {
  m_window.TxtPassword.enabled = m_window.ChkPassword.checked();
  refresh();
}

void LanSetup::chkForceDisplayTXFrames_Click() {
  // Only a box newly checked while the saved setting is off explains itself; the load, which
  // checks it from the setting, stays quiet.
  if (!m_window.chkForceDisplayTXFrames.checked() || On(m_config.Emulate_TXFrames_On_SlowNetPC))
    return;
  m_platform.dialogs().msgBox(
      std::string("Enable only when you don't see your own (or some) TX-frames being displayed.") +
          CRLF +
          "Cause: probably do to your LAN being a bit to slow to receive the sent TX-frames "
          "back from the packet engine in time." +
          CRLF + CRLF + "TESK then shows each sent frame in the Monitor itself.",
      MsgButtons::Ok, MsgIcon::Information, "Always display TX Frames");
}

void LanSetup::Timer1_Timer() {
  ShowLanStatusmsg();
}

void LanSetup::ShowLanStatusmsg() {
  if (On(m_run.LanMode) && On(m_run.LanModeAtStart)) {
    m_window.Label4.caption = "LAN Mode Active. Status: " + m_run.LinkStatus;
  } else if (!On(m_run.LanMode) && On(m_run.LanModeAtStart)) {
    m_window.Label4.caption = kNormalModeText;
  }
  refresh();
}

void LanSetup::AddIPHosts() {
  ComboBox& box = m_window.cmbLANIPAddress;
  const std::string typed = UCase(RTrim(box.text));
  bool known = false;
  for (const std::string& row : box.list) {
    if (UCase(RTrim(row)) == typed) known = true;
  }
  if (!known) {
    // The oldest row goes: new hosts are added at the end.
    if (box.list.size() >= kHostRowsBeforeAdd) box.list.erase(box.list.begin());
    box.list.push_back(box.text);
  }
  for (size_t i = 0; i < m_config.HostName_IP.size(); ++i) {
    m_config.HostName_IP[i] = i < box.list.size() ? box.list[i] : std::string();
  }
}

void LanSetup::Command1_Click() {
  LanSetupWindow& w = m_window;
  Dialogs& dialogs = m_platform.dialogs();
  m_config.Lan_Password = w.ChkPassword.checked() ? Trim(w.TxtPassword.text) : std::string();
  m_config.Emulate_TXFrames_On_SlowNetPC = Flag(w.chkForceDisplayTXFrames);
  m_config.RegisterCall = Flag(w.chkRegisterCall);
  AddIPHosts();
  m_config.HostName_IP_Default = Trim(w.cmbLANIPAddress.text);
  const std::string portText = Trim(w.txtAGWLANPort.text);
  const double port = std::nearbyint(Val(portText));  // rounds half to even, as CLng does
  if (port >= std::numeric_limits<int32_t>::min() && port <= std::numeric_limits<int32_t>::max())
    m_config.LanPort = static_cast<int32_t>(port);
  m_run.LanMode = Flag(w.chkEnableLAN);
  SaveLANINI(m_config, m_run);
  m_config.AGWPERXPort = static_cast<int16_t>(w.cmbRX.listIndex);
  m_config.AGWPERadioPort = static_cast<int32_t>(w.cmbTX.listIndex);
  m_run.CurrentPort = m_config.AGWPERadioPort;
  m_platform.views().refresh(WindowKind::Main);
  if (On(m_run.LanMode)) {
    // Checked only after the save, on purpose: an empty host is already in the file.
    if (Len(m_config.HostName_IP_Default) < 1 || Len(portText) < 1) {
      dialogs.msgBox("Invalid Hostname/IP or Portnumber!", MsgButtons::Ok, MsgIcon::Exclamation,
                     "Invalid entry");
      return;
    }
    // Compared as on/off: the first run's LAN flag of 1 and a checked box's -1 are the same mode.
    if (On(m_run.LanModeAtStart) != On(m_run.LanMode)) {
      dialogs.msgBox("Please restart TESK to activate the LAN Mode.", MsgButtons::Ok,
                     MsgIcon::Information, "Lan Mode Activated");
      Unload();
      return;
    }
    m_parts.events.Note("Activating LAN Settings");
    m_parts.tcpLink.AGWWinsockInitialiseLan();
    m_parts.modem.CheckForTerminal();
    Unload();
    return;
  }
  // Normal mode kept as it was: the settings are saved and the window stays open, deliberately.
  if (On(m_run.LanModeAtStart)) {
    dialogs.msgBox("Please restart TESK to initiate Normal Mode.", MsgButtons::Ok,
                   MsgIcon::Information, "Lan Mode Deactivated");
    Unload();
  }
}

void LanSetup::Command2_Click() {
  Unload();
}

void LanSetup::Unload() {
  m_timer1->setEnabled(false);
  m_window.form.loaded = false;
  m_window.form.visible = false;
  m_platform.views().hide(kWindowKind);
}

void LanSetup::refresh() {
  if (m_window.form.loaded) m_platform.views().refresh(kWindowKind);
}

void LanSetup::RegisterCommands(CommandTable& commands) {
  CommandSpec desc;
  desc.key = {Command::mnuLanSetup};
  desc.caption = "&LAN Settings...";
  desc.handler = [this](const std::string&) { Show(); };
  commands.add(std::move(desc));
}

}  // namespace tesk
