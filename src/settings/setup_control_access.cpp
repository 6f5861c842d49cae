// What the rest of the Setup window asks of its control table: page names, the lookup by name,
// the number rule of the boxes, the control behind a row and its value as text, and the window
// as designed.
#include <type_traits>
#include <variant>

#include "base/text.h"
#include "settings/setup_controls.h"
#include "settings/setup_rows.h"

namespace tesk {

const char* SetupPageName(SetupPage page) {
  switch (page) {
    case SetupPage::Station:
      return "Station";
    case SetupPage::Aprs:
      return "APRS";
    case SetupPage::Monitor:
      return "Monitor";
    case SetupPage::MHeard:
      return "MHeard";
    case SetupPage::AlarmsLogs:
      return "Alarms and logs";
    case SetupPage::Connected:
      return "Connected";
    case SetupPage::ViewPort:
      return "ViewPort";
    case SetupPage::Programs:
      return "Programs";
  }
  return "";
}

bool SetupControl::simple() const {
  using namespace setup_rows;
  return store != nullptr && rule.find(kSeeAlgorithms) == std::string::npos &&
         rule.find(kSeeBelow) == std::string::npos && rule != kChecked;
}

const SetupControl* FindSetupControl(const std::string& name) {
  const std::string wanted = LCase(name);
  for (const SetupControl& row : SetupControls())
    if (LCase(row.name) == wanted) return &row;
  return nullptr;
}

bool SetupInputTakes(SetupInput input, const std::string& text) {
  constexpr std::size_t kLongest = 4;  // a 16-bit setting takes no more
  if (input == SetupInput::Any) return true;
  if (text.size() > kLongest) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool minus = c == '-' && i == 0 && input == SetupInput::Signed;
    if (!minus && (c < '0' || c > '9')) return false;
  }
  return true;
}

namespace {

template <typename Window>
auto& ControlIn(Window& w, const SetupControl& row) {
  using Result = std::conditional_t<std::is_const_v<Window>, const Control, Control>;
  return std::visit(
      [&w, &row](auto member) -> Result& {
        auto& control = w.*member;
        using Held = std::remove_cvref_t<decltype(control)>;
        if constexpr (std::is_same_v<Held, OptionRow>) {
          return control.rows.front();
        } else if constexpr (std::is_base_of_v<Control, Held>) {
          return control;
        } else {
          return control[static_cast<std::size_t>(row.index)];
        }
      },
      row.member);
}

}  // namespace

Control& ControlOf(SetupWindow& window, const SetupControl& row) {
  return ControlIn(window, row);
}

const Control& ControlOf(const SetupWindow& window, const SetupControl& row) {
  return ControlIn(window, row);
}

std::string SetupValueText(const SetupWindow& w, const SetupControl& row) {
  return std::visit(
      [&w](auto member) -> std::string {
        const auto& control = w.*member;
        using Held = std::remove_cvref_t<decltype(control)>;
        if constexpr (std::is_same_v<Held, CheckBox>) {
          return control.checked() ? "1" : "0";
        } else if constexpr (std::is_same_v<Held, OptionButton>) {
          return control.value ? "1" : "0";
        } else if constexpr (std::is_same_v<Held, TextBox> || std::is_same_v<Held, ComboBox>) {
          return control.text;
        } else if constexpr (std::is_same_v<Held, OptionRow>) {
          return std::to_string(control.chosen());
        } else {
          return {};
        }
      },
      row.member);
}

SetupWindow DesignedSetupWindow() {
  SetupWindow w;
  w.form.caption = "TESK Setup";
  for (const SetupControl& row : SetupControls()) {
    std::visit(
        [&w, &row](auto member) {
          auto& c = w.*member;
          using Held = std::remove_cvref_t<decltype(c)>;
          if constexpr (std::is_same_v<Held, OptionRow>) {
            c.rows.resize(row.rowCaptions.size());
            for (std::size_t i = 0; i < c.rows.size(); ++i) {
              c.rows[i].caption = row.rowCaptions[i];
              c.rows[i].toolTip = row.caption + ": " + row.rowCaptions[i];
            }
          } else if constexpr (std::is_same_v<Held, CheckBox> ||
                               std::is_same_v<Held, OptionButton>) {
            c.caption = row.caption;
          } else if constexpr (std::is_same_v<Held, TextBox>) {
            if (row.input != SetupInput::Any) c.maxLength = 4;
          } else if constexpr (std::is_same_v<Held, ComboBox> || std::is_same_v<Held, Button>) {
          } else {
            c[static_cast<std::size_t>(row.index)].caption = row.caption;
          }
        },
        row.member);
    // The rows exist now; the tip goes on the control (an option row's first button).
    ControlOf(w, row).toolTip = row.key.empty() ? row.caption : row.caption + " " + row.key;
  }
  w.cmdLanSetup.caption = "LAN Settings...";
  w.cmdloadprofile.caption = "Load Profile...";
  w.cmdloadprofile.enabled = false;  // the profiles come with their own window
  w.cmdAPRSSetup.caption = "Position Setup...";
  w.cmdBeaconSetup.caption = "Beacon Setup...";
  w.CmbBufferSize.list = {"32000", "64000", "128000", "256000", "512000"};
  w.cmbFontSize.list = {"8", "9", "10", "11", "12", "14", "16", "18"};
  w.cmbMonitorFont.list = {"Fixedsys", "Courier New", "Monospace", "DejaVu Sans Mono"};
  w.cmbConnectionFont.list = w.cmbMonitorFont.list;
  for (int ssid = 0; ssid <= 15; ++ssid)
    w.CmbSSID.list.push_back(std::to_string(ssid));
  w.cmbPacketLength.list = {"255", "192", "160", "128", "96", "80", "64"};
  w.lblExHeader.caption = " 1:Fm XX1ABC To CQ Via RS0ISS* [12:00:00]";
  w.lblExData.caption = "Hello via ISS";
  w.lblExDigi.caption = " 1:Fm XX9TK To CQ Via RS0ISS* (own)";
  w.lblExMessage.caption = ":XX9TK    :a message to this station";
  w.lblExDataBox.caption = "Text in the transmit boxes";
  w.lblExConnect.caption = "Text of the terminal";
  w.lblHelp.caption = "Point at a setting to see what it does.";
  w.Command1.caption = "Apply";
  w.Command2.caption = "Cancel";
  return w;
}

}  // namespace tesk
