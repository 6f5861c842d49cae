// The beacon file as frames on the engine: each lines selection with files of one, two and five
// lines, the position in front only as Apply stored it, the last 160 characters in two frames,
// trailing blanks, the note for a missing file at each turn, and the browse warning.
#include <gtest/gtest.h>

#include "beacon/beacon_fixture.h"

namespace tesk::testing {
namespace {

class BeaconFileTest : public BeaconTest {
 protected:
  void SetUp() override {
    startLan();
    path("CQ", "");
    config().TESKTag = 1;  // no tag, unless a test wants it
    config().BeaconFile = home.file("beacon.dat");
  }
  // The frames one turn of the file item sends.
  std::vector<std::string> turn() {
    framesBefore = lan->frames().size();
    parts().beaconFile.TX_BeaconFile();
    return sentTexts();
  }
};

TEST_F(BeaconFileTest, EachSelectionSendsItsLines) {
  const std::string one = "First line";
  const std::string two = "First line\r\nSecond line\r\n";
  const std::string five = "L1\nL2\rL3\r\nL4\nL5\n";
  struct Case {
    const std::string* file;
    int selection;
    std::vector<std::string> frames;
  };
  const Case cases[] = {
      {&one, 0, {"First line"}},
      {&one, 1, {}},  // an empty text: nothing at all
      {&one, 2, {"First line\r"}},
      {&one, 3, {"First line\r\r\r"}},  // only blanks are trimmed, the CRs stay
      {&two, 0, {"First line"}},
      {&two, 1, {"Second line"}},
      {&two, 2, {"First line\rSecond line"}},
      {&two, 3, {"First line\rSecond line\r\r"}},
      {&five, 3, {"L1\rL2\rL3\rL4"}},  // the fifth line is never sent
  };
  for (const Case& c : cases) {
    WriteFile(config().BeaconFile, *c.file);
    config().BeaconFileType = static_cast<int16_t>(c.selection);
    EXPECT_EQ(turn(), c.frames) << c.selection << " of " << *c.file;
  }
  // With the tag, even an empty selection goes out as the tag.
  config().TESKTag = 0;
  config().BeaconFileType = 1;
  WriteFile(config().BeaconFile, one);
  EXPECT_EQ(turn(), std::vector<std::string>{" {TESK54}"});
}

TEST_F(BeaconFileTest, PositionLengthAndBlanks) {
  config().APRS = "=5053.25N/00440.50E-73 from here {TESK54}";
  // The position box counts only as Apply stored it: checked and enabled (selection 0 or 1).
  WriteFile(config().BeaconFile, "Hello   \r\n");
  setup().menubeaconpopups_Click();
  window().chkItemFile.value = 1;
  setup().chkItemFile_Click();
  window().chkItemFileAddLoc.value = 1;
  setup().OptWhichBeaconLines_Click(2);
  setup().Command1_Click();
  EXPECT_EQ(turn(), std::vector<std::string>{"Hello   \r"});  // only the end is trimmed
  setup().menubeaconpopups_Click();
  setup().OptWhichBeaconLines_Click(0);
  window().chkItemFileAddLoc.value = 1;
  setup().Command1_Click();
  EXPECT_EQ(turn(), std::vector<std::string>{"=5053.25N/00440.50E-Hello"});

  // 200 characters: the first 40 go, the rest in two frames of 80.
  std::string text;
  for (int i = 0; i < 200; ++i)
    text += static_cast<char>('a' + i % 26);
  config().BeaconFileAddPosition = 0;
  WriteFile(config().BeaconFile, text);
  EXPECT_EQ(turn(), (std::vector<std::string>{text.substr(40, 80), text.substr(120, 80)}));
  // 160 characters with the position: the position is cut away again.
  config().BeaconFileAddPosition = 1;
  WriteFile(config().BeaconFile, text.substr(0, 160));
  EXPECT_EQ(turn(), (std::vector<std::string>{text.substr(0, 80), text.substr(80, 80)}));
}

TEST_F(BeaconFileTest, AMissingFileIsANoteAtEachTurnAndTheNextItemFollows) {
  config().BeaconFile = home.file("none.dat");
  main().cmbDataText.text = "hello";
  plan(10, 101001, 2);  // text and the file
  advance(11);
  EXPECT_EQ(sentTexts().size(), 1u);
  advance(10);
  EXPECT_EQ(meldText(), "Error transmitting Beacon file (Err:53)\rFile missing or empty contents");
  EXPECT_EQ(sentTexts().size(), 1u);
  advance(10);
  EXPECT_EQ(sentTexts().size(), 2u);  // the text's turn again
  parts().meld.window().lblMelding.caption.clear();
  advance(10);
  EXPECT_NE(meldText().find("(Err:53)"), std::string::npos);
  // A folder can be found but not read.
  config().BeaconFile = home.path();
  turn();
  EXPECT_NE(meldText().find("(Err:75)"), std::string::npos);
}

TEST_F(BeaconFileTest, BrowsingWarnsOnlyAboveEightyBytes) {
  setup().menubeaconpopups_Click();
  window().chkItemFile.value = 1;
  setup().chkItemFile_Click();
  const std::string small = home.file("small.dat");
  const std::string large = home.file("large.dat");
  WriteFile(small, std::string(80, 'x'));
  WriteFile(large, std::string(81, 'x'));
  const std::size_t boxes = platform.simDialogs.shown.size();
  platform.simDialogs.answers = {small};
  setup().cmdBrowseAddFilePath_Click();
  EXPECT_EQ(window().txtAddFilePath.text, small);
  EXPECT_EQ(platform.simDialogs.shown.size(), boxes + 1);  // the file dialog only
  platform.simDialogs.answers = {large};
  setup().cmdBrowseAddFilePath_Click();
  EXPECT_EQ(window().txtAddFilePath.text, large);
  EXPECT_EQ(boxTitles().back(), "Beacon File To Large");
  EXPECT_NE(platform.simDialogs.shown.back().text.find("the file has 81\r\n"), std::string::npos);
  setup().cmdEditAddFile_Click();
  EXPECT_EQ(platform.simShell.urls.back(), large);
}

}  // namespace
}  // namespace tesk::testing
