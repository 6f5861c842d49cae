// What follows the positional read of tesk.ini: the upgrade steps that bring an older file's
// values up to this version, and the steps that put the values into the main window (transmit
// fields, colours, Monitor font, window placement, filter and beacon labels).
#include "base/text.h"
#include "settings/settings_file.h"
#include "state/beacon_label.h"

namespace tesk {

void SettingsFile::runUpgrades(int code) {
  StationConfig& c = m_config;
  if (code < 300) {
    for (const char* call : {"BLN", "EMAIL", "NWS", "SAT"}) {
      c.APRSMessageFor.push_back(call);
    }
  }
  if (code < 500) upgradeBelow500();
  if (code < 510) {
    c.ShadowExperiment_ISO = "US";
    c.ShadowExperiment_DIGI = "BEACON ARISS";
    c.ShadowExperiment = 0;
  }
  if (code < 520) {
    c.OptionalDigLogSSID = c.UserSSID = c.ShadowExpGMT = c.ShowUTCInHeader = 0;
    c.AutoDetectUTC = 1;
    c.ShExpPauseTX = 60;
  }
  if (code < 523) {
    c.intRunExtApp = 0;
    c.strRunExtApp1.clear();
  }
  if (code < 525) c.MessageColor = RGB(0, 200, 0);
  if (code < 526) c.MaxPacketLength = 0;
  if (code < 528) c.strRunExtApp2.clear();
  if (code < 530) {
    c.Picture_URL = "http://";
    c.AutoDigiLogBook = 1;
    c.DateSeparator.assign(1, '-');
    c.CallDefinedLog = "ISS";
  }
  if (code < 533) {
    c.AutoRunModemProgram = c.AutoCloseModemProgram = c.TypeOfModem = c.Filter = 0;
    c.ModemProgramPath.clear();
    c.FilterCall.clear();
    c.OtherTypeModemCaption.clear();
    c.APRSCompressed.clear();
    c.AutomaticLogging = c.AutoDigiLogBook = c.AutoPasteCallInFor = 1;
  }
  if (code < 540) {
    c.AutoStopBeacon = 1;
    c.StopBeaconMaxDigi = 2;
    c.EditMonitor = 0;
  }
}

void SettingsFile::upgradeBelow500() {
  StationConfig& c = m_config;
  const StationConfig factory;
  c.HeaderColor = factory.HeaderColor;
  c.DataColor = factory.DataColor;
  c.ScreenColor = factory.ScreenColor;
  c.DigiColor = factory.DigiColor;
  if (c.AutomaticLogging == -1) c.AutomaticLogging = 1;
  if (c.FixedMonitorWidth < 0 || c.FixedMonitorWidth > 6) c.FixedMonitorWidth = 0;
  c.ImgViewerWidth = c.ImgViewerHeight = 0;
  c.NoteBookForeColor = factory.NoteBookForeColor;
  c.NoteBookBackColor = factory.NoteBookBackColor;
  c.AckInterval = 20;
  c.AckUIViewType = 0;
  c.ConnectLog = 1;
  c.SavePosition = -1;
  c.ConnectForeColor = factory.ConnectForeColor;
  c.ConnectBackColor = factory.ConnectBackColor;
  c.ConnectionFont = factory.ConnectionFont;
  if (m_hooks.CalcUTC) m_hooks.CalcUTC();
  c.AutoAnswerText.clear();
}

void SettingsFile::applyAfterReading() {
  m_run.CurrentPort = m_config.AGWPERadioPort;
  if (m_config.AckInterval >= 10) m_config.AckRetryIntervalMs = m_config.AckInterval * 1000;
  if (Len(m_config.APRSCompressed) < 8) m_config.APRSCompressed.clear();
  applyTransmitFields();
  applySelectedBeacon();
  applyColorsAndFont();
  applyWindowPlacement();
  applyFiltersAndBeaconLabel();
}

void SettingsFile::applyTransmitFields() {
  const StationConfig& c = m_config;
  MainWindow& w = m_main;
  auto fill = [](ComboBox& box, const std::vector<std::string>& history) {
    if (history.empty()) return false;
    box.list = history;
    return true;
  };
  fill(w.cmbDataText, c.TXdatatext);
  if (!c.TXDataDefault.empty()) w.cmbDataText.text = c.TXDataDefault;
  fill(w.cmbToCall, c.Totext);
  w.cmbToCall.text = c.ToCall;
  // The Via list always ends in an empty entry, so that Via can be picked empty.
  if (fill(w.cmbViaCall, c.Viatext)) w.cmbViaCall.list.emplace_back();
  w.cmbViaCall.text = c.Digistation;
  fill(w.cmbAPRSPos, c.APRSData);
  w.cmbAPRSPos.text = c.DefaultAPRSText;
  fill(w.cmbFor, c.APRSMessageFor);
  w.cmbFor.text = c.DefaultFor;
  fill(w.cmbAPRSMessage, c.APRSMessageText);
  w.cmbAPRSMessage.text = c.DefaultMessage;
}

void SettingsFile::applySelectedBeacon() {
  StationConfig& c = m_config;
  if (c.SelectedBeacon >= 100000) {
    // Digit 1 is only the mask's marker; digits 2 to 6 are the five beacon items.
    const std::string digits = Trim(StrSingle(c.SelectedBeacon));
    int16_t count = 0;
    for (long place = 2; place <= 6; ++place) {
      if (Mid(digits, place, 1) == "1") ++count;
    }
    c.SelectedBeaconItems = count;
  } else {
    c.SelectedBeacon = 100000;
  }
}

void SettingsFile::applyColorsAndFont() {
  StationConfig& c = m_config;
  MainWindow& w = m_main;
  if (c.DataBoxForecolor != c.DataBoxBackcolor) {
    for (ComboBox* box : {&w.cmbToCall, &w.cmbViaCall, &w.cmbDataText, &w.cmbAPRSPos, &w.cmbFor,
                          &w.cmbAPRSMessage}) {
      box->foreColor = c.DataBoxForecolor;
      box->backColor = c.DataBoxBackcolor;
    }
    w.LstMHeardList.foreColor = c.DataBoxForecolor;
    w.LstMHeardList.backColor = c.DataBoxBackcolor;
  }
  if (c.FontSize <= 7) c.FontSize = 9;
  TextStyle style = w.txtMonitor.defaultStyle();
  style.size = c.FontSize;
  style.bold = c.FontBold != 0;
  if (!c.MonitorFontname.empty()) w.txtMonitorFontName = c.MonitorFontname;
  if (c.ScreenColor != c.HeaderColor) {
    w.txtMonitorBackColor = c.ScreenColor;
    style.color = c.DataColor;  // what the operator types in the Monitor
  }
  w.txtMonitor.setDefaultStyle(style);
}

void SettingsFile::applyWindowPlacement() {
  StationConfig& c = m_config;
  Window& form = m_main.form;
  if (c.SavePosition != -1) return;
  if (c.toppos < 200000 && c.leftpos < 200000 && c.toppos == c.leftpos) {
    c.toppos = c.leftpos = 10;
  }
  form.left = c.leftpos;
  form.top = c.toppos;
  if (c.hsize >= 10515 / 1.5 || c.vsize >= 8520 / 1.8) {
    form.width = c.hsize;
    form.height = c.vsize;
    // The desktop cuts a window larger than itself; such a window comes up maximised.
    if (m_main.screenWidth > 0 && form.width > m_main.screenWidth) form.width = m_main.screenWidth;
    if (m_main.screenHeight > 0 && form.height > m_main.screenHeight) {
      form.height = m_main.screenHeight;
    }
    if (form.width < c.hsize || form.height < c.vsize) form.windowState = 2;
  }
}

void SettingsFile::applyFiltersAndBeaconLabel() {
  StationConfig& c = m_config;
  MainWindow& w = m_main;
  if (c.ShadowExperiment != 0 && c.Beacon != 0) ShowShadowMark(w, m_platform.views(), true);
  if (c.Filter > 0) {
    w.menufilters[0].checked = false;
    if (c.Filter == 5) {
      w.menufilters[5].checked = true;
      if (m_hooks.setFilterText) m_hooks.setFilterText(UCase(Trim(c.FilterCall)));
    } else if (m_hooks.menufilters_Click) {
      m_hooks.menufilters_Click(c.Filter);
    }
  }
  if (!c.FilterCall.empty()) {
    w.lblMonitorFilter.caption = UCase(c.FilterCall);
    // The colours of a filter chosen from the menu: a restored filter looks like one set by hand.
    w.lblMonitorFilter.backColor = QBColor(10);
    w.lblMonitorFilter.foreColor = QBColor(1);
  }
  if (c.Beacon == -1)
    ShowBeaconCaption(w, m_platform.views(), kBeaconOn, SmartBeaconDigit(c.IntelligentBeacon));
  if (c.Filters >= 1 && c.Filters <= 4) {
    if (m_hooks.menufilters_Click) m_hooks.menufilters_Click(c.Filters);
  } else {
    c.Filters = 0;
  }
}

}  // namespace tesk
