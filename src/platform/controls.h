// The controls of the station's windows as plain data: a window is a struct of these, named as
// the operator's manual names its controls, and its behaviour lives in its subsystem's handlers.
// A view copies these fields into widgets and writes the operator's edits back; nothing here
// fires events by itself: code that changes a control calls the handler that depends on it.
#pragma once

#include <string>
#include <vector>

#include "base/color.h"

namespace tesk {

constexpr Color kDefaultFore = 0x000000;                       // black
constexpr Color kDefaultBack = 0xFFFFFF;                       // white
constexpr Color kButtonFace = static_cast<Color>(0x8000000F);  // the system's button face

struct Control {
  std::string toolTip;
  bool enabled = true;
  bool visible = true;
  Color foreColor = kDefaultFore;
  Color backColor = kDefaultBack;
};

struct Label : Control {
  std::string caption;
};

struct Button : Control {
  std::string caption;
  // While not empty a press is ignored: the double-press guard of the send buttons.
  std::string guard;
};

struct CheckBox : Control {
  std::string caption;
  int value = 0;  // 0 unchecked, 1 checked, 2 greyed
  bool checked() const { return value == 1; }
};

struct OptionButton : Control {
  std::string caption;
  bool value = false;
};

struct TextBox : Control {
  std::string text;
  long maxLength = 0;  // 0 = no limit
  long selStart = 0;
  long selLength = 0;
  bool locked = false;
};

struct ComboBox : Control {
  std::string text;
  std::vector<std::string> list;
  long listIndex = -1;
  long maxLength = 0;
  long selStart = 0;
  long selLength = 0;
  bool locked = false;
};

struct ListBox : Control {
  std::vector<std::string> list;
  long listIndex = -1;
  bool sorted = false;
};

struct MenuItem {
  std::string caption;
  bool checked = false;
  bool enabled = true;
  bool visible = true;
};

struct Image {
  bool visible = true;
  std::string picture;
  std::string toolTip;
};

struct Frame : Control {
  std::string caption;
};

struct Window {
  std::string caption;
  bool loaded = false;
  bool visible = false;
  int windowState = 0;                            // 0 normal, 1 minimised, 2 maximised
  long left = 0, top = 0, width = 0, height = 0;  // twips, as the settings file keeps them
};

}  // namespace tesk
