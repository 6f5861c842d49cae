// The Shadow Experiment: its frame and destination on the wire in both link modes with the path
// put back, the minute of frames and the pause in virtual time, the window's Shadow frame and
// its checks, and the wizard with its refusals.
#include <gtest/gtest.h>

#include <algorithm>

#include "beacon/beacon_fixture.h"
#include "state/beacon_label.h"

namespace tesk::testing {
namespace {

class ShadowTest : public BeaconTest {
 protected:
  void shadowOn(int interval, int pause) {
    config().ShadowExperiment = -1;
    config().ShadowExperiment_ISO = "be";
    config().ShExpPauseTX = static_cast<int16_t>(pause);
    plan(interval, 100000, 0);
    // As the wrap of the minute leaves them, after that second's count.
    beacon().ShadowMinute = 0;
    beacon().BeaconSeconds = 2;
  }
  long pauseNotes() {
    const std::string text = monitorText();
    long n = 0;
    for (std::size_t at = text.find("Pausing for"); at != std::string::npos;
         at = text.find("Pausing for", at + 1))
      ++n;
    return n;
  }
  ShadowExperiment& shadow() { return parts().shadow; }
};

TEST_F(ShadowTest, TheFrameGoesToBeaconViaArissInBothModesAndThePathComesBack) {
  startLan();
  path("CQ", "RS0ISS");
  parts().txPanel.ValidateToViaBoxes();
  config().ShadowExperiment_ISO = "be";
  shadow().ExecuteShadowExp();
  const DateTime now = platform.simClock.localNow();
  const auto two = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
  std::vector<SentUi> got = sent();
  ASSERT_EQ(got.size(), 1u);
  EXPECT_EQ(got[0].to, "BEACON");
  EXPECT_EQ(got[0].via, std::vector<std::string>{"ARISS"});
  EXPECT_EQ(got[0].text, "SpEx SHADOW " + two(now.hour) + ":" + two(now.minute) + ":" +
                             two(now.second) + " *BE* " + two(now.day) + "-" + two(now.month) +
                             "-" + std::to_string(now.year) + "/");
  EXPECT_EQ(config().ToCall, "CQ");
  EXPECT_EQ(config().Digistation, "RS0ISS");
  EXPECT_EQ(run().TxCounters[10], 1);
  // The UTC clock's caption with [ShadowExpGMT]; another destination as it is set.
  config().ShadowExpGMT = 1;
  config().ShadowExperiment_DIGI = " apsat ";
  main().UTC_Klok.caption = "11:22:33";
  shadow().ExecuteShadowExp();
  got = sent();
  EXPECT_EQ(got.back().to, "APSAT");
  EXPECT_TRUE(got.back().via.empty());
  EXPECT_EQ(got.back().text.substr(0, 20), "SpEx SHADOW 11:22:33");
}

TEST_F(ShadowTest, DirectModeTakesThePathAsOneTextAndTheViaBoxDecidesTheKind) {
  startDirect();
  config().ShadowExperiment_ISO = "BE";
  path("CQ", "RS0ISS");
  parts().txPanel.ValidateToViaBoxes();
  const std::string before = run().ToVia;
  shadow().ExecuteShadowExp();
  std::vector<SentUi> got = sent();
  ASSERT_EQ(got.size(), 1u);
  EXPECT_EQ(got[0].to, "BEACON");
  EXPECT_EQ(got[0].via, std::vector<std::string>{"ARISS"});
  EXPECT_EQ(run().ToVia, before);
  // An empty Via box: a plain frame to BEACON, without ARISS.
  path("CQ", "");
  parts().txPanel.ValidateToViaBoxes();
  shadow().ExecuteShadowExp();
  got = sent();
  ASSERT_EQ(got.size(), 2u);
  EXPECT_EQ(got[1].kind, 'M');
  EXPECT_EQ(got[1].to, "BEACON");
  EXPECT_TRUE(got[1].via.empty());
}

TEST_F(ShadowTest, AMinuteOfFramesThenTheAnnouncedPauseAndAgain) {
  startLan();
  path("CQ", "");
  shadowOn(3, 60);
  advance(60);
  EXPECT_EQ(sent().size(), 20u);
  EXPECT_EQ(pauseNotes(), 1);
  EXPECT_NE(monitorText().find("TESK ShadowExperiment Beacon Pausing for 60 seconds..."),
            std::string::npos);
  advance(59);
  EXPECT_EQ(sent().size(), 20u);  // a minute of silence
  advance(61);
  EXPECT_EQ(sent().size(), 40u);
  EXPECT_EQ(pauseNotes(), 2);  // one note a pause

  // [Beacon] off: nothing counts.
  config().Beacon = 0;
  const int16_t minute = beacon().ShadowMinute;
  advance(30);
  EXPECT_EQ(beacon().ShadowMinute, minute);
  EXPECT_EQ(sent().size(), 40u);
}

TEST_F(ShadowTest, PauseZeroSendsTheExtraFrameAndWrapsAtOnce) {
  startLan();
  path("CQ", "");
  shadowOn(3, 0);
  beacon().ShadowMinute = 59;
  beacon().BeaconSeconds = 1;
  advance(1);  // second 60: one frame at once, the counter at 0
  EXPECT_EQ(sent().size(), 1u);
  EXPECT_EQ(beacon().ShadowMinute, 60);
  advance(1);  // and the wrap on the next second
  EXPECT_EQ(beacon().ShadowMinute, 0);
  EXPECT_EQ(pauseNotes(), 0);
  // The double click, Apply and a window reset the minute.
  beacon().ShadowMinute = 30;
  beacon().lblBeacon_DblClick();
  EXPECT_EQ(beacon().ShadowMinute, 0);
  beacon().ShadowMinute = 30;
  setup().menubeaconpopups_Click();  // the beacon is off since the double click
  ASSERT_EQ(window().ChkShadow.value, 1);
  window().chkBeaconActiv.value = 1;
  setup().chkBeaconActiv_Click();
  setup().Command1_Click();
  EXPECT_EQ(config().Beacon, -1);
  EXPECT_EQ(beacon().ShadowMinute, 0);
  beacon().ShadowMinute = 30;
  config().AutoBeacon = -1;
  config().AutoBeaconStart = "00:00";
  config().AutoBeaconStop = "23:59";
  beacon().ShowCaption(kAutoBeacon);
  beacon().Klok_Change();
  EXPECT_EQ(beacon().ShadowMinute, 0);
}

TEST_F(ShadowTest, TheWindowsShadowFrameItsRulesAndItsChecks) {
  startLan();
  config().BeaconInterval = 5;
  config().SelectedBeacon = 100011;
  setup().menubeaconpopups_Click();
  BeaconWindow& w = window();
  EXPECT_TRUE(w.FrmShadowExp.visible);  // below 6 only
  w.txtBeaconInterval.text = "6";
  setup().txtBeaconInterval_LostFocus();
  EXPECT_FALSE(w.FrmShadowExp.visible);
  w.txtBeaconInterval.text = "3";
  setup().txtBeaconInterval_LostFocus();
  ASSERT_TRUE(w.FrmShadowExp.visible);
  // Checking it switches the beacon on and every item off; unchecking the beacon unchecks it.
  w.ChkShadow.value = 1;
  setup().ChkShadow_Click();
  EXPECT_EQ(w.chkBeaconActiv.value, 1);
  EXPECT_EQ(w.chkItemData.value + w.chkItemAPRS.value, 0);
  EXPECT_FALSE(w.txtAddFilePath.enabled);
  w.chkBeaconActiv.value = 0;
  setup().chkBeaconActiv_Click();
  EXPECT_EQ(w.ChkShadow.value, 0);

  // Apply: the country code must be there.
  w.ChkShadow.value = 1;
  setup().ChkShadow_Click();
  w.txtISOcode.text = "  ";
  w.txtShExpPause.text = "45";
  setup().Command1_Click();
  EXPECT_EQ(platform.simDialogs.shown.back().text,
            "You need to enter your Country ISO code please to correctly use the Shadow "
            "Experiment.");
  EXPECT_EQ(w.focus, "txtISOcode");
  EXPECT_TRUE(w.form.loaded);
  // Filled in: the reminder of step 8, then the mode runs with no items.
  w.txtISOcode.text = " nl ";
  setup().Command1_Click();
  EXPECT_EQ(boxTitles().back(), "Shadow Experiment: Short Beacon Interval");
  EXPECT_EQ(platform.simDialogs.shown.back().text,
            "Remember that the Shadow Experiment should ONLY be performed if you are authorized "
            "to transmit\r\n'Shadow Experiment' packet frames!\r\nBeacon interval is set to 3 "
            "seconds.");
  EXPECT_FALSE(w.form.loaded);
  EXPECT_EQ(config().ShadowExperiment, -1);
  EXPECT_EQ(config().ShadowExperiment_ISO, "NL");
  EXPECT_EQ(config().ShExpPauseTX, 45);
  EXPECT_EQ(config().SelectedBeacon, 100000);
  EXPECT_EQ(config().Beacon, -1);
  EXPECT_TRUE(main().LblSpEx.visible);
  const auto& notices = platform.simViews.notices;
  EXPECT_NE(std::find(notices.begin(), notices.end(), "Shadow: Shadow Exp. Mode!"), notices.end());

  // A short interval with the frame shown offers the mode: No goes on, Yes checks it.
  for (const char* answer : {"N", "Y"}) {
    setup().menubeaconpopups_Click();
    w.ChkShadow.value = 0;
    w.chkItemData.value = 1;
    w.chkBeaconActiv.value = 1;
    platform.simDialogs.answers = {answer};
    setup().Command1_Click();
    EXPECT_EQ(boxTitles().back(), "Short Beacon Interval: Shadow Experiment");
    if (std::string(answer) == "N") {
      EXPECT_FALSE(w.form.loaded);
      EXPECT_EQ(config().ShadowExperiment, 0);
      EXPECT_FALSE(main().LblSpEx.visible);
    } else {
      EXPECT_TRUE(w.form.loaded);
      EXPECT_EQ(w.ChkShadow.value, 1);
      EXPECT_EQ(w.chkItemData.value, 0);
      EXPECT_EQ(w.focus, "txtISOcode");
    }
  }
}

TEST_F(ShadowTest, TheWizardSetsTheModeOrEndsAtAWrongAnswerKeepingEarlierOnes) {
  startLan();
  config().BeaconInterval = 60;
  config().ShExpPauseTX = 60;
  config().SelectedBeacon = 100001;
  config().Beacon = 0;
  // The full path, No at the last box: the mode is set, the beacon stays off.
  platform.simDialogs.answers = {"Y", "3", "30", " us ", "N"};
  station->commands().run({Command::mnuShadowWizard});
  const std::vector<std::string> titles = boxTitles();
  EXPECT_EQ(std::vector<std::string>(titles.end() - 5, titles.end()),
            (std::vector<std::string>{
                "Shadow Experiment Wizard", "Shadow Experiment: Beacon Interval",
                "Shadow Experiment: Beacon Pause/TX",
                "Shadow Experiment: Country two-letter ISO code", "Enable Shadow Experiment"}));
  EXPECT_EQ(config().BeaconInterval, 3);
  EXPECT_EQ(config().ShExpPauseTX, 30);
  EXPECT_EQ(config().ShadowExperiment_ISO, "US");
  EXPECT_EQ(config().ShadowExperiment, -1);
  EXPECT_EQ(config().SelectedBeacon, 100000);
  EXPECT_EQ(config().Beacon, 0);
  EXPECT_FALSE(main().LblSpEx.visible);
  // Yes at the last box: on, with its summary and marks.
  platform.simDialogs.answers = {"Y", "4", "0", "gb", "Y"};
  auto lines = console(":wizard");
  EXPECT_EQ(boxTitles().back(), "Shadow Experiment Enabled");
  EXPECT_EQ(platform.simDialogs.shown.back().text,
            "Summary: the beacon, during the Shadow Experiment, will transmit 1 minute of "
            "continues packets with an interval between each packet of 4 seconds.\r\n"
            "An additional pause of 0 seconds added after every minute of beacon transmissions.");
  EXPECT_EQ(config().Beacon, -1);
  EXPECT_TRUE(main().LblSpEx.visible);
  EXPECT_EQ(main().lblBeacon.caption, kBeaconOn);
  EXPECT_EQ(lines.back(),
            "Beacon plan: Beacon ON, every 4 s, items Shadow Experiment, windows off, Smart Beacon "
            "off");

  // Refusals end it; what was answered before stays, the mode and the beacon as they were.
  config().ShadowExperiment = 0;
  config().SelectedBeacon = 100001;
  config().Beacon = 0;
  struct Refusal {
    std::vector<std::string> answers;
    int interval, pause;
  };
  const Refusal refusals[] = {{{"Y", "10"}, 4, 0},
                              {{"Y", "5", "99"}, 5, 0},
                              {{"Y", "6", "20", "BEL"}, 6, 20},
                              {{"Y", "7", ""}, 7, 20},  // a cancelled box
                              {{"N"}, 7, 20}};
  for (const Refusal& r : refusals) {
    platform.simDialogs.answers = {r.answers.begin(), r.answers.end()};
    shadow().Wizard();
    EXPECT_EQ(config().BeaconInterval, r.interval) << r.answers.size();
    EXPECT_EQ(config().ShExpPauseTX, r.pause);
    EXPECT_EQ(config().ShadowExperiment, 0);
    EXPECT_EQ(config().SelectedBeacon, 100001);
    EXPECT_EQ(config().Beacon, 0);
  }
  EXPECT_EQ(config().ShadowExperiment_ISO, "GB");
}

}  // namespace
}  // namespace tesk::testing
