// The transmit fields under the operator's hands: key up, Enter, Delete with its question,
// typing limits, list picks, focus and drops.
#include <gtest/gtest.h>

#include "base/text.h"
#include "transmit/tx_fixture.h"

namespace tesk::testing {
namespace {

TEST_F(TxPanelTest, TheToFieldCutsAnEleventhCharacterAndUpperCasesLetters) {
  type(TxField::ToCall, "pa3abcdefg");
  panel.KeyUp(TxField::ToCall, 'G');
  EXPECT_EQ(main.cmbToCall.text, "PA3ABCDEFG");
  main.cmbToCall.text += "h";
  main.cmbToCall.selStart = 11;
  panel.KeyUp(TxField::ToCall, 'H');
  EXPECT_EQ(main.cmbToCall.text, "PA3ABCDEFG");
  EXPECT_EQ(main.cmbToCall.selStart, 10);
  // A letter typed in the middle: upper-cased, the caret stays where it was.
  type(TxField::ToCall, "pa3x");
  main.cmbToCall.selStart = 2;
  panel.KeyUp(TxField::ToCall, 'A');
  EXPECT_EQ(main.cmbToCall.text, "PA3X");
  EXPECT_EQ(main.cmbToCall.selStart, 2);
  // Only letters upper-case: a digit leaves a pasted lower-case text alone.
  type(TxField::ToCall, "ab1");
  panel.KeyUp(TxField::ToCall, '1');
  EXPECT_EQ(main.cmbToCall.text, "ab1");

  // Enter: swallowed, cut, added to the history and made the To call.
  main.cmbToCall.list = {"CQ"};
  type(TxField::ToCall, "xx9tkabcdefgh");
  EXPECT_TRUE(panel.KeyDown(TxField::ToCall, kKeyReturn));
  EXPECT_EQ(main.cmbToCall.text, "XX9TKABCDE");
  EXPECT_EQ(main.cmbToCall.list, (std::vector<std::string>{"CQ", "XX9TKABCDE"}));
  EXPECT_EQ(config.ToCall, "XX9TKABCDE");
  EXPECT_FALSE(panel.KeyDown(TxField::ToCall, 'A'));
}

TEST_F(TxPanelTest, TheViaFieldShowsItsPathAndTakesFiftyOnEnter) {
  type(TxField::ViaCall, "ariss");
  EXPECT_EQ(main.cmbViaCall.toolTip, "Path = ariss");
  panel.KeyUp(TxField::ViaCall, 'S');
  EXPECT_EQ(main.cmbViaCall.text, "ARISS");
  EXPECT_EQ(main.cmbViaCall.toolTip, "Path = ARISS");
  main.cmbViaCall.text = "wide2-2";
  panel.GotFocus(TxField::ViaCall);
  EXPECT_EQ(main.cmbViaCall.toolTip, "Path = wide2-2");
  EXPECT_EQ(main.txFocus, "cmbViaCall");

  main.cmbViaCall.list = {""};
  type(TxField::ViaCall, std::string(60, 'v'));
  EXPECT_EQ(Len(main.cmbViaCall.text), 60);  // no limit while typing
  EXPECT_TRUE(panel.KeyDown(TxField::ViaCall, kKeyReturn));
  EXPECT_EQ(main.cmbViaCall.text, std::string(50, 'V'));
  EXPECT_EQ(main.cmbViaCall.list.back(), std::string(50, 'V'));
  EXPECT_EQ(config.Digistation, std::string(50, 'V'));
}

TEST_F(TxPanelTest, EnterInMessageForTakesNineAndMovesToTheMessage) {
  main.cmbFor.list = {"BLN"};
  type(TxField::For, "pa3abc-15x");
  panel.KeyUp(TxField::For, 'X');
  EXPECT_EQ(main.cmbFor.text, "pa3abc-15");
  EXPECT_EQ(main.cmbFor.selStart, 9);
  main.cmbFor.text = "pa3abc-15xyz";  // pasted past the key-up limit
  EXPECT_TRUE(panel.KeyDown(TxField::For, kKeyReturn));
  EXPECT_EQ(main.cmbFor.text, "PA3ABC-15");
  EXPECT_EQ(main.cmbFor.list, (std::vector<std::string>{"BLN", "PA3ABC-15"}));
  EXPECT_EQ(main.cmbAPRSMessage.toolTip, "Message contents to transmit For:PA3ABC-15");
  EXPECT_EQ(main.txFocus, "cmbAPRSMessage");
  // Leaving the field upper-cases it.
  main.cmbFor.text = "sat";
  panel.LostFocus(TxField::For);
  EXPECT_EQ(main.cmbFor.text, "SAT");
}

TEST_F(TxPanelTest, EnterInASendingFieldAddsToTheHistoryPressesSendAndPutsTheCaretAtTheEnd) {
  main.cmbDataText.list.clear();
  type(TxField::DataText, "Hi All");
  main.cmbDataText.selStart = 2;
  EXPECT_TRUE(panel.KeyDown(TxField::DataText, kKeyReturn));
  EXPECT_EQ(main.cmbDataText.list, (std::vector<std::string>{"Hi All"}));
  EXPECT_EQ(main.cmbDataText.selStart, 6);

  main.cmbAPRSPos.list.clear();
  type(TxField::APRSPos, "73 via ISS");
  EXPECT_TRUE(panel.KeyDown(TxField::APRSPos, kKeyReturn));
  main.cmbAPRSMessage.list.clear();
  type(TxField::APRSMessage, "QSL {1}");
  EXPECT_TRUE(panel.KeyDown(TxField::APRSMessage, kKeyReturn));
  EXPECT_EQ(sent, (std::vector<std::string>{"text:Hi All", "aprs:73 via ISS", "msg:QSL {1}"}));
  EXPECT_EQ(main.cmbAPRSMessage.list, (std::vector<std::string>{"QSL (1)"}));

  // Enter goes through the button's guard like a press.
  main.cmdTXDataText.guard = "tx";
  EXPECT_TRUE(panel.KeyDown(TxField::DataText, kKeyReturn));
  EXPECT_EQ(sent.size(), 3u);
}

TEST_F(TxPanelTest, TypingLimitsApplyOnChangeButNotOnAListPick) {
  main.cmbViaCall.text = "";
  type(TxField::DataText, std::string(260, 'a'));
  EXPECT_EQ(Len(main.cmbDataText.text), 250);
  EXPECT_EQ(main.cmbDataText.selStart, 250);
  main.cmbViaCall.text = "ARISS";
  type(TxField::DataText, std::string(90, 'a'));
  EXPECT_EQ(Len(main.cmbDataText.text), 80);
  type(TxField::APRSPos, std::string(61, 'p'));
  EXPECT_EQ(Len(main.cmbAPRSPos.text), 60);
  type(TxField::APRSMessage, std::string(70, 'm'));
  EXPECT_EQ(Len(main.cmbAPRSMessage.text), 69);

  // A long entry picked from the list stays whole; only the counter follows.
  main.cmbDataText.list = {std::string(200, 'h')};
  main.cmbDataText.listIndex = 0;
  main.cmbDataText.text = main.cmbDataText.list[0];
  panel.ListPick(TxField::DataText);
  EXPECT_EQ(Len(main.cmbDataText.text), 200);
  EXPECT_EQ(main.LblMaxLengte[0].caption, "200");
  EXPECT_EQ(main.LblMaxLengte[0].foreColor, RGB(255, 0, 0));
}

TEST_F(TxPanelTest, DeleteOnAPickedWholeEntryAsksAndRemovesItOnYes) {
  main.cmbToCall.list = {"CQ", "apRS", "QST"};
  main.cmbToCall.listIndex = 1;
  main.cmbToCall.text = "apRS";
  main.cmbToCall.selStart = 0;
  main.cmbToCall.selLength = 4;
  platform.simDialogs.answers = {"N", "Y"};
  EXPECT_FALSE(panel.KeyDown(TxField::ToCall, kKeyDelete));  // the key itself still deletes
  EXPECT_EQ(main.cmbToCall.list.size(), 3u);
  panel.KeyDown(TxField::ToCall, kKeyDelete);
  EXPECT_EQ(main.cmbToCall.list, (std::vector<std::string>{"CQ", "QST"}));
  ASSERT_EQ(boxes().size(), 2u);
  EXPECT_EQ(boxes()[1].title, "Remove callsign from list");
  EXPECT_EQ(boxes()[1].text, "Do you want to remove the callsign APRS from the list?");
  EXPECT_EQ(boxes()[1].buttons, MsgButtons::YesNo);

  // Not the whole text selected, or nothing picked: no question.
  main.cmbFor.list = {"BLN", "sat"};
  main.cmbFor.listIndex = 1;
  main.cmbFor.text = "sat";
  main.cmbFor.selLength = 2;
  panel.KeyDown(TxField::For, kKeyDelete);
  main.cmbFor.selLength = 3;
  main.cmbFor.listIndex = -1;
  panel.KeyDown(TxField::For, kKeyDelete);
  EXPECT_EQ(boxes().size(), 2u);
  main.cmbFor.listIndex = 1;
  platform.simDialogs.answers = {"Y"};
  panel.KeyDown(TxField::For, kKeyDelete);
  EXPECT_EQ(boxes().back().title, "Remove item from list");
  EXPECT_EQ(boxes().back().text, "Do you want to remove the item sat from the list?");
  EXPECT_EQ(main.cmbFor.list, (std::vector<std::string>{"BLN"}));
  // The other fields have no such question.
  main.cmbDataText.list = {"x"};
  main.cmbDataText.listIndex = 0;
  main.cmbDataText.text = "x";
  main.cmbDataText.selLength = 1;
  panel.KeyDown(TxField::DataText, kKeyDelete);
  EXPECT_EQ(boxes().size(), 3u);
}

TEST_F(TxPanelTest, DropsAreRefusedWhenTooLongForTheFieldOrNotText) {
  EXPECT_TRUE(panel.DropAllowed(TxField::ToCall, "PA3ABC-15", true));
  EXPECT_TRUE(panel.DropAllowed(TxField::ToCall, std::string(10, 'A'), true));
  EXPECT_FALSE(panel.DropAllowed(TxField::ToCall, std::string(11, 'A'), true));
  EXPECT_FALSE(panel.DropAllowed(TxField::For, std::string(11, 'A'), true));
  EXPECT_TRUE(panel.DropAllowed(TxField::ViaCall, std::string(20, 'A'), true));
  EXPECT_FALSE(panel.DropAllowed(TxField::ViaCall, std::string(21, 'A'), true));
  EXPECT_FALSE(panel.DropAllowed(TxField::ViaCall, "", false));
  panel.Drop(TxField::ViaCall, "RS0ISS");
  EXPECT_EQ(main.cmbViaCall.text, "RS0ISS");
  EXPECT_EQ(main.cmbViaCall.toolTip, "Path = RS0ISS");
}

}  // namespace
}  // namespace tesk::testing
