// The beacon in virtual time, as frames on the engine: items in turn at the interval, the
// count restarted by a frame sent by hand, the time windows, Smart Beacon released by frames
// through the core, the two automatic stops, and the order of the one-second tick.
#include <gtest/gtest.h>

#include <algorithm>

#include "beacon/beacon_fixture.h"
#include "state/beacon_label.h"

namespace tesk::testing {
namespace {

constexpr float kText = 100001;
constexpr float kTextAndMHeard = 110001;

class BeaconRunTest : public BeaconTest {
 protected:
  void SetUp() override {
    startLan();
    path("CQ", "");
    main().cmbDataText.text = "hello";
  }
  // A frame from another station, through the core.
  void hear(const std::string& from, const std::string& info = "hi") {
    lan->sendMonitor(from, "CQ", info);
    advance(1);
  }
};

TEST_F(BeaconRunTest, SelectedItemsGoOutInTurnOneEachInterval) {
  hear("PA3ABC");
  plan(60, kTextAndMHeard, 2);
  advance(59);
  EXPECT_TRUE(sentTexts().empty());
  advance(2);
  ASSERT_EQ(sent().size(), 1u);
  advance(58);
  EXPECT_EQ(sent().size(), 1u);
  advance(2);
  advance(60);
  const std::vector<std::string> texts = sentTexts();
  ASSERT_EQ(texts.size(), 3u);
  EXPECT_EQ(Left(texts[0], 5), "hello");
  EXPECT_NE(texts[1].find("PA3ABC"), std::string::npos) << texts[1];  // the heard report
  EXPECT_EQ(texts[2], texts[0]);
}

TEST_F(BeaconRunTest, NothingSelectedSendsNothingAndAHandSentFrameDelaysTheNext) {
  // On through a remote command with nothing selected: each turn starts a new cycle, empty.
  plan(10, 100000, 0);
  advance(100);
  EXPECT_TRUE(sent().empty());
  EXPECT_EQ(config().Beacon, -1);

  plan(60, kText, 1);
  advance(30);
  parts().txPanel.Press(SendButton::DataText);
  ASSERT_EQ(sent().size(), 1u);
  advance(31);  // 61 s from the start, 31 after the hand-sent frame
  EXPECT_EQ(sent().size(), 1u);
  advance(30);
  EXPECT_EQ(sent().size(), 2u);
}

TEST_F(BeaconRunTest, EnteringATimeWindowSendsAtOnceAndItsStopMinuteEndsIt) {
  config().AutoBeacon = -1;
  const DateTime now = platform.simClock.localNow();  // some seconds past 12:00
  const auto hhmm = [](int minutes) {
    minutes %= 24 * 60;
    const auto two = [](int n) { return (n < 10 ? "0" : "") + std::to_string(n); };
    return two(minutes / 60) + ":" + two(minutes % 60);
  };
  const int minute = now.hour * 60 + now.minute;
  config().AutoBeaconStart = hhmm(minute + 1);
  config().AutoBeaconStop = hhmm(minute + 3);
  plan(60, kText, 1);
  config().Beacon = 0;
  beacon().ShowCaption(kAutoBeacon);
  const auto untilMinute = [this](const std::string& hm) {
    return platform.simLoop.runUntil(200, [&] { return Left(main().Klok.caption, 5) == hm; });
  };
  advance(30);
  EXPECT_TRUE(sent().empty());
  EXPECT_EQ(main().lblBeacon.caption, kAutoBeacon);
  ASSERT_TRUE(untilMinute(config().AutoBeaconStart));
  EXPECT_EQ(main().lblBeacon.caption, kBeaconOn);
  advance(0.5);  // the first item of a window goes out at once
  EXPECT_EQ(sent().size(), 1u);
  EXPECT_EQ(main().lblBeacon.backColor, QBColor(12));
  EXPECT_EQ(main().lblBeacon.foreColor, QBColor(14));
  ASSERT_TRUE(untilMinute(config().AutoBeaconStop));
  EXPECT_EQ(config().Beacon, 0);
  EXPECT_EQ(main().lblBeacon.caption, kAutoBeacon);
  EXPECT_EQ(sent().size(), 2u);
  const auto& notices = platform.simViews.notices;
  EXPECT_EQ(std::count(notices.begin(), notices.end(), "Beacon: Beacon ON"), 2);  // plan() too
  EXPECT_EQ(std::count(notices.begin(), notices.end(), "Beacon: AutoBeacon"), 2);
}

TEST_F(BeaconRunTest, SmartBeaconWaitsForItsStringAndHoldsAgainTwoFramesLater) {
  config().IntelligentBeacon = "1RS0ISS";
  plan(10, kText, 1);
  advance(30);
  hear("PA3ABC");  // a frame without the string: still held
  advance(20);
  EXPECT_TRUE(sent().empty());
  hear("PA3ABC", "via rs0iss");
  advance(2);
  EXPECT_EQ(sent().size(), 1u);
  hear("PA3DEF");
  hear("PA3GHI");
  advance(40);
  EXPECT_EQ(sent().size(), 1u);
  // The engine's port lines never count, whatever they hold.
  lan->sendRaw(AgwBytes(0, 'U', "PA3ABC", "CQ", "Port1 stereo RS0ISS"));
  advance(20);
  EXPECT_EQ(sent().size(), 1u);
  // An empty string: the first frame releases it.
  config().IntelligentBeacon = "1";
  hear("PA3XYZ");
  advance(1);
  EXPECT_EQ(sent().size(), 2u);
}

TEST_F(BeaconRunTest, TheThirdOwnDigipeatStopsTheBeaconAndLeavesItsCaption) {
  setup().menubeaconpopups_Click();
  window().chkStopBeacon.value = 1;
  window().cmbStopBeacon.text = "3";
  window().chkBeaconActiv.value = 1;
  window().chkItemData.value = 1;
  setup().Command1_Click();
  ASSERT_EQ(config().StopBeaconMaxDigi, 2);
  ASSERT_EQ(config().Beacon, -1);
  for (int i = 1; i <= 3; ++i) {
    EXPECT_EQ(config().Beacon, -1) << i;
    lan->sendMonitor("XX9TK", "CQ Via RS0ISS*", "hello");
    advance(1);
  }
  EXPECT_EQ(config().Beacon, 0);
  EXPECT_EQ(main().lblBeacon.caption, kBeaconOn);
}

TEST_F(BeaconRunTest, HalfAnHourStopsTheBeaconAndNoWindowRestartsIt) {
  config().AutoStopBeacon = 1;
  config().AutoBeacon = -1;
  config().AutoBeaconStart = "00:00";
  config().AutoBeaconStop = "23:59";
  plan(600, kText, 1);
  config().Beacon = 0;
  beacon().ShowCaption(kAutoBeacon);
  advance(2);
  ASSERT_EQ(config().Beacon, -1);
  const std::size_t frames = sent().size();
  advance(1790);
  EXPECT_EQ(config().Beacon, -1);
  advance(10);
  EXPECT_EQ(config().Beacon, 0);
  EXPECT_EQ(main().lblBeacon.caption, kBeaconOn);  // kept: the window acts only on "AutoBeacon"
  advance(1200);
  EXPECT_EQ(config().Beacon, 0);
  EXPECT_EQ(sent().size(), frames + 2);  // at the window's start and 600 s later
}

TEST_F(BeaconRunTest, TheClockTickRunsItsStepsInTheFixedOrder) {
  HandOffLog& log = parts().klokkenSteps;
  log.recording = true;
  advance(1);
  ASSERT_FALSE(log.calls.empty());
  const std::string joined = log.joined();
  EXPECT_EQ(joined,
            "Klok_Change, UTC_Klok_Change, beacon counters, MHeard auto-clear, link supervision");
}

// ---- time windows ---------------------------------------------------------------------------

struct WindowCase {
  const char* start;
  const char* stop;
  const char* now;
  const char* captionBefore;
  bool on;              // [Beacon] afterwards
  const char* caption;  // lblBeacon afterwards
};

class TimeWindowTest : public BeaconTest, public ::testing::WithParamInterface<WindowCase> {};

TEST_P(TimeWindowTest, ClockChange) {
  const WindowCase& c = GetParam();
  make();
  config().AutoBeacon = -1;
  config().BeaconInterval = 60;
  // The window under test is the second of two; the first never matches.
  config().AutoBeaconStart = std::string("05:00") + c.start;
  config().AutoBeaconStop = std::string("05:00") + c.stop;
  config().Beacon = std::string(c.captionBefore) == kBeaconOn ? -1 : 0;
  beacon().ShowCaption(c.captionBefore);
  main().Klok.caption = std::string(c.now) + ":30";
  beacon().Klok_Change();
  EXPECT_EQ(config().Beacon != 0, c.on);
  EXPECT_EQ(main().lblBeacon.caption, c.caption);
  if (std::string(c.captionBefore) == kAutoBeacon && c.on) {
    EXPECT_EQ(beacon().BeaconSeconds, 60);  // due at once
  }
}

INSTANTIATE_TEST_SUITE_P(Windows, TimeWindowTest,
                         ::testing::Values(
                             // Across midnight.
                             WindowCase{"22:00", "02:00", "23:00", kAutoBeacon, true, kBeaconOn},
                             WindowCase{"22:00", "02:00", "01:00", kAutoBeacon, true, kBeaconOn},
                             WindowCase{"22:00", "02:00", "03:00", kAutoBeacon, false, kAutoBeacon},
                             WindowCase{"22:00", "02:00", "21:59", kAutoBeacon, false, kAutoBeacon},
                             // Start equal to stop: never inside.
                             WindowCase{"10:00", "10:00", "10:00", kAutoBeacon, false, kAutoBeacon},
                             WindowCase{"10:00", "10:00", "09:00", kAutoBeacon, false, kAutoBeacon},
                             WindowCase{"10:00", "10:00", "11:00", kAutoBeacon, false, kAutoBeacon},
                             // A plain window: the start minute is inside, the stop minute is not.
                             WindowCase{"10:00", "10:05", "10:00", kAutoBeacon, true, kBeaconOn},
                             WindowCase{"10:00", "10:05", "10:05", kAutoBeacon, false, kAutoBeacon},
                             // A running beacon stops only in the very stop minute ...
                             WindowCase{"10:00", "10:05", "10:05", kBeaconOn, false, kAutoBeacon},
                             // ... so one found running after it runs on.
                             WindowCase{"10:00", "10:05", "10:06", kBeaconOn, true, kBeaconOn},
                             // Off by the operator: no window starts it.
                             WindowCase{"10:00", "10:05", "10:01", kBeaconOff, false, kBeaconOff}));

}  // namespace
}  // namespace tesk::testing
