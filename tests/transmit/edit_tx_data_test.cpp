// The list editor of the Text/data, APRS and Message histories: 25 entries in and out, the
// storage limit on adding, and the cuts on editing that its caption decides.
#include "transmit/edit_tx_data.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "transmit/tx_fixture.h"

namespace tesk::testing {
namespace {

class EditTXDataTest : public TxPanelTest {
 protected:
  EditTXData& editor() { return panel.editor(); }
  EditTXDataWindow& window() { return panel.editor().window(); }
  void pick(long row) { editor().List_Click(row); }
};

TEST_F(EditTXDataTest, OpensOnTheChosenListWithItsLengthsAndAtMostTwentyFiveEntries) {
  main.cmbDataText.list = Entries("entry ", 30);
  panel.cmdEditTXData_Click(0);
  EXPECT_EQ(window().form.caption, "Edit 'TX-Text/Data' List");
  EXPECT_TRUE(window().form.visible);
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmEditTXData");
  ASSERT_EQ(window().lstTXData.list.size(), 25u);
  EXPECT_EQ(window().lstLength.list[0], "7");
  EXPECT_EQ(window().lstLength.list[24], "8");
  panel.cmdEditTXData_Click(1);
  EXPECT_EQ(window().form.caption, "Edit 'TX-APRS Position' List");
  panel.cmdEditTXData_Click(2);
  EXPECT_EQ(window().form.caption, "Edit 'TX APRS-Messages' List");
  EXPECT_EQ(editor().selector(), 2);
}

TEST_F(EditTXDataTest, AddingStopsAtTwentySixAndSkipsEmptyOrSelectedTexts) {
  main.cmbAPRSPos.list = Entries("c", 25);
  panel.cmdEditTXData_Click(1);
  pick(0);
  platform.simDialogs.answers = {"", "c1", "new one"};
  editor().cmdAdd_Click();  // cancelled
  editor().cmdAdd_Click();  // the selected entry again
  EXPECT_EQ(window().lstTXData.list.size(), 25u);
  editor().cmdAdd_Click();
  ASSERT_EQ(window().lstTXData.list.size(), 26u);
  EXPECT_EQ(window().lstTXData.list.back(), "new one");
  EXPECT_EQ(window().lstLength.list.back(), "7");
  EXPECT_EQ(boxes().back().kind, "input");
  EXPECT_EQ(boxes().back().text, "Type the text:");
  EXPECT_EQ(boxes().back().title, "Add Entry");

  editor().cmdAdd_Click();
  EXPECT_EQ(boxes().back().kind, "msg");
  EXPECT_EQ(boxes().back().text,
            "Maximum storage limit has been reached. Please delete one or more entries before "
            "adding a new entry.");
  EXPECT_EQ(window().lstTXData.list.size(), 26u);

  // OK puts back 25 of them and leaves the field's text alone.
  main.cmbAPRSPos.text = "typed";
  editor().cmdOK_Click();
  ASSERT_EQ(main.cmbAPRSPos.list.size(), 25u);
  EXPECT_EQ(main.cmbAPRSPos.list.back(), "c25");
  EXPECT_EQ(main.cmbAPRSPos.text, "typed");
  EXPECT_FALSE(window().form.visible);
}

TEST_F(EditTXDataTest, EditingCutsByTheWindowsCaption) {
  const std::string longEntry(90, 'l');
  main.cmbDataText.list = {"short", longEntry};
  panel.cmdEditTXData_Click(0);
  platform.simDialogs.answers = {std::string(300, 'a'), std::string(300, 'b')};
  pick(0);
  editor().cmdEdit_Click();
  EXPECT_EQ(boxes().back().text, "Edit the text:");
  EXPECT_EQ(boxes().back().title, "Edit Line");
  EXPECT_EQ(window().lstTXData.list[0], std::string(80, 'a'));
  EXPECT_EQ(window().lstLength.list[0], "80");
  pick(1);  // an entry over 80 was a text sent without a path: it may stay long
  editor().cmdEdit_Click();
  EXPECT_EQ(window().lstTXData.list[1], std::string(250, 'b'));

  main.cmbAPRSPos.list = {"p"};
  panel.cmdEditTXData_Click(1);
  pick(0);
  platform.simDialogs.answers = {std::string(70, 'p')};
  editor().cmdEdit_Click();
  EXPECT_EQ(Len(window().lstTXData.list[0]), 60);

  // The Message caption reads "APRS-Messages" and so escapes the 69 cut.
  main.cmbAPRSMessage.list = {"m"};
  panel.cmdEditTXData_Click(2);
  pick(0);
  platform.simDialogs.answers = {std::string(80, 'm'), std::string(80, 'n')};
  editor().cmdEdit_Click();
  EXPECT_EQ(Len(window().lstTXData.list[0]), 80);
  window().form.caption = "Edit 'TX APRS Messages' List";
  editor().cmdEdit_Click();
  EXPECT_EQ(Len(window().lstTXData.list[0]), 69);

  // Unchanged or empty: the entry stays.
  platform.simDialogs.answers = {""};
  editor().cmdEdit_Click();
  EXPECT_EQ(Len(window().lstTXData.list[0]), 69);
}

TEST_F(EditTXDataTest, RemovingKeepsTheLengthListInStep) {
  main.cmbFor.list = {"unused"};
  main.cmbAPRSMessage.list = {"one", "three", "five5"};
  panel.cmdEditTXData_Click(2);
  editor().List_Scroll(1);
  EXPECT_EQ(window().topIndex, 1);
  editor().cmdRemove_Click();  // nothing selected
  EXPECT_EQ(window().lstTXData.list.size(), 3u);
  pick(1);
  EXPECT_EQ(window().lstLength.listIndex, 1);
  editor().cmdRemove_Click();
  EXPECT_EQ(window().lstTXData.list, (std::vector<std::string>{"one", "five5"}));
  EXPECT_EQ(window().lstLength.list, (std::vector<std::string>{"3", "5"}));
  editor().cmdRemoveAll_Click();
  EXPECT_TRUE(window().lstLength.list.empty());
  editor().cmdOK_Click();
  EXPECT_TRUE(main.cmbAPRSMessage.list.empty());

  // Cancel leaves the field's list as it was.
  main.cmbAPRSMessage.list = {"kept"};
  panel.cmdEditTXData_Click(2);
  editor().cmdRemoveAll_Click();
  editor().cmdCancel_Click();
  EXPECT_EQ(main.cmbAPRSMessage.list, (std::vector<std::string>{"kept"}));
  EXPECT_EQ(platform.simViews.hiddenWindows.back(), "frmEditTXData");
}

}  // namespace
}  // namespace tesk::testing
