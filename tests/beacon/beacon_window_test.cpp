// The beacon window: its load and the rules between its controls, Apply's checks (a failed one
// leaves the steps before it applied and nothing after), Cancel, the restart of the count after
// the window closed, the double click on lblBeacon, and the console's :beacon lines.
#include <gtest/gtest.h>

#include <algorithm>

#include "beacon/beacon_fixture.h"
#include "state/beacon_label.h"

namespace tesk::testing {
namespace {

class BeaconWindowTest : public BeaconTest {
 protected:
  void SetUp() override { startLan(); }
  void open() { setup().menubeaconpopups_Click(); }
  void type(TextBox& box, const std::string& keys, void (BeaconSetup::*key)(int, char), int i) {
    box.text.clear();
    for (char k : keys)
      (setup().*key)(i, k);
  }
};

TEST_F(BeaconWindowTest, LoadFillsTheFieldsAndTheControlsFollowEachOther) {
  config().SelectedBeacon = 110101;
  config().AutoBeaconStart = "22:0008:15";
  config().AutoBeaconStop = "02:00";
  config().IntelligentBeacon = "0rs0iss";
  config().BeaconInterval = 3725;
  open();
  BeaconWindow& w = window();
  EXPECT_EQ(platform.simViews.shownWindows.back(), "Beacon");
  EXPECT_EQ(w.form.caption, "TESK Beacon Settings");
  EXPECT_EQ(w.chkItemData.value, 1);
  EXPECT_EQ(w.chkItemAPRS.value, 0);
  EXPECT_EQ(w.chkItemAPRSMessage.value, 1);
  EXPECT_EQ(w.chkItemMHeard.value, 1);
  EXPECT_EQ(w.TxtStart[1].text, "08:15");
  EXPECT_EQ(w.TxtStop[1].text, "");
  EXPECT_EQ(w.lblBeaconIntervalTime.caption, "(1h 2m 5s)");
  EXPECT_EQ(w.txtAddFilePath.text, home.path() + "/beacon.dat");
  EXPECT_EQ(w.cmbStopBeacon.text, "3");
  EXPECT_FALSE(w.FrmShadowExp.visible);
  // The file fields follow their box; the position only for a single line.
  EXPECT_FALSE(w.txtAddFilePath.enabled);
  w.chkItemFile.value = 1;
  setup().chkItemFile_Click();
  EXPECT_TRUE(w.txtAddFilePath.enabled);
  EXPECT_TRUE(w.chkItemFileAddLoc.enabled);
  setup().OptWhichBeaconLines_Click(2);
  EXPECT_FALSE(w.chkItemFileAddLoc.enabled);
  setup().OptWhichBeaconLines_Click(1);
  EXPECT_TRUE(w.chkItemFileAddLoc.enabled);
  // The beacon and the timed beacon exclude each other; Smart Beacon switches the beacon on.
  EXPECT_FALSE(w.txtIntelligenBeaconString.enabled);
  w.chkAutoTimedBeacon.value = 1;
  setup().chkAutoTimedBeacon_Click();
  w.chkBeaconIntelligentAktiv.value = 1;
  setup().chkBeaconIntelligentAktiv_Click();
  EXPECT_EQ(w.chkBeaconActiv.value, 1);
  EXPECT_EQ(w.chkAutoTimedBeacon.value, 0);
  EXPECT_TRUE(w.txtIntelligenBeaconString.enabled);
  w.chkAutoTimedBeacon.value = 1;
  setup().chkAutoTimedBeacon_Click();
  EXPECT_EQ(w.chkBeaconActiv.value, 0);
  // Typing: digits only, the colon comes by itself, a short time is completed on leaving.
  type(w.TxtStart[2], "2a3:45", &BeaconSetup::TxtStart_KeyPress, 2);
  EXPECT_EQ(w.TxtStart[2].text, "23:45");
  type(w.TxtStop[2], "7", &BeaconSetup::TxtStop_KeyPress, 2);
  setup().TxtStop_LostFocus(2);
  EXPECT_EQ(w.TxtStop[2].text, "07:00");
  w.txtBeaconInterval.text.clear();
  for (char k : std::string("9x0125"))
    setup().txtBeaconInterval_KeyPress(k);
  EXPECT_EQ(w.txtBeaconInterval.text, "9012");  // four digits at most
  EXPECT_EQ(w.lblBeaconIntervalTime.caption, "(2h 30m 12s)");
  setup().CmdClear_Click(2);
  EXPECT_EQ(w.TxtStart[2].text + w.TxtStop[2].text, "");
  setup().cmdPasteCurrentStartime_Click(3);
  EXPECT_EQ(w.TxtStart[3].text, Left(main().Klok.caption, 5));
}

TEST_F(BeaconWindowTest, AFailedCheckKeepsTheStepsBeforeItAndNothingAfter) {
  config().AutoStopBeacon = 0;
  config().SelectedBeacon = 100001;
  config().BeaconInterval = 60;
  open();
  BeaconWindow& w = window();
  w.chkStopBeacon.value = 1;
  w.chkBeaconIntelligentAktiv.value = 1;
  w.txtIntelligenBeaconString.text = "rs0iss";
  w.chkItemMHeard.value = 1;
  w.chkBeaconActiv.value = 1;
  w.TxtStart[1].text = "25:00";
  w.txtBeaconInterval.text = "30";
  setup().Command1_Click();
  EXPECT_EQ(boxTitles().back(), "Error in time format");
  EXPECT_EQ(w.focus, "TxtStart1");
  EXPECT_TRUE(w.form.loaded);
  EXPECT_EQ(config().AutoStopBeacon, 1);             // step 1
  EXPECT_EQ(config().IntelligentBeacon, "1RS0ISS");  // step 3
  EXPECT_EQ(config().SelectedBeacon, 100001);        // step 5 never ran
  EXPECT_EQ(config().Beacon, 0);
  EXPECT_EQ(main().lblBeacon.caption, kBeaconOff);

  // "24:00" passes as it always has; no item with the beacon on stops at step 6.
  w.TxtStart[1].text = "24:00";
  for (CheckBox* item : {&w.chkItemData, &w.chkItemMHeard})
    item->value = 0;
  setup().Command1_Click();
  EXPECT_EQ(boxTitles().back(), "Beacon enabled without RWData selection");
  EXPECT_EQ(w.focus, "chkItemData");
  EXPECT_EQ(config().SelectedBeacon, 100000);  // step 5 ran
  EXPECT_EQ(config().BeaconInterval, 60);      // step 7 did not
  EXPECT_EQ(config().Beacon, 0);

  // Fixed, a short interval is said out loud and the rest applies.
  w.chkItemMHeard.value = 1;
  w.txtBeaconInterval.text = "5";
  setup().Command1_Click();
  EXPECT_EQ(boxTitles().back(), "Short Beacon Interval");
  EXPECT_EQ(platform.simDialogs.shown.back().text,
            "Caution: You have set the beacon interval to a very short interval of 5 seconds!\r\n"
            "Beacon interval is set to 5 seconds.");
  EXPECT_FALSE(w.form.loaded);
  EXPECT_EQ(config().SelectedBeacon, 110000);
  EXPECT_EQ(config().SelectedBeaconItems, 1);
  EXPECT_EQ(config().BeaconInterval, 5);
  EXPECT_EQ(config().Beacon, -1);
  EXPECT_EQ(config().AutoBeaconStart, "24:00");
  EXPECT_EQ(config().AutoBeacon, 0);
  EXPECT_EQ(main().lblBeacon.caption, kBeaconOn);
  EXPECT_EQ(main().lblBeacon.backColor, QBColor(13));  // Smart Beacon's colour
}

TEST_F(BeaconWindowTest, ApplyStoresTimesFileChoiceAndTheTimedBeacon) {
  open();
  BeaconWindow& w = window();
  w.chkItemFile.value = 1;
  setup().chkItemFile_Click();
  w.chkItemFileAddLoc.value = 1;
  setup().OptWhichBeaconLines_Click(3);  // the position box is greyed now: stored off
  w.txtAddFilePath.text = "  /tmp/b.dat ";
  w.chkAutoTimedBeacon.value = 1;
  setup().chkAutoTimedBeacon_Click();
  w.TxtStart[0].text = "22";
  w.TxtStop[0].text = "2:5";
  w.txtBeaconInterval.text = "1";
  setup().Command1_Click();
  EXPECT_FALSE(w.form.loaded);
  EXPECT_EQ(config().AutoBeaconStart, "22:00");
  EXPECT_EQ(config().AutoBeaconStop, "02:05");
  EXPECT_EQ(config().AutoBeacon, -1);
  EXPECT_EQ(config().Beacon, 0);
  EXPECT_EQ(config().BeaconInterval, 60);  // below 2
  EXPECT_EQ(config().BeaconFile, "/tmp/b.dat");
  EXPECT_EQ(config().BeaconFileType, 3);
  EXPECT_EQ(config().BeaconFileAddPosition, 0);
  EXPECT_EQ(main().lblBeacon.caption, kAutoBeacon);
  EXPECT_EQ(main().lblBeacon.backColor, QBColor(12));
  EXPECT_EQ(main().lblBeacon.foreColor, QBColor(14));
  EXPECT_EQ(config().IntelligentBeacon, "0*");  // unchecked keeps its string
}

TEST_F(BeaconWindowTest, CancelStopsAnEmptyBeaconAndOnlyAChangedValueRestartsTheCount) {
  const auto dirty = [this] {
    beacon().BeaconSeconds = 5;
    beacon().BeaconHalted = -1;
    beacon().ShadowMinute = 7;
  };
  config().Beacon = -1;
  config().SelectedBeacon = 100001;
  dirty();
  open();
  setup().Command2_Click();
  EXPECT_EQ(config().Beacon, -1);
  EXPECT_EQ(beacon().BeaconSeconds, 5);  // nothing watched changed

  config().SelectedBeacon = 100000;
  open();
  setup().Command2_Click();
  EXPECT_EQ(config().Beacon, 0);
  EXPECT_EQ(beacon().BeaconSeconds, 0);
  EXPECT_EQ(beacon().BeaconHalted, 0);
  EXPECT_EQ(beacon().ShadowMinute, 0);

  // An item more changes none of the three: the count goes on.
  config().SelectedBeacon = 100001;
  dirty();
  open();
  window().chkItemMHeard.value = 1;
  setup().Command1_Click();
  EXPECT_EQ(beacon().BeaconSeconds, 5);
  // A new interval restarts it.
  open();
  window().txtBeaconInterval.text = "61";
  setup().Command1_Click();
  EXPECT_EQ(beacon().BeaconSeconds, 0);
  EXPECT_EQ(beacon().BeaconHalted, 0);
}

TEST_F(BeaconWindowTest, DoubleClickOnTheLabel) {
  struct Row {
    int autoBeacon;
    const char* before;
    int beacon;
    const char* after;
  };
  const Row rows[] = {{-1, kBeaconOn, 0, kBeaconOff},
                      {-1, kAutoBeacon, 0, kBeaconOff},
                      {-1, kBeaconOff, 0, kAutoBeacon},
                      {0, kBeaconOff, -1, kBeaconOn},
                      {0, kBeaconOn, 0, kBeaconOff}};
  for (int shadow : {0, 1}) {
    config().ShadowExperiment = static_cast<int16_t>(shadow);
    for (const Row& r : rows) {
      config().AutoBeacon = static_cast<int16_t>(r.autoBeacon);
      config().Beacon = std::string(r.before) == kBeaconOn ? -1 : 0;
      beacon().ShowCaption(r.before);
      beacon().BeaconSeconds = 9;
      beacon().ShadowMinute = 9;
      station->commands().run({Command::lblBeacon_DblClick});
      EXPECT_EQ(config().Beacon, r.beacon) << r.before;
      EXPECT_EQ(main().lblBeacon.caption, r.after);
      EXPECT_EQ(beacon().BeaconSeconds, 0);
      EXPECT_EQ(beacon().ShadowMinute, 0);
      // The Shadow mark follows a switch on or off, only in that mode.
      EXPECT_EQ(main().LblSpEx.visible, shadow == 1 && std::string(r.after) != kBeaconOff)
          << r.before << " " << shadow;
    }
  }
  EXPECT_EQ(main().lblBeacon.backColor, kButtonFace);
}

TEST_F(BeaconWindowTest, ConsoleSetsControlsInOrderAndRefusesWhatTheWindowWouldNot) {
  auto lines = console(":beacon chkBeaconActiv=1 txtBeaconInterval=10 chkItemMHeard=1");
  EXPECT_EQ(config().Beacon, -1);
  EXPECT_EQ(config().BeaconInterval, 10);
  EXPECT_EQ(config().SelectedBeacon, 110001);
  EXPECT_FALSE(window().form.loaded);
  ASSERT_FALSE(lines.empty());
  EXPECT_EQ(lines.front(), "Beacon: Beacon ON");
  EXPECT_EQ(lines.back(),
            "Beacon plan: Beacon ON, every 10 s, items text+MHeard, windows off, Smart Beacon off");
  EXPECT_EQ(console(":beacon").back(), lines.back());

  // Checked before the window opens: unknown names and values a control can't take.
  const std::size_t opened = platform.simViews.shownWindows.size();
  EXPECT_EQ(console(":beacon chkNothing=1"),
            std::vector<std::string>{"No control named chkNothing"});
  EXPECT_EQ(console(":beacon txtBeaconInterval=12345").size(), 1u);
  EXPECT_EQ(console(":beacon TxtStart4=1000").size(), 1u);
  EXPECT_EQ(console(":beacon cmbStopBeacon=6").size(), 1u);
  EXPECT_EQ(platform.simViews.shownWindows.size(), opened);

  // A greyed control when its turn comes: the window closes with Cancel.
  lines = console(":beacon chkBeaconIntelligentAktiv=0 txtIntelligenBeaconString=ISS");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_NE(lines[0].find("txtIntelligenBeaconString"), std::string::npos);
  EXPECT_FALSE(window().form.loaded);
  // In order: the Smart Beacon box first enables the string.
  console(":beacon chkBeaconIntelligentAktiv=1 txtIntelligenBeaconString=\"iss 1\"");
  EXPECT_EQ(config().IntelligentBeacon, "1ISS 1");

  // A failed Apply: the box is answered and the window given up.
  platform.simDialogs.answers.push_back("O");
  console(":beacon TxtStart0=2500 TxtStop0=0100");
  EXPECT_EQ(boxTitles().back(), "Error in time format");
  EXPECT_FALSE(window().form.loaded);
  // A button that closes the window ends the script without Apply.
  console(":beacon txtBeaconInterval=99 Command2");
  EXPECT_EQ(config().BeaconInterval, 10);
  // The timed beacon with a pasted start and a typed stop.
  console(":beacon chkAutoTimedBeacon=1 cmdPasteCurrentStartime0 TxtStop0=2359");
  EXPECT_EQ(config().AutoBeaconStart, Left(main().Klok.caption, 5));
  EXPECT_EQ(config().AutoBeaconStop, "23:59");
  EXPECT_EQ(config().AutoBeacon, -1);

  lines = console(":beacon toggle");
  EXPECT_EQ(lines.front(), "Beacon: Beacon OFF");
}

}  // namespace
}  // namespace tesk::testing
