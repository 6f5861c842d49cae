// The Setup window's commands: "Setup..." of the Options menu, and the console's :setup, which
// lists the controls as the load fills them, or loads the window, sets the named controls in
// order as an operator would and applies; the reset buttons are pressed the same way and their
// questions answered from the next input lines.
#include "base/text.h"
#include "settings/setup.h"

namespace tesk {

namespace {

constexpr const char* kSetupUsage =
    ":setup [NAME=VALUE ...] [BUTTON ...] | reset | totalreset | history to|via|for";
constexpr int kOptionsSetupRow = 0;

}  // namespace

ScriptForm Setup::scriptForm() {
  ScriptForm form;
  for (const SetupControl& row : SetupControls()) {
    ScriptControl control =
        ScriptControlOf(row.name, row.kind, row.kind == ScriptKind::Option ? row.rows() : 1);
    const SetupControl* at = &row;
    if (row.input != SetupInput::Any) {
      control.accepts = [at](int, const std::string& value) {
        return SetupInputTakes(at->input, value);
      };
    }
    control.enabled = [this, at](int) { return ControlOf(m_window, *at).enabled; };
    control.set = [this, at](int index, const std::string& value) {
      Set(*at, at->kind == ScriptKind::Option ? std::to_string(index) : value);
    };
    if (row.kind != ScriptKind::Button)
      control.show = [this, at](int) { return SetupValueText(m_window, *at); };
    form.controls.push_back(std::move(control));
  }
  form.open = [this] { Form_Load(); };
  form.apply = [this] { Command1_Click(); };
  form.cancel = [this] { Command2_Click(); };
  form.isOpen = [this] { return m_window.form.loaded; };
  return form;
}

void Setup::Console(const std::string& argument) {
  Views& views = m_platform.views();
  const ScriptForm form = scriptForm();
  const std::string word = LCase(Trim(argument));
  if (word.empty()) {
    Form_Load();
    for (const std::string& line : ListFormControls(form))
      views.notice(line);
    Command2_Click();
    return;
  }
  const auto pressOnce = [this](const std::function<void()>& press) {
    Form_Load();
    press();
    // A total reset has ended the program; anything else closes as Cancel would.
    if (!m_platform.loop().ended() && m_window.form.loaded) Command2_Click();
  };
  if (word == "reset") return pressOnce([this] { CmdReset_Click(0); });
  if (word == "totalreset") return pressOnce([this] { CmdReset_Click(1); });
  if (Left(word, 8) == "history ") {
    const std::string which = Trim(Mid(word, 9));
    const int index = which == "to" ? 0 : which == "via" ? 1 : which == "for" ? 2 : -1;
    if (index < 0) {
      views.notice("Which history? " + std::string(kSetupUsage));
      return;
    }
    return pressOnce([this, index] { cmdResetHistory_Click(index); });
  }
  RunFormScript(form, argument, [&views](const std::string& line) { views.notice(line); });
}

void Setup::RegisterCommands(CommandTable& commands) {
  commands.addRow(Command::menuoptions, m_main.menuoptions, kOptionsSetupRow, "&Setup...",
                  [this](int) { Show(); });
  CommandSpec console;
  console.key = {Command::ConsoleSetup};
  console.console = "setup";
  console.usage = kSetupUsage;
  console.handler = [this](const std::string& argument) { Console(argument); };
  commands.add(std::move(console));
}

}  // namespace tesk
