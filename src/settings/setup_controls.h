// The Setup window's controls, described once: name, page, kind, the setting it writes and the
// rule of Apply. Form_Load fills the window from this table, Apply's first step stores every row
// whose rule is a plain mapping, the Qt pages lay their widgets out from it and the console's
// :setup lists and sets controls through it.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "settings/setup_window.h"
#include "settings/station_config.h"
#include "state/form_script.h"

namespace tesk {

struct SetupControl;

// Where the control lives in the window.
using SetupMember =
    std::variant<CheckBox SetupWindow::*, TextBox SetupWindow::*, ComboBox SetupWindow::*,
                 OptionRow SetupWindow::*, OptionButton SetupWindow::*, Button SetupWindow::*,
                 std::array<Button, 2> SetupWindow::*, std::array<Button, 3> SetupWindow::*,
                 std::array<Button, kSetupColors> SetupWindow::*>;

// What a number box takes from the keyboard.
enum class SetupInput {
  Any,     // any text
  Digits,  // digits only, at most four
  Signed,  // digits and a leading minus, at most four characters
};

struct SetupControl {
  std::string name;  // as the operator's manual names it
  SetupPage page = SetupPage::Station;
  ScriptKind kind = ScriptKind::Text;
  std::string key;   // the setting, as tesk.ini labels it; empty for a button that opens
  std::string rule;  // what Apply does with it
  SetupMember member;
  int index = 0;        // the button of an indexed button array (CmdReset, cmdColor, ...)
  std::string caption;  // the caption of a check box, button or single option; a row's title
  std::vector<std::string> rowCaptions;  // an option row's captions, one a row
  SetupInput input = SetupInput::Any;
  bool sameLine = false;  // the page shows it on the line of the control before it
  // Fills the control from the settings (Form_Load); may be null.
  void (*load)(SetupWindow&, const StationConfig&) = nullptr;
  // Stores the control into the settings (Apply's first step, for plain rules only).
  void (*store)(const SetupWindow&, StationConfig&) = nullptr;

  // A plain mapping: stored by Apply's first step. The others wait for their own step.
  bool simple() const;
  int rows() const { return static_cast<int>(rowCaptions.size()); }
};

// The table, in page order.
const std::vector<SetupControl>& SetupControls();
// The row named `name` (case-blind), or null.
const SetupControl* FindSetupControl(const std::string& name);

// True when the keys of `text` all go into a box that takes `input` (and it fits).
bool SetupInputTakes(SetupInput input, const std::string& text);

// The common part (tip, enabled, visible) of a row's control; an option row's first button.
Control& ControlOf(SetupWindow& window, const SetupControl& row);
const Control& ControlOf(const SetupWindow& window, const SetupControl& row);
// The value a row's control shows, as the console lists it ("1"/"0", the text, the row index).
std::string SetupValueText(const SetupWindow& window, const SetupControl& row);

// The colours onto the example labels, which hold them while the window is open.
void LoadExampleColors(SetupWindow& window, const StationConfig& config);

// The window as the designer left it: captions, tips, rows and lists, before the load fills it.
SetupWindow DesignedSetupWindow();

}  // namespace tesk
