// The automatic log's menu and label: the four modes with their captions and colours, the
// radio-like check, a choice of the operator saved at once (and only then), the "Only of
// Call..." box only when the operator asked, the Open entries following the files, and the
// restore of the mode and the Digi LogBook entries by the load pass.
#include <gtest/gtest.h>

#include <filesystem>

#include "base/text.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

constexpr Color kButtonFaceColor = static_cast<Color>(0x8000000F);
constexpr Color kButtonTextColor = static_cast<Color>(0x80000012);

class AutoLogTest : public StationTest {
 protected:
  void SetUp() override {
    make();
    station->run().AppPath = home.path();
    config().YourCallSign = "XX9TK";
  }
  StationConfig& config() { return station->config(); }
  MainWindow& main() { return station->mainWindow(); }
  PacketLog& log() { return station->parts().packetLog; }
  std::string ini() { return ReadFile(home.file("tesk.ini")); }
  bool saidMode(int mode) {
    return ini().find("[AutomaticLogging]\r\n " + std::to_string(mode) + " \r\n") !=
           std::string::npos;
  }
  int checkedModes() {
    int n = 0;
    for (int i = 0; i <= 3; ++i)
      n += main().mnuautolog[i].checked ? 1 : 0;
    return n;
  }
};

TEST_F(AutoLogTest, ModesSetLabelAndCheckAndAnOperatorsChoiceIsSavedAtOnce) {
  const Label& label = main().AutoLogLabel;
  EXPECT_EQ(label.caption, "Log OFF");
  EXPECT_EQ(label.toolTip, "Double click to change Autolog status (right-click for options)");
  // The settings' own call shows the mode and writes nothing.
  log().AutoLog(2);
  EXPECT_EQ(label.caption, "Log ON");
  EXPECT_FALSE(std::filesystem::exists(home.file("tesk.ini")));
  struct Step {
    int index;
    const char* caption;
  };
  for (const Step& s : {Step{1, "Log ON*"}, Step{3, "Log ON="}, Step{2, "Log ON"}}) {
    SCOPED_TRACE(s.index);
    platform.simDialogs.answers.push_back("");  // the call box of item 3, cancelled
    log().mnuautolog_Click(s.index);
    EXPECT_EQ(label.caption, s.caption);
    EXPECT_EQ(label.backColor, QBColor(10));
    EXPECT_EQ(label.foreColor, QBColor(1));
    EXPECT_EQ(config().AutomaticLogging, s.index);
    EXPECT_TRUE(main().mnuautolog[s.index].checked);
    EXPECT_EQ(checkedModes(), 1);
    EXPECT_TRUE(saidMode(s.index));
  }
  // Double click: on goes off, off goes to "All".
  log().AutoLogLabel_DblClick();
  EXPECT_EQ(label.caption, "Log OFF");
  EXPECT_EQ(label.backColor, kButtonFaceColor);
  EXPECT_EQ(label.foreColor, kButtonTextColor);
  EXPECT_TRUE(main().mnuautolog[0].checked);
  EXPECT_TRUE(saidMode(0));
  EXPECT_FALSE(main().mnuautolog[10].enabled);
  EXPECT_FALSE(main().mnuOpenLog[10].enabled);
  log().AutoLogLabel_DblClick();
  EXPECT_EQ(config().AutomaticLogging, 2);
  EXPECT_TRUE(saidMode(2));
  EXPECT_EQ(checkedModes(), 1);
}

TEST_F(AutoLogTest, OnlyOfCallAsksOnlyWhenTheOperatorAsked) {
  config().CallDefinedLog = "";
  log().AutoLog(3);  // the restore at start
  EXPECT_EQ(config().CallDefinedLog, "ISS");
  EXPECT_TRUE(platform.simDialogs.shown.empty());
  // From the menu: the box, preset to the call; one character keeps the old call.
  platform.simDialogs.answers = {"X"};
  log().mnuautolog_Click(3);
  ASSERT_EQ(platform.simDialogs.shown.size(), 1u);
  const ShownBox& box = platform.simDialogs.shown[0];
  EXPECT_EQ(box.kind, "input");
  EXPECT_EQ(box.title, "Log Packets Only From A Specified Call ");
  EXPECT_EQ(box.text, "Enter the call (station) you want to log the packets from:");
  EXPECT_EQ(config().CallDefinedLog, "ISS");
  // A right press on the label counts as asking too: the menu item then prompts.
  platform.simDialogs.answers = {"PA3ABC"};
  log().AutoLogLabel_RightPress();
  log().AutoLog(3);
  EXPECT_EQ(config().CallDefinedLog, "PA3ABC");
  EXPECT_NE(ini().find("[CallDefinedLog]\r\nPA3ABC\r\n"), std::string::npos);
  // The request is used up: the next call from the settings asks nothing.
  log().AutoLog(3);
  EXPECT_EQ(platform.simDialogs.shown.size(), 2u);
}

TEST_F(AutoLogTest, OpenEntriesFollowTheFilesAndTheDigiLogBookSwitchIsSaved) {
  log().AutoLog(2);
  EXPECT_FALSE(main().mnuautolog[10].enabled);
  EXPECT_FALSE(main().mnuOpenLog[10].enabled);
  EXPECT_FALSE(main().mnuautolog[50].enabled);
  EXPECT_FALSE(main().mnuOpenLog[40].enabled);
  EXPECT_TRUE(main().mnuautolog[40].checked);  // [AutoDigiLogBook] is on by default
  log().LogPacketToDisk(1, "Fm PA3ABC To CQ", "hi\r\r\n");
  EXPECT_TRUE(main().mnuautolog[10].enabled);
  log().LogPacketToDisk(2, "Fm XX9TK To CQ Via RS0ISS*", "hi\r\r\n");
  log().AutoLog(2);
  EXPECT_TRUE(main().mnuautolog[50].enabled);
  EXPECT_TRUE(main().mnuOpenLog[40].enabled);
  // Item 40 switches the Digi LogBook and saves the switch.
  log().mnuautolog_Click(40);
  EXPECT_FALSE(main().mnuautolog[40].checked);
  EXPECT_EQ(config().AutoDigiLogBook, 0);
  EXPECT_NE(ini().find("[AutoDigiLogBook]\r\n 0 \r\n"), std::string::npos);
  EXPECT_TRUE(main().mnuautolog[2].checked);
  log().mnuautolog_Click(40);
  EXPECT_EQ(config().AutoDigiLogBook, 1);
  // The Open entries hand the files to the viewer; "Open Any Log..." asks on the Logs folder.
  log().mnuautolog_Click(10);
  log().mnuOpenLog_Click(40);
  platform.simDialogs.answers = {home.file("Logs/old.log")};
  log().mnuautolog_Click(20);
  platform.simDialogs.answers = {""};
  log().mnuOpenLog_Click(20);
  EXPECT_EQ(platform.simShell.urls,
            (std::vector<std::string>{home.file("Logs/AutoLog22-11-2026.log"),
                                      home.file("Logs/DigiLogBook_XX9TK.log"),
                                      home.file("Logs/old.log")}));
  ASSERT_EQ(platform.simDialogs.shown.size(), 2u);
  EXPECT_EQ(platform.simDialogs.shown[0].kind, "open");
}

TEST_F(AutoLogTest, TheLoadPassRestoresTheModeAndTheDigiLogBookEntries) {
  std::filesystem::create_directories(home.file("Logs"));
  WriteFile(home.file("Logs/DigiLogBook_XX9TK.log"), "old entries\r\n");
  start("/LAN", "XX9TK-5");
  ASSERT_TRUE(station->loaded());
  EXPECT_EQ(config().YourCallSign, "XX9TK-5");
  EXPECT_TRUE(main().mnuautolog[40].checked);
  EXPECT_TRUE(main().mnuautolog[50].enabled);  // found by the base call
  EXPECT_EQ(main().AutoLogLabel.caption, "Log ON");
  EXPECT_TRUE(main().mnuautolog[2].checked);
  EXPECT_EQ(checkedModes(), 1);
  // The call sign was the only question: the restore asks for no log call.
  int inputs = 0;
  for (const ShownBox& box : platform.simDialogs.shown)
    inputs += box.kind == "input" ? 1 : 0;
  EXPECT_EQ(inputs, 1);
}

}  // namespace
}  // namespace tesk::testing
