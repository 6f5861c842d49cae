// The Multi-Line window driven as an operator drives it, on a started station: the checks of a
// press in their order, the cut by the length rule with the line ends counted, the frame on the
// wire in both link modes, the default page through the main window's button, the send menu's
// rows, the console's lines, the help text, and the pages kept across a restart.
#include "transmit/tx_multi_line.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

// `n` lines "L1" ... joined by CR LF.
std::string Lines(int n) {
  std::string text;
  for (int i = 1; i <= n; ++i)
    text += (i > 1 ? "\r\n" : "") + ("L" + std::to_string(i));
  return text;
}

std::string Letters(long n) {
  std::string s;
  for (long i = 0; i < n; ++i)
    s += static_cast<char>('a' + i % 26);
  return s;
}

class MultiLineTest : public SendTest {
 protected:
  TxMultiLineForm& multi() { return parts().txMultiLine; }
  TXMultiLineWindow& w() { return multi().window(); }
  // The pages in the file, then the window loaded unseen as the send menu loads it.
  void pages(const MultiLinePages& p) {
    ASSERT_TRUE(SaveMultiLineFile(home.file(kMultiLineFile), p));
    multi().Form_Load();
    platform.simDialogs.shown.clear();  // the start's call sign question
  }
  std::vector<std::string> boxTexts() {
    std::vector<std::string> out;
    for (const ShownBox& b : platform.simDialogs.shown)
      out.push_back(b.text);
    return out;
  }
  bool shows(const Label& sign) { return sign.visible; }
};

TEST_F(MultiLineTest, APageGoesOutWholeAsOneFrameOnTheLanWire) {
  startLan();
  path("cq", "ARISS");
  pages({"CQ CQ\r\nde XX9TK\r\npse k", "", ""});
  EXPECT_FALSE(w().form.visible);  // loaded unseen
  multi().cmdTXMultiLines_Click(0);
  const auto frames = lanFrames();
  ASSERT_EQ(frames.size(), 1u);
  // The CR LF pairs inside, nothing added: no tag, no line end at the end.
  EXPECT_EQ(frames[0], BuildControlUI(0, "", "XX9TK", "CQ", "CQ CQ\r\nde XX9TK\r\npse k", "ARISS"));
  EXPECT_EQ(run().TxCounters[TxMultiLine], 1);
  EXPECT_EQ(main().cmbToCall.text, "CQ");
}

TEST_F(MultiLineTest, APageGoesOutWholeAsOneFrameInDirectMode) {
  startDirect();
  path("CQ", "");
  pages({"", "first\r\nsecond\r\nthird", ""});
  multi().cmdTXMultiLines_Click(1);
  const auto ui = sent();
  ASSERT_EQ(ui.size(), 1u);
  EXPECT_EQ(ui[0].kind, 'M');
  EXPECT_EQ(ui[0].to, "CQ");
  EXPECT_EQ(ui[0].text, "first\r\nsecond\r\nthird");
  EXPECT_EQ(direct->received.back().dataLen, 20u);
}

TEST_F(MultiLineTest, AnEmptyPageIsToldBeforeTheLineCountOfAnyPage) {
  startLan();
  path("CQ", "");
  pages({"", Lines(10), ""});
  ASSERT_TRUE(shows(w().LblMaxLines[1]));
  multi().cmdTXMultiLines_Click(0);
  multi().cmdTXMultiLines_Click(2);
  // Page 1 itself, and a good page beside it, are stopped by its line count.
  multi().cmdTXMultiLines_Click(1);
  w().TxtMultiLine[0].text = "fine";
  multi().TxtMultiLine_Change(0);
  multi().cmdTXMultiLines_Click(0);
  EXPECT_EQ(boxTexts(),
            (std::vector<std::string>{
                "Nothing to send in TX Multi-Line", "Nothing to send in TX Multi-Line",
                "To many lines in TX Multi-Line nr 2", "To many lines in TX Multi-Line nr 2"}));
  EXPECT_TRUE(sent().empty());
}

TEST_F(MultiLineTest, LinesAreCountedByTheirCrsAmongTheFirst80Characters) {
  startLan();
  path("CQ", "");
  // Nine lines pass, ten do not; a ninth CR beyond character 80 is not counted.
  const std::string late = Lines(8) + "\r\n" + Letters(60) + "\r\nend";
  ASSERT_GT(static_cast<long>(late.rfind('\r')), 80);
  pages({Lines(9), Lines(10), late});
  EXPECT_FALSE(shows(w().LblMaxLines[0]));
  EXPECT_TRUE(shows(w().LblMaxLines[1]));
  EXPECT_FALSE(shows(w().LblMaxLines[2]));
  EXPECT_TRUE(shows(w().LblMaxLength[2]));  // longer than a frame holds
  EXPECT_EQ(w().LblLength[0].caption, "Length=" + std::to_string(Lines(9).size()));

  // Typing the tenth line away frees every page.
  w().TxtMultiLine[1].text = Lines(9);
  multi().TxtMultiLine_Change(1);
  EXPECT_FALSE(shows(w().LblMaxLines[1]));
  multi().cmdTXMultiLines_Click(0);
  multi().cmdTXMultiLines_Click(2);
  EXPECT_EQ(sentTexts(), (std::vector<std::string>{Lines(9), Left(late, 80)}));
  EXPECT_TRUE(platform.simDialogs.shown.empty());
}

TEST_F(MultiLineTest, ALongPageIsCutByTheViaRuleWithLineEndsCountedAsTwo) {
  startLan();
  const std::string page = Lines(3) + "\r\n" + Letters(100);
  pages({page, "", ""});
  path("CQ", "ARISS");
  EXPECT_TRUE(shows(w().LblMaxLength[0]));
  multi().cmdTXMultiLines_Click(0);
  path("CQ", "RS0ISS,ARISS");
  multi().cmdTXMultiLines_Click(0);
  EXPECT_EQ(sentTexts(), (std::vector<std::string>{Left(page, 80), Left(page, 79)}));
  // The page itself is not changed; the length sign follows the Via of the last press.
  EXPECT_EQ(w().TxtMultiLine[0].text, page);
  w().TxtMultiLine[1].text = Letters(79);
  multi().TxtMultiLine_Change(1);
  EXPECT_FALSE(shows(w().LblMaxLength[1]));
  path("CQ", "A,B");
  multi().cmdTXMultiLines_Click(1);
  EXPECT_FALSE(shows(w().LblMaxLength[1]));
  path("CQ", "A,B,C");
  multi().cmdTXMultiLines_Click(1);
  EXPECT_TRUE(shows(w().LblMaxLength[1]));
}

TEST_F(MultiLineTest, AnEmptyToSendsNothing) {
  startLan();
  pages({"text", "", ""});
  path("", "ARISS");
  multi().cmdTXMultiLines_Click(0);
  parts().txPanel.Press(SendButton::MultiLine);
  EXPECT_TRUE(sent().empty());
  EXPECT_EQ(meldText(), "No Call Sign entered!\r\nPlease enter the station Call Sign (To:)");
}

TEST_F(MultiLineTest, TheMainWindowsButtonSendsTheDefaultPageChosenInTheWindow) {
  startLan();
  EXPECT_EQ(main().CmdTXMultiLineDirect.toolTip, "Send Multiple lines of data/text(Default nr:1)");
  ASSERT_TRUE(SaveMultiLineFile(home.file(kMultiLineFile), {"page one", "page two", "page 3"}));
  path("CQ", "");
  // Not loaded yet: the button loads the window unseen and sends page 0.
  parts().txPanel.Press(SendButton::MultiLine);
  EXPECT_TRUE(w().form.loaded);
  EXPECT_FALSE(w().form.visible);
  EXPECT_TRUE(w().OptDefaultTXMulti[0].value);

  multi().OptDefaultTXMulti_Click(2);
  EXPECT_EQ(config().TXMultiLineDefault, 2);
  EXPECT_EQ(main().CmdTXMultiLineDirect.toolTip, "Multiple lines of text/data (Default nr:3)");
  EXPECT_FALSE(w().OptDefaultTXMulti[0].value);
  EXPECT_TRUE(w().OptDefaultTXMulti[2].value);
  parts().txPanel.Press(SendButton::MultiLine);
  // The guard of a button still held back loses the press.
  main().CmdTXMultiLineDirect.guard = "tx";
  multi().CmdTXMultiLineDirect_Click();
  EXPECT_EQ(sentTexts(), (std::vector<std::string>{"page one", "page 3"}));

  // The right button: the rows of the send menu with the default page checked.
  main().mnu_multiline[0].checked = true;
  station->commands().run({Command::CmdTXMultiLineDirect_RightPress});
  EXPECT_TRUE(main().mnu_multilinePopup);
  EXPECT_FALSE(main().mnu_multiline[0].checked);
  EXPECT_FALSE(main().mnu_multiline[1].checked);
  EXPECT_TRUE(main().mnu_multiline[2].checked);
}

TEST_F(MultiLineTest, SendMenuRowsSendAPageOrShowTheWindow) {
  startLan();
  ASSERT_TRUE(SaveMultiLineFile(home.file(kMultiLineFile), {"a", "b", "c"}));
  path("CQ", "");
  CommandTable& table = station->commands();
  EXPECT_TRUE(table.run({Command::mnu_multiline, 1}));
  EXPECT_FALSE(w().form.visible);
  EXPECT_TRUE(table.run({Command::mnu_multiline, 3}));
  EXPECT_TRUE(w().form.visible);
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmTXMultiLine");
  EXPECT_EQ(sentTexts(), (std::vector<std::string>{"b"}));
  EXPECT_EQ(table.find({Command::mnu_multiline, 3})->caption, "Multi-Line &window...");
}

TEST_F(MultiLineTest, CharacterButtonsAppendAndRecheckThePage) {
  startLan();
  config().APRS = "=5053.25N/00440.50E-";
  config().APRSEnabled = 0;
  pages({Lines(9), "", ""});
  EXPECT_FALSE(w().Command8[0].enabled);
  multi().Command_Click(8, 0);  // disabled: nothing
  for (int n = 1; n <= 7; ++n)
    multi().Command_Click(n, 1);
  EXPECT_EQ(w().TxtMultiLine[1].text, "_\\/|\x7f* ");
  EXPECT_EQ(w().Command5[2].caption, "\x7f");
  EXPECT_EQ(w().Command8[2].caption, "Insert APRS Position");
  // A line added by button counts at once: page 0 now stops every send.
  w().TxtMultiLine[0].text += "\r";
  multi().Command_Click(6, 0);
  EXPECT_TRUE(w().LblMaxLines[0].visible);
  EXPECT_EQ(w().LblLength[1].caption, "Length=7");

  multi().Form_Unload();
  config().APRSEnabled = -1;
  multi().Form_Load();
  multi().Command_Click(8, 2);
  EXPECT_EQ(w().TxtMultiLine[2].text, "=5053.25N/00440.50E-");
}

TEST_F(MultiLineTest, FontFollowsTheSwitchUnlessTheMonitorUsesFixedsys) {
  startLan();
  config().MonitorFontname = "Fixedsys";
  multi().Form_Load();
  EXPECT_FALSE(w().ChkSwitchFont.visible);
  EXPECT_EQ(w().pageFont.name, "Fixedsys");
  EXPECT_EQ(w().TxtMultiLine[0].foreColor, config().DataColor);
  EXPECT_EQ(w().TxtMultiLine[0].backColor, config().ScreenColor);
  multi().Form_Unload();
  config().MonitorFontname = "DejaVu Sans Mono";
  config().FontSize = 12;
  config().FontBold = -1;
  multi().Form_Load();
  EXPECT_TRUE(w().ChkSwitchFont.visible);
  EXPECT_EQ(w().pageFont.size, 9);
  w().ChkSwitchFont.value = 1;
  multi().ChkSwitchFont_Click();
  EXPECT_EQ(w().pageFont.name, "DejaVu Sans Mono");
  EXPECT_EQ(w().pageFont.size, 12);
  EXPECT_TRUE(w().pageFont.bold);
}

TEST_F(MultiLineTest, ConsoleLinesSendChooseTheDefaultAndRefuseOtherPages) {
  startLan();
  ASSERT_TRUE(SaveMultiLineFile(home.file(kMultiLineFile), {"one", "two", "three"}));
  station->consoleLine(":to CQ");
  station->consoleLine(":multiline 2");
  station->consoleLine(":multiline default 3");
  station->consoleLine(":MULTILINE");
  for (const char* wrong : {":multiline 4", ":multiline 0", ":multiline two", ":multiline default",
                            ":multiline default 9", ":multiline 1 2"})
    station->consoleLine(wrong);
  EXPECT_EQ(sentTexts(), (std::vector<std::string>{"two", "three"}));
  EXPECT_EQ(config().TXMultiLineDefault, 2);
  auto& notices = platform.simViews.notices;
  EXPECT_EQ(std::count(notices.begin(), notices.end(), "The Multi-Line page is 1 to 3"), 6);
  EXPECT_NE(std::find(notices.begin(), notices.end(), "Multi-Line default page: 3"), notices.end());
}

TEST_F(MultiLineTest, TheHelpTextOpensOrIsNamedWhenMissing) {
  startLan();
  multi().Form_Load();
  multi().Image1_Click();
  EXPECT_TRUE(platform.simShell.urls.empty());
  EXPECT_NE(meldText().find("TXMultiLine.txt"), std::string::npos);
  WriteFile(home.file("TXMultiLine.txt"), "help\n");
  multi().Image1_Click();
  ASSERT_EQ(platform.simShell.urls.size(), 1u);
  EXPECT_EQ(platform.simShell.urls[0], home.file("TXMultiLine.txt"));
}

TEST_F(MultiLineTest, PagesAreSavedWhenTheWindowClosesAndAtExitAndComeBack) {
  startLan();
  multi().Show();
  w().TxtMultiLine[0].text = "typed\r\nin the window";
  multi().TxtMultiLine_Change(0);
  multi().Form_Unload();
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "frmTXMultiLine");
  EXPECT_EQ(LoadMultiLineFile(home.file(kMultiLineFile))[0], "typed\r\nin the window");

  // Loaded unseen by the button, changed, then the program ends.
  path("CQ", "");
  parts().txPanel.Press(SendButton::MultiLine);
  w().TxtMultiLine[2].text = "at exit\t";
  multi().TxtMultiLine_Change(2);
  station->Einde();
  EXPECT_TRUE(platform.simLoop.ended());
  EXPECT_EQ(LoadMultiLineFile(home.file(kMultiLineFile)),
            (MultiLinePages{"typed\r\nin the window", "", "at exit\t"}));
}

}  // namespace
}  // namespace tesk::testing
