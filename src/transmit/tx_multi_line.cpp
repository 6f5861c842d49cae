// The Multi-Line window's handlers. Every change of a page's text, by typing, by a character
// button or by the load, runs CheckTXLengte at once, because a press reads the line signs of all
// three pages: a window loaded unseen must refuse what a shown one would.
#include "transmit/tx_multi_line.h"

#include "alarms/meld.h"
#include "base/text.h"
#include "platform/platform_helpers.h"
#include "transmit/transmit_primitives.h"
#include "transmit/tx_panel.h"

namespace tesk {

namespace {

constexpr long kLineWindow = 80;  // the lines are counted among this many characters
constexpr long kMaxLineEnds = 8;  // more CRs than this there: too many lines
constexpr int kMenuWindowRow = 3;
constexpr const char* kFixedsys = "Fixedsys";
constexpr int kFixedsysSize = 9;

bool ValidPage(int page) {
  return page >= 0 && page < kMultiLinePages;
}

std::size_t At(int page) {
  return static_cast<std::size_t>(page);
}

// The captions of the character buttons 1 to 7, one character each.
const std::string& Caption(int number) {
  static const std::array<std::string, 7> captions = {"_", "\\", "/", "|", Chr(127), "*", " "};
  return captions[static_cast<std::size_t>(number - 1)];
}

}  // namespace

TxMultiLineForm::TxMultiLineForm(Platform& platform, StationConfig& config, RunState& run,
                                 MainWindow& main, TxPanel& panel, TransmitPrimitives& transmit,
                                 Meld& meld)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_panel(panel),
      m_transmit(transmit),
      m_meld(meld) {
  TXMultiLineWindow& w = m_window;
  w.form.caption = "TX Multi-Line";
  for (int page = 0; page < kMultiLinePages; ++page) {
    w.LblMaxLength[At(page)].caption = "Too long";
    w.LblMaxLength[At(page)].toolTip = "Longer than one frame holds: the end is cut off";
    w.LblMaxLines[At(page)].caption = "Too many lines";
    w.LblMaxLines[At(page)].toolTip = "More than 9 lines: this page stops every send";
    for (Label* sign : {&w.LblMaxLength[At(page)], &w.LblMaxLines[At(page)]}) {
      sign->visible = false;
      sign->foreColor = RGB(255, 0, 0);
    }
    w.LblLength[At(page)].caption = "Length=0";
    w.cmdTXMultiLines[At(page)].caption = "&Send";
    w.cmdTXMultiLines[At(page)].toolTip = "Send this page as one frame";
    w.OptDefaultTXMulti[At(page)].caption = "Default";
    w.OptDefaultTXMulti[At(page)].toolTip = "The page the main window's Multi-Line button sends";
    for (int number = 1; number < kCharacterButtons; ++number) {
      Button& b = characterButton(number, page);
      b.caption = Caption(number);
      b.toolTip = number == 5   ? "Add the character 127 at the end"
                  : number == 7 ? "Add a blank at the end"
                                : "Add \"" + b.caption + "\" at the end";
    }
    characterButton(kCharacterButtons, page).caption = "Insert APRS Position";
    characterButton(kCharacterButtons, page).toolTip = "Add the APRS position at the end";
  }
  w.ChkSwitchFont.caption = "Monitor font";
  w.Image1.toolTip = "Help";
}

Button& TxMultiLineForm::characterButton(int number, int page) {
  TXMultiLineWindow& w = m_window;
  PerPage<Button>* const buttons[kCharacterButtons] = {&w.Command1, &w.Command2, &w.Command3,
                                                       &w.Command4, &w.Command5, &w.Command6,
                                                       &w.Command7, &w.Command8};
  const int n = number < 1 ? 1 : number > kCharacterButtons ? kCharacterButtons : number;
  return (*buttons[n - 1])[At(ValidPage(page) ? page : 0)];
}

std::string TxMultiLineForm::filePath() const {
  return JoinPath(m_run.AppPath, kMultiLineFile);
}

void TxMultiLineForm::refresh() {
  if (m_window.form.loaded) m_platform.views().refresh(WindowKind::TXMultiLine);
}

void TxMultiLineForm::popup(const std::string& text) {
  m_platform.dialogs().msgBox(text, MsgButtons::Ok, MsgIcon::Exclamation, "TESK");
}

// ---- load and unload ----------------------------------------------------------------------

void TxMultiLineForm::Show() {
  if (!m_window.form.loaded) Form_Load();
  m_window.form.visible = true;
  m_platform.views().show(WindowKind::TXMultiLine);
  refresh();
}

void TxMultiLineForm::Form_Load() {
  TXMultiLineWindow& w = m_window;
  w.form.loaded = true;
  for (int page = 0; page < kMultiLinePages; ++page) {
    w.TxtMultiLine[At(page)].foreColor = m_config.DataColor;
    w.TxtMultiLine[At(page)].backColor = m_config.ScreenColor;
    characterButton(kCharacterButtons, page).enabled = m_config.APRSEnabled != 0;
    // The mark only shows the default page; the button's tool tip stays as the load pass set it
    // until the operator picks another.
    w.OptDefaultTXMulti[At(page)].value = page == m_config.TXMultiLineDefault;
  }
  w.ChkSwitchFont.visible = m_config.MonitorFontname != kFixedsys;
  applyFont();
  const MultiLinePages pages = LoadMultiLineFile(filePath());
  for (int page = 0; page < kMultiLinePages; ++page) {
    w.TxtMultiLine[At(page)].text = pages[At(page)];
    CheckTXLengte(page);
  }
  refresh();
}

void TxMultiLineForm::Form_Unload() {
  TXMultiLineWindow& w = m_window;
  if (!w.form.loaded) return;
  MultiLinePages pages;
  for (int page = 0; page < kMultiLinePages; ++page)
    pages[At(page)] = w.TxtMultiLine[At(page)].text;
  // A folder that refuses the file keeps the old one whole; the pages of this run are lost, as
  // any failed save of the window's is.
  SaveMultiLineFile(filePath(), pages);
  w.form.loaded = false;
  w.form.visible = false;
  m_platform.views().hide(WindowKind::TXMultiLine);
}

void TxMultiLineForm::applyFont() {
  MultiLineFont& font = m_window.pageFont;
  if (m_window.ChkSwitchFont.checked()) {
    font = {m_config.MonitorFontname, m_config.FontSize, m_config.FontBold != 0};
  } else {
    font = {kFixedsys, kFixedsysSize, false};
  }
}

// ---- the signs and the press --------------------------------------------------------------

void TxMultiLineForm::CheckTXLengte(int page) {
  if (!ValidPage(page)) return;
  TXMultiLineWindow& w = m_window;
  const std::string& text = w.TxtMultiLine[At(page)].text;
  w.LblLength[At(page)].caption = "Length=" + std::to_string(Len(text));
  std::string copy = text;
  const long room = m_panel.CalcUI_TXlength(copy, 0, -1);
  w.LblMaxLength[At(page)].visible = Len(text) > room;
  const std::string head = Left(text, kLineWindow);
  long lineEnds = 0;
  for (char c : head)
    lineEnds += c == '\r' ? 1 : 0;
  w.LblMaxLines[At(page)].visible = lineEnds > kMaxLineEnds;
}

void TxMultiLineForm::cmdTXMultiLines_Click(int page) {
  if (!ValidPage(page)) return;
  TXMultiLineWindow& w = m_window;
  if (w.TxtMultiLine[At(page)].text.empty()) {
    popup("Nothing to send in TX Multi-Line");
    return;
  }
  // Any page with too many lines stops the send of every page; kept so.
  for (int other = 0; other < kMultiLinePages; ++other) {
    if (w.LblMaxLines[At(other)].visible) {
      popup("To many lines in TX Multi-Line nr" + Str(other + 1));
      return;
    }
  }
  std::string text = w.TxtMultiLine[At(page)].text;
  m_panel.ValidateToViaBoxes();
  if (m_config.ToCall.empty()) return;
  // Bytes are counted: each CR LF inside the page takes two characters of the frame.
  m_panel.CalcUI_TXlength(text, 0, 0);
  m_transmit.AGWPE_UI_Send(text, TxMultiLine);
  // The Via field may have changed while the frame went out: its room decides the sign.
  m_panel.ValidateToViaBoxes();
  CheckTXLengte(page);
  refresh();
  m_platform.views().refresh(WindowKind::Main);
}

void TxMultiLineForm::TxtMultiLine_Change(int page) {
  CheckTXLengte(page);
  refresh();
}

void TxMultiLineForm::Command_Click(int number, int page) {
  if (!ValidPage(page) || number < 1 || number > kCharacterButtons) return;
  const Button& button = characterButton(number, page);
  if (!button.enabled) return;
  TextBox& box = m_window.TxtMultiLine[At(page)];
  box.text += number == kCharacterButtons ? m_config.APRS : button.caption;
  box.selStart = Len(box.text);
  box.selLength = 0;
  TxtMultiLine_Change(page);
}

void TxMultiLineForm::OptDefaultTXMulti_Click(int row) {
  if (!ValidPage(row)) return;
  for (int page = 0; page < kMultiLinePages; ++page)
    m_window.OptDefaultTXMulti[At(page)].value = page == row;
  m_config.TXMultiLineDefault = static_cast<int16_t>(row);
  // Not the wording the load pass gives the same tool tip; both stand as they are.
  m_main.CmdTXMultiLineDirect.toolTip =
      "Multiple lines of text/data (Default nr:" + std::to_string(row + 1) + ")";
  refresh();
  m_platform.views().refresh(WindowKind::Main);
}

void TxMultiLineForm::ChkSwitchFont_Click() {
  applyFont();
  refresh();
}

void TxMultiLineForm::Image1_Click() {
  const std::string path = JoinPath(m_run.AppPath, kHelpFile);
  if (!FileExists(path)) {
    // A program folder made before the help text shipped has none.
    m_meld.ShowMeld("The help text " + std::string(kHelpFile) + " is not in the program folder " +
                        m_run.AppPath,
                    0);
    return;
  }
  m_platform.shell().openUrl(path);
}

// ---- the main window's ways in ------------------------------------------------------------

void TxMultiLineForm::mnu_multiline_Click(int row) {
  if (row >= kMenuWindowRow) {
    Show();
    return;
  }
  if (!ValidPage(row)) return;
  if (!m_window.form.loaded) Form_Load();
  cmdTXMultiLines_Click(row);
}

void TxMultiLineForm::CmdTXMultiLineDirect_Click() {
  if (!m_main.CmdTXMultiLineDirect.guard.empty()) return;
  m_panel.ValidateToViaBoxes();
  if (m_config.ToCall.empty()) return;
  if (!m_window.form.loaded) Form_Load();
  // A default beyond the three pages (a hand-edited settings file) sends nothing.
  cmdTXMultiLines_Click(m_config.TXMultiLineDefault);
}

void TxMultiLineForm::CmdTXMultiLineDirect_RightPress() {
  for (int row = 0; row < kMultiLinePages; ++row)
    m_main.mnu_multiline[row].checked = row == m_config.TXMultiLineDefault;
  m_main.mnu_multilinePopup = true;
  m_platform.views().refresh(WindowKind::Main);
}

void TxMultiLineForm::ConsoleMultiLine(const std::string& argument) {
  const std::string words = LCase(Trim(argument));
  if (words.empty()) {
    m_panel.Press(SendButton::MultiLine);
    return;
  }
  const auto pageOf = [](const std::string& word) {
    return word.size() == 1 && word[0] >= '1' && word[0] <= '3' ? word[0] - '1' : -1;
  };
  if (const int page = pageOf(words); page >= 0) {
    mnu_multiline_Click(page);
    return;
  }
  const std::string kDefault = "default ";
  if (Left(words, Len(kDefault)) == kDefault) {
    if (const int row = pageOf(Trim(Mid(words, Len(kDefault) + 1))); row >= 0) {
      if (!m_window.form.loaded) Form_Load();
      OptDefaultTXMulti_Click(row);
      m_platform.views().notice("Multi-Line default page: " + std::to_string(row + 1));
      return;
    }
  }
  m_platform.views().notice("The Multi-Line page is 1 to 3");
}

void TxMultiLineForm::RegisterCommands(CommandTable& commands) {
  commands.addClick(
      {Command::CmdTXMultiLineDirect}, [this] { CmdTXMultiLineDirect_Click(); },
      WhileEnabled(m_main.CmdTXMultiLineDirect));
  commands.addClick({Command::CmdTXMultiLineDirect_RightPress},
                    [this] { CmdTXMultiLineDirect_RightPress(); });
  const char* const captions[] = {"Multi-Line page &1", "Multi-Line page &2", "Multi-Line page &3",
                                  "Multi-Line &window..."};
  for (int row = 0; row <= kMenuWindowRow; ++row)
    commands.addRow(Command::mnu_multiline, m_main.mnu_multiline, row, captions[row],
                    [this](int i) { mnu_multiline_Click(i); });
  CommandSpec console;
  console.key = {Command::ConsoleMultiLine};
  console.console = "multiline";
  console.usage = ":multiline [1-3 | default 1-3]";
  console.handler = [this](const std::string& a) { ConsoleMultiLine(a); };
  commands.add(std::move(console));
}

}  // namespace tesk
