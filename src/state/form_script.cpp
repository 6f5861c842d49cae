// Parsing and running the console's window scripts. Every word is checked before the window opens,
// so a typing error never leaves a window half set; what only shows once the window is open (a
// control greyed by an earlier word) closes it with Cancel, as a user giving up would.
#include "state/form_script.h"

#include <cctype>

#include "base/text.h"

namespace tesk {

namespace {

// A word bound to its control.
struct BoundWord {
  const ScriptControl* control = nullptr;
  int index = 0;
  ScriptWord word;
};

bool AllDigits(const std::string& text) {
  if (text.empty()) return false;
  for (char c : text)
    if (std::isdigit(static_cast<unsigned char>(c)) == 0) return false;
  return true;
}

const ScriptControl* Find(const ScriptForm& form, const std::string& name, int& index) {
  const std::string wanted = LCase(name);
  for (const ScriptControl& control : form.controls) {
    if (!control.indexed && LCase(control.name) == wanted) {
      index = 0;
      return &control;
    }
  }
  // An indexed control is named with its index behind: TxtStart0.
  std::size_t digits = wanted.size();
  while (digits > 0 && std::isdigit(static_cast<unsigned char>(wanted[digits - 1])) != 0)
    --digits;
  if (digits == wanted.size() || digits == 0 || wanted.size() - digits > 4) return nullptr;
  const std::string base = wanted.substr(0, digits);
  const int at = std::stoi(wanted.substr(digits));
  for (const ScriptControl& control : form.controls) {
    if (control.indexed && LCase(control.name) == base && at < control.count) {
      index = at;
      return &control;
    }
  }
  return nullptr;
}

bool KindTakes(const ScriptControl& control, const std::string& value) {
  switch (control.kind) {
    case ScriptKind::Check:
      return value == "0" || value == "1";
    case ScriptKind::Option:
      return AllDigits(value) && value.size() <= 4 && std::stoi(value) < control.count;
    case ScriptKind::Text:
    case ScriptKind::Combo:
    case ScriptKind::Button:
      return true;
  }
  return true;
}

std::string Spelled(const ScriptControl& control, int index) {
  return control.indexed ? control.name + std::to_string(index) : control.name;
}

}  // namespace

std::optional<std::vector<ScriptWord>> SplitScriptWords(const std::string& text) {
  std::vector<std::string> raw;
  std::string current;
  bool inWord = false;
  bool quoted = false;
  for (char c : text) {
    if (c == '"') {
      quoted = !quoted;
      inWord = true;
    } else if (!quoted && (c == ' ' || c == '\t')) {
      if (inWord) raw.push_back(current);
      current.clear();
      inWord = false;
    } else {
      current += c;
      inWord = true;
    }
  }
  if (quoted) return std::nullopt;
  if (inWord) raw.push_back(current);
  std::vector<ScriptWord> words;
  for (const std::string& item : raw) {
    ScriptWord word;
    const std::size_t equals = item.find('=');
    if (equals == std::string::npos) {
      word.name = item;
    } else {
      word.name = item.substr(0, equals);
      word.hasValue = true;
      word.value = item.substr(equals + 1);
    }
    words.push_back(word);
  }
  return words;
}

bool RunFormScript(const ScriptForm& form, const std::string& arguments,
                   const std::function<void(const std::string&)>& say) {
  const auto words = SplitScriptWords(arguments);
  if (!words) {
    say("A double quote is not closed: " + arguments);
    return false;
  }
  std::vector<BoundWord> bound;
  for (const ScriptWord& word : *words) {
    BoundWord item;
    item.word = word;
    item.control = Find(form, word.name, item.index);
    if (item.control == nullptr) {
      say("No control named " + word.name);
      return false;
    }
    const bool button = item.control->kind == ScriptKind::Button;
    if (button && word.hasValue) {
      say(word.name + " is a button and takes no value");
      return false;
    }
    if (!button && !word.hasValue) {
      say(word.name + " needs a value: " + word.name + "=VALUE");
      return false;
    }
    if (!button && (!KindTakes(*item.control, word.value) ||
                    (item.control->accepts && !item.control->accepts(item.index, word.value)))) {
      say(word.name + " cannot take \"" + word.value + "\"");
      return false;
    }
    // An option row is one name; the row to click is its value.
    if (item.control->kind == ScriptKind::Option) item.index = std::stoi(word.value);
    bound.push_back(item);
  }
  form.open();
  for (const BoundWord& item : bound) {
    if (item.control->enabled && !item.control->enabled(item.index)) {
      say(item.word.name + " is not enabled now; the window is closed without Apply");
      form.cancel();
      return false;
    }
    item.control->set(item.index, item.word.value);
    // A button that closed the window (Cancel, OK) ends the script: there is nothing to apply.
    if (!form.isOpen()) return true;
  }
  form.apply();
  // A failed check keeps the window open; nobody can fix it without a screen, so give up.
  if (form.isOpen()) form.cancel();
  return true;
}

std::vector<std::string> ListFormControls(const ScriptForm& form) {
  std::vector<std::string> lines;
  for (const ScriptControl& control : form.controls) {
    if (control.kind == ScriptKind::Button || !control.show) continue;
    const int shown = control.indexed ? control.count : 1;
    for (int i = 0; i < shown; ++i)
      lines.push_back(Spelled(control, i) + "=" + control.show(i));
  }
  return lines;
}

}  // namespace tesk
