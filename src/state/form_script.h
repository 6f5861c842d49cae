// The console's way into a settings window without a screen: ":beacon NAME=VALUE ... [BUTTON ...]"
// and ":setup ..." open the window as the menu does, set each named control in the order given as
// a user would, press the named buttons, then Apply. The window describes its controls once, in a
// table of `ScriptControl`; this file parses the words and drives the table.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tesk {

// One word of a script: "NAME=VALUE" sets a control, a bare "NAME" presses a button.
struct ScriptWord {
  std::string name;
  bool hasValue = false;
  std::string value;
};

// Splits the argument at blanks; a value may be put in double quotes to hold blanks
// (chkX=1 "TxtY=a b" and TxtY="a b" both work). Returns nothing for an open quote.
std::optional<std::vector<ScriptWord>> SplitScriptWords(const std::string& text);

enum class ScriptKind {
  Check,   // a check box: 1 or 0, set through its click
  Text,    // a text box: the text replaced key by key, then left
  Option,  // an option row: the value is the index of the row to click
  Combo,   // a combo box: the value is one of its item texts
  Button,  // a button: pressed, takes no value
};

// One control (or one indexed array of controls) of a window.
struct ScriptControl {
  std::string name;  // as the operator's manual spells it; matched case-blind
  ScriptKind kind = ScriptKind::Text;
  // Indexed controls (TxtStart0 .. TxtStart3) have count > 1 and are named with the index behind.
  // An option row has one name and takes the row's index as its value; count is its rows.
  int count = 1;
  bool indexed = false;
  // Checked before the window opens; empty = every value of the kind is taken.
  std::function<bool(int index, const std::string& value)> accepts;
  // When its turn comes: may the operator reach it now?
  std::function<bool(int index)> enabled;
  // Sets the value (or presses the button) as the operator would; an option row gets the row's
  // index as `index`.
  std::function<void(int index, const std::string& value)> set;
  // The value as the window shows it, for listings; empty for buttons.
  std::function<std::string(int index)> show;
};

// A control of `kind` named `name`; `count` rows (an option row) or, when `indexed`, `count`
// controls named with their index behind.
inline ScriptControl ScriptControlOf(std::string name, ScriptKind kind, int count = 1,
                                     bool indexed = false) {
  ScriptControl control;
  control.name = std::move(name);
  control.kind = kind;
  control.count = count;
  control.indexed = indexed;
  return control;
}

// A window as a script sees it.
struct ScriptForm {
  std::vector<ScriptControl> controls;
  std::function<void()> open;    // loads and shows the window as its menu row does
  std::function<void()> apply;   // the Apply/OK button
  std::function<void()> cancel;  // the Cancel button
  std::function<bool()> isOpen;  // false once a button closed the window
};

// Runs a script on a form; every error is one line through `say`. Returns true when every word
// was set and Apply ran (whatever Apply then decided).
bool RunFormScript(const ScriptForm& form, const std::string& arguments,
                   const std::function<void(const std::string&)>& say);

// The controls with their values, one "NAME=VALUE" line each (indexed ones per index).
std::vector<std::string> ListFormControls(const ScriptForm& form);

}  // namespace tesk
