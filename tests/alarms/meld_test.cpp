// The note window in virtual time: it closes on the tick where its counter exceeds
// Int(length / 20) + 1, a replaced text goes on counting from the first one's load, a text over
// 125 characters makes it taller, and it neither waits nor asks anything.
#include <gtest/gtest.h>

#include "base/text.h"
#include "support/station_fixture.h"

namespace tesk::testing {
namespace {

class MeldTest : public StationTest {
 protected:
  void SetUp() override { make(); }
  Meld& meld() { return station->parts().meld; }
  const MeldWindow& note() { return meld().window(); }
  // Seconds from the note's start to its close, to the tenth: open at 0.05 past, closed at
  // 0.05 after, a whole tick.
  bool openAt(double seconds) {
    platform.simLoop.run(seconds - platform.simLoop.now());
    return note().form.visible;
  }
};

TEST_F(MeldTest, ClosesOnTheTickWhereTheCounterExceedsTheLimit) {
  // 19 characters: limit 1, closes at the 2nd tick; 20: limit 2, the 3rd; 40: limit 3, the
  // 4th; 130: limit 7, the 8th.
  const std::vector<std::pair<long, double>> cases = {{19, 2}, {20, 3}, {40, 4}, {130, 8}};
  for (const auto& [length, closes] : cases) {
    SCOPED_TRACE(length);
    const double t0 = platform.simLoop.now();
    meld().ShowMeld(std::string(length, 'n'), 0);
    EXPECT_TRUE(openAt(t0 + closes - 0.05));
    EXPECT_FALSE(openAt(t0 + closes + 0.05));
    EXPECT_FALSE(meld().timer().enabled());
    EXPECT_EQ(platform.simViews.hiddenWindows.back(), "Meld");
  }
}

TEST_F(MeldTest, AReplacedTextKeepsTheCountAndANewNoteStartsAgain) {
  meld().ShowMeld(std::string(19, 'a'), 0);
  platform.simLoop.run(1.5);
  EXPECT_EQ(meld().counter(), 1);
  // 40 characters, limit 3: counting on from 1, it closes at the 4th tick after the first
  // load, not 4 seconds after the replacement.
  meld().ShowMeld(std::string(40, 'b'), 1);
  EXPECT_EQ(note().lblMelding.caption, std::string(40, 'b'));
  EXPECT_FALSE(note().cmd_OK_Meld.visible);
  EXPECT_TRUE(openAt(3.95));
  EXPECT_FALSE(openAt(4.05));
  // Closed and opened again: the count starts at 0.
  meld().ShowMeld(std::string(19, 'c'), 0);
  EXPECT_EQ(meld().counter(), 0);
  EXPECT_TRUE(note().cmd_OK_Meld.visible);
  EXPECT_TRUE(openAt(4.05 + 1.9));
  EXPECT_FALSE(openAt(4.05 + 2.1));
}

TEST_F(MeldTest, ShowsWithoutWaitingGrowsForALongTextAndStandsBesideTheMonitor) {
  MainWindow& main = station->mainWindow();
  main.form.left = 1500;
  main.form.top = 900;
  main.form.width = 15000;
  main.form.height = 10000;
  const double before = platform.simLoop.now();
  meld().ShowMeld(std::string("Line one") + CRLF + "line two", 0);
  EXPECT_EQ(platform.simLoop.now(), before);
  EXPECT_TRUE(platform.simDialogs.shown.empty());
  EXPECT_EQ(platform.simViews.shownWindows.back(), "Meld");
  EXPECT_EQ(platform.simViews.notices.back(), "Line one\r\nline two");
  EXPECT_EQ(note().form.height, Meld::kHeight);
  EXPECT_EQ(note().form.left, 1500 + 12000);  // at the Monitor's right edge
  EXPECT_EQ(note().form.top, 900 + 1200);
  // Up to 125 characters the note keeps its size; beyond, it grows a line per 40 more.
  meld().ShowMeld(std::string(125, 'x'), 0);
  EXPECT_EQ(note().form.height, Meld::kHeight);
  meld().ShowMeld(std::string(126, 'x'), 0);
  EXPECT_EQ(note().form.height, Meld::kHeight + Meld::kLineHeight);
  EXPECT_EQ(note().labelHeight, Meld::kLabelHeight + Meld::kLineHeight);
  meld().ShowMeld(std::string(250, 'x'), 0);
  EXPECT_EQ(note().form.height, Meld::kHeight + 4 * Meld::kLineHeight);
  // The OK button closes it at once.
  meld().cmd_OK_Meld_Click();
  EXPECT_FALSE(note().form.visible);
  EXPECT_FALSE(meld().timer().enabled());
}

}  // namespace
}  // namespace tesk::testing
