// The Monitor's painting and the operator's operations on it. Every run goes in at the end in
// the configured size and weight; the text control takes a text up to its first NUL, so the NUL
// and blanks that a frame's data line carries behind its end never reach the screen. The
// operator's edits go through one routine that keeps a step of undo, because frames keep
// arriving at the end while the operator edits further up.
#include "core/monitor_console.h"

#include <algorithm>
#include <cmath>
#include <filesystem>

#include "alarms/date_stamp.h"
#include "base/text.h"
#include "core/utc_clock.h"
#include "platform/platform_helpers.h"
#include "platform/rtf.h"
#include "settings/whole_file.h"
#include "transmit/tx_panel.h"

namespace tesk {

namespace {

constexpr const char* kRtfFilter = "Rich Text Format (*.rtf)|*.rtf";
constexpr const char* kTextFilter = "Text (*.txt)|*.txt|Log (*.log)|*.log|All files (*.*)|*.*";
constexpr const char* kOpenFilter =
    "Rich Text Format (*.rtf)|*.rtf|Text (*.txt;*.log)|*.txt;*.log|All files (*.*)|*.*";

std::string Joined(const std::vector<TextRun>& runs) {
  std::string out;
  for (const TextRun& r : runs)
    out += r.text;
  return out;
}

// Replaces `count` characters at `at` by the runs, each in its own style.
void ReplaceRange(RichText& text, std::size_t at, std::size_t count,
                  const std::vector<TextRun>& runs) {
  text.setSelection(at, count);
  if (runs.empty()) text.replaceSelection("", text.defaultStyle());
  for (const TextRun& r : runs)
    text.replaceSelection(r.text, r.style);
}

}  // namespace

MonitorConsole::MonitorConsole(Platform& platform, StationConfig& config, MainWindow& main,
                               const RunState& run, TxPanel* txPanel)
    : m_platform(platform), m_config(config), m_main(main), m_run(run), m_txPanel(txPanel) {
  // Read-only until the operator (or [EditMonitor] at start) unlocks it.
  m_main.txtMonitor.setLocked(true);
  txtMonitor_PopupClosed();  // items 100 to 140 belong to the right-click menu
  m_main.cmdMonitorClear.toolTip = "Erase the Monitor window";
  m_main.cmdMonitorCut.toolTip = "Cut the selected text";
  m_main.cmdMonitorCopy.toolTip = "Copy the selected text";
  m_main.cmdMonitorPaste.toolTip = "Paste into the Monitor";
  m_main.cmdMonitorSave.toolTip = "Save as Rich Text";
  m_main.cmdMonitorOpen.toolTip = "Open a file in the Monitor";
  m_main.cmdMonitorPrint.toolTip = "Print the Monitor";
  m_main.cmdFind.toolTip = "Find text in the Monitor";
}

MonitorConsole::~MonitorConsole() = default;

TextStyle MonitorConsole::Style(Color color) const {
  return TextStyle{color, m_config.FontBold != 0, m_config.FontSize};
}

void MonitorConsole::InsertAtEnd(const std::string& text, Color color) {
  m_main.txtMonitor.append(CutAtNul(text), Style(color));
}

void MonitorConsole::NotaInMonitor(const std::string& text, int flag) {
  InsertAtEnd(text + CRLF, flag != 0 ? m_config.DataColor : m_config.HeaderColor);
}

void MonitorConsole::CalcUTC() {
  tesk::CalcUTC(m_platform.clock(), m_config);
}

std::string MonitorConsole::BerekenUTC() const {
  return tesk::BerekenUTC(m_platform.clock(), m_config);
}

std::string MonitorConsole::HeaderWithUTC(const std::string& header) const {
  // The engine ends a header with its local time in brackets; the first "[" is taken even
  // when an earlier field holds one, and an empty header becomes the bare time.
  const long p = InStr(header, "[");
  const std::string tail = Right(header, 1) == "." ? Right(header, 2) : Right(header, 1);
  return Left(header, p) + BerekenUTC() + tail;
}

bool MonitorConsole::RemoveDouble(std::string& header, std::string& data) {
  bool emptied = false;
  if (m_config.RemoveSame == 1 && Trim(header + data) == Trim(lastShownFrame)) {
    // The memory goes too, so a third copy is shown again: only every second one goes.
    header.clear();
    data.clear();
    lastShownFrame.clear();
    emptied = true;
  }
  lastShownFrame = header + data;
  return emptied;
}

void MonitorConsole::KeepCaret() {
  if (!m_main.chkScroll.checked()) m_keptCaret = m_main.txtMonitor.selStart();
}

void MonitorConsole::RestoreCaret() {
  if (!m_main.chkScroll.checked()) m_main.txtMonitor.setSelection(m_keptCaret, 0);
}

void MonitorConsole::PaintHeader(const std::string& header, bool digipeated) {
  InsertAtEnd(header + CRLF, digipeated ? m_config.DigiColor : m_config.HeaderColor);
}

void MonitorConsole::PaintData(const std::string& data) {
  Color color = m_config.DataColor;
  if (MessageFlagForMe != 0) {
    color = m_config.MessageColor;
    MessageFlagForMe = 0;
  }
  InsertAtEnd(data + CRLF, color);
}

void MonitorConsole::chkScroll_Click() {
  RichText& text = m_main.txtMonitor;
  if (!m_main.chkScroll.checked() && text.selStart() + 4 >= text.length()) text.setSelection(0, 0);
}

void MonitorConsole::BufferLimit() {
  const double limit = m_config.MonBufferLimit;
  RichText& text = m_main.txtMonitor;
  if (m_config.SlowPC == 0 || limit < 16000 || static_cast<double>(text.length()) <= limit) {
    return;
  }
  // h characters from character h: the second half of the first L characters. The overhang
  // beyond L (the newest frame) goes with the first half; kept on purpose, not a tail.
  const auto whole = static_cast<long>(std::nearbyint(limit));
  const auto h = static_cast<std::size_t>(std::nearbyint(limit - static_cast<double>(whole / 2)));
  text.setRuns(text.runs(h, h));
  text.setSelection(text.length(), 0);
  m_undo = UndoStep{};
}

// ---- the operator's operations -------------------------------------------------------------

void MonitorConsole::Edit(std::size_t at, std::size_t count, const std::vector<TextRun>& runs) {
  RichText& text = m_main.txtMonitor;
  at = std::min(at, text.length());
  count = std::min(count, text.length() - at);
  m_undo = UndoStep{true, at, text.runs(at, count), Joined(runs)};
  ReplaceRange(text, at, count, runs);
}

void MonitorConsole::Undo() {
  RichText& text = m_main.txtMonitor;
  // A locked Monitor keeps what it shows; the step waits until it is unlocked.
  if (!m_undo.valid || text.locked()) return;
  const std::size_t at = m_undo.at;
  const std::size_t n = m_undo.inserted.size();
  // Cleared, cut by the buffer limit or opened anew since: the step no longer fits.
  if (at + n > text.length() || text.text().compare(at, n, m_undo.inserted) != 0) {
    m_undo = UndoStep{};
    return;
  }
  const std::vector<TextRun> undone = text.runs(at, n);
  ReplaceRange(text, at, n, m_undo.removed);
  m_undo.inserted = Joined(m_undo.removed);
  m_undo.removed = undone;  // undo again puts the edit back, as the edit control does
}

void MonitorConsole::cmdMonitorClear_Click() {
  const MsgResult answer =
      m_platform.dialogs().msgBox("Are you sure to erase the Monitor window?", MsgButtons::YesNo,
                                  MsgIcon::Question, "Erase Monitor Window");
  if (answer != MsgResult::Yes) return;
  m_main.txtMonitor.clear();
  m_undo = UndoStep{};
}

void MonitorConsole::cmdMonitorCut_Click() {
  RichText& text = m_main.txtMonitor;
  if (text.selLength() == 0) return;
  if (text.locked()) {
    m_platform.dialogs().msgBox(kLockedCut, MsgButtons::Ok, MsgIcon::Exclamation, "TESK");
    return;
  }
  const std::string cut = text.selectedText();
  Clipboard& clipboard = m_platform.clipboard();
  clipboard.setText(cut);
  if (clipboard.text() != cut) return;  // nothing is lost when the clipboard would not take it
  Edit(text.selStart(), text.selLength(), {});
}

void MonitorConsole::cmdMonitorCopy_Click() {
  const RichText& text = m_main.txtMonitor;
  if (text.selLength() == 0) return;
  const std::string copied = text.selectedText();
  Clipboard& clipboard = m_platform.clipboard();
  clipboard.setText(copied);
  // The clipboard tells of no failure; one that doesn't hold the text afterwards was busy.
  if (clipboard.text() != copied) {
    m_platform.dialogs().msgBox(kClipboardBusy, MsgButtons::Ok, MsgIcon::Exclamation, "TESK");
  }
}

void MonitorConsole::cmdMonitorPaste_Click() {
  RichText& text = m_main.txtMonitor;
  const std::string pasted = m_platform.clipboard().text();
  if (pasted.empty()) return;
  if (text.locked()) {
    m_platform.dialogs().msgBox(kLockedPaste, MsgButtons::Ok, MsgIcon::Exclamation, "TESK");
    return;
  }
  Edit(text.selStart(), text.selLength(), {TextRun{pasted, Style(m_config.DataColor)}});
}

void MonitorConsole::DeleteSelection() {
  RichText& text = m_main.txtMonitor;
  if (text.locked() || text.selLength() == 0) return;
  Edit(text.selStart(), text.selLength(), {});
}

void MonitorConsole::InsertDateAndTime() {
  const Clock& clock = m_platform.clock();
  const DateTime now = clock.localNow();
  const std::string stamp = clock.shortDate(now) + " " + clock.longTime(now);
  const std::string& name = m_main.ActiveControl;
  if (name == "txtMonitor") {
    // Written by code, so it goes in even while the Monitor is locked.
    RichText& text = m_main.txtMonitor;
    Edit(text.selStart(), text.selLength(), {TextRun{stamp, Style(m_config.DataColor)}});
    return;
  }
  struct Field {
    const char* name;
    ComboBox& box;
    TxField field;
  };
  const Field fields[] = {{"cmbDataText", m_main.cmbDataText, TxField::DataText},
                          {"cmbAPRSPos", m_main.cmbAPRSPos, TxField::APRSPos},
                          {"cmbAPRSMessage", m_main.cmbAPRSMessage, TxField::APRSMessage}};
  for (const auto& [fieldName, box, field] : fields) {
    if (name != fieldName) continue;
    const long start = std::clamp(box.selStart, 0L, Len(box.text));
    box.text = Left(box.text, start) + stamp + Mid(box.text, start + box.selLength + 1);
    box.selStart = start + Len(stamp);
    box.selLength = 0;
    // The field's change event, as typing would raise it: the length counter follows.
    if (m_txPanel != nullptr) m_txPanel->Change(field);
  }
}

void MonitorConsole::ToggleFreeze() {
  // The gate of the packet core reads item 100; the options menu shows the same state.
  const bool on = !m_main.menuedits[100].checked;
  m_main.menuedits[100].checked = on;
  m_main.menuoptions[130].checked = on;
}

void MonitorConsole::ToggleEditMonitor() {
  RichText& text = m_main.txtMonitor;
  const bool unlock = text.locked();
  text.setLocked(!unlock);
  m_main.menuedits[110].checked = unlock;
  m_main.menuoptions[140].checked = unlock;
  m_config.EditMonitor = unlock ? 1 : 0;
}

void MonitorConsole::ToggleViewDataOnly() {
  // The box and the check flip each on its own, so they can disagree after a click on the box.
  m_main.chkViewDataOnly.value = m_main.chkViewDataOnly.checked() ? 0 : 1;
  m_main.menuedits[120].checked = !m_main.menuedits[120].checked;
}

void MonitorConsole::menuedits_Click(int index) {
  RichText& text = m_main.txtMonitor;
  switch (index) {
    case 0:
      Undo();
      break;
    case 50:
      DeleteSelection();
      break;
    case 70:
      text.setSelection(0, text.length());
      break;
    case 80:
      cmdMonitorClear_Click();
      break;
    case 92:
      InsertDateAndTime();
      break;
    case 100:
      ToggleFreeze();
      break;
    case 110:
      ToggleEditMonitor();
      break;
    case 120:
      ToggleViewDataOnly();
      break;
    case 130:
      if (OpenStatistics) OpenStatistics();
      break;
    case 140:
      if (OpenMonitorSetup) OpenMonitorSetup();
      break;
    default:
      break;
  }
}

void MonitorConsole::menuoptions_Click(int index) {
  if (index == 130) ToggleFreeze();
  if (index == 140) ToggleEditMonitor();
}

void MonitorConsole::txtMonitor_RightPress() {
  for (int i = 100; i <= 140; i += 10)
    m_main.menuedits[i].visible = true;
}

void MonitorConsole::txtMonitor_PopupClosed() {
  for (int i = 100; i <= 140; i += 10)
    m_main.menuedits[i].visible = i == 110;
}

void MonitorConsole::txtMonitor_KeyPress() {
  m_main.txtMonitor.setDefaultStyle(Style(m_config.DataColor));
}

void MonitorConsole::txtMonitor_Change(std::size_t at, std::size_t removed,
                                       const std::string& text) {
  RichText& monitor = m_main.txtMonitor;
  if (monitor.locked()) return;
  std::vector<TextRun> runs;
  if (!text.empty()) runs.push_back(TextRun{text, monitor.defaultStyle()});
  Edit(at, removed, runs);
}

// ---- files and printer ---------------------------------------------------------------------

std::string MonitorConsole::MonitorFolder() const {
  const std::string folder = JoinPath(m_run.AppPath, "Monitor");
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return folder;
}

std::string MonitorConsole::FileName(const std::string& extension) {
  return "TESK" + DateStamp(m_config, m_platform.clock()) + extension;
}

void MonitorConsole::cmdMonitorSave_Click() {
  const RichText& text = m_main.txtMonitor;
  // Taken now: a frame that comes in while a box is open moves the caret to the end.
  const std::vector<TextRun> selection = text.runs(text.selStart(), text.selLength());
  bool selectionOnly = false;
  if (text.selLength() > 10) {
    const MsgResult answer =
        m_platform.dialogs().msgBox("Do you want to save the selected text only?",
                                    MsgButtons::YesNoCancel, MsgIcon::Question, "TESK");
    if (answer == MsgResult::Cancel) return;
    selectionOnly = answer == MsgResult::Yes;
  }
  const std::string path = m_platform.dialogs().fileSave("Save as Rich Text", kRtfFilter,
                                                         MonitorFolder(), FileName(".rtf"));
  if (path.empty()) return;
  WriteWholeFile(path,
                 WriteRtf(selectionOnly ? selection : text.runs(), m_main.txtMonitorFontName));
}

void MonitorConsole::ExportToASCII_Click() {
  const std::string path = m_platform.dialogs().fileSave("Save As ASCII or Log", kTextFilter,
                                                         MonitorFolder(), FileName(".txt"));
  if (path.empty()) return;
  WriteWholeFile(path, m_main.txtMonitor.text());
}

void MonitorConsole::cmdMonitorOpen_Click() {
  Dialogs& dialogs = m_platform.dialogs();
  if (!m_openConfirmed) {
    const MsgResult answer =
        dialogs.msgBox("Are you sure to open the file in the Monitor window?", MsgButtons::YesNo,
                       MsgIcon::Question, "Open File in Monitor");
    if (answer != MsgResult::Yes) return;
    m_openConfirmed = true;
  }
  const std::string path = dialogs.fileOpen("Open File in Monitor", kOpenFilter, MonitorFolder());
  std::string bytes;
  if (path.empty() || !ReadWholeFile(path, bytes)) return;
  m_main.txtMonitor.setRuns(ReadRtf(bytes, Style(m_config.DataColor)));
  m_undo = UndoStep{};
}

void MonitorConsole::cmdMonitorPrint_Click() {
  const RichText& text = m_main.txtMonitor;
  const bool selection = text.selLength() > 0;
  const std::string printed = selection ? text.selectedText() : text.text();
  const MsgResult answer =
      m_platform.dialogs().msgBox(selection ? "Do you want to print the selected tekst?"
                                            : "Do you want to print the entire monitor window?",
                                  MsgButtons::YesNo, MsgIcon::Question, "Print");
  if (answer != MsgResult::Yes) return;
  m_platform.printer().printText(printed);  // a failed print leaves nothing to tell
}

void MonitorConsole::RegisterCommands(CommandTable& commands) {
  const std::pair<Command, void (MonitorConsole::*)()> clicks[] = {
      {Command::cmdMonitorClear, &MonitorConsole::cmdMonitorClear_Click},
      {Command::cmdMonitorCut, &MonitorConsole::cmdMonitorCut_Click},
      {Command::cmdMonitorCopy, &MonitorConsole::cmdMonitorCopy_Click},
      {Command::cmdMonitorPaste, &MonitorConsole::cmdMonitorPaste_Click},
      {Command::cmdMonitorSave, &MonitorConsole::cmdMonitorSave_Click},
      {Command::cmdMonitorOpen, &MonitorConsole::cmdMonitorOpen_Click},
      {Command::cmdMonitorPrint, &MonitorConsole::cmdMonitorPrint_Click},
      {Command::ExportToASCII, &MonitorConsole::ExportToASCII_Click},
      {Command::chkScroll, &MonitorConsole::chkScroll_Click},
      {Command::txtMonitor_RightPress, &MonitorConsole::txtMonitor_RightPress},
      {Command::txtMonitor_PopupClosed, &MonitorConsole::txtMonitor_PopupClosed},
  };
  for (const auto& [command, click] : clicks) {
    CommandSpec desc;
    desc.key = {command};
    desc.handler = [this, click = click](const std::string&) { (this->*click)(); };
    if (command == Command::ExportToASCII) {
      desc.item = &m_main.ExportToASCII;
      desc.enabled = WhileEnabled(m_main.ExportToASCII);
    }
    commands.add(std::move(desc));
  }
  const auto edits = [this](int i) { menuedits_Click(i); };
  const std::pair<int, const char*> rows[] = {{0, "&Undo"},
                                              {50, "&Delete"},
                                              {70, "Select &All"},
                                              {80, "&Clear All"},
                                              {92, "Insert &Date and Time"},
                                              {100, "&Freeze Monitor"},
                                              {110, "&Enable Monitor for Edit"},
                                              {120, "View Only Data in  Monitor"}};
  for (const auto& [index, caption] : rows)
    commands.addRow(Command::menuedits, m_main.menuedits, index, caption, edits);
  // The statistics and the Monitor's setup page run only once their windows exist.
  commands.addRow(Command::menuedits, m_main.menuedits, 130, "&Statistics...", edits,
                  [this] { return static_cast<bool>(OpenStatistics); });
  commands.addRow(Command::menuedits, m_main.menuedits, 140, "Setup &Monitor...", edits,
                  [this] { return static_cast<bool>(OpenMonitorSetup); });
  commands.addRow(Command::menuoptions, m_main.menuoptions, 130, "&Freeze Monitor",
                  [this](int i) { menuoptions_Click(i); });
  commands.addRow(Command::menuoptions, m_main.menuoptions, 140, "&Enable Monitor for Edit",
                  [this](int i) { menuoptions_Click(i); });
}

}  // namespace tesk
