// The position setup window: the operator types a position or converts a locator, picks an
// icon (or gives a user icon), chooses the compressed form and keeps positions in six memory
// slots. Only OK changes the station's position; Cancel puts [APRS Enabled] back as it was.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "aprs/aprs_icons.h"
#include "aprs/aprs_position.h"
#include "platform/controls.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/run_state.h"

namespace tesk {

class CommandTable;

// One icon of the window's row; BorderStyle 1 marks the icon picked.
struct AprsIconImage : Image {
  int BorderStyle = 0;
};

inline constexpr int kMemorySlots = 6;

// frmAPRSSetup, named as its controls.
struct APRSSetupWindow {
  Window form;
  TextBox txtLatH, txtLatM, txtLatS;
  ComboBox cmbLatDirection;  // "N", "S"
  TextBox txtLonH, txtLonM, txtLonS;
  ComboBox cmbLonDirection;  // "E", "W"
  TextBox txtMaiden;
  Button CmdOkLocat;  // converts the locator into the eight fields
  CheckBox chkAPRSCompressed;
  std::array<AprsIconImage, kAprsIconRows> img_APRSImage;
  Label Label2;     // the name of the icon picked
  CheckBox Check1;  // the user's own icon, from Text1 and Text2
  TextBox Text1;    // its symbol table character
  TextBox Text2;    // its symbol code character
  std::array<Button, kMemorySlots> CmdMem;
  Button Command1;     // OK
  Button Command2;     // Cancel
  Button Cmdaprsetup;  // "Options...": the APRS page of the setup window
  // The control with the keyboard focus, by name; the view follows it.
  std::string focus;
};

class AprsSetup {
 public:
  static constexpr int kLeftButton = 1;
  static constexpr int kRightButton = 2;

  AprsSetup(Platform& platform, StationConfig& config, RunState& run, AprsSendControls controls);
  AprsSetup(const AprsSetup&) = delete;
  AprsSetup& operator=(const AprsSetup&) = delete;

  // Loads the window (unless it is open already) and shows it.
  void Show();
  void Form_Load();
  // [APRS] into the fields, the icon and the user icon boxes.
  void DecodeAPRS();
  // The eight fields from a locator.
  void Maiden2World(const std::string& locator);
  void img_APRSImage_Click(int index);
  void Command1_Click();  // OK
  void Command2_Click();  // Cancel
  void CmdOkLocat_Click();
  // "Options...": the APRS page of the setup window, once that window is there.
  void Cmdaprsetup_Click();
  std::function<void()> openSetupAprs;
  // Key down in the locator field; true when the key is swallowed (Enter converts).
  bool txtMaiden_KeyDown(int keyCode);
  // Key up in the locator field: letters upper-cased and blanks dropped, the caret kept.
  void txtMaiden_KeyUp(int keyCode);
  // A mouse button released on memory slot `index`: the left one reads, the right one saves.
  void CmdMem_MouseUp(int index, int button);

  // The Options menu entry and the console's :position and :locator.
  void RegisterCommands(CommandTable& commands);
  // The console's lines: the argument as typed after the command's name.
  void ConsolePosition(const std::string& argument);
  void ConsoleLocator(const std::string& argument);

  APRSSetupWindow& window() { return m_window; }
  // The fields as typed, and the same fields written back.
  PositionFields fields() const;
  void setFields(const PositionFields& fields);

 private:
  // The validation of OK: false when it stopped (the window may have closed).
  bool checkCoordinates();
  // The icon's table, code and name, or false when the user icon is incomplete.
  bool pickSymbol(std::string& table, std::string& code, std::string& name);
  bool confirmChange(const std::string& text, const std::string& iconName);
  void markIcon(int index);
  std::string slotPath(int index) const;
  void readSlot(int index);
  void saveSlot(int index);
  void Unload();
  void refresh();

  // The console's optional last words: an icon of two characters, then the form.
  struct ConsoleChoices {
    std::string icon;
    int compressed = -1;  // -1: the box stays as the load left it
  };
  static bool ReadChoices(const std::vector<std::string>& words, std::size_t first,
                          ConsoleChoices& choices);
  // Loads the window unseen, fills it, picks the icon and form, and presses OK.
  void ConsoleOk(const std::function<void()>& fill, const ConsoleChoices& choices);
  void ShowPosition();

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  AprsSendControls m_controls;
  APRSSetupWindow m_window;
  std::string m_loadedPosition;  // the first 20 characters of [APRS] at load
  int16_t m_loadedEnabled = 0;   // [APRS Enabled] at load
};

}  // namespace tesk
