// The beacon's commands: the menu row that opens the window, the double click on lblBeacon, and
// the console's :beacon, which opens the window unseen and sets its controls by name, in order,
// as the operator would, so every rule and check of the window applies to it too.
#include <cctype>

#include "base/text.h"
#include "beacon/beacon_setup.h"
#include "state/command_table.h"
#include "state/form_script.h"

namespace tesk {

namespace {

constexpr const char* kBeaconUsage = ":beacon [toggle | NAME=VALUE ... BUTTON ...]";

bool DigitsUpTo(const std::string& value, std::size_t most) {
  if (value.size() > most) return false;
  for (char c : value)
    if (std::isdigit(static_cast<unsigned char>(c)) == 0) return false;
  return true;
}

std::string Flag(const CheckBox& box) {
  return box.checked() ? "1" : "0";
}

}  // namespace

ScriptForm BeaconSetup::scriptForm() {
  BeaconWindow& w = m_window;
  ScriptForm form;
  form.open = [this] { menubeaconpopups_Click(); };
  form.apply = [this] { Command1_Click(); };
  form.cancel = [this] { Command2_Click(); };
  form.isOpen = [this] { return m_window.form.loaded; };
  std::vector<ScriptControl>& list = form.controls;
  // A check box: set through its click, as a mouse click would; a click on the value it has
  // already changes nothing.
  const auto check = [&list](const char* name, CheckBox& box, std::function<void()> click,
                             std::function<bool()> reachable = {}) {
    ScriptControl c = ScriptControlOf(name, ScriptKind::Check);
    c.set = [&box, click](int, const std::string& value) {
      const int wanted = value == "1" ? 1 : 0;
      if (box.value == wanted) return;
      box.value = wanted;
      if (click) click();
    };
    c.enabled = [&box, reachable](int) {
      return box.enabled && box.visible && (!reachable || reachable());
    };
    c.show = [&box](int) { return Flag(box); };
    list.push_back(std::move(c));
  };
  const auto inShadowFrame = [this] { return m_window.FrmShadowExp.visible; };
  check("chkBeaconActiv", w.chkBeaconActiv, [this] { chkBeaconActiv_Click(); });
  check("chkAutoTimedBeacon", w.chkAutoTimedBeacon, [this] { chkAutoTimedBeacon_Click(); });
  check("chkBeaconIntelligentAktiv", w.chkBeaconIntelligentAktiv,
        [this] { chkBeaconIntelligentAktiv_Click(); });
  check("chkItemData", w.chkItemData, nullptr);
  check("chkItemAPRS", w.chkItemAPRS, nullptr);
  check("chkItemAPRSMessage", w.chkItemAPRSMessage, nullptr);
  check("chkItemFile", w.chkItemFile, [this] { chkItemFile_Click(); });
  check("chkItemMHeard", w.chkItemMHeard, nullptr);
  check("chkItemFileAddLoc", w.chkItemFileAddLoc, nullptr);
  check("chkStopBeacon", w.chkStopBeacon, nullptr);
  check(
      "ChkShadow", w.ChkShadow, [this] { ChkShadow_Click(); }, inShadowFrame);
  check("ChkShExpGMT", w.ChkShExpGMT, nullptr, inShadowFrame);

  // A text box: emptied, typed key by key through its key handler, then left.
  const auto text = [&list](const char* name, ScriptKind kind, int count,
                            std::function<TextBox&(int)> box, std::function<void(int, char)> key,
                            std::function<void(int)> left,
                            std::function<bool(const std::string&)> takes) {
    ScriptControl c = ScriptControlOf(name, kind, count, count > 1);
    c.accepts = [takes](int, const std::string& v) { return !takes || takes(v); };
    c.enabled = [box](int i) { return box(i).enabled && box(i).visible && !box(i).locked; };
    c.set = [box, key, left](int i, const std::string& value) {
      TextBox& b = box(i);
      b.text.clear();
      for (char ch : value) {
        if (key) {
          key(i, ch);
        } else if (b.maxLength == 0 || Len(b.text) < b.maxLength) {
          b.text += ch;
        }
      }
      if (left) left(i);
    };
    c.show = [box](int i) { return box(i).text; };
    list.push_back(std::move(c));
  };
  const auto digits4 = [](const std::string& v) { return DigitsUpTo(v, 4); };
  text(
      "txtIntelligenBeaconString", ScriptKind::Text, 1,
      [&w](int) -> TextBox& { return w.txtIntelligenBeaconString; }, nullptr, nullptr, nullptr);
  text(
      "txtBeaconInterval", ScriptKind::Text, 1,
      [&w](int) -> TextBox& { return w.txtBeaconInterval; },
      [this](int, char k) { txtBeaconInterval_KeyPress(k); },
      [this](int) { txtBeaconInterval_LostFocus(); }, digits4);
  text(
      "TxtStart", ScriptKind::Text, kBeaconTimeWindows,
      [&w](int i) -> TextBox& { return w.TxtStart[static_cast<std::size_t>(i)]; },
      [this](int i, char k) { TxtStart_KeyPress(i, k); }, [this](int i) { TxtStart_LostFocus(i); },
      digits4);
  text(
      "TxtStop", ScriptKind::Text, kBeaconTimeWindows,
      [&w](int i) -> TextBox& { return w.TxtStop[static_cast<std::size_t>(i)]; },
      [this](int i, char k) { TxtStop_KeyPress(i, k); }, [this](int i) { TxtStop_LostFocus(i); },
      digits4);
  text(
      "txtAddFilePath", ScriptKind::Text, 1, [&w](int) -> TextBox& { return w.txtAddFilePath; },
      nullptr, nullptr, nullptr);

  // The Shadow frame's fields, reachable while the frame shows.
  text(
      "txtISOcode", ScriptKind::Text, 1, [&w](int) -> TextBox& { return w.txtISOcode; }, nullptr,
      nullptr, nullptr);
  text(
      "txtShExpPause", ScriptKind::Text, 1, [&w](int) -> TextBox& { return w.txtShExpPause; },
      [this](int, char k) { txtShExpPause_KeyPress(k); }, nullptr, digits4);
  for (std::size_t last : {list.size() - 2, list.size() - 1}) {
    const auto plain = list[last].enabled;
    list[last].enabled = [plain, inShadowFrame](int i) { return inShadowFrame() && plain(i); };
  }

  ScriptControl lines =
      ScriptControlOf("OptWhichBeaconLines", ScriptKind::Option, kBeaconLineChoices);
  lines.enabled = [&w](int i) {
    return w.OptWhichBeaconLines[static_cast<std::size_t>(i)].enabled;
  };
  lines.set = [this](int i, const std::string&) { OptWhichBeaconLines_Click(i); };
  lines.show = [&w](int) {
    for (int i = 0; i < kBeaconLineChoices; ++i)
      if (w.OptWhichBeaconLines[static_cast<std::size_t>(i)].value) return std::to_string(i);
    return std::string();
  };
  list.push_back(std::move(lines));

  ScriptControl stop = ScriptControlOf("cmbStopBeacon", ScriptKind::Combo);
  stop.accepts = [&w](int, const std::string& v) {
    for (const std::string& item : w.cmbStopBeacon.list)
      if (item == v) return true;
    return false;
  };
  stop.enabled = [&w](int) { return w.cmbStopBeacon.enabled; };
  stop.set = [&w](int, const std::string& v) {
    for (std::size_t i = 0; i < w.cmbStopBeacon.list.size(); ++i)
      if (w.cmbStopBeacon.list[i] == v) w.cmbStopBeacon.listIndex = static_cast<long>(i);
    w.cmbStopBeacon.text = v;
  };
  stop.show = [&w](int) { return w.cmbStopBeacon.text; };
  list.push_back(std::move(stop));

  const auto button = [&list](const char* name, int count, std::function<Button&(int)> control,
                              std::function<void(int)> press) {
    ScriptControl c = ScriptControlOf(name, ScriptKind::Button, count, count > 1);
    c.enabled = [control](int i) { return control(i).enabled && control(i).visible; };
    c.set = [press](int i, const std::string&) { press(i); };
    list.push_back(std::move(c));
  };
  button(
      "CmdClear", kBeaconTimeWindows,
      [&w](int i) -> Button& { return w.CmdClear[static_cast<std::size_t>(i)]; },
      [this](int i) { CmdClear_Click(i); });
  button(
      "cmdPasteCurrentStartime", kBeaconTimeWindows,
      [&w](int i) -> Button& { return w.cmdPasteCurrentStartime[static_cast<std::size_t>(i)]; },
      [this](int i) { cmdPasteCurrentStartime_Click(i); });
  button(
      "cmdPasteCurrentStoptime", kBeaconTimeWindows,
      [&w](int i) -> Button& { return w.cmdPasteCurrentStoptime[static_cast<std::size_t>(i)]; },
      [this](int i) { cmdPasteCurrentStoptime_Click(i); });
  button(
      "cmdBrowseAddFilePath", 1, [&w](int) -> Button& { return w.cmdBrowseAddFilePath; },
      [this](int) { cmdBrowseAddFilePath_Click(); });
  button(
      "cmdEditAddFile", 1, [&w](int) -> Button& { return w.cmdEditAddFile; },
      [this](int) { cmdEditAddFile_Click(); });
  button(
      "Command1", 1, [&w](int) -> Button& { return w.Command1; },
      [this](int) { Command1_Click(); });
  button(
      "Command2", 1, [&w](int) -> Button& { return w.Command2; },
      [this](int) { Command2_Click(); });
  return form;
}

void BeaconSetup::ConsoleBeacon(const std::string& argument) {
  Views& views = m_platform.views();
  const std::string words = Trim(argument);
  if (LCase(words) == "toggle") {
    m_beacon.lblBeacon_DblClick();
  } else if (!words.empty()) {
    const ScriptForm form = scriptForm();
    if (!RunFormScript(form, words, [&views](const std::string& line) { views.notice(line); }))
      return;
  }
  views.notice(m_beacon.PlanLine());
}

void BeaconSetup::RegisterCommands(CommandTable& commands) {
  CommandSpec open;
  open.key = {Command::mnuBeacon};
  open.caption = "&Beacon setup...";
  open.handler = [this](const std::string&) { menubeaconpopups_Click(); };
  commands.add(std::move(open));
  commands.addClick({Command::lblBeacon_DblClick}, [this] { m_beacon.lblBeacon_DblClick(); });
  CommandSpec console;
  console.key = {Command::ConsoleBeacon};
  console.console = "beacon";
  console.usage = kBeaconUsage;
  console.handler = [this](const std::string& a) { ConsoleBeacon(a); };
  commands.add(std::move(console));
}

}  // namespace tesk
