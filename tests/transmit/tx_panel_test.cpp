// The transmit panel's rules: the one length rule, the six histories with their caps and
// compares, the check of To and Via before a send, the counters and the send buttons' guard.
#include <gtest/gtest.h>

#include "base/text.h"
#include "transmit/tx_fixture.h"

namespace tesk::testing {
namespace {

TEST_F(TxPanelTest, TheLengthRuleCountsTheCommasOfTheViaField) {
  std::string text(100, 'x');
  main.cmbViaCall.text = "";
  EXPECT_EQ(panel.CalcUI_TXlength(text, 10, 1), 70);
  EXPECT_EQ(Len(text), 100);  // a number asked for: the text stays as it is
  main.cmbViaCall.text = "ARISS";
  EXPECT_EQ(panel.CalcUI_TXlength(text, 0, 1), 80);
  main.cmbViaCall.text = "ARISS,WIDE2-2";
  EXPECT_EQ(panel.CalcUI_TXlength(text, 0, 1), 79);
  main.cmbViaCall.text = "A,B,C";
  EXPECT_EQ(panel.CalcUI_TXlength(text, 0, 1), 69);
  main.cmbViaCall.text = "A,B,C,D";  // four digipeaters
  EXPECT_EQ(panel.CalcUI_TXlength(text, 0, 1), 59);

  // Mode 0 cuts a longer text to the room and leaves one of exactly that length alone.
  std::string exact(59, 'e');
  EXPECT_EQ(panel.CalcUI_TXlength(exact, 0, 0), 59);
  EXPECT_EQ(exact, std::string(59, 'e'));
  EXPECT_EQ(panel.CalcUI_TXlength(text, 0, 0), 59);
  EXPECT_EQ(text, std::string(59, 'x'));

  // The commas are counted by splitting: non-overlapping, none in an empty text.
  EXPECT_EQ(InstrCount("a,b,,c", ","), 3);
  EXPECT_EQ(InstrCount("aaaa", "aa"), 2);
  EXPECT_EQ(InstrCount("abc", ""), 0);
  EXPECT_EQ(InstrCount("", ","), -1);
}

TEST_F(TxPanelTest, ToAndMessageForHistoriesNormaliseCapAtFifteenAndDropTheOldest) {
  main.cmbToCall.list = Entries("CALL", 15);
  main.cmbToCall.text = "  pa3xyz-1   ";
  panel.ADDToData();
  ASSERT_EQ(main.cmbToCall.list.size(), 15u);
  EXPECT_EQ(main.cmbToCall.list.front(), "CALL2");
  EXPECT_EQ(main.cmbToCall.list.back(), "PA3XYZ-1");
  EXPECT_EQ(main.cmbToCall.text, "PA3XYZ-1");  // written back into the field
  EXPECT_EQ(config.ToCall, "PA3XYZ-1");
  EXPECT_EQ(main.cmbToCall.selStart, 0);

  // Compared upper-cased and right-trimmed: a known call in other case is not added again.
  main.cmbToCall.list = {"cq ", "APRS"};
  main.cmbToCall.text = "CQ";
  panel.ADDToData();
  EXPECT_EQ(main.cmbToCall.list, (std::vector<std::string>{"cq ", "APRS"}));
  // Cut to 10 on adding.
  main.cmbToCall.text = "ABCDEFGHIJKL";
  panel.ADDToData();
  EXPECT_EQ(main.cmbToCall.list.back(), "ABCDEFGHIJ");

  main.cmbFor.list = Entries("F", 15);
  main.cmbFor.text = " bln#echo123 ";
  panel.AddFor();
  ASSERT_EQ(main.cmbFor.list.size(), 15u);
  EXPECT_EQ(main.cmbFor.list.front(), "F2");
  EXPECT_EQ(main.cmbFor.list.back(), "BLN#ECHO1");
  EXPECT_EQ(main.cmbFor.text, "BLN#ECHO1");
}

TEST_F(TxPanelTest, TheViaHistoryKeepsItsEmptyEntryOnOverflow) {
  // The empty entry first: the second entry goes instead of it.
  main.cmbViaCall.list = Entries("DIGI", 14);
  main.cmbViaCall.list.insert(main.cmbViaCall.list.begin(), "");
  main.cmbViaCall.text = "wide2-2 ";
  panel.ADDViaData();
  ASSERT_EQ(main.cmbViaCall.list.size(), 15u);
  EXPECT_EQ(main.cmbViaCall.list[0], "");
  EXPECT_EQ(main.cmbViaCall.list[1], "DIGI2");
  EXPECT_EQ(main.cmbViaCall.list.back(), "WIDE2-2");
  EXPECT_EQ(config.Digistation, "WIDE2-2");
  EXPECT_EQ(main.cmbViaCall.toolTip, "Path = WIDE2-2");

  // An empty Via matches the empty entry: nothing is added.
  main.cmbViaCall.text = "   ";
  panel.ADDViaData();
  EXPECT_EQ(main.cmbViaCall.list.size(), 15u);
  // Compared upper-cased and trimmed.
  main.cmbViaCall.text = "digi5";
  panel.ADDViaData();
  EXPECT_EQ(main.cmbViaCall.list.back(), "WIDE2-2");
}

TEST_F(TxPanelTest, TextAndAprsHistoriesAddFirstAndThenRemoveIndexTwentyFive) {
  main.cmbDataText.list = Entries("text ", 24);
  main.cmbDataText.text = "Hello All";
  panel.ADDTXData();
  ASSERT_EQ(main.cmbDataText.list.size(), 25u);
  EXPECT_EQ(main.cmbDataText.list.back(), "Hello All");
  // Full: the entry added is the one removed, so the history stays as it was.
  main.cmbDataText.text = "one more";
  panel.ADDTXData();
  ASSERT_EQ(main.cmbDataText.list.size(), 25u);
  EXPECT_EQ(main.cmbDataText.list.back(), "Hello All");
  EXPECT_EQ(main.cmbDataText.list.front(), "text 1");
  // Compared lower-cased and right-trimmed.
  main.cmbDataText.list = {"Hello All"};
  main.cmbDataText.text = "HELLO ALL   ";
  panel.ADDTXData();
  EXPECT_EQ(main.cmbDataText.list.size(), 1u);
  // Cut by the typing rule: 250 without a Via, 80 with one.
  main.cmbViaCall.text = "";
  main.cmbDataText.text = std::string(300, 'a');
  panel.ADDTXData();
  EXPECT_EQ(Len(main.cmbDataText.list.back()), 250);
  main.cmbViaCall.text = "ARISS";
  main.cmbDataText.text = std::string(300, 'b');
  panel.ADDTXData();
  EXPECT_EQ(Len(main.cmbDataText.list.back()), 80);
  EXPECT_EQ(Len(main.cmbDataText.text), 300);  // the field itself is not cut

  main.cmbAPRSPos.list = {" QRV via ISS "};
  main.cmbAPRSPos.text = "qrv VIA iss";  // lower-cased and trimmed on both sides
  panel.AddAPRSData();
  EXPECT_EQ(main.cmbAPRSPos.list.size(), 1u);
  main.cmbAPRSPos.text = std::string(70, 'p');
  panel.AddAPRSData();
  EXPECT_EQ(Len(main.cmbAPRSPos.list.back()), 60);
}

TEST_F(TxPanelTest, TheMessageHistoryStoresBracesAsParenthesesAndComparesWithCase) {
  main.cmbAPRSMessage.list.clear();
  main.cmbAPRSMessage.text = "  QSL {73} ";
  panel.AddMessage();
  ASSERT_EQ(main.cmbAPRSMessage.list.size(), 1u);
  EXPECT_EQ(main.cmbAPRSMessage.list[0], "QSL (73)");
  EXPECT_EQ(main.cmbAPRSMessage.text, "  QSL {73} ");  // what is sent keeps its braces
  main.cmbAPRSMessage.text = "qsl (73)";
  panel.AddMessage();
  EXPECT_EQ(main.cmbAPRSMessage.list.size(), 2u);  // case counts
  main.cmbAPRSMessage.text = "QSL (73)   ";
  panel.AddMessage();
  EXPECT_EQ(main.cmbAPRSMessage.list.size(), 2u);

  // The history keeps 70 characters, one more than may be typed.
  main.cmbAPRSMessage.text = std::string(75, 'm');
  panel.AddMessage();
  EXPECT_EQ(Len(main.cmbAPRSMessage.list.back()), 70);
  // At 25 the first entry goes before the new one is added.
  main.cmbAPRSMessage.list = Entries("m", 25);
  main.cmbAPRSMessage.text = "new";
  panel.AddMessage();
  ASSERT_EQ(main.cmbAPRSMessage.list.size(), 25u);
  EXPECT_EQ(main.cmbAPRSMessage.list.front(), "m2");
  EXPECT_EQ(main.cmbAPRSMessage.list.back(), "new");
}

TEST_F(TxPanelTest, ValidationRefreshesPortAndPathAndStopsAtAnEmptyTo) {
  config.AGWPERadioPort = 2;
  config.Beacon = -1;
  main.cmbToCall.text = "  cq ";
  main.cmbViaCall.text = "ariss,wide2-2";
  panel.ValidateToViaBoxes();
  EXPECT_EQ(run.CurrentPort, 2);
  EXPECT_EQ(run.ToVia, "CQ  ARISS,WIDE2-2");
  EXPECT_EQ(main.cmbToCall.text, "  CQ ");  // upper-cased, not trimmed
  EXPECT_EQ(config.ToCall, "  CQ ");
  EXPECT_EQ(config.Digistation, "ARISS,WIDE2-2");
  EXPECT_EQ(beaconRestarts, 1);  // a hand-sent frame delays the beacon
  EXPECT_FALSE(meld.window().form.visible);
  config.Beacon = 0;
  panel.ValidateToViaBoxes();
  EXPECT_EQ(beaconRestarts, 1);

  // An empty To: the note, nothing upper-cased, and no To call for the caller to send to.
  main.cmbToCall.text = "";
  main.cmbViaCall.text = "rs0iss";
  config.Beacon = -1;
  panel.ValidateToViaBoxes();
  EXPECT_TRUE(meld.window().form.visible);
  EXPECT_EQ(meld.window().lblMeld.caption,
            "No Call Sign entered!\r\nPlease enter the station Call Sign (To:)");
  EXPECT_EQ(run.ToVia, "RS0ISS");
  EXPECT_EQ(main.cmbViaCall.text, "rs0iss");
  EXPECT_EQ(config.ToCall, "");
  EXPECT_EQ(beaconRestarts, 1);

  // A To call that is empty stays so, whatever the field holds, until To is entered.
  main.cmbToCall.text = "QST";
  meld.window().form.visible = false;
  panel.ValidateToViaBoxes();
  EXPECT_TRUE(meld.window().form.visible);
  EXPECT_EQ(config.ToCall, "");
  panel.ADDToData();
  panel.ValidateToViaBoxes();
  EXPECT_EQ(config.ToCall, "QST");
}

TEST_F(TxPanelTest, CountersShowTheLengthInTheirColourAndRedOverTheRoom) {
  const Color red = RGB(255, 0, 0);
  main.cmbViaCall.text = "ARISS";
  type(TxField::DataText, std::string(80, 'd'));
  EXPECT_EQ(main.LblMaxLengte[0].caption, "80");
  EXPECT_EQ(main.LblMaxLengte[0].foreColor, RGB(0, 128, 0));
  main.cmbViaCall.text = "ARISS,WIDE2-2";  // room 79: the counter turns red at the next change
  type(TxField::DataText, std::string(80, 'd'));
  EXPECT_EQ(main.LblMaxLengte[0].foreColor, red);

  // The APRS comment: room minus the 20-character position, minus 9 for the tag when it is on.
  main.cmbViaCall.text = "";
  config.TESKTag = 0;
  type(TxField::APRSPos, std::string(51, 'a'));
  EXPECT_EQ(main.LblMaxLengte[1].foreColor, RGB(0, 0, 255));
  type(TxField::APRSPos, std::string(52, 'a'));
  EXPECT_EQ(main.LblMaxLengte[1].caption, "52");
  EXPECT_EQ(main.LblMaxLengte[1].foreColor, red);
  config.TESKTag = 1;
  panel.ListPick(TxField::APRSPos);
  EXPECT_EQ(main.LblMaxLengte[1].foreColor, RGB(0, 0, 255));

  // The message: room minus 11 for the addressee header.
  type(TxField::APRSMessage, std::string(69, 'm'));
  EXPECT_EQ(main.LblMaxLengte[2].foreColor, RGB(128, 0, 128));
  main.cmbViaCall.text = "A,B";
  panel.ListPick(TxField::APRSMessage);
  EXPECT_EQ(main.LblMaxLengte[2].foreColor, red);
}

TEST_F(TxPanelTest, CoherentColoursGiveEachKindOfTransmissionItsBackColour) {
  config.TXBoxCoherentColors = 0;
  main.cmbDataText.backColor = 1234;
  panel.SetCoherentTXBoxColors();
  EXPECT_EQ(main.cmbDataText.backColor, 1234);
  config.TXBoxCoherentColors = 1;
  panel.SetCoherentTXBoxColors();
  EXPECT_EQ(main.cmbDataText.backColor, RGB(130, 255, 180));
  EXPECT_EQ(main.cmbAPRSPos.backColor, RGB(0, 240, 255));
  EXPECT_EQ(main.cmbFor.backColor, RGB(255, 185, 255));
  EXPECT_EQ(main.cmbAPRSMessage.backColor, RGB(255, 185, 255));
  EXPECT_EQ(main.LstMHeardList.backColor, RGB(255, 210, 120));
  EXPECT_EQ(main.cmbToCall.backColor, kDefaultBack);
}

TEST_F(TxPanelTest, ASecondPressWithinSevenTenthsOfASecondIsLost) {
  SimLoop& loop = platform.simLoop;
  main.cmbDataText.text = "hi";
  // The first press runs at once; the guard goes up when the mouse button is released.
  panel.Press(SendButton::DataText);
  panel.SendButton_MouseUp(SendButton::DataText);
  std::vector<std::string> guardSeen;
  for (double at : {0.3, 0.69, 0.75}) {
    loop.schedule(at, [&] {
      guardSeen.push_back(main.cmdTXDataText.guard);
      panel.Press(SendButton::DataText);
    });
  }
  loop.run(1.0);
  EXPECT_EQ(guardSeen, (std::vector<std::string>{"tx", "tx", ""}));
  EXPECT_EQ(sent.size(), 2u);
  // Each button has its own guard.
  panel.SendButton_MouseUp(SendButton::APRS);
  loop.schedule(0.1, [&] {
    panel.Press(SendButton::APRS);
    panel.Press(SendButton::APRSMessage);
  });
  loop.run(1.0);
  EXPECT_EQ(sent, (std::vector<std::string>{"text:hi", "text:hi", "msg:"}));
  EXPECT_TRUE(main.cmdTXAPRS.guard.empty());
}

}  // namespace
}  // namespace tesk::testing
