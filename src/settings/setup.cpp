// The Setup window's load, its controls' events, the buttons that open other windows and the
// resets. The resets and the history resets act at once, whatever Apply later does.
#include "settings/setup.h"

#include <filesystem>
#include <system_error>
#include <type_traits>
#include <utility>
#include <variant>

#include "base/text.h"
#include "platform/platform_helpers.h"

namespace tesk {

namespace {

constexpr int kBbsWithPassword = 2;
constexpr int kAutoClearOn = 1;
constexpr int kSpecifiedSsid = 2;
constexpr const char* kHistoryTitle = "Clear/Set to default entries";
constexpr const char* kHistoryQuestion = "Do you want to reset it to the default values?";

std::vector<std::string> NonBlank(const std::vector<std::string>& list) {
  std::vector<std::string> out;
  for (const std::string& s : list)
    if (!Trim(s).empty()) out.push_back(s);
  return out;
}

}  // namespace

Setup::Setup(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
             SettingsFile& settings, CommandTable& commands, SetupHooks hooks)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_settings(settings),
      m_commands(commands),
      m_hooks(std::move(hooks)),
      m_window(DesignedSetupWindow()) {}

void Setup::Show(SetupPage page) {
  if (!m_window.form.loaded) Form_Load();
  m_window.page = static_cast<int>(page);
  m_window.form.visible = true;
  m_platform.views().show(kWindowKind);
}

void Setup::Form_Load() {
  m_window = DesignedSetupWindow();
  m_window.form.loaded = true;
  fillControls();
  m_loadedTxPort = m_config.AGWPERadioPort;
  m_loadedRxPort = m_config.AGWPERXPort;
}

void Setup::fillControls() {
  for (const SetupControl& row : SetupControls())
    if (row.load) row.load(m_window, m_config);
  ResetExampleLabels();
  SetTXMHeardType();
  updateEnabled();
}

void Setup::updateEnabled() {
  SetupWindow& w = m_window;
  // Only the third row asks for a password; Apply checks the password only while it may be typed.
  w.txtBBSPassword.enabled = w.OptEnableBBS.chosen() == kBbsWithPassword;
  w.CmbBufferSize.enabled = w.ChkLimitTXTSize.checked();
  w.txtExtraReportInfo.enabled = w.chkAddExtra.checked();
  w.TxtAutoAnswer.enabled = w.ChkAutoAnswer.checked();
  const bool clearing = w.OptAutoClear.chosen() == kAutoClearOn;
  w.txtAutoClearTime.enabled = clearing;
  w.chkAutoClearPacketActivity.enabled = clearing;
  w.CmbSSID.enabled = w.OptDigLogCall.chosen() == kSpecifiedSsid;
  w.txtAutodiscCalls.enabled = w.OptAutoDisc.chosen() == 3;
  // The buttons that open other windows follow their commands.
  w.cmdBeaconSetup.enabled = m_commands.enabled({Command::mnuBeacon});
  w.cmdAPRSSetup.enabled = m_commands.enabled({Command::mnuAPRSSetup});
  w.cmdLanSetup.enabled = m_commands.enabled({Command::mnuLanSetup});
}

void Setup::SelectSetupFrame(int page) {
  if (page < 0 || page >= kSetupPages) return;
  m_window.page = page;
  refresh();
}

void Setup::HoverOptie(const std::string& controlName) {
  const SetupControl* row = FindSetupControl(controlName);
  if (row == nullptr) return;
  m_window.lblHelp.caption = ControlOf(m_window, *row).toolTip;
  refresh();
}

void Setup::ResetExampleLabels() {
  LoadExampleColors(m_window, m_config);
}

void Setup::SetTXMHeardType() {
  const int type = m_window.OptTXMHeardType.chosen();
  if (m_hooks.SetTXMHeardType && type >= 0)
    m_window.lblMHeardExample.caption = m_hooks.SetTXMHeardType(static_cast<int16_t>(type));
}

void Setup::cmdColor_Click(int index) {
  SetupWindow& w = m_window;
  // Which example label carries the colour, and on which side.
  struct Target {
    Label* label;
    bool back;
  };
  const Target targets[kSetupColors] = {
      {&w.lblExHeader, false}, {&w.lblExData, false},    {&w.lblExHeader, true},
      {&w.lblExDigi, false},   {&w.lblExMessage, false}, {&w.lblExDataBox, false},
      {&w.lblExDataBox, true}, {&w.lblExConnect, false}, {&w.lblExConnect, true}};
  if (index < 0 || index >= kSetupColors) return;
  const Target& t = targets[index];
  const auto chosen =
      m_platform.dialogs().chooseColor(t.back ? t.label->backColor : t.label->foreColor);
  if (!chosen) return;
  if (!t.back) {
    t.label->foreColor = *chosen;
  } else if (t.label == &w.lblExHeader) {
    // The Monitor has one background for every kind of line.
    for (Label* l : {&w.lblExHeader, &w.lblExData, &w.lblExDigi, &w.lblExMessage})
      l->backColor = *chosen;
  } else {
    t.label->backColor = *chosen;
  }
  refresh();
}

void Setup::cmdAPRSSetup_Click() {
  m_commands.run({Command::mnuAPRSSetup});
}

void Setup::cmdBeaconSetup_Click() {
  m_commands.run({Command::mnuBeacon});
}

void Setup::cmdLanSetup_Click() {
  m_commands.run({Command::mnuLanSetup});
}

void Setup::Changed(const SetupControl& row) {
  SetupWindow& w = m_window;
  const std::string& name = row.name;
  if (name == "OptTXMHeardType") SetTXMHeardType();
  // The two boxes of the UTC headers are one setting on two pages.
  if (name == "ChkUseUTCinHeader") w.ChkUseUTCinHeader2.value = w.ChkUseUTCinHeader.value;
  if (name == "ChkUseUTCinHeader2") w.ChkUseUTCinHeader.value = w.ChkUseUTCinHeader2.value;
  // The single options of one setting exclude each other.
  if (name == "OptLogDigiMes" && w.OptLogDigiMes.value) w.OptLogAllMes.value = false;
  if (name == "OptLogAllMes" && w.OptLogAllMes.value) w.OptLogDigiMes.value = false;
  OptionButton* alarms[] = {&w.OptAlarmInHeader, &w.OptAlarmInData, &w.OptAlarmNone};
  for (OptionButton* chosen : alarms) {
    if (&ControlOf(w, row) != chosen || !chosen->value) continue;
    for (OptionButton* other : alarms)
      if (other != chosen) other->value = false;
  }
  if (name == "Usepic") {
    const int source = w.Usepic.chosen();
    if (source == 1) {
      w.txtAutoLoadPicPath.text = m_run.AppPath + "/tesk_bckgrnd.jpg";
      w.txtPicRefresh.text = "0";
    } else if (source == 3) {
      // The tracker's export picture, where the tracker says it keeps it.
      const auto folder =
          m_platform.store().regRead(Hive::LocalMachine, "SOFTWARE\\Stoff\\Orbitron", "Path");
      if (folder && !folder->empty()) {
        const bool slash = Right(*folder, 1) == "\\" || Right(*folder, 1) == "/";
        w.txtAutoLoadPicPath.text = *folder + (slash ? "" : "/") + "Output/export_v.jpg";
      }
    }
  }
  updateEnabled();
  refresh();
}

void Setup::Set(const SetupControl& row, const std::string& value) {
  SetupWindow& w = m_window;
  std::visit(
      [&](auto member) {
        auto& control = w.*member;
        using Held = std::remove_cvref_t<decltype(control)>;
        if constexpr (std::is_same_v<Held, CheckBox>) {
          control.value = value == "1" ? 1 : 0;
        } else if constexpr (std::is_same_v<Held, OptionButton>) {
          control.value = value == "1";
        } else if constexpr (std::is_same_v<Held, TextBox>) {
          // Typed key by key into an emptied box: a key the box refuses does nothing.
          control.text.clear();
          for (char key : value) {
            const std::string next = control.text + key;
            if (SetupInputTakes(row.input, next)) control.text = next;
          }
        } else if constexpr (std::is_same_v<Held, ComboBox>) {
          control.text = value;
        } else if constexpr (std::is_same_v<Held, OptionRow>) {
          control.choose(static_cast<int>(Val(value)));
        }
      },
      row.member);
  if (row.kind == ScriptKind::Button) {
    Press(row);
    return;
  }
  Changed(row);
}

void Setup::Press(const SetupControl& row) {
  if (!ControlOf(m_window, row).enabled) return;
  const std::string& name = row.name;
  if (Left(name, 8) == "CmdReset") CmdReset_Click(row.index);
  if (Left(name, 15) == "cmdResetHistory") cmdResetHistory_Click(row.index);
  if (Left(name, 8) == "cmdColor") cmdColor_Click(row.index);
  if (name == "cmdAPRSSetup") cmdAPRSSetup_Click();
  if (name == "cmdBeaconSetup") cmdBeaconSetup_Click();
  if (name == "cmdLanSetup") cmdLanSetup_Click();
}

// ---- the resets ------------------------------------------------------------------------------

void Setup::CmdReset_Click(int index) {
  Dialogs& dialogs = m_platform.dialogs();
  if (index == 0) {
    // The box promises that the TX history stays; the factory defaults refill four of the
    // lists and the LAN settings all the same. Both are kept as they are, on purpose.
    const MsgResult answer = dialogs.msgBox(
        std::string("This will reset TESK to the default settings. Your APRS-location, Callsign "
                    "and TX-history will remain unchanged.") +
            CRLF + "Are you sure to reset TESK to its default settings?",
        MsgButtons::YesNo, MsgIcon::Question, "Reset TESK To Default");
    if (answer != MsgResult::Yes) return;
    m_settings.SetFactoryDefaults();
    m_settings.SaveSettings();
    m_settings.LoadSettings();
    if (m_hooks.ShowMeld)
      m_hooks.ShowMeld("Please restart TESK to make all remaining default settings active.");
    // The controls show the new settings, so a later Apply can't bring the old ones back.
    fillControls();
    m_loadedTxPort = m_config.AGWPERadioPort;
    m_loadedRxPort = m_config.AGWPERXPort;
    refreshMain();
    refresh();
    return;
  }
  if (index != 1) return;
  const MsgResult answer = dialogs.msgBox(
      std::string("This will execute a TOTAL reset of TESK as if you installed TESK for the first "
                  "time.") +
          CRLF + "Are you sure to reset TESK entirely?",
      MsgButtons::YesNo, MsgIcon::Question, "Total TESK Reset TESK");
  if (answer != MsgResult::Yes) return;
  std::error_code error;
  bool failed = false;
  for (const char* name : {"tesk.ini", "TESKLanMode.ini"}) {
    const std::filesystem::path file = JoinPath(m_run.AppPath, name);
    std::filesystem::remove(file, error);
    if (error || std::filesystem::exists(file)) failed = true;
  }
  if (!failed) {
    dialogs.msgBox("TESK has been totally reset. TESK will now close.", MsgButtons::Ok,
                   MsgIcon::Information, "Succesfully reset TESK");
  }
  // Ends without Einde: saving now would write both files again.
  m_platform.loop().endNow(0);
}

void Setup::cmdResetHistory_Click(int index) {
  MainWindow& m = m_main;
  StationConfig& c = m_config;
  std::string text;
  if (index == 0) {
    m.cmbToCall.list.clear();
    c.Totext.clear();
    c.ConnectionCalls.clear();  // the connect history goes with the To history
    text = "The data in the 'To:'-boxes are cleared.";
  } else if (index == 1) {
    m.cmbViaCall.list.clear();
    c.Viatext.clear();
    c.ConnectionCall.clear();  // and the last connected call with the Via history
    text = "The data in the 'Via:'-boxes are cleared.";
  } else if (index == 2) {
    m.cmbFor.list.clear();
    c.APRSMessageFor.clear();
    text = "The data in the 'For:'-box is cleared.";
  } else {
    return;
  }
  refreshMain();
  const MsgResult answer = m_platform.dialogs().msgBox(
      text + CRLF + kHistoryQuestion, MsgButtons::YesNo, MsgIcon::Question, kHistoryTitle);
  if (answer == MsgResult::Yes) {
    // These lists differ from the factory ones; both sets are kept as they are.
    if (index == 0) {
      m.cmbToCall.list = {"CQ", "APRS", "PCSAT"};
      m.cmbToCall.text = c.ToCall = "CQ";
      c.Totext = NonBlank(m.cmbToCall.list);
    } else if (index == 1) {
      m.cmbViaCall.list = {"RS0ISS", "ARISS", "PCSAT-1", "W3ADO-1", "WIDE,WIDE", ""};
      m.cmbViaCall.text = c.Digistation = "ARISS";
      c.Viatext = NonBlank(m.cmbViaCall.list);
    } else {
      m.cmbFor.list = {"BLN", "EMAIL", "NWS", "SAT"};
      m.cmbFor.text = "BLN";
      c.APRSMessageFor = NonBlank(m.cmbFor.list);
    }
    refreshMain();
  }
}

// ---- closing and painting --------------------------------------------------------------------

void Setup::Command2_Click() {
  Unload();
}

void Setup::Unload() {
  m_window.form.loaded = false;
  m_window.form.visible = false;
  m_platform.views().hide(kWindowKind);
}

void Setup::refresh() {
  if (m_window.form.loaded) m_platform.views().refresh(kWindowKind);
}

void Setup::refreshMain() {
  m_platform.views().refresh(WindowKind::Main);
}

}  // namespace tesk
