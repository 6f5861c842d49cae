// The operator's operations on the Monitor: the edit menu with its locked and unlocked rules,
// the clipboard, undo while frames keep arriving, date and time into the focused field, the
// menu checks, the pop-up items, saving, exporting, opening and printing, the find window in
// both modes and the word count.
#include <gtest/gtest.h>

#include "core/monitor_console.h"
#include "core/monitor_find.h"
#include "platform/rtf.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

constexpr Color kYellow = RGB(255, 255, 0);
constexpr Color kCyan = RGB(0, 255, 255);
constexpr Color kRed = RGB(255, 0, 0);

// A clipboard held by another program: it takes nothing.
class BusyClipboard : public Clipboard {
 public:
  void setText(const std::string&) override {}
  std::string text() override { return "held by another program"; }
  void clear() override {}
};

class OpsPlatform : public SimPlatform {
 public:
  Clipboard& clipboard() override {
    if (busy) return busyClipboard;
    return simClipboard;
  }
  bool busy = false;
  BusyClipboard busyClipboard;
};

class MonitorOpsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    run.AppPath = home.path();
    config.DataColor = kCyan;
    config.HeaderColor = kYellow;
    config.FontSize = 10;
  }
  RichText& txt() { return main.txtMonitor; }
  SimDialogs& dialogs() { return platform.simDialogs; }
  const ShownBox& lastBox() { return dialogs().shown.back(); }
  std::size_t boxes() { return dialogs().shown.size(); }
  // Three lines in three colours.
  void fill() {
    txt().append("Fm PA3ABC To CQ [12:00:00]\r\n", TextStyle{kYellow, false, 10});
    txt().append("Hello {world} \\ \xE9\r\r\n", TextStyle{kCyan, true, 12});
    txt().append("Fm XX9TK To CQ Via RS0ISS* [12:00:01]\r\n", TextStyle{kRed, false, 10});
  }

  OpsPlatform platform;
  TempDir home;
  StationConfig config;
  MainWindow main;
  RunState run;
  MonitorConsole monitor{platform, config, main, run};
  MonitorFind find{platform, main};
};

TEST_F(MonitorOpsTest, ClearAsksAndEmptiesOnYesOnly) {
  fill();
  dialogs().answers = {"N"};
  monitor.cmdMonitorClear_Click();
  EXPECT_EQ(lastBox().text, "Are you sure to erase the Monitor window?");
  EXPECT_EQ(lastBox().title, "Erase Monitor Window");
  EXPECT_EQ(lastBox().buttons, MsgButtons::YesNo);
  EXPECT_GT(txt().length(), 0u);
  dialogs().answers = {"Y"};
  monitor.menuedits_Click(80);  // the menu entry asks the same
  EXPECT_EQ(lastBox().title, "Erase Monitor Window");
  EXPECT_EQ(txt().length(), 0u);
}

TEST_F(MonitorOpsTest, LockedMonitorRefusesCutAndPasteButCopies) {
  fill();
  ASSERT_TRUE(txt().locked());
  const std::string before = txt().text();
  txt().setSelection(3, 6);
  monitor.cmdMonitorCut_Click();
  EXPECT_EQ(lastBox().text, std::string(MonitorConsole::kLockedCut));
  EXPECT_EQ(lastBox().text,
            "Monitor is locked.\r\nPlease enable the Monitor for Editing (Edit Menu).");
  monitor.cmdMonitorCopy_Click();
  EXPECT_EQ(platform.simClipboard.content, "PA3ABC");
  monitor.cmdMonitorPaste_Click();
  EXPECT_EQ(lastBox().text,
            "Monitor is locked.\r\nPlease enable the Monitor for Editing (Edit Menu)\r\nor "
            "right-click your mouse button in the Monitor window.");
  monitor.menuedits_Click(50);  // delete: the locked control ignores it
  EXPECT_EQ(txt().text(), before);
  // Nothing selected, nothing to paste: the control's own operations do nothing, and say so.
  const std::size_t shown = boxes();
  txt().setSelection(0, 0);
  monitor.cmdMonitorCut_Click();
  platform.simClipboard.content.clear();
  monitor.cmdMonitorPaste_Click();
  EXPECT_EQ(boxes(), shown);
  EXPECT_EQ(txt().text(), before);
}

TEST_F(MonitorOpsTest, ABusyClipboardIsReportedOnCopy) {
  fill();
  txt().setSelection(0, 2);
  platform.busy = true;
  monitor.cmdMonitorCopy_Click();
  EXPECT_EQ(lastBox().text,
            "Clipboard is open and in use by another application. Please try again later or "
            "use the 'Save As' function.");
  // A cut that the clipboard would not take loses nothing.
  monitor.menuedits_Click(110);
  txt().setSelection(0, 2);
  monitor.cmdMonitorCut_Click();
  EXPECT_EQ(txt().text().substr(0, 2), "Fm");
}

TEST_F(MonitorOpsTest, EnableForEditUnlocksCutsPastesAndUndoesWhileFramesArrive) {
  fill();
  monitor.menuedits_Click(110);
  EXPECT_FALSE(txt().locked());
  EXPECT_TRUE(main.menuedits[110].checked);
  EXPECT_TRUE(main.menuoptions[140].checked);
  EXPECT_EQ(config.EditMonitor, 1);

  txt().setSelection(3, 7);  // "PA3ABC "
  monitor.cmdMonitorCut_Click();
  EXPECT_EQ(platform.simClipboard.content, "PA3ABC ");
  EXPECT_EQ(txt().text().substr(0, 9), "Fm To CQ ");
  platform.simClipboard.content = "DL1XYZ ";
  monitor.cmdMonitorPaste_Click();
  EXPECT_EQ(txt().text().substr(0, 16), "Fm DL1XYZ To CQ ");
  EXPECT_EQ(txt().styleAt(3), (TextStyle{kCyan, false, 10}));  // pasted text in [Data color]

  // A frame arrives at the end; undo still takes back the paste in its place.
  txt().append("new frame\r\n", kYellow);
  monitor.menuedits_Click(0);
  EXPECT_EQ(txt().text().substr(0, 9), "Fm To CQ ");
  EXPECT_EQ(txt().text().substr(txt().length() - 11), "new frame\r\n");
  monitor.menuedits_Click(0);  // and again puts it back
  EXPECT_EQ(txt().text().substr(0, 16), "Fm DL1XYZ To CQ ");
  EXPECT_EQ(txt().styleAt(3).color, kCyan);

  // Typing: the key press sets the style, the change carries the text.
  monitor.txtMonitor_KeyPress();
  monitor.txtMonitor_Change(0, 2, "FROM");
  EXPECT_EQ(txt().text().substr(0, 6), "FROM D");
  EXPECT_EQ(txt().styleAt(0), (TextStyle{kCyan, false, 10}));
  monitor.menuedits_Click(0);
  EXPECT_EQ(txt().styleAt(0), (TextStyle{kYellow, false, 10}));  // the old runs come back

  // Select all and delete; a cleared Monitor has nothing left to undo.
  monitor.menuedits_Click(70);
  EXPECT_EQ(txt().selStart(), 0u);
  EXPECT_EQ(txt().selLength(), txt().length());
  monitor.menuedits_Click(50);
  EXPECT_EQ(txt().length(), 0u);
  txt().append("x", kYellow);
  dialogs().answers = {"Y"};
  monitor.cmdMonitorClear_Click();
  monitor.menuedits_Click(0);
  EXPECT_EQ(txt().length(), 0u);

  monitor.menuoptions_Click(140);  // the options menu locks it again
  EXPECT_TRUE(txt().locked());
  EXPECT_FALSE(main.menuedits[110].checked);
  EXPECT_FALSE(main.menuoptions[140].checked);
  EXPECT_EQ(config.EditMonitor, 0);
  monitor.txtMonitor_Change(0, 0, "typed");  // a locked Monitor takes no typing
  EXPECT_EQ(txt().length(), 0u);
}

TEST_F(MonitorOpsTest, DateAndTimeGoIntoTheFocusedFieldOnly) {
  const std::string stamp = "22-11-2026 12:00:00";
  main.cmbDataText.text = "abcd";
  main.cmbDataText.selStart = 2;
  main.cmbDataText.selLength = 1;
  main.ActiveControl = "cmbDataText";
  monitor.menuedits_Click(92);
  EXPECT_EQ(main.cmbDataText.text, "ab" + stamp + "d");
  EXPECT_EQ(main.cmbDataText.selStart, 2 + static_cast<long>(stamp.size()));
  main.cmbAPRSMessage.text = "msg ";
  main.cmbAPRSMessage.selStart = 4;
  main.ActiveControl = "cmbAPRSMessage";
  monitor.menuedits_Click(92);
  EXPECT_EQ(main.cmbAPRSMessage.text, "msg " + stamp);
  main.cmbToCall.text = "CQ";
  main.ActiveControl = "cmbToCall";  // not one of the four
  monitor.menuedits_Click(92);
  EXPECT_EQ(main.cmbToCall.text, "CQ");
  // The Monitor takes it at the caret even while locked: code writes it, not the operator.
  fill();
  txt().setSelection(3, 0);
  main.ActiveControl = "txtMonitor";
  monitor.menuedits_Click(92);
  EXPECT_EQ(txt().text().substr(0, 3 + stamp.size()), "Fm " + stamp);
  EXPECT_EQ(txt().styleAt(3).color, kCyan);
}

TEST_F(MonitorOpsTest, MenuChecksAndTheRightClickItems) {
  // Items 100 to 140 show only in the right-click menu; 110 is always there.
  for (int i : {100, 120, 130, 140})
    EXPECT_FALSE(main.menuedits[i].visible) << i;
  EXPECT_TRUE(main.menuedits[110].visible);
  monitor.txtMonitor_RightPress();
  for (int i = 100; i <= 140; i += 10)
    EXPECT_TRUE(main.menuedits[i].visible) << i;
  monitor.menuedits_Click(100);
  EXPECT_TRUE(main.menuedits[100].checked);
  EXPECT_TRUE(main.menuoptions[130].checked);
  monitor.txtMonitor_PopupClosed();
  for (int i : {100, 120, 130, 140})
    EXPECT_FALSE(main.menuedits[i].visible) << i;
  EXPECT_TRUE(main.menuedits[110].visible);
  monitor.menuoptions_Click(130);
  EXPECT_FALSE(main.menuedits[100].checked);
  EXPECT_FALSE(main.menuoptions[130].checked);

  monitor.menuedits_Click(120);
  EXPECT_TRUE(main.chkViewDataOnly.checked());
  EXPECT_TRUE(main.menuedits[120].checked);
  main.chkViewDataOnly.value = 0;  // the box clicked by itself: the check stays
  monitor.menuedits_Click(120);
  EXPECT_TRUE(main.chkViewDataOnly.checked());
  EXPECT_FALSE(main.menuedits[120].checked);

  int opened = 0;
  monitor.menuedits_Click(130);  // no statistics window yet: nothing happens
  monitor.OpenStatistics = [&] { ++opened; };
  monitor.OpenMonitorSetup = [&] { opened += 10; };
  monitor.menuedits_Click(130);
  monitor.menuedits_Click(140);
  EXPECT_EQ(opened, 11);
}

TEST_F(MonitorOpsTest, ThreeColoursSavedAndOpenedAgainKeepTheirColours) {
  fill();
  const std::vector<TextRun> original = txt().runs();
  const std::string saved = home.file("Monitor/saved.rtf");
  txt().setSelection(0, 5);  // 10 characters or fewer: no question
  dialogs().answers = {saved};
  monitor.cmdMonitorSave_Click();
  ASSERT_EQ(boxes(), 1u);
  EXPECT_EQ(lastBox().kind, "save");
  EXPECT_EQ(lastBox().text, home.path() + "/Monitor/TESK22-11-2026.rtf");
  EXPECT_TRUE(std::filesystem::is_directory(home.file("Monitor")));

  dialogs().answers = {"N"};
  monitor.cmdMonitorOpen_Click();  // asked first; No ends it
  EXPECT_EQ(lastBox().title, "Open File in Monitor");
  EXPECT_EQ(lastBox().text, "Are you sure to open the file in the Monitor window?");
  txt().clear();
  dialogs().answers = {"Y", saved};
  monitor.cmdMonitorOpen_Click();
  EXPECT_EQ(lastBox().kind, "open");
  EXPECT_EQ(lastBox().text, home.path() + "/Monitor");
  EXPECT_EQ(txt().runs(), original);
  // After one Yes the question is not asked again; a plain text file opens in [Data color].
  WriteFile(home.file("Monitor/plain.txt"), "plain line\r\n");
  const std::size_t shown = boxes();
  dialogs().answers = {home.file("Monitor/plain.txt")};
  monitor.cmdMonitorOpen_Click();
  EXPECT_EQ(boxes(), shown + 1);
  EXPECT_EQ(txt().runs(), (std::vector<TextRun>{{"plain line\r\n", TextStyle{kCyan, false, 10}}}));
  // A file that can't be read leaves the Monitor as it is.
  dialogs().answers = {home.file("Monitor/missing.rtf")};
  monitor.cmdMonitorOpen_Click();
  EXPECT_EQ(txt().text(), "plain line\r\n");
}

TEST_F(MonitorOpsTest, SaveAsksAboutALongSelection) {
  fill();
  const std::string path = home.file("sel.rtf");
  txt().setSelection(3, 11);  // "PA3ABC To C"
  dialogs().answers = {"C"};
  monitor.cmdMonitorSave_Click();
  EXPECT_EQ(lastBox().text, "Do you want to save the selected text only?");
  EXPECT_EQ(lastBox().buttons, MsgButtons::YesNoCancel);
  EXPECT_EQ(boxes(), 1u);  // Cancel: no file dialog
  dialogs().answers = {"Y", path};
  monitor.cmdMonitorSave_Click();
  EXPECT_EQ(ReadRtf(ReadFile(path), TextStyle{}),
            (std::vector<TextRun>{{"PA3ABC To C", TextStyle{kYellow, false, 10}}}));
  dialogs().answers = {"N", path};
  monitor.cmdMonitorSave_Click();
  EXPECT_EQ(ReadRtf(ReadFile(path), TextStyle{}), txt().runs());
  // A file that can't be written changes nothing.
  dialogs().answers = {"N", home.file("no/such/folder/x.rtf")};
  monitor.cmdMonitorSave_Click();
  EXPECT_EQ(ReadRtf(ReadFile(path), TextStyle{}), txt().runs());
}

TEST_F(MonitorOpsTest, ExportWritesThePlainTextUnderTheDateStamp) {
  config.DateSeparator = "/";  // not fit for a file name: repaired to "-"
  platform.simClock.dateFormat = "d/M/yyyy";
  platform.simClock.start = DateTime{2026, 3, 5, 12, 0, 0, 0};
  fill();
  const std::string path = home.file("Monitor/out.txt");
  dialogs().answers = {path};
  monitor.ExportToASCII_Click();
  EXPECT_EQ(lastBox().text, home.path() + "/Monitor/TESK05-3-2026.txt");
  EXPECT_EQ(ReadFile(path), txt().text());
  EXPECT_EQ(config.DateSeparator, "-");
  dialogs().answers = {""};  // cancelled
  txt().append("more", kCyan);
  monitor.ExportToASCII_Click();
  EXPECT_NE(ReadFile(path), txt().text());
}

TEST_F(MonitorOpsTest, PrintAsksForTheSelectionOrTheWholeMonitor) {
  fill();
  txt().setSelection(0, 0);
  dialogs().answers = {"N"};
  monitor.cmdMonitorPrint_Click();
  EXPECT_EQ(lastBox().text, "Do you want to print the entire monitor window?");
  EXPECT_EQ(lastBox().title, "Print");
  EXPECT_TRUE(platform.simPrinter.printed.empty());
  dialogs().answers = {"Y"};
  monitor.cmdMonitorPrint_Click();
  ASSERT_EQ(platform.simPrinter.printed.size(), 1u);
  EXPECT_EQ(platform.simPrinter.printed[0], txt().text());
  txt().setSelection(3, 6);
  dialogs().answers = {"Y"};
  monitor.cmdMonitorPrint_Click();
  EXPECT_EQ(lastBox().text, "Do you want to print the selected tekst?");
  EXPECT_EQ(platform.simPrinter.printed.back(), "PA3ABC");
}

TEST_F(MonitorOpsTest, FindWithWholeWordAndMatchCase) {
  txt().append("Fm cqd To CQ cq\r\n", kYellow);
  find.ShowForMonitor();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmFind");
  FindWindow& w = find.window();
  w.txtToFind.text = "cq";
  find.CmdFindNext_Click();
  EXPECT_EQ(txt().selStart(), 3u);  // any case, inside a word
  EXPECT_EQ(txt().selLength(), 2u);
  w.ChkCase.value = 1;
  w.ChkWordOnly.value = 1;
  find.CmdFindNext_Click();
  EXPECT_EQ(txt().selStart(), 13u);  // "cqd" is not the whole word, "CQ" not the case
  w.ChkCase.value = 0;
  find.Form_Unload();
  find.ShowForMonitor();  // loaded anew: options off, start 0
  EXPECT_EQ(find.start(), 0);
  find.window().txtToFind.text = "cq";
  find.window().ChkWordOnly.value = 1;
  find.txtToFind_KeyPress(13);  // Enter searches too
  EXPECT_EQ(txt().selStart(), 10u);
}

TEST_F(MonitorOpsTest, FindTellsTheEndOnlyAfterAHitAndStartsOver) {
  txt().append("CQ one CQ two\r\n", kYellow);
  EXPECT_FALSE(main.menuFindNext.enabled);
  find.ShowForMonitor();
  find.window().txtToFind.text = "zz";
  find.CmdFindNext_Click();
  EXPECT_EQ(lastBox().text, "Nothing found.");
  EXPECT_EQ(lastBox().title, "Find");
  EXPECT_FALSE(main.menuFindNext.enabled);
  find.window().txtToFind.text = "CQ";
  find.CmdFindNext_Click();
  EXPECT_TRUE(main.menuFindNext.enabled);
  EXPECT_EQ(find.start(), 1);
  find.menuFindNext_Click();  // the menu repeats the search
  EXPECT_EQ(txt().selStart(), 7u);
  const std::size_t shown = boxes();
  find.menuFindNext_Click();
  ASSERT_EQ(boxes(), shown + 1);
  EXPECT_EQ(lastBox().text, "Reached the end...");
  EXPECT_EQ(find.start(), 0);
  find.menuFindNext_Click();  // from the top again
  EXPECT_EQ(txt().selStart(), 0u);
  find.CmdClose_Click();
  EXPECT_FALSE(main.menuFindNext.enabled);
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "frmFind");
}

TEST_F(MonitorOpsTest, FindInTheTerminalTextUsesTheTerminalsEntry) {
  RichText terminal;
  terminal.append("connected text", kCyan);
  MenuItem terminalFindNext;
  terminalFindNext.enabled = false;
  find.Show(1, terminal, terminalFindNext);
  EXPECT_EQ(find.mode(), 1);
  find.window().txtToFind.text = "text";
  find.CmdFindNext_Click();
  EXPECT_EQ(terminal.selStart(), 10u);
  EXPECT_TRUE(terminalFindNext.enabled);
  EXPECT_FALSE(main.menuFindNext.enabled);
  find.CmdClose_Click();
  EXPECT_FALSE(terminalFindNext.enabled);
}

TEST_F(MonitorOpsTest, CountIsCaseSensitiveNonOverlappingAndBlindToWords) {
  // Each result box takes an answer of its own ("O"); the empty input ends the round.
  dialogs().answers = {"x", "O", ""};
  find.menufindcount_Click();  // an empty Monitor holds nothing
  EXPECT_EQ(dialogs().shown[1].text, "'x' has NOT been found");
  txt().append("aaaa CQ cq CQCQ xCQx", kYellow);
  dialogs().shown.clear();
  dialogs().answers = {"aa", "O", "CQ", "O", "cq", "O", "zz", "O", ""};
  find.menufindcount_Click();
  ASSERT_EQ(boxes(), 9u);  // four counts, each input then result, then the empty input
  EXPECT_EQ(dialogs().shown[0].title, "Count found words");
  EXPECT_EQ(dialogs().shown[0].text,
            "Type the text you want to count how many times it's found in the Monitor:");
  EXPECT_EQ(dialogs().shown[1].title, "Results");
  EXPECT_EQ(dialogs().shown[1].text, "'aa' has been found 2 time(s)");
  EXPECT_EQ(dialogs().shown[3].text, "'CQ' has been found 4 time(s)");
  EXPECT_EQ(dialogs().shown[5].text, "'cq' has been found 1 time(s)");
  EXPECT_EQ(dialogs().shown[7].text, "'zz' has NOT been found");
}

}  // namespace
}  // namespace tesk::testing
