// Apply (Command1) in its ten steps, from top to bottom. A failed check shows its box, puts the
// focus on the field at fault and ends Apply: the window stays open, the steps before it stay
// applied in memory, and nothing is written until Apply runs to its end.
#include "base/text.h"
#include "settings/setup.h"

namespace tesk {

namespace {

constexpr int kRadioPortRows = 7;
constexpr double kLongestRefresh = 121;  // seconds; the refresh box takes less

std::string Lines(std::initializer_list<std::string> lines) {
  std::string text;
  for (const std::string& line : lines)
    text += (text.empty() ? "" : CRLF) + line;
  return text;
}

}  // namespace

void Setup::Command1_Click() {
  storeSimpleKeys();
  if (!applyPicture() || !applyUtc() || !applyBbs() || !checkAlarmTexts() || !applyCallSign())
    return;
  applyTextsAndFont();
  applyModem();
  applyPorts();
  m_settings.SaveSettings();
  m_settings.LoadSettings();
  Unload();
  refreshMain();
}

bool Setup::refuse(const std::string& field, const std::string& text, const std::string& caption) {
  m_window.focus = field;
  m_platform.dialogs().msgBox(text, MsgButtons::Ok, MsgIcon::Exclamation, caption);
  refresh();
  return false;
}

// Step 1: every row whose rule is a plain mapping. They stay in memory even when a later check
// fails, and the exit saves them; Cancel does not take them back. Kept so on purpose.
void Setup::storeSimpleKeys() {
  for (const SetupControl& row : SetupControls())
    if (row.simple()) row.store(m_window, m_config);
  Label& ack = m_main.LblAckON;
  ack.visible = m_config.AckUIViewType != 0;
  if (m_config.AckUIViewType == 1) ack.toolTip = "Auto-Reply on Acknowledgement requests";
  if (m_config.AckUIViewType == 2) ack.toolTip = "Send with Acknowledgement Request";
}

// Step 2: the ViewPort's picture source.
bool Setup::applyPicture() {
  const SetupWindow& w = m_window;
  StationConfig& c = m_config;
  const double seconds = Val(w.txtPicRefresh.text);
  switch (w.Usepic.chosen()) {
    case 0:
      c.PictureLoad = 0;
      c.RefreshPicLoadPath = m_run.AppPath + "/tesk_bckgrnd.jpg";
      c.PicRefreshInterval = 0;
      break;
    case 1:
      c.PictureLoad = -1;
      c.RefreshPicLoadPath = w.txtAutoLoadPicPath.text;
      break;
    case 2:
      c.PictureLoad = 1;
      c.RefreshPicLoadPath = w.txtAutoLoadPicPath.text;
      c.PicRefreshInterval = static_cast<float>(seconds < kLongestRefresh ? seconds * 1000 : 0);
      break;
    case 3:
      c.PictureLoad = 2;
      c.RefreshPicLoadPath = w.txtAutoLoadPicPath.text;
      c.PicRefreshInterval = static_cast<float>(seconds < kLongestRefresh ? seconds * 1000 : 20000);
      break;
    case 4: {
      const std::string ending = LCase(Right(Trim(w.txtPictureURL.text), 4));
      if (ending != ".jpg" && ending != ".bmp" && ending != ".gif") {
        return refuse("txtPictureURL",
                      Lines({"The URL in the ViewPort has no picture.",
                             "The URL must contain an image compatible with jpg, gif or bmp."}),
                      "ViewPort");
      }
      c.PictureLoad = 3;
      c.Picture_URL = w.txtPictureURL.text;
      c.PicRefreshInterval =
          static_cast<float>(seconds >= 4 && seconds < kLongestRefresh ? seconds * 1000 : 20000);
      break;
    }
    default:
      break;
  }
  return true;
}

// Step 3: the UTC offset.
bool Setup::applyUtc() {
  const double hours = Val(m_window.txtUTChour.text);
  if (hours < -12 || hours > 12) {
    return refuse("txtUTChour",
                  "UTC time (hours) offset is invallid! It can range between -12...0...12",
                  "Wrong UTC time");
  }
  m_config.UTCTimeOffsetHours = static_cast<int16_t>(hours);
  const double minutes = Val(m_window.txtUTCminutes.text);
  if (minutes < -60 || minutes > 60) {
    return refuse("txtUTCminutes",
                  "UTC time (minutes) offset is invallid! It can range between -60...0...60",
                  "Wrong UTC time");
  }
  m_config.UTCTimeOffsetMinutes = static_cast<int16_t>(minutes);
  return true;
}

// Step 4: the remote commands and their password.
bool Setup::applyBbs() {
  const TextBox& password = m_window.txtBBSPassword;
  // Blanks inside the password are not looked at, whatever the box says.
  if (password.enabled && Len(Trim(password.text)) < 3) {
    m_config.BBSCommands = 0;  // open to everybody until the next Apply: kept on purpose
    return refuse("txtBBSPassword", "BBS Password must have at least 3 characters (no spaces).",
                  "Invallid BBS Password");
  }
  m_config.BBSPassword = Trim(password.text);
  const int row = m_window.OptEnableBBS.chosen();
  if (row >= 0) m_config.BBSCommands = static_cast<int16_t>(row);
  return true;
}

// Step 5: an alarm needs its text.
bool Setup::checkAlarmTexts() {
  const SetupWindow& w = m_window;
  if (w.OptAlarmInHeader.value && Trim(w.txtAlarmHeader.text).empty())
    return refuse("txtAlarmHeader", "The 'Look in header' box can not be empty.", "Look in header");
  if (w.OptAlarmInData.value && Trim(w.txtAlarmData.text).empty())
    return refuse("txtAlarmData", "The 'Look in data' box can not be empty.", "Look in data");
  return true;
}

// Step 6: the call sign.
bool Setup::applyCallSign() {
  const std::string call = m_window.txtCallsign.text;
  if (Len(call) < 2) return refuse("txtCallsign", "Invallid callsign!", "Your Call");
  if (UCase(call) == UCase(m_config.YourCallSign)) return true;
  m_config.YourCallSign = UCase(call);
  Dialogs& dialogs = m_platform.dialogs();
  if (m_run.LanMode != 0) {
    dialogs.msgBox(Lines({"New call activated.", "Please restart TESK."}), MsgButtons::Ok,
                   MsgIcon::Information, "New Callsign Entered");
    return true;
  }
  // Direct mode: the engine learns the new call at once.
  const int16_t answered = m_hooks.AGWStartPoll ? m_hooks.AGWStartPoll(m_config.YourCallSign) : 0;
  if (answered == 0) {
    dialogs.msgBox(
        "Cannot connect to the Software Modem, is it running ? Please restart TESK when the "
        "Software Modem is running.",
        MsgButtons::Ok, MsgIcon::Exclamation, "New Callsign Entered");
  } else {
    dialogs.msgBox(Lines({"New call activated.", "Please restart TESK and Software Modem."}),
                   MsgButtons::Ok, MsgIcon::Information, "New Callsign Entered");
  }
  return true;
}

// Step 7: the alarm texts, To and Via as the exit takes them, the fonts.
void Setup::applyTextsAndFont() {
  const SetupWindow& w = m_window;
  StationConfig& c = m_config;
  c.AlarmSetHeaderText = w.txtAlarmHeader.text;
  c.AlarmSetDataText = w.txtAlarmData.text;
  m_main.cmbToCall.text = UCase(m_main.cmbToCall.text);
  c.ToCall = m_main.cmbToCall.text;
  m_main.cmbViaCall.text = UCase(m_main.cmbViaCall.text);
  c.Digistation = m_main.cmbViaCall.text;
  if (!Trim(w.cmbMonitorFont.text).empty()) c.MonitorFontname = w.cmbMonitorFont.text;
  const double size = Val(w.cmbFontSize.text);
  if (size > 0 && size < 100) c.FontSize = static_cast<int16_t>(size);
  c.FontBold = static_cast<int16_t>(w.chkFontBold.checked() ? -1 : 0);
  if (!Trim(w.cmbConnectionFont.text).empty()) c.ConnectionFont = w.cmbConnectionFont.text;
}

// Step 8: the modem program and the type of software modem. A new type asks for a restart and
// sets the LAN mode the type needs; the exit writes it.
void Setup::applyModem() {
  const SetupWindow& w = m_window;
  StationConfig& c = m_config;
  c.AutoRunModemProgram = static_cast<int16_t>(w.chkAutoRunModem.checked() ? 1 : 0);
  c.ModemProgramPath = w.txtModemPath.text;
  c.AutoCloseModemProgram = static_cast<int16_t>(w.chkAutoCloseModem.checked() ? 1 : 0);
  const int type = w.optTypeModem.chosen();
  if (type < 0 || type == c.TypeOfModem) return;
  c.TypeOfModem = static_cast<int16_t>(type);
  const std::string restart = "Please restart TESK.";
  Dialogs& dialogs = m_platform.dialogs();
  switch (type) {
    case 1:
      m_run.LanMode = 1;
      dialogs.msgBox(Lines({"You have enabled UZ7HO SoundModem (or compatible).",
                            "This places TESK in LAN mode.", restart}),
                     MsgButtons::Ok, MsgIcon::Information, "UZ7HO SoundModem in TESK LAN mode");
      break;
    case 2:
      m_run.LanMode = 0;
      dialogs.msgBox(
          Lines({"You have enabled AGW Packet Engine using DLL.",
                 "This places TESK out of LAN mode and into direct mode (agwdll32.dll).", restart}),
          MsgButtons::Ok, MsgIcon::Information, "AGWPE in Direct mode");
      break;
    case 3:
      m_run.LanMode = 1;
      dialogs.msgBox(Lines({"You have enabled AGW Packet Engine (or compatible) using TCPIP.",
                            "This places TESK in LAN mode.", restart}),
                     MsgButtons::Ok, MsgIcon::Information, "AGWPE in TCPIP mode");
      break;
    default:
      dialogs.msgBox(Lines({"You have chosen another software modem.", restart}), MsgButtons::Ok,
                     MsgIcon::Information, "Changed type of software modem");
      break;
  }
}

// Step 9: a changed port is reselected: its rows checked and the port labels shown again. The
// operator chose it here, so there is no question and no note.
void Setup::applyPorts() {
  if (m_config.AGWPERadioPort == m_loadedTxPort && m_config.AGWPERXPort == m_loadedRxPort) return;
  for (int i = 0; i < kRadioPortRows; ++i) {
    m_main.menuAgwport[i].checked = i == m_config.AGWPERadioPort;
    m_main.menuAgwportRX[i].checked = i == m_config.AGWPERXPort;
  }
  m_run.CurrentPort = m_config.AGWPERadioPort;
  if (m_hooks.ToonAktievePoort) m_hooks.ToonAktievePoort();
}

}  // namespace tesk
