// The beacon window's load, its item and time-field rules, and Apply in its fixed order. Each
// check of Apply that fails ends it there: the steps before stay applied, nothing after runs,
// and the window stays open with the focus on the field to fix.
#include "beacon/beacon_setup.h"

#include <cctype>

#include "base/text.h"
#include "platform/platform_helpers.h"
#include "state/beacon_label.h"

namespace tesk {

namespace {

constexpr long kIntervalDigits = 4;  // the counter wraps at 10000
constexpr long kTimeDigits = 5;      // "hh:mm"
constexpr char kBackspace = 8;
constexpr int kItemText = 1, kItemPosition = 10, kItemMessage = 100, kItemFile = 1000,
              kItemMHeard = 10000;
constexpr float kNoItems = 100000;
constexpr Color kGreyedBox = static_cast<Color>(0x8000000F);
constexpr double kShadowIntervals = 6;  // the Shadow frame shows below this interval

CheckBox Check(const std::string& caption, const std::string& toolTip = {}) {
  CheckBox c;
  c.caption = caption;
  c.toolTip = toolTip;
  return c;
}

Button Press(const std::string& caption, const std::string& toolTip = {}) {
  Button b;
  b.caption = caption;
  b.toolTip = toolTip;
  return b;
}

// The window as it is designed, before its load fills it.
BeaconWindow DesignedWindow() {
  BeaconWindow w;
  w.form.caption = "TESK Beacon Settings";
  w.chkBeaconActiv = Check("Beacon active", "Send the selected items at the interval");
  w.chkAutoTimedBeacon =
      Check("Timed beacon", "Run the beacon by itself inside the start and stop times");
  w.chkBeaconIntelligentAktiv = Check("Smart Beacon (beacon on heard)",
                                      "Transmit only after a frame with this text was heard");
  w.txtIntelligenBeaconString.toolTip =
      "Text to listen for (empty: any frame, *: any digipeated frame)";
  w.txtBeaconInterval.maxLength = kIntervalDigits;
  w.txtBeaconInterval.toolTip = "Seconds between two beacon transmissions";
  w.chkItemData = Check("Use Text/Data", "send TX-Data/text");
  w.chkItemAPRS = Check("Use APRS Position", "send APRS coordinates");
  w.chkItemAPRSMessage = Check("Use Message", "Send message (without ack requests)");
  w.chkItemFile = Check("Use Data from File:", "send text from a file");
  w.chkItemMHeard = Check("Use Mheard List", "send Mheard list");
  w.txtAddFilePath.toolTip = "Select/Enter folder and filename of the file to use for beacon text";
  w.cmdEditAddFile = Press("Edit/View");
  w.cmdBrowseAddFilePath = Press("Browse");
  const char* lines[kBeaconLineChoices] = {"Use only first line", "Use only second line",
                                           "Use only 1st and 2th lines", "Use all lines (max 4)"};
  for (int i = 0; i < kBeaconLineChoices; ++i)
    w.OptWhichBeaconLines[static_cast<std::size_t>(i)].caption = lines[i];
  w.chkItemFileAddLoc = Check("Add APRS Position", "Add your APRS position to the file content");
  for (int i = 0; i < kBeaconTimeWindows; ++i) {
    const auto at = static_cast<std::size_t>(i);
    w.TxtStart[at].maxLength = kTimeDigits;
    w.TxtStop[at].maxLength = kTimeDigits;
    w.TxtStart[at].toolTip = "Start time hh:mm";
    w.TxtStop[at].toolTip = "Stop time hh:mm";
    w.CmdClear[at] = Press("Clear", "Clear this start and stop time");
    w.cmdPasteCurrentStartime[at] = Press("Now", "Paste the present time as start time");
    w.cmdPasteCurrentStoptime[at] = Press("Now", "Paste the present time as stop time");
  }
  w.chkStopBeacon = Check("Interrupt beacon after x digipeats",
                          "Stop the beacon after this many own digipeats, or after 30 minutes");
  w.cmbStopBeacon.list = {"1", "2", "3", "4", "5"};
  w.FrmShadowExp.caption = "ISS Shadow Experiment";
  w.FrmShadowExp.visible = false;
  w.ChkShadow = Check("Enable TX Shadow Experiment",
                      "Perform TX Shadow Experiment (only if you are authorised to do so!)");
  w.ChkShExpGMT = Check("Use UTC/GMT time (as setup in TESK) instead of local time in beacon");
  w.txtISOcode.toolTip = "Enter your country ISO Code (US, RU, BE...)";
  w.txtISOcode.maxLength = 2;
  w.txtShExpPause.toolTip =
      "Value in seconds (time that the ShadowExperiment beacon transmits and pauses - 60 "
      "default)";
  w.txtShExpPause.maxLength = kIntervalDigits;
  w.Command1 = Press("Apply");
  w.Command2 = Press("Cancel");
  return w;
}

bool IsDigit(char c) {
  return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

std::string TwoDigits(int n) {
  return n < 10 ? "0" + std::to_string(n) : std::to_string(n);
}

}  // namespace

BeaconSetup::BeaconSetup(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                         BeaconScheduler& beacon)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_beacon(beacon),
      m_window(DesignedWindow()) {}

BeaconSetup::~BeaconSetup() = default;

std::string BeaconSetup::IntervalText(long seconds) {
  return "(" + std::to_string(seconds / 3600) + "h " + std::to_string(seconds % 3600 / 60) + "m " +
         std::to_string(seconds % 60) + "s)";
}

std::string BeaconSetup::TimeText(const std::string& typed) {
  if (typed.empty()) return typed;
  std::string text = typed;
  if (Len(text) < 3) text += ":00";
  const long colon = InStr(text, ":");
  if (colon == 0) return text;
  const std::string hour = Left(text, colon - 1);
  const std::string minute = Mid(text, colon + 1);
  const auto pad = [](const std::string& part) {
    return Len(part) < 2 ? TwoDigits(static_cast<int>(Val(part))) : part;
  };
  return pad(hour) + ":" + pad(minute);
}

// ---- opening and loading ---------------------------------------------------------------------

void BeaconSetup::menubeaconpopups_Click() {
  if (!m_window.form.loaded) {
    m_before = m_beacon.watched();
    Form_Load();
  }
  m_window.form.visible = true;
  if (!m_pcTimer) {
    m_pcTimer = m_platform.loop().createTimer();
    m_pcTimer->setHandler([this] { PCTimer1_Timer(); });
  }
  m_pcTimer->setInterval(1000);
  m_pcTimer->setEnabled(true);
  m_platform.views().show(WindowKind::Beacon);
}

void BeaconSetup::Form_Load() {
  m_window = DesignedWindow();
  BeaconWindow& w = m_window;
  const StationConfig& c = m_config;
  w.form.loaded = true;
  w.chkBeaconActiv.value = c.Beacon != 0 ? 1 : 0;
  w.chkAutoTimedBeacon.value = c.AutoBeacon != 0 ? 1 : 0;
  w.chkBeaconIntelligentAktiv.value = SmartBeaconDigit(c.IntelligentBeacon);
  w.txtIntelligenBeaconString.text = Mid(c.IntelligentBeacon, 2);
  w.txtIntelligenBeaconString.enabled = w.chkBeaconIntelligentAktiv.checked();
  w.txtBeaconInterval.text = std::to_string(c.BeaconInterval);
  txtBeaconInterval_Change();
  const std::string selected = Trim(StrSingle(c.SelectedBeacon));
  const auto digit = [&selected](int place) { return Val(Mid(selected, place, 1)) == 1 ? 1 : 0; };
  w.chkItemData.value = digit(6);
  w.chkItemAPRS.value = digit(5);
  w.chkItemAPRSMessage.value = digit(4);
  w.chkItemFile.value = digit(3);
  w.chkItemMHeard.value = digit(2);
  w.txtAddFilePath.text =
      c.BeaconFile.empty() ? JoinPath(m_run.AppPath, "beacon.dat") : c.BeaconFile;
  const int lines =
      c.BeaconFileType >= 0 && c.BeaconFileType < kBeaconLineChoices ? c.BeaconFileType : 0;
  w.OptWhichBeaconLines[static_cast<std::size_t>(lines)].value = true;
  w.chkItemFileAddLoc.value = c.BeaconFileAddPosition != 0 ? 1 : 0;
  for (int i = 0; i < kBeaconTimeWindows; ++i) {
    const long at = 1 + static_cast<long>(i) * kTimeDigits;
    w.TxtStart[static_cast<std::size_t>(i)].text = Trim(Mid(c.AutoBeaconStart, at, kTimeDigits));
    w.TxtStop[static_cast<std::size_t>(i)].text = Trim(Mid(c.AutoBeaconStop, at, kTimeDigits));
  }
  w.chkStopBeacon.value = c.AutoStopBeacon != 0 ? 1 : 0;
  const long stop = c.StopBeaconMaxDigi >= 0 && c.StopBeaconMaxDigi < 5 ? c.StopBeaconMaxDigi : 2;
  w.cmbStopBeacon.listIndex = stop;
  w.cmbStopBeacon.text = w.cmbStopBeacon.list[static_cast<std::size_t>(stop)];
  w.ChkShadow.value = c.ShadowExperiment != 0 ? 1 : 0;
  w.ChkShExpGMT.value = c.ShadowExpGMT != 0 ? 1 : 0;
  w.txtISOcode.text = c.ShadowExperiment_ISO;
  w.txtShExpPause.text = std::to_string(c.ShExpPauseTX);
  if (w.chkItemFile.checked()) {
    CheckAktief();
  } else {
    CheckInaktief();
  }
  showShadowFrameByInterval();
  PCTimer1_Timer();
}

// ---- the rules between the controls --------------------------------------------------------

void BeaconSetup::chkBeaconActiv_Click() {
  BeaconWindow& w = m_window;
  if (w.chkBeaconActiv.checked()) {
    w.chkAutoTimedBeacon.value = 0;
  } else if (w.FrmShadowExp.visible && w.ChkShadow.checked()) {
    w.ChkShadow.value = 0;
    ChkShadow_Click();
  }
  refresh();
}

void BeaconSetup::chkAutoTimedBeacon_Click() {
  if (m_window.chkAutoTimedBeacon.checked()) {
    m_window.chkBeaconActiv.value = 0;
    chkBeaconActiv_Click();
  }
  refresh();
}

void BeaconSetup::chkBeaconIntelligentAktiv_Click() {
  BeaconWindow& w = m_window;
  const bool on = w.chkBeaconIntelligentAktiv.checked();
  w.txtIntelligenBeaconString.enabled = on;
  if (on && !w.chkBeaconActiv.checked()) {
    w.chkBeaconActiv.value = 1;
    chkBeaconActiv_Click();
  }
  refresh();
}

void BeaconSetup::chkItemFile_Click() {
  if (m_window.chkItemFile.checked()) {
    CheckAktief();
  } else {
    CheckInaktief();
  }
  refresh();
}

void BeaconSetup::CheckAktief() {
  BeaconWindow& w = m_window;
  w.txtAddFilePath.enabled = true;
  w.txtAddFilePath.backColor = kDefaultBack;
  w.cmdEditAddFile.enabled = true;
  w.cmdBrowseAddFilePath.enabled = true;
  for (OptionButton& option : w.OptWhichBeaconLines)
    option.enabled = true;
  // The position goes in front of one line only.
  w.chkItemFileAddLoc.enabled = !w.OptWhichBeaconLines[2].value && !w.OptWhichBeaconLines[3].value;
}

void BeaconSetup::CheckInaktief() {
  BeaconWindow& w = m_window;
  w.txtAddFilePath.enabled = false;
  w.txtAddFilePath.backColor = kGreyedBox;
  w.cmdEditAddFile.enabled = false;
  w.cmdBrowseAddFilePath.enabled = false;
  for (OptionButton& option : w.OptWhichBeaconLines)
    option.enabled = false;
  w.chkItemFileAddLoc.enabled = false;
}

void BeaconSetup::OptWhichBeaconLines_Click(int index) {
  if (index < 0 || index >= kBeaconLineChoices) return;
  for (int i = 0; i < kBeaconLineChoices; ++i)
    m_window.OptWhichBeaconLines[static_cast<std::size_t>(i)].value = i == index;
  if (m_window.chkItemFile.checked()) CheckAktief();
  refresh();
}

void BeaconSetup::ChkShadow_Click() {
  BeaconWindow& w = m_window;
  if (w.ChkShadow.checked()) {
    if (!w.chkBeaconActiv.checked() && !w.chkAutoTimedBeacon.checked()) {
      w.chkBeaconActiv.value = 1;
      chkBeaconActiv_Click();
    }
    // The Shadow frames replace every item.
    for (CheckBox* item :
         {&w.chkItemData, &w.chkItemAPRS, &w.chkItemAPRSMessage, &w.chkItemMHeard, &w.chkItemFile})
      item->value = 0;
    CheckInaktief();
  }
  refresh();
}

void BeaconSetup::showShadowFrameByInterval() {
  // Only a short interval offers the Shadow Experiment.
  m_window.FrmShadowExp.visible = Val(m_window.txtBeaconInterval.text) < kShadowIntervals;
}

// ---- typing ----------------------------------------------------------------------------------

void BeaconSetup::typeDigit(TextBox& box, char key, long maxLength, bool addColon) {
  if (key == kBackspace) {
    if (!box.text.empty()) box.text.pop_back();
    return;
  }
  if (!IsDigit(key) || Len(box.text) >= maxLength) return;
  box.text += key;
  // After the hour the colon comes by itself.
  if (addColon && Len(box.text) == 2) box.text += ":";
}

void BeaconSetup::txtBeaconInterval_KeyPress(char key) {
  typeDigit(m_window.txtBeaconInterval, key, kIntervalDigits, false);
  txtBeaconInterval_Change();
}

void BeaconSetup::txtBeaconInterval_Change() {
  m_window.lblBeaconIntervalTime.caption =
      IntervalText(static_cast<long>(Val(m_window.txtBeaconInterval.text)));
  refresh();
}

void BeaconSetup::txtBeaconInterval_LostFocus() {
  showShadowFrameByInterval();
  refresh();
}

void BeaconSetup::TxtStart_KeyPress(int index, char key) {
  typeDigit(m_window.TxtStart[static_cast<std::size_t>(index)], key, kTimeDigits, true);
}

void BeaconSetup::TxtStop_KeyPress(int index, char key) {
  typeDigit(m_window.TxtStop[static_cast<std::size_t>(index)], key, kTimeDigits, true);
}

void BeaconSetup::TxtStart_LostFocus(int index) {
  TextBox& box = m_window.TxtStart[static_cast<std::size_t>(index)];
  box.text = TimeText(box.text);
  refresh();
}

void BeaconSetup::TxtStop_LostFocus(int index) {
  TextBox& box = m_window.TxtStop[static_cast<std::size_t>(index)];
  box.text = TimeText(box.text);
  refresh();
}

void BeaconSetup::txtShExpPause_KeyPress(char key) {
  typeDigit(m_window.txtShExpPause, key, kIntervalDigits, false);
}

void BeaconSetup::CmdClear_Click(int index) {
  m_window.TxtStart[static_cast<std::size_t>(index)].text.clear();
  m_window.TxtStop[static_cast<std::size_t>(index)].text.clear();
  refresh();
}

void BeaconSetup::cmdPasteCurrentStartime_Click(int index) {
  const DateTime t = m_platform.clock().localNow();
  m_window.TxtStart[static_cast<std::size_t>(index)].text =
      TwoDigits(t.hour) + ":" + TwoDigits(t.minute);
  refresh();
}

void BeaconSetup::cmdPasteCurrentStoptime_Click(int index) {
  const DateTime t = m_platform.clock().localNow();
  m_window.TxtStop[static_cast<std::size_t>(index)].text =
      TwoDigits(t.hour) + ":" + TwoDigits(t.minute);
  refresh();
}

void BeaconSetup::PCTimer1_Timer() {
  const DateTime t = m_platform.clock().localNow();
  Label& clock = m_window.LblPCTime;
  clock.caption = TwoDigits(t.hour) + ":" + TwoDigits(t.minute) + ":" + TwoDigits(t.second);
  // The blink is only a reminder that the beacon is on the air.
  m_blink = m_config.Beacon != 0 && !m_blink;
  clock.foreColor = m_blink ? QBColor(12) : kDefaultFore;
  refresh();
}

// ---- Apply and Cancel ------------------------------------------------------------------------

void BeaconSetup::Command1_Click() {
  if (!applyChecks()) return;
  applyRest();
}

bool BeaconSetup::applyChecks() {
  BeaconWindow& w = m_window;
  StationConfig& c = m_config;
  // 1: the automatic stop.
  c.AutoStopBeacon = static_cast<int16_t>(w.chkStopBeacon.checked() ? 1 : 0);
  long stop = w.cmbStopBeacon.listIndex;
  for (std::size_t i = 0; i < w.cmbStopBeacon.list.size(); ++i)
    if (w.cmbStopBeacon.list[i] == w.cmbStopBeacon.text) stop = static_cast<long>(i);
  if (stop >= 0) c.StopBeaconMaxDigi = static_cast<int16_t>(stop);
  // 2: the Shadow Experiment only while its frame is shown.
  if (w.ChkShadow.checked() && shadowFrameShown()) {
    if (!w.chkBeaconActiv.checked() && !w.chkAutoTimedBeacon.checked() &&
        !w.chkBeaconIntelligentAktiv.checked()) {
      w.chkBeaconActiv.value = 1;
      chkBeaconActiv_Click();
    }
    if (!applyShadow()) return false;
  } else {
    c.ShadowExperiment = 0;
  }
  // 3: Smart Beacon; unchecked keeps its string for next time.
  c.IntelligentBeacon = std::string(w.chkBeaconIntelligentAktiv.checked() ? "1" : "0") +
                        UCase(w.txtIntelligenBeaconString.text);
  return applyTimes() && applyItems() && applyShortInterval();
}

bool BeaconSetup::applyTimes() {
  // 4: each start, then its stop.
  for (int i = 0; i < kBeaconTimeWindows; ++i) {
    for (TextBox* box : {&m_window.TxtStart[static_cast<std::size_t>(i)],
                         &m_window.TxtStop[static_cast<std::size_t>(i)]}) {
      box->text = TimeText(box->text);
      // "24:00" passes, as it always has.
      if (Len(box->text) > 2 && (Val(Left(box->text, 2)) > 24 || Val(Mid(box->text, 4, 2)) > 59)) {
        m_platform.dialogs().msgBox(std::string("Time format is incorrect!") + CR +
                                        "You need to enter the hours and minutes. Example: 08:10",
                                    MsgButtons::Ok, MsgIcon::Exclamation, "Error in time format");
        m_window.focus =
            (box == &m_window.TxtStart[static_cast<std::size_t>(i)] ? "TxtStart" : "TxtStop") +
            std::to_string(i);
        refresh();
        return false;
      }
    }
  }
  return true;
}

bool BeaconSetup::applyItems() {
  BeaconWindow& w = m_window;
  StationConfig& c = m_config;
  // 5: the mask and the number of items.
  c.SelectedBeacon = kNoItems;
  c.SelectedBeaconItems = 0;
  const std::pair<const CheckBox*, int> items[] = {{&w.chkItemData, kItemText},
                                                   {&w.chkItemAPRS, kItemPosition},
                                                   {&w.chkItemAPRSMessage, kItemMessage},
                                                   {&w.chkItemFile, kItemFile},
                                                   {&w.chkItemMHeard, kItemMHeard}};
  for (const auto& [box, value] : items) {
    if (!box->checked()) continue;
    c.SelectedBeacon += static_cast<float>(value);
    ++c.SelectedBeaconItems;
  }
  // 6: a beacon with nothing to send.
  if (c.SelectedBeaconItems == 0 &&
      (w.chkBeaconActiv.checked() || w.chkAutoTimedBeacon.checked()) && c.ShadowExperiment == 0) {
    m_platform.dialogs().msgBox(
        std::string("You activated the beacon but did not select anything to transmit.") + CR +
            "Check the desired item to transmit with the beacon, or disable the beacon.",
        MsgButtons::Ok, MsgIcon::Exclamation, "Beacon enabled without RWData selection");
    w.focus = "chkItemData";
    refresh();
    return false;
  }
  // 7: the file and the interval.
  c.BeaconFile = Trim(w.txtAddFilePath.text);
  c.BeaconInterval = static_cast<int16_t>(Val(w.txtBeaconInterval.text));
  return true;
}

bool BeaconSetup::applyShortInterval() {
  const int16_t n = m_config.BeaconInterval;
  if (n < 2 || n > 9) return true;
  // 8: a short interval is said out loud, and may offer the Shadow Experiment.
  BeaconWindow& w = m_window;
  const std::string seconds = std::to_string(n);
  if (w.ChkShadow.checked() && w.chkBeaconActiv.checked()) {
    m_platform.dialogs().msgBox(
        std::string("Remember that the Shadow Experiment should ONLY be performed if you are "
                    "authorized to transmit") +
            CRLF + "'Shadow Experiment' packet frames!" + CRLF + "Beacon interval is set to " +
            seconds + " seconds.",
        MsgButtons::Ok, MsgIcon::Exclamation, "Shadow Experiment: Short Beacon Interval");
  } else if (shadowFrameShown() && w.chkBeaconActiv.checked() && !w.ChkShadow.checked()) {
    if (m_platform.dialogs().msgBox(
            "The beacon interval is set lower then 10 seconds! Do you want to enable the special "
            "transmit Shadow Experiment options?",
            MsgButtons::YesNo, MsgIcon::Question,
            "Short Beacon Interval: Shadow Experiment") == MsgResult::Yes) {
      w.ChkShadow.value = 1;
      ChkShadow_Click();
      w.focus = "txtISOcode";
      refresh();
      return false;
    }
  } else if (!shadowFrameShown()) {
    m_platform.dialogs().msgBox(
        "Caution: You have set the beacon interval to a very short "
        "interval of " +
            std::to_string(n) + " seconds!" + CRLF + "Beacon interval is set to " +
            std::to_string(n) + " seconds.",
        MsgButtons::Ok, MsgIcon::Exclamation, "Short Beacon Interval");
  }
  return true;
}

bool BeaconSetup::applyShadow() {
  BeaconWindow& w = m_window;
  StationConfig& c = m_config;
  c.ShadowExpGMT = static_cast<int16_t>(w.ChkShExpGMT.checked() ? 1 : 0);
  c.ShadowExperiment = -1;
  const std::string code = Trim(w.txtISOcode.text);
  if (code.empty()) {
    m_platform.dialogs().msgBox(
        "You need to enter your Country ISO code please to correctly use the Shadow Experiment.",
        MsgButtons::Ok, MsgIcon::Exclamation, "Shadow Experiment");
    w.focus = "txtISOcode";
    refresh();
    return false;
  }
  c.ShadowExperiment_ISO = UCase(code);
  const double pause = Val(w.txtShExpPause.text);
  c.ShExpPauseTX = static_cast<int16_t>(pause >= 0 ? pause : 60);
  return true;
}

void BeaconSetup::applyRest() {
  BeaconWindow& w = m_window;
  StationConfig& c = m_config;
  // 9: an interval below 2 seconds is no interval.
  if (c.BeaconInterval < 2) c.BeaconInterval = 60;
  // 10, 11: nothing to send switches the beacon off.
  if (c.SelectedBeaconItems == 0 && c.ShadowExperiment == 0 && w.chkBeaconActiv.checked()) {
    w.chkBeaconActiv.value = 0;
    chkBeaconActiv_Click();
  }
  c.Beacon = static_cast<int16_t>(w.chkBeaconActiv.checked() ? -1 : 0);
  m_beacon.ShowCaption(c.Beacon != 0 ? kBeaconOn : kBeaconOff);
  // 12: the file's lines and the position only where the box could be used.
  for (int i = 0; i < kBeaconLineChoices; ++i)
    if (w.OptWhichBeaconLines[static_cast<std::size_t>(i)].value)
      c.BeaconFileType = static_cast<int16_t>(i);
  c.BeaconFileAddPosition =
      static_cast<int16_t>(w.chkItemFileAddLoc.checked() && w.chkItemFileAddLoc.enabled ? 1 : 0);
  // 13: the time windows.
  std::string starts, stops;
  for (int i = 0; i < kBeaconTimeWindows; ++i) {
    starts += w.TxtStart[static_cast<std::size_t>(i)].text;
    stops += w.TxtStop[static_cast<std::size_t>(i)].text;
  }
  c.AutoBeaconStart = Trim(starts);
  c.AutoBeaconStop = Trim(stops);
  if (w.chkAutoTimedBeacon.checked() && Len(c.AutoBeaconStart) >= kTimeDigits &&
      Len(c.AutoBeaconStop) >= kTimeDigits) {
    c.AutoBeacon = -1;
    m_beacon.ShowCaption(kAutoBeacon);
  } else {
    c.AutoBeacon = 0;
  }
  // 14: the Shadow mark, and the window closes.
  ShowShadowMark(m_main, m_platform.views(), c.Beacon != 0 && c.ShadowExperiment != 0);
  Unload();
}

void BeaconSetup::Command2_Click() {
  // Exactly the empty mask: a beacon with no items left is stopped.
  if (m_config.SelectedBeacon == kNoItems) m_config.Beacon = 0;
  Unload();
}

void BeaconSetup::Unload() {
  m_window.form.loaded = false;
  m_window.form.visible = false;
  if (m_pcTimer) m_pcTimer->setEnabled(false);
  m_platform.views().hide(WindowKind::Beacon);
  m_beacon.ResetIfChanged(m_before);
  m_platform.views().refresh(WindowKind::Main);
}

void BeaconSetup::refresh() {
  if (m_window.form.loaded) m_platform.views().refresh(WindowKind::Beacon);
}

}  // namespace tesk
