// The position setup window driven as an operator drives it: what the load shows, OK's checks
// and questions in their order, the icon row and the user icon, the locator field, Cancel, and
// the six memory slots (including files that cannot be read or written).
#include "aprs/aprs_setup.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "base/text.h"
#include "platform/sim/sim_platform.h"
#include "state/main_window.h"
#include "support/station_fixture.h"
#include "transmit/tx_panel.h"

namespace tesk::testing {
namespace {

constexpr const char* kHome = "=5053.25N/00440.50E-";

class AprsSetupTest : public ::testing::Test {
 protected:
  AprsSetupTest() {
    run.AppPath = dir.path();
    run.TagText = " {TESK54}";
    run.APRSWorkingText = "73";
    // As the load pass leaves them with no position set up.
    main.cmdTXAPRS.enabled = false;
    main.cmbAPRSPos.locked = true;
    main.menusends[2].enabled = false;
  }
  APRSSetupWindow& w() { return setup.window(); }
  std::vector<ShownBox>& boxes() { return platform.simDialogs.shown; }
  void answer(std::initializer_list<const char*> answers) {
    for (const char* a : answers)
      platform.simDialogs.answers.push_back(a);
  }
  void type(const PositionFields& f) { setup.setFields(f); }
  // The row marked last in the row's order, -1 when none is.
  int marked() {
    int found = -1;
    for (int i = 0; i < kAprsIconRows; ++i)
      if (w().img_APRSImage[static_cast<std::size_t>(i)].BorderStyle == 1) found = i;
    return found;
  }
  bool open() { return w().form.loaded; }

  SimPlatform platform;
  TempDir dir;
  StationConfig config;
  RunState run;
  MainWindow main;
  AprsSetup setup{platform, config, run, {main.cmdTXAPRS, main.cmbAPRSPos, main.menusends[2]}};
};

TEST_F(AprsSetupTest, LoadShowsTheStoredPositionIconAndCompressedChoice) {
  // Nothing stored: empty fields, the first icon marked.
  setup.Show();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "frmAPRSSetup");
  EXPECT_EQ(setup.fields(), PositionFields{});
  EXPECT_EQ(marked(), 0);
  EXPECT_EQ(w().Label2.caption, "Satellite");
  EXPECT_EQ(w().cmbLatDirection.list, (std::vector<std::string>{"N", "S"}));
  EXPECT_EQ(w().cmbLonDirection.list, (std::vector<std::string>{"E", "W"}));
  EXPECT_EQ(w().txtMaiden.toolTip,
            "Maidenhead (IARU) locator conversion tool (enter 4 to 6 character locator, example: "
            "KN55AB)");
  EXPECT_FALSE(w().Cmdaprsetup.enabled);
  setup.Command2_Click();

  // A stored position with a table icon and a compressed form of 8 characters.
  config.APRS = "=5053.25n/00440.50e-73 {TESK54}";
  config.APRSCompressed = "=/4g%<O^";
  setup.Show();
  EXPECT_EQ(setup.fields(), (PositionFields{"50", "53", "25", "N", "004", "40", "50", "E"}));
  EXPECT_EQ(marked(), 2);
  EXPECT_EQ(w().Label2.caption, "Home");
  EXPECT_TRUE(w().chkAPRSCompressed.checked());
  EXPECT_FALSE(w().Check1.checked());
  setup.Command2_Click();

  // A symbol the table does not have, and a compressed form too short to count.
  config.APRS = "=5053.25N#00440.50EX";
  config.APRSCompressed = "=/4g%<O";
  setup.Show();
  EXPECT_EQ(marked(), -1);
  EXPECT_TRUE(w().Check1.checked());
  EXPECT_EQ(w().Text1.text, "#");
  EXPECT_EQ(w().Text2.text, "X");
  EXPECT_FALSE(w().chkAPRSCompressed.checked());
}

TEST_F(AprsSetupTest, OkPadsTheLongitudeAcceptsLowerCaseAndAsksBeforeAChange) {
  config.APRSEnabled = 0;
  setup.Show();
  type({"50", "53", "25", "n", "4", "40", "50", " e"});
  setup.img_APRSImage_Click(2);
  w().chkAPRSCompressed.value = 1;
  answer({"N"});
  setup.Command1_Click();  // the operator says No: nothing changes
  EXPECT_EQ(w().txtLonH.text, "004");
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0].title, "APRS Setup complete");
  EXPECT_EQ(boxes()[0].text,
            "Your latitude is: 5053.25N\r\nYour longitude is: 00440.50E\r\n"
            "Your selected Icon is: Home\r\n\r\nIs this correct?");
  EXPECT_TRUE(open());
  EXPECT_EQ(config.APRS, "");

  answer({"Y"});
  setup.Command1_Click();
  EXPECT_FALSE(open());
  EXPECT_EQ(config.APRS, std::string(kHome) + "73 {TESK54}");
  EXPECT_EQ(config.APRSEnabled, -1);
  EXPECT_EQ(config.APRSCompressed, "=/4g%<O^\\E-  B");
  EXPECT_TRUE(main.cmdTXAPRS.enabled);
  EXPECT_FALSE(main.cmbAPRSPos.locked);
  EXPECT_TRUE(main.menusends[2].enabled);

  // Opened again and OK unchanged: no question; the box unchecked clears the compressed form.
  boxes().clear();
  setup.Show();
  w().chkAPRSCompressed.value = 0;
  setup.Command1_Click();
  EXPECT_TRUE(boxes().empty());
  EXPECT_FALSE(open());
  EXPECT_EQ(config.APRSCompressed, "");
}

TEST_F(AprsSetupTest, BadCoordinatesAskToTryAgainOrGiveUp) {
  config.APRSEnabled = -1;
  setup.Show();
  type({"5", "53", "25", "N", "004", "40", "50", "E"});
  answer({"Y"});
  setup.Command1_Click();
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0].title, "APRS coordinates not correct");
  EXPECT_EQ(boxes()[0].buttons, MsgButtons::YesNo);
  EXPECT_EQ(boxes()[0].text,
            "The Latitude is not in the correct format.\r\n\r\n"
            "Do you want to try to enter your coordinates again?");
  EXPECT_TRUE(open());
  EXPECT_EQ(w().focus, "txtLatH");
  EXPECT_EQ(config.APRSEnabled, -1);

  // Longitude alone wrong (a direction of the other axis): the focus goes to its degrees.
  type({"50", "53", "25", "N", "", "40", "50", "E"});
  answer({"Y"});
  setup.Command1_Click();
  EXPECT_EQ(boxes().back().text,
            "The Longitude is not in the correct format.\r\n\r\n"
            "Do you want to try to enter your coordinates again?");
  EXPECT_EQ(w().focus, "txtLonH");
  type({"50", "53", "25", "E", "004", "40", "50", "N"});
  answer({"Y"});
  setup.Command1_Click();
  EXPECT_EQ(boxes().back().text,
            "The Latitude is not in the correct format.\r\n"
            "The Longitude is not in the correct format.\r\n\r\n"
            "Do you want to try to enter your coordinates again?");
  EXPECT_EQ(w().focus, "txtLatH");

  // No gives up: APRS is switched off and the window closes.
  answer({"N"});
  setup.Command1_Click();
  EXPECT_FALSE(open());
  EXPECT_EQ(config.APRSEnabled, 0);
  EXPECT_EQ(config.APRS, "");
}

TEST_F(AprsSetupTest, UserIconNeedsBothCharactersAndCancelRestoresTheSwitch) {
  config.APRS = std::string(kHome) + "73 {TESK54}";
  config.APRSEnabled = 0;
  setup.Show();
  config.APRSEnabled = -1;  // changed meanwhile; Cancel puts back what the load saw
  w().Check1.value = 1;
  w().Text1.text = "/";
  w().Text2.text = "";
  setup.Command1_Click();
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0].title, "Invalid user icon character");
  EXPECT_EQ(boxes()[0].text, "Invalid entry in the user defined icon values.");
  EXPECT_TRUE(open());

  w().Text2.text = "X";
  answer({"Y"});
  setup.Command1_Click();
  EXPECT_EQ(boxes().back().text,
            "Your latitude is: 5053.25N\r\nYour longitude is: 00440.50E\r\n"
            "Your selected Icon is: X / \r\n\r\nIs this correct?");
  EXPECT_EQ(config.APRS, "=5053.25N/00440.50EX73 {TESK54}");

  // An icon click takes the user icon's place; Cancel leaves [APRS] and restores the switch.
  config.APRSEnabled = 0;
  setup.Show();
  EXPECT_TRUE(w().Check1.checked());
  setup.img_APRSImage_Click(5);
  EXPECT_FALSE(w().Check1.checked());
  EXPECT_EQ(w().Label2.caption, "Car");
  config.APRSEnabled = -1;
  setup.Command2_Click();
  EXPECT_EQ(config.APRSEnabled, 0);
  EXPECT_EQ(config.APRS, "=5053.25N/00440.50EX73 {TESK54}");
  EXPECT_FALSE(open());
}

TEST_F(AprsSetupTest, TheUserRowAloneGivesTheDefaultSymbol) {
  setup.Show();
  type({"50", "53", "25", "N", "004", "40", "50", "E"});
  setup.img_APRSImage_Click(3);
  setup.img_APRSImage_Click(20);
  EXPECT_EQ(marked(), 20);
  setup.Command1_Click();
  EXPECT_EQ(config.APRS, "=5053.25N\\00440.50ES73 {TESK54}");
}

TEST_F(AprsSetupTest, LocatorFieldKeysAndConversion) {
  setup.Show();
  TextBox& loc = w().txtMaiden;
  loc.text = "kn 5";
  loc.selStart = 4;
  setup.txtMaiden_KeyUp(32);
  EXPECT_EQ(loc.text, "kn5");
  EXPECT_EQ(loc.selStart, 3);
  loc.text = "kn55ab";
  loc.selStart = 2;
  setup.txtMaiden_KeyUp(kKeyA + 1);
  EXPECT_EQ(loc.text, "KN55AB");
  EXPECT_EQ(loc.selStart, 2);

  EXPECT_FALSE(setup.txtMaiden_KeyDown(kKeyA));
  EXPECT_EQ(setup.fields(), PositionFields{});
  EXPECT_TRUE(setup.txtMaiden_KeyDown(kKeyReturn));
  EXPECT_EQ(setup.fields(), (PositionFields{"45", "03", "45", "N", "030", "02", "30", "E"}));

  // Fewer than four characters: nothing happens.
  loc.text = " JO2 ";
  setup.CmdOkLocat_Click();
  EXPECT_EQ(w().txtLatH.text, "45");
  loc.text = " JO20 ";
  setup.CmdOkLocat_Click();
  EXPECT_EQ(setup.fields(), (PositionFields{"50", "28", "45", "N", "004", "57", "30", "E"}));
  EXPECT_TRUE(boxes().empty());
}

TEST_F(AprsSetupTest, MemorySlotsSaveReadBackAndReportEmptySlots) {
  const PositionFields home{"50", "53", "25", "N", "004", "40", "50", "E"};
  setup.Show();
  type(home);
  setup.CmdMem_MouseUp(0, AprsSetup::kRightButton);
  EXPECT_EQ(ReadFile(dir.file("MemLoc0.ini")), "50\r\n53\r\n25\r\nN\r\n004\r\n40\r\n50\r\nE\r\n");
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0].title, "Save Memory Slot");
  EXPECT_EQ(boxes()[0].text, "Coordinates are successfully stored in Memory Slot nr.1");

  // Read back into other fields.
  type({"01", "02", "03", "S", "005", "06", "07", "W"});
  setup.CmdMem_MouseUp(0, AprsSetup::kLeftButton);
  EXPECT_EQ(setup.fields(), home);

  // Saving over a stored slot asks; No keeps the file.
  type({"01", "02", "03", "S", "005", "06", "07", "W"});
  answer({"N"});
  setup.CmdMem_MouseUp(0, AprsSetup::kRightButton);
  EXPECT_EQ(boxes().back().title, "Memory slot 1");
  EXPECT_EQ(boxes().back().text,
            "There is already a location stored here.\r\n"
            "Do you want to replace/update this memory slot with the current location?");
  EXPECT_EQ(ReadFile(dir.file("MemLoc0.ini")).substr(0, 2), "50");

  // An empty direction saves nothing, quietly.
  boxes().clear();
  type({"01", "02", "03", "", "005", "06", "07", "W"});
  setup.CmdMem_MouseUp(5, AprsSetup::kRightButton);
  EXPECT_FALSE(std::filesystem::exists(dir.file("MemLoc5.ini")));
  EXPECT_TRUE(boxes().empty());

  // A slot of "0000" and a missing slot: their boxes, the fields untouched.
  WriteFile(dir.file("MemLoc3.ini"), "0000\r\n");
  type(home);
  setup.CmdMem_MouseUp(3, AprsSetup::kLeftButton);
  EXPECT_EQ(boxes().back().title, "Empty Memory Slot");
  EXPECT_EQ(boxes().back().text,
            "No coordinates stored in this slot.\r\n"
            "Please enter coordinates and press right-mouse on the memory slot to save.");
  setup.CmdMem_MouseUp(4, AprsSetup::kLeftButton);
  EXPECT_EQ(boxes().back().text, "Empty Memory Slot, nothing to read.");
  EXPECT_EQ(setup.fields(), home);

  // A "0000" slot is saved over without a question; a short file leaves the rest empty.
  boxes().clear();
  setup.CmdMem_MouseUp(3, AprsSetup::kRightButton);
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_EQ(boxes()[0].title, "Save Memory Slot");
  WriteFile(dir.file("MemLoc2.ini"), "12\n34\n56\nS");
  setup.CmdMem_MouseUp(2, AprsSetup::kLeftButton);
  EXPECT_EQ(setup.fields(), (PositionFields{"12", "34", "56", "S", "", "", "", ""}));
}

TEST_F(AprsSetupTest, MemorySlotsThatCannotBeWrittenLeaveEverythingAsItWas) {
  namespace fs = std::filesystem;
  const PositionFields home{"50", "53", "25", "N", "004", "40", "50", "E"};
  setup.Show();
  type(home);
  // A slot that is a folder can be neither read nor written, whoever runs the test.
  fs::create_directory(dir.file("MemLoc1.ini"));
  setup.CmdMem_MouseUp(1, AprsSetup::kRightButton);
  setup.CmdMem_MouseUp(1, AprsSetup::kLeftButton);
  EXPECT_EQ(setup.fields(), home);
  for (const ShownBox& box : boxes())
    EXPECT_NE(box.title, "Save Memory Slot");

  // A read-only program folder: no file and no report (a user that may write anyway gets both).
  boxes().clear();
  fs::permissions(dir.path(), fs::perms::owner_read | fs::perms::owner_exec);
  setup.CmdMem_MouseUp(0, AprsSetup::kRightButton);
  const bool written = fs::exists(dir.file("MemLoc0.ini"));
  EXPECT_EQ(written, !boxes().empty());
  setup.CmdMem_MouseUp(0, AprsSetup::kLeftButton);
  EXPECT_EQ(setup.fields(), home);
  EXPECT_TRUE(open());
}

}  // namespace
}  // namespace tesk::testing
