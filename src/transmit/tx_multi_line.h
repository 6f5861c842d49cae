// The Multi-Line window frmTXMultiLine: three pages of free text, each sent at a press as one
// UI frame with its line breaks inside, one of them the default page that the main window's
// button and the send menu send without opening the window. The pages live in TXMultiLine.ini,
// read when the window loads and written when it unloads.
#pragma once

#include <array>
#include <string>

#include "platform/controls.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"
#include "transmit/tx_multi_line_file.h"

namespace tesk {

class Meld;
class TransmitPrimitives;
class TxPanel;

// The font of the pages and the character buttons. "Fixedsys" stands for the system's
// fixed-width font.
struct MultiLineFont {
  std::string name = "Fixedsys";
  int size = 9;
  bool bold = false;
};

template <typename T>
using PerPage = std::array<T, kMultiLinePages>;

// frmTXMultiLine, named as its controls; each control of a page is indexed by the page.
struct TXMultiLineWindow {
  Window form;
  PerPage<TextBox> TxtMultiLine;  // the page's text, its line ends CR LF
  PerPage<Label> LblMaxLength;    // shown while the page is longer than a frame holds
  PerPage<Label> LblMaxLines;     // shown while the page has too many lines
  PerPage<Label> LblLength;       // "Length=" and the page's length
  PerPage<Button> cmdTXMultiLines;
  PerPage<OptionButton> OptDefaultTXMulti;
  // The character buttons: each appends its caption to its page; Command8 appends [APRS].
  PerPage<Button> Command1, Command2, Command3, Command4, Command5, Command6, Command7, Command8;
  CheckBox ChkSwitchFont;  // on: the Monitor's font on the pages
  Image Image1;            // opens the help text
  MultiLineFont pageFont;
};

class TxMultiLineForm {
 public:
  static constexpr const char* kWindowName = "frmTXMultiLine";
  static constexpr WindowKind kWindowKind = WindowKind::TXMultiLine;
  static constexpr int kCharacterButtons = 8;
  static constexpr const char* kHelpFile = "TXMultiLine.txt";

  TxMultiLineForm(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                  TxPanel& panel, TransmitPrimitives& transmit, Meld& meld);
  TxMultiLineForm(const TxMultiLineForm&) = delete;
  TxMultiLineForm& operator=(const TxMultiLineForm&) = delete;

  // The main window's button and its menu, the send menu's rows and the console's line.
  void RegisterCommands(CommandTable& commands);

  // Loads the window if it is not loaded, and shows it.
  void Show();
  // Loads the window without showing it: colours, font, the pages from the file and their signs.
  void Form_Load();
  // Writes the pages to the file and unloads the window; nothing when it is not loaded.
  void Form_Unload();

  // The signs of a page: its length, too long for a frame, too many lines.
  void CheckTXLengte(int page);
  // The send button of a page.
  void cmdTXMultiLines_Click(int page);
  // The operator changed a page's text (the view has put it in the struct with CR LF ends).
  void TxtMultiLine_Change(int page);
  // Character button `number` (1 to 8) of a page.
  void Command_Click(int number, int page);
  void OptDefaultTXMulti_Click(int row);
  void ChkSwitchFont_Click();
  void Image1_Click();

  // Rows 0 to 2 of the send menu send that page, loading the window unseen; row 3 shows it.
  void mnu_multiline_Click(int row);
  // The main window's button: the default page, without opening the window.
  void CmdTXMultiLineDirect_Click();
  // The right mouse button on it: the Multi-Line rows pop up with the default page checked.
  void CmdTXMultiLineDirect_RightPress();
  // The console's ":multiline [N | default N]".
  void ConsoleMultiLine(const std::string& argument);

  TXMultiLineWindow& window() { return m_window; }
  // Button `number` (1 to 8) of a page.
  Button& characterButton(int number, int page);
  std::string filePath() const;

 private:
  void applyFont();
  void popup(const std::string& text);
  void refresh();

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  TxPanel& m_panel;
  TransmitPrimitives& m_transmit;
  Meld& m_meld;
  TXMultiLineWindow m_window;
};

}  // namespace tesk
