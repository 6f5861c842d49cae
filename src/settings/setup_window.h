// frmSetup as data: every control of the Setup window, named as the operator's manual names
// them, grouped on the pages the window shows. The behaviour is in Setup (setup.h); the table
// of setup_controls.h says which control writes which setting.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/controls.h"

namespace tesk {

// An option row: its buttons in order; the row's value is the index of the one chosen.
struct OptionRow {
  std::vector<OptionButton> rows;
  // The index of the chosen row, -1 when none is.
  int chosen() const {
    for (std::size_t i = 0; i < rows.size(); ++i)
      if (rows[i].value) return static_cast<int>(i);
    return -1;
  }
  void choose(int index) {
    for (std::size_t i = 0; i < rows.size(); ++i)
      rows[i].value = static_cast<int>(i) == index;
  }
  bool enabled() const { return rows.empty() || rows.front().enabled; }
  void setEnabled(bool on) {
    for (OptionButton& row : rows)
      row.enabled = on;
  }
};

// The window's pages, in the order of its page list.
enum class SetupPage { Station, Aprs, Monitor, MHeard, AlarmsLogs, Connected, ViewPort, Programs };
inline constexpr int kSetupPages = 8;
const char* SetupPageName(SetupPage page);

// The colours the colour buttons change, in the order of cmdColor's index.
enum class SetupColor {
  Header,
  Data,
  Screen,
  Digi,
  Message,
  DataBoxFore,
  DataBoxBack,
  ConnectFore,
  ConnectBack
};
inline constexpr int kSetupColors = 9;

struct SetupWindow {
  Window form;
  // The page list and the help line that HoverOptie fills with the hovered control's tip.
  int page = 0;
  Label lblHelp;
  std::string focus;  // the control with the keyboard focus, by name

  // ---- Station ----
  TextBox txtCallsign;
  OptionRow OptAGWTXport, OptAGWRXport;
  CheckBox chkAutoRunModem, chkAutoCloseModem;
  TextBox txtModemPath;
  OptionRow optTypeModem;
  CheckBox chkScreenPosSize, chkSysTray;
  Button cmdLanSetup, cmdloadprofile;
  std::array<Button, 2> CmdReset;

  // ---- APRS ----
  OptionRow OptAckType;
  TextBox TxtAckInterval;
  CheckBox ChkNoAckTag, chkNoTESKTag, ChkAutoAnswer, chkAutoPasteCall, chkEnableAPRS;
  TextBox TxtAutoAnswer;
  OptionButton OptLogDigiMes, OptLogAllMes;
  Button cmdAPRSSetup, cmdBeaconSetup;
  std::array<Button, 3> cmdResetHistory;

  // ---- Monitor ----
  TextBox txtUTChour, txtUTCminutes;
  CheckBox chkAutoDetectUTC, ChkUseUTCinHeader, ChkUseUTCinHeader2;
  CheckBox chkSlowPC, ChkLimitTXTSize, chkRemoveDouble, ShowsPorts, chkCoherentColors;
  ComboBox CmbBufferSize;
  ComboBox cmbMonitorFont, cmbFontSize, cmbConnectionFont;
  CheckBox chkFontBold;
  std::array<Button, kSetupColors> cmdColor;
  // The examples of the colours: header, data, digipeated, message on the Monitor's
  // background, the transmit boxes, the terminal.
  Label lblExHeader, lblExData, lblExDigi, lblExMessage, lblExDataBox, lblExConnect;

  // ---- MHeard ----
  OptionRow OptTXMHeardType;
  Label lblMHeardExample;
  OptionRow OptAutoClear;
  TextBox txtAutoClearTime;
  CheckBox chkAutoClearPacketActivity;
  CheckBox chkAddExtra;
  TextBox txtExtraReportInfo;
  OptionRow OptDigLogCall;
  ComboBox CmbSSID;

  // ---- Alarms and logs ----
  OptionButton OptAlarmInHeader, OptAlarmInData, OptAlarmNone;
  TextBox txtAlarmHeader, txtAlarmData;
  CheckBox chkDisableSound, chkDisableLogSound, chkSaveLogFound;
  OptionRow OptAutologType;

  // ---- Connected ----
  OptionRow OptAutoDisc;
  TextBox txtAutodiscCalls;
  CheckBox chkConnectLog;
  OptionRow OptEnableBBS;
  TextBox txtBBSPassword;
  ComboBox cmbPacketLength;

  // ---- ViewPort ----
  OptionRow Usepic;  // Usepic0 to Usepic4
  TextBox txtAutoLoadPicPath, txtPicRefresh, txtPictureURL;
  OptionRow OptViewerRatio;

  // ---- Programs ----
  CheckBox ChkRUN;
  TextBox txtRUN, txtRUN1;

  Button Command1, Command2;  // Apply, Cancel
};

}  // namespace tesk
