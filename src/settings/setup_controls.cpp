// The rows of the Setup window's control table. Each row pairs a control with its setting; the
// small templates below are the common rules (a flag, a row number, a text), the rest are
// written out where the rule is the window's own.
#include "settings/setup_controls.h"

#include <cmath>
#include <cstdlib>
#include <type_traits>

#include "base/text.h"
#include "settings/setup_rows.h"

namespace tesk {

namespace {

using namespace setup_rows;

std::string Number(double value) {
  return Trim(Str(value));
}

// ---- the rows of the Station page ---------------------------------------------------------

void StationRows(std::vector<SetupControl>& t) {
  constexpr SetupPage p = SetupPage::Station;
  SetupControl call = Row(
      "txtCallsign", p, ScriptKind::Text, "[Your Call Sign]",
      "upper-cased; " + std::string(kSeeAlgorithms), &SetupWindow::txtCallsign,
      [](SetupWindow& w, const StationConfig& c) { w.txtCallsign.text = c.YourCallSign; }, nullptr,
      "Your call sign");
  t.push_back(call);
  t.push_back(Options<&SetupWindow::OptAGWTXport, &StationConfig::AGWPERadioPort>(
      "OptAGWTXport", p, "[AGWPE Radio Port]", "row number",
      {"Port 1", "Port 2", "Port 3", "Port 4", "Port 5", "Port 6"}, "Transmit port"));
  t.push_back(Options<&SetupWindow::OptAGWRXport, &StationConfig::AGWPERXPort>(
      "OptAGWRXport", p, "[AGWPE RX Port]", "row number",
      {"Port 1", "Port 2", "Port 3", "Port 4", "Port 5", "Port 6", "All ports"}, "Receive port"));
  SetupControl modem = Options<&SetupWindow::optTypeModem, &StationConfig::TypeOfModem>(
      "optTypeModem", p, "[TypeOfModem]", kSeeBelow,
      {"Other software modem", "UZ7HO SoundModem (LAN mode)",
       "AGW Packet Engine, direct mode (agwdll32.dll)",
       "AGW Packet Engine or compatible over TCP/IP (LAN mode)"},
      "Software modem");
  modem.store = nullptr;  // step 8 asks for a restart when it changed
  t.push_back(modem);
  SetupControl run = Flag<&SetupWindow::chkAutoRunModem, &StationConfig::AutoRunModemProgram, 1>(
      "chkAutoRunModem", p, "[AutoRunModemProgram]", "Start the modem program with TESK");
  run.rule = kSeeBelow;
  run.store = nullptr;
  t.push_back(run);
  SetupControl path = Text<&SetupWindow::txtModemPath, &StationConfig::ModemProgramPath>(
      "txtModemPath", p, "[ModemProgramPath]", "Modem program", kSeeBelow);
  path.store = nullptr;
  t.push_back(path);
  SetupControl close =
      Flag<&SetupWindow::chkAutoCloseModem, &StationConfig::AutoCloseModemProgram, 1>(
          "chkAutoCloseModem", p, "[AutoCloseModemProgram]", "Close the modem program at exit");
  close.rule = kSeeBelow;
  close.store = nullptr;
  t.push_back(close);
  t.push_back(Push("cmdLanSetup", p, &SetupWindow::cmdLanSetup, 0, "LAN Settings...", {},
                   "opens LAN_Setup"));
  t.push_back(Push("cmdloadprofile", p, &SetupWindow::cmdloadprofile, 0, "Load Profile...", {},
                   "opens the profiles"));
  t.push_back(Push("CmdReset0", p, &SetupWindow::CmdReset, 0, "Reset to Defaults"));
  t.push_back(Push("CmdReset1", p, &SetupWindow::CmdReset, 1, "Total Reset"));
  t.push_back(Push("cmdResetHistory0", p, &SetupWindow::cmdResetHistory, 0, "'To:' History"));
  t.push_back(Push("cmdResetHistory1", p, &SetupWindow::cmdResetHistory, 1, "'Via:' History"));
  t.push_back(Push("cmdResetHistory2", p, &SetupWindow::cmdResetHistory, 2, "'For:' History"));
}

// ---- APRS ------------------------------------------------------------------------------------

void AprsRows(std::vector<SetupControl>& t) {
  constexpr SetupPage p = SetupPage::Aprs;
  t.push_back(Options<&SetupWindow::OptAckType, &StationConfig::AckUIViewType>(
      "OptAckType", p, "[AckUIViewType]", "row number; label LblAckON follows",
      {"No acknowledgements", "Auto-Reply on Acknowledgement requests",
       "Send with Acknowledgement Request"},
      "Acknowledgements"));
  SetupControl interval = Row(
      "TxtAckInterval", p, ScriptKind::Text, "[AckInterval]",
      "value if 10 or more, else 20; tick period = value times 1000", &SetupWindow::TxtAckInterval,
      [](SetupWindow& w, const StationConfig& c) { w.TxtAckInterval.text = Number(c.AckInterval); },
      [](const SetupWindow& w, StationConfig& c) {
        const double value = Val(w.TxtAckInterval.text);
        c.AckInterval = value >= 10 ? Clamp16<int16_t>(value) : int16_t{20};
        c.AckRetryIntervalMs = c.AckInterval * 1000;
      },
      "Seconds between retries");
  interval.input = SetupInput::Digits;
  t.push_back(interval);
  t.push_back(Flag<&SetupWindow::ChkNoAckTag, &StationConfig::NoAckTag>(
      "ChkNoAckTag", p, "[NoAckTag]", "Leave TESK out of the ack tag"));
  t.push_back(Flag<&SetupWindow::chkNoTESKTag, &StationConfig::TESKTag>(
      "chkNoTESKTag", p, "[TESK Tag]", "Leave the TESK tag off position reports"));
  t.push_back(Flag<&SetupWindow::ChkAutoAnswer, &StationConfig::AutoAnswer>(
      "ChkAutoAnswer", p, "[AutoAnswer]", "Auto-reply to messages with:"));
  t.push_back(Text<&SetupWindow::TxtAutoAnswer, &StationConfig::AutoAnswerText>(
      "TxtAutoAnswer", p, "[AutoAnswerText]", "Auto-reply text"));
  t.push_back(Flag<&SetupWindow::chkAutoPasteCall, &StationConfig::AutoPasteCallInFor, 1>(
      "chkAutoPasteCall", p, "[AutoPasteCallInFor]", "Paste the sender of a message in 'For'"));
  t.push_back(Flag<&SetupWindow::chkEnableAPRS, &StationConfig::APRSEnabled>(
      "chkEnableAPRS", p, "[APRS Enabled]", "Enable APRS position sending"));
  const Load logLoad = [](SetupWindow& w, const StationConfig& c) {
    w.OptLogDigiMes.value = c.LogDigipeatedMessages != 0;
    w.OptLogAllMes.value = c.LogDigipeatedMessages == 0;
  };
  const Store logStore = [](const SetupWindow& w, StationConfig& c) {
    if (w.OptLogDigiMes.value) c.LogDigipeatedMessages = 1;
    if (w.OptLogAllMes.value) c.LogDigipeatedMessages = 0;
  };
  t.push_back(Row("OptLogDigiMes", p, ScriptKind::Check, "[Log Digipeated Messages]", "1, 0",
                  &SetupWindow::OptLogDigiMes, logLoad, logStore,
                  "Store only messages heard digipeated"));
  t.push_back(Row("OptLogAllMes", p, ScriptKind::Check, "[Log Digipeated Messages]", "1, 0",
                  &SetupWindow::OptLogAllMes, logLoad, logStore, "Store all messages"));
  t.push_back(Push("cmdAPRSSetup", p, &SetupWindow::cmdAPRSSetup, 0, "Position Setup...", {},
                   "opens frmAPRSSetup"));
  t.push_back(Push("cmdBeaconSetup", p, &SetupWindow::cmdBeaconSetup, 0, "Beacon Setup...", {},
                   "opens the beacon setup"));
}

// ---- Monitor ---------------------------------------------------------------------------------

struct ColorTarget {
  const char* key;
  const char* caption;
};
constexpr ColorTarget kColorTargets[kSetupColors] = {{"[Header color]", "Header..."},
                                                     {"[Data color]", "Data..."},
                                                     {"[Screen color]", "Background..."},
                                                     {"[DigiColor]", "Digipeated..."},
                                                     {"[MessageColor]", "Messages..."},
                                                     {"[DataBox Forecolor]", "TX boxes text..."},
                                                     {"[DataBox Backcolor]", "TX boxes back..."},
                                                     {"[ConnectForeColor]", "Terminal text..."},
                                                     {"[ConnectBackColor]", "Terminal back..."}};

void StoreColors(const SetupWindow& w, StationConfig& c) {
  c.ScreenColor = w.lblExHeader.backColor;
  c.HeaderColor = w.lblExHeader.foreColor;
  c.DataColor = w.lblExData.foreColor;
  c.DigiColor = w.lblExDigi.foreColor;
  c.MessageColor = w.lblExMessage.foreColor;
  c.DataBoxForecolor = w.lblExDataBox.foreColor;
  c.DataBoxBackcolor = w.lblExDataBox.backColor;
  c.ConnectForeColor = w.lblExConnect.foreColor;
  c.ConnectBackColor = w.lblExConnect.backColor;
}

void BufferStore(const SetupWindow& w, StationConfig& c) {
  constexpr double kLargest = 512000;
  if (!w.ChkLimitTXTSize.checked()) {
    c.MonBufferLimit = 0;
    return;
  }
  const double chosen = Val(w.CmbBufferSize.text);
  c.MonBufferLimit = static_cast<float>(chosen > kLargest ? kLargest : chosen);
}

void MonitorRows(std::vector<SetupControl>& t) {
  constexpr SetupPage p = SetupPage::Monitor;
  SetupControl hours = Row(
      "txtUTChour", p, ScriptKind::Text, "[UTC Time Offset]", kChecked, &SetupWindow::txtUTChour,
      [](SetupWindow& w, const StationConfig& c) {
        w.txtUTChour.text = Number(c.UTCTimeOffsetHours);
      },
      nullptr, "UTC offset, hours");
  hours.input = SetupInput::Signed;
  t.push_back(hours);
  SetupControl minutes = Row(
      "txtUTCminutes", p, ScriptKind::Text, "[UTC Time Offset]", kChecked,
      &SetupWindow::txtUTCminutes,
      [](SetupWindow& w, const StationConfig& c) {
        w.txtUTCminutes.text = Number(c.UTCTimeOffsetMinutes);
      },
      nullptr, "minutes");
  minutes.input = SetupInput::Signed;
  t.push_back(minutes);
  t.push_back(Flag<&SetupWindow::chkAutoDetectUTC, &StationConfig::AutoDetectUTC, 1>(
      "chkAutoDetectUTC", p, "[AutoDetectUTC]", "Take the UTC offset from the system"));
  t.push_back(Flag<&SetupWindow::ChkUseUTCinHeader, &StationConfig::ShowUTCInHeader, 1>(
      "ChkUseUTCinHeader", p, "[ShowUTCInHeader]", "UTC time in the headers"));
  t.push_back(Flag<&SetupWindow::chkSlowPC, &StationConfig::SlowPC>(
      "chkSlowPC", p, "[SlowPC]", "Slow computer (core tick 500 ms)"));
  SetupControl limit = Row(
      "ChkLimitTXTSize", p, ScriptKind::Check, "[MonBufferLimit]", "off gives 0",
      &SetupWindow::ChkLimitTXTSize,
      [](SetupWindow& w, const StationConfig& c) {
        w.ChkLimitTXTSize.value = c.MonBufferLimit > 0 ? 1 : 0;
      },
      &BufferStore, "Limit the Monitor text to");
  t.push_back(limit);
  t.push_back(Row(
      "CmbBufferSize", p, ScriptKind::Combo, "[MonBufferLimit]", "the chosen value, at most 512000",
      &SetupWindow::CmbBufferSize,
      [](SetupWindow& w, const StationConfig& c) {
        if (c.MonBufferLimit > 0) w.CmbBufferSize.text = Number(c.MonBufferLimit);
      },
      &BufferStore, "characters"));
  t.push_back(Flag<&SetupWindow::chkRemoveDouble, &StationConfig::RemoveSame, 1>(
      "chkRemoveDouble", p, "[AutoDisconnect, Filters, RemoveSame]",
      "Remove double packets with same contents"));
  t.push_back(Row(
      "ShowsPorts", p, ScriptKind::Check, "[ShowPortInHeader]", "2 or 0", &SetupWindow::ShowsPorts,
      [](SetupWindow& w, const StationConfig& c) { w.ShowsPorts.value = c.ShowPortInHeader != 0; },
      [](const SetupWindow& w, StationConfig& c) {
        c.ShowPortInHeader = static_cast<int16_t>(w.ShowsPorts.checked() ? 2 : 0);
      },
      "Show the port in the headers"));
  t.push_back(Flag<&SetupWindow::chkCoherentColors, &StationConfig::TXBoxCoherentColors, 1>(
      "chkCoherentColors", p, "[TXBoxCoherentColors]", "Matching colours for the TX boxes"));
  const auto font = [&t, page = p](const char* name, ComboBox SetupWindow::*member, const char* key,
                                   Load load, const char* caption) {
    t.push_back(
        Row(name, page, ScriptKind::Combo, key, kSeeAlgorithms, member, load, nullptr, caption));
  };
  font(
      "cmbMonitorFont", &SetupWindow::cmbMonitorFont, "[Monitor Fontname]",
      [](SetupWindow& w, const StationConfig& c) { w.cmbMonitorFont.text = c.MonitorFontname; },
      "Monitor font");
  font(
      "cmbFontSize", &SetupWindow::cmbFontSize, "[FontSize]",
      [](SetupWindow& w, const StationConfig& c) { w.cmbFontSize.text = Number(c.FontSize); },
      "Size");
  t.push_back(Row("chkFontBold", p, ScriptKind::Check, "[FontBold]", kSeeAlgorithms,
                  &SetupWindow::chkFontBold,
                  &LoadFlag<&SetupWindow::chkFontBold, &StationConfig::FontBold>, nullptr, "Bold"));
  font(
      "cmbConnectionFont", &SetupWindow::cmbConnectionFont, "[ConnectionFont]",
      [](SetupWindow& w, const StationConfig& c) { w.cmbConnectionFont.text = c.ConnectionFont; },
      "Terminal font");
  for (int i = 0; i < kSetupColors; ++i) {
    const ColorTarget& target = kColorTargets[i];
    SetupControl color = Push("cmdColor" + std::to_string(i), p, &SetupWindow::cmdColor, i,
                              target.caption, target.key, "taken from the example labels");
    color.load = &LoadExampleColors;
    color.store = &StoreColors;
    t.push_back(color);
  }
}

// ---- MHeard ----------------------------------------------------------------------------------

void MHeardRows(std::vector<SetupControl>& t) {
  constexpr SetupPage p = SetupPage::MHeard;
  t.push_back(Options<&SetupWindow::OptTXMHeardType, &StationConfig::TXMHeardType>(
      "OptTXMHeardType", p, "[TXMHeardType]", "row",
      {"Stations as 'Heard'", "Stations as TESK 'BLNQSLx/x'",
       "Stations as APRS Bulletin 'BLN0QSLs'", "Last Heard Stations (max 7)"},
      "Heard report sent with F8"));
  SetupControl utc =
      Row("ChkUseUTCinHeader2", p, ScriptKind::Check, "[ShowUTCInHeader]", "as ChkUseUTCinHeader",
          &SetupWindow::ChkUseUTCinHeader2,
          &LoadFlag<&SetupWindow::ChkUseUTCinHeader2, &StationConfig::ShowUTCInHeader>, nullptr,
          "UTC time in the MHeard list");
  t.push_back(utc);
  const Store clearStore = [](const SetupWindow& w, StationConfig& c) {
    if (w.OptAutoClear.chosen() != 1) {
      c.MHeard_AutoClear = 0;
      return;
    }
    const int16_t seconds = Clamp16<int16_t>(Val(w.txtAutoClearTime.text));
    c.MHeard_AutoClear =
        w.chkAutoClearPacketActivity.checked() ? static_cast<int16_t>(-seconds) : seconds;
  };
  SetupControl clear = Row(
      "OptAutoClear", p, ScriptKind::Option, "[MHeard_AutoClear]", "off gives 0",
      &SetupWindow::OptAutoClear,
      [](SetupWindow& w, const StationConfig& c) {
        w.OptAutoClear.choose(c.MHeard_AutoClear != 0);
      },
      clearStore, "Clear the MHeard list");
  clear.rowCaptions = {"Off", "After seconds:"};
  t.push_back(clear);
  SetupControl time = Row(
      "txtAutoClearTime", p, ScriptKind::Text, "[MHeard_AutoClear]", "value",
      &SetupWindow::txtAutoClearTime,
      [](SetupWindow& w, const StationConfig& c) {
        w.txtAutoClearTime.text = Number(std::abs(static_cast<int>(c.MHeard_AutoClear)));
      },
      clearStore, "seconds");
  time.input = SetupInput::Digits;
  t.push_back(time);
  // Stored negative, which the list reads as a plain repeating period.
  t.push_back(Row(
      "chkAutoClearPacketActivity", p, ScriptKind::Check, "[MHeard_AutoClear]",
      "the activity option stores it negative", &SetupWindow::chkAutoClearPacketActivity,
      [](SetupWindow& w, const StationConfig& c) {
        w.chkAutoClearPacketActivity.value = c.MHeard_AutoClear < 0 ? 1 : 0;
      },
      clearStore, "Clear at this fixed period, even while frames come in"));
  const Store extraStore = [](const SetupWindow& w, StationConfig& c) {
    c.ExtraInfoReports = w.chkAddExtra.checked() ? w.txtExtraReportInfo.text : std::string();
  };
  t.push_back(Row(
      "chkAddExtra", p, ScriptKind::Check, "[ExtraInfoReports]", "off stores an empty text",
      &SetupWindow::chkAddExtra,
      [](SetupWindow& w, const StationConfig& c) {
        w.chkAddExtra.value = c.ExtraInfoReports.empty() ? 0 : 1;
      },
      extraStore, "Extra line in the reports:"));
  t.push_back(Row(
      "txtExtraReportInfo", p, ScriptKind::Text, "[ExtraInfoReports]", "text",
      &SetupWindow::txtExtraReportInfo,
      [](SetupWindow& w, const StationConfig& c) {
        w.txtExtraReportInfo.text = c.ExtraInfoReports;
      },
      extraStore, "Extra report line"));
  t.push_back(Options<&SetupWindow::OptDigLogCall, &StationConfig::OptionalDigLogSSID>(
      "OptDigLogCall", p, "[OptionalDigLogSSID]", "row",
      {"Exact SSID's (if any) are digipeated", "Any SSID's are digipeated (all are valid)",
       "Specified SSID -             is digipeated"},
      "Own digipeats"));
  t.push_back(Row(
      "CmbSSID", p, ScriptKind::Combo, "[UserSSID]", "value", &SetupWindow::CmbSSID,
      [](SetupWindow& w, const StationConfig& c) { w.CmbSSID.text = Number(c.UserSSID); },
      [](const SetupWindow& w, StationConfig& c) {
        c.UserSSID = Clamp16<int16_t>(Val(w.CmbSSID.text));
      },
      "SSID"));
}

// ---- Alarms and logs -------------------------------------------------------------------------

void AlarmRows(std::vector<SetupControl>& t) {
  constexpr SetupPage p = SetupPage::AlarmsLogs;
  const Load alarmLoad = [](SetupWindow& w, const StationConfig& c) {
    w.OptAlarmInHeader.value = c.AlarmSet == 1;
    w.OptAlarmInData.value = c.AlarmSet == 2;
    w.OptAlarmNone.value = c.AlarmSet != 1 && c.AlarmSet != 2;
  };
  const Store alarmStore = [](const SetupWindow& w, StationConfig& c) {
    if (w.OptAlarmInHeader.value) c.AlarmSet = 1;
    if (w.OptAlarmInData.value) c.AlarmSet = 2;
    if (w.OptAlarmNone.value) c.AlarmSet = 0;
  };
  t.push_back(Row("OptAlarmInHeader", p, ScriptKind::Check, "[AlarmSet]", "1, 2, 0",
                  &SetupWindow::OptAlarmInHeader, alarmLoad, alarmStore, "Look in header"));
  SetupControl header = Text<&SetupWindow::txtAlarmHeader, &StationConfig::AlarmSetHeaderText>(
      "txtAlarmHeader", p, "[AlarmSet Header Text]", "Text in the header", kChecked);
  header.store = nullptr;
  t.push_back(header);
  t.push_back(Row("OptAlarmInData", p, ScriptKind::Check, "[AlarmSet]", "1, 2, 0",
                  &SetupWindow::OptAlarmInData, alarmLoad, alarmStore, "Look in data"));
  SetupControl data = Text<&SetupWindow::txtAlarmData, &StationConfig::AlarmSetDataText>(
      "txtAlarmData", p, "[AlarmSet Data Text]", "Text in the data", kChecked);
  data.store = nullptr;
  t.push_back(data);
  t.push_back(Row("OptAlarmNone", p, ScriptKind::Check, "[AlarmSet]", "1, 2, 0",
                  &SetupWindow::OptAlarmNone, alarmLoad, alarmStore, "No alarm"));
  const Load soundLoad = [](SetupWindow& w, const StationConfig& c) {
    w.chkDisableSound.value = c.UseAlarmSound == -1 ? 1 : 0;
    w.chkDisableLogSound.value = c.UseAlarmSound == 1 ? 1 : 0;
  };
  const Store soundStore = [](const SetupWindow& w, StationConfig& c) {
    c.UseAlarmSound = static_cast<int16_t>(w.chkDisableSound.checked()      ? -1
                                           : w.chkDisableLogSound.checked() ? 1
                                                                            : 0);
  };
  const std::string soundRule = "-1 all off; 1 log sound off; 0";
  t.push_back(Row("chkDisableSound", p, ScriptKind::Check, "[UseAlarmSound]", soundRule,
                  &SetupWindow::chkDisableSound, soundLoad, soundStore, "All sounds off"));
  t.push_back(Row("chkDisableLogSound", p, ScriptKind::Check, "[UseAlarmSound]", soundRule,
                  &SetupWindow::chkDisableLogSound, soundLoad, soundStore,
                  "No sound for logged alarms"));
  t.push_back(Flag<&SetupWindow::chkSaveLogFound, &StationConfig::LogAlarmToDisk>(
      "chkSaveLogFound", p, "[Log Alarm To Disk]", "Log the alarms to disk"));
  t.push_back(Options<&SetupWindow::OptAutologType, &StationConfig::AutomaticLogging>(
      "OptAutologType", p, "[AutomaticLogging]", "row",
      {"Off", "Only digipeated frames", "All frames", "Only frames of a call"},
      "Automatic packet log"));
}

// ---- Connected -------------------------------------------------------------------------------

void ConnectedRows(std::vector<SetupControl>& t) {
  constexpr SetupPage p = SetupPage::Connected;
  t.push_back(Options<&SetupWindow::OptAutoDisc, &StationConfig::AutoDisconnect>(
      "OptAutoDisc", p, "[AutoDisconnect, Filters, RemoveSame]", "row",
      {"Allow all connections", "Disable only incoming connects", "Disable all connections",
       "Allow only connections from:"},
      "Auto-disconnect"));
  t.push_back(Text<&SetupWindow::txtAutodiscCalls, &StationConfig::AutodiscAllowCalls>(
      "txtAutodiscCalls", p, "[AutodiscAllowCalls]", "Allowed calls"));
  t.push_back(Flag<&SetupWindow::chkConnectLog, &StationConfig::ConnectLog, 1>(
      "chkConnectLog", p, "[ConnectLog]", "Log the connections"));
  SetupControl bbs = Row(
      "OptEnableBBS", p, ScriptKind::Option, "[BBS Commands]", kChecked, &SetupWindow::OptEnableBBS,
      [](SetupWindow& w, const StationConfig& c) {
        w.OptEnableBBS.choose(c.BBSCommands == -1 ? 1 : c.BBSCommands);
      },
      nullptr, "Remote // commands");
  bbs.rowCaptions = {"Enabled for everybody", "Disabled", "Enabled with password:"};
  t.push_back(bbs);
  SetupControl password = Text<&SetupWindow::txtBBSPassword, &StationConfig::BBSPassword>(
      "txtBBSPassword", p, "[BBS Commands]", "Password", kChecked);
  password.store = nullptr;
  t.push_back(password);
  t.push_back(Row(
      "cmbPacketLength", p, ScriptKind::Combo, "[MaxPacketLength]", "index",
      &SetupWindow::cmbPacketLength,
      [](SetupWindow& w, const StationConfig& c) {
        const auto& list = w.cmbPacketLength.list;
        const bool in = c.MaxPacketLength >= 0 && c.MaxPacketLength < static_cast<int>(list.size());
        w.cmbPacketLength.listIndex = in ? c.MaxPacketLength : -1;
        w.cmbPacketLength.text = in ? list[static_cast<std::size_t>(c.MaxPacketLength)] : "";
      },
      [](const SetupWindow& w, StationConfig& c) {
        for (std::size_t i = 0; i < w.cmbPacketLength.list.size(); ++i)
          if (w.cmbPacketLength.list[i] == w.cmbPacketLength.text)
            c.MaxPacketLength = static_cast<int16_t>(i);
      },
      "Packet length"));
}

// ---- ViewPort --------------------------------------------------------------------------------

void ViewPortRows(std::vector<SetupControl>& t) {
  constexpr SetupPage p = SetupPage::ViewPort;
  SetupControl source = Row(
      "Usepic", p, ScriptKind::Option, "[PictureLoad]", kSeeBelow, &SetupWindow::Usepic,
      [](SetupWindow& w, const StationConfig& c) {
        // The rows in order 0, -1, 1, 2, 3; so -1 shows as row 1, as any row key does.
        const int v = c.PictureLoad;
        w.Usepic.choose(v == -1 ? 1 : v == 0 ? 0 : v + 1);
      },
      nullptr, "Picture");
  source.rowCaptions = {"No picture", "Use Default Picture", "Use Other Picture",
                        "Use Orbitron (or SatPc32 etc.) Export Picture",
                        "Use Picture from Internet or LAN"};
  t.push_back(source);
  SetupControl path = Text<&SetupWindow::txtAutoLoadPicPath, &StationConfig::RefreshPicLoadPath>(
      "txtAutoLoadPicPath", p, "[RefreshPicLoadPath]", "Picture file", kSeeBelow);
  path.store = nullptr;
  t.push_back(path);
  SetupControl refresh = Row(
      "txtPicRefresh", p, ScriptKind::Text, "[PicRefreshInterval]", kSeeBelow,
      &SetupWindow::txtPicRefresh,
      [](SetupWindow& w, const StationConfig& c) {
        w.txtPicRefresh.text = Number(std::floor(c.PicRefreshInterval / 1000));
      },
      nullptr, "Picture refresh in seconds (1...120)");
  refresh.input = SetupInput::Digits;
  t.push_back(refresh);
  SetupControl url = Text<&SetupWindow::txtPictureURL, &StationConfig::Picture_URL>(
      "txtPictureURL", p, "[Picture_URL]", "Picture address (URL)", kSeeBelow);
  url.store = nullptr;
  t.push_back(url);
  t.push_back(Options<&SetupWindow::OptViewerRatio, &StationConfig::FixedMonitorWidth>(
      "OptViewerRatio", p, "[FixedMonitorWidth]", "row",
      {"Monitor Span - Default Picture Height", "Fixed Monitor Width -  Default Picture Heigth",
       "Fixed Monitor Width - Picture Ratio 25%", "Fixed Monitor Width - Picture Ratio 50%",
       "Fixed Monitor Width - Picture Ratio 75%", "Fixed Monitor Width - Picture Ratio 100%",
       "Viewport User size and ratio"},
      "Monitor and ViewPort"));
}

// ---- Programs --------------------------------------------------------------------------------

void ProgramRows(std::vector<SetupControl>& t) {
  constexpr SetupPage p = SetupPage::Programs;
  t.push_back(Flag<&SetupWindow::ChkRUN, &StationConfig::intRunExtApp>(
      "ChkRUN", p, "[intRunExtApp]", "Start these programs with TESK"));
  t.push_back(Text<&SetupWindow::txtRUN, &StationConfig::strRunExtApp1>(
      "txtRUN", p, "[strRunExtApp1]", "First program"));
  t.push_back(Text<&SetupWindow::txtRUN1, &StationConfig::strRunExtApp2>(
      "txtRUN1", p, "[strRunExtApp2]", "Second program"));
  t.push_back(Flag<&SetupWindow::chkScreenPosSize, &StationConfig::SavePosition>(
      "chkScreenPosSize", p, "[SavePosition]", "Restore the window's place and size"));
  t.push_back(Flag<&SetupWindow::chkSysTray, &StationConfig::SystemTray>(
      "chkSysTray", p, "[SystemTray]", "Minimise to the tray"));
}

// The controls a page shows beside the one before them.
void JoinLines(std::vector<SetupControl>& t) {
  for (SetupControl& row : t) {
    for (const char* name : {"txtUTCminutes", "CmbBufferSize", "cmbFontSize", "chkFontBold",
                             "txtAutoClearTime", "chkAutoClearPacketActivity"})
      if (row.name == name) row.sameLine = true;
  }
}

std::vector<SetupControl> BuildTable() {
  std::vector<SetupControl> t;
  StationRows(t);
  AprsRows(t);
  MonitorRows(t);
  MHeardRows(t);
  AlarmRows(t);
  ConnectedRows(t);
  ViewPortRows(t);
  ProgramRows(t);
  JoinLines(t);
  return t;
}

}  // namespace

void LoadExampleColors(SetupWindow& w, const StationConfig& c) {
  for (Label* l : {&w.lblExHeader, &w.lblExData, &w.lblExDigi, &w.lblExMessage})
    l->backColor = c.ScreenColor;
  w.lblExHeader.foreColor = c.HeaderColor;
  w.lblExData.foreColor = c.DataColor;
  w.lblExDigi.foreColor = c.DigiColor;
  w.lblExMessage.foreColor = c.MessageColor;
  w.lblExDataBox.foreColor = c.DataBoxForecolor;
  w.lblExDataBox.backColor = c.DataBoxBackcolor;
  w.lblExConnect.foreColor = c.ConnectForeColor;
  w.lblExConnect.backColor = c.ConnectBackColor;
}

const std::vector<SetupControl>& SetupControls() {
  static const std::vector<SetupControl> table = BuildTable();
  return table;
}

}  // namespace tesk
