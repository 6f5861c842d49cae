// Own digipeats: the header test in its three validation modes with its loose matching kept,
// the total and its reset, the automatic beacon stop at the list index, the digi sound, and
// the flash through the receive path in virtual time (with "No header" nothing counts).
#include <gtest/gtest.h>

#include "core/core_fixture.h"
#include "core/digipeat.h"

namespace tesk::testing {
namespace {

class DigipeatTest : public CoreTest {
 protected:
  void SetUp() override { startDirect(); }
  Digipeat& digi() { return parts().digipeat; }
  bool log(const std::string& header) { return digi().LogDigi(header); }
  void frame(const std::string& calls) {
    script.items.push_back({EngineText("hello\r", 1, calls), 'U'});
    tick();
  }
  void run(double s) { platform.simLoop.run(s); }
};

TEST_F(DigipeatTest, HeaderTestByValidationMode) {
  // Too short, or no mark of a repeated path entry.
  EXPECT_FALSE(log("XX9TK*"));
  EXPECT_FALSE(log("Fm XX9TK To CQ Via RS0ISS"));
  EXPECT_TRUE(log("Fm XX9TK To CQ Via RS0ISS*"));
  // The own call both as source and destination occurs twice: never counts.
  EXPECT_FALSE(log("Fm XX9TK To XX9TK Via RS0ISS*"));
  // Loose on purpose: the mark and the call need not be the same path entry.
  EXPECT_TRUE(log("Fm PA3ABC To CQ Via RS0ISS*,XX9TK"));

  config().YourCallSign = "XX9TK-1";
  const std::string otherSsid = "Fm XX9TK-2 To CQ Via RS0ISS*";
  config().OptionalDigLogSSID = 0;  // exact SSID
  EXPECT_FALSE(log(otherSsid));
  EXPECT_TRUE(log("Fm XX9TK-1 To CQ Via RS0ISS*"));
  config().OptionalDigLogSSID = 1;  // any SSID of the base call
  EXPECT_TRUE(log(otherSsid));
  EXPECT_TRUE(log("Fm XX9TK To CQ Via RS0ISS*"));
  config().OptionalDigLogSSID = 2;  // the one SSID of [UserSSID]
  config().UserSSID = 2;
  EXPECT_TRUE(log(otherSsid));
  EXPECT_FALSE(log("Fm XX9TK-1 To CQ Via RS0ISS*"));
  config().YourCallSign = "XX9TK";  // no SSID: the whole call plus "-" and the number
  EXPECT_TRUE(log(otherSsid));
  // Case-sensitive.
  config().OptionalDigLogSSID = 0;
  EXPECT_FALSE(log("Fm xx9tk To CQ Via RS0ISS*"));
  EXPECT_EQ(digi().DigipeatedTotal, 7);
  EXPECT_EQ(main().LblDigipeatedTot.caption, "7");
  EXPECT_EQ(platform.simSound.played.size(), 7u);
  EXPECT_EQ(platform.simSound.played.back(), home.path() + "/Sounds/_Digi.wav");

  // The reset starts from 0 and restarts no beacon.
  config().Beacon = 0;
  digi().mnuShowDigiStatuss_Click();
  EXPECT_EQ(digi().DigipeatedTotal, 0);
  EXPECT_EQ(main().LblDigipeatedTot.caption, "0");
  EXPECT_EQ(config().Beacon, 0);
}

TEST_F(DigipeatTest, BeaconStopsWhenTheTotalPassesTheListIndex) {
  const std::string own = "Fm XX9TK To CQ Via RS0ISS*";
  config().AutoStopBeacon = 1;
  config().StopBeaconMaxDigi = 0;  // item "1"
  config().Beacon = -1;
  log(own);
  EXPECT_EQ(config().Beacon, 0);

  // Item "3" (index 2): totals 1 and 2, equal to the index, keep it going; the third stops it.
  digi().mnuShowDigiStatuss_Click();
  config().StopBeaconMaxDigi = 2;
  config().Beacon = -1;
  log(own);
  log(own);
  EXPECT_EQ(config().Beacon, -1);
  log(own);
  EXPECT_EQ(config().Beacon, 0);

  // Without [AutoStopBeacon] nothing stops.
  config().AutoStopBeacon = 0;
  config().Beacon = -1;
  log(own);
  EXPECT_EQ(config().Beacon, -1);
}

TEST_F(DigipeatTest, OwnFrameThroughTheCoreIsPaintedCountedAndFlashed) {
  config().DigiColor = RGB(255, 128, 64);
  frame("XX9TK To CQ Via RS0ISS*");
  const std::vector<TextRun> runs = txt().runs();
  ASSERT_FALSE(runs.empty());
  bool painted = false;
  for (const TextRun& r : runs)
    painted |= r.text.find("Fm XX9TK To CQ Via RS0ISS*") != std::string::npos &&
               r.style.color == RGB(255, 128, 64);
  EXPECT_TRUE(painted);
  EXPECT_EQ(main().LblDigipeatedTot.caption, "1");
  EXPECT_EQ(parts().digiFlash.LightMode, DigiFlash::Digi);
  // First tick: the picture and the red total; the second ends the flash.
  run(0.5);
  EXPECT_TRUE(main().imgLogoDigi.visible);
  EXPECT_EQ(main().LblDigipeatedTot.backColor, RGB(255, 0, 0));
  EXPECT_EQ(main().LblDigipeatedTot.foreColor, RGB(255, 255, 255));
  run(0.6);
  EXPECT_FALSE(main().imgLogoDigi.visible);
  EXPECT_EQ(main().LblDigipeatedTot.backColor, kButtonFace);
  EXPECT_FALSE(parts().digiFlash.timer().enabled());
  // The station of the frame is in the list; the digipeater is not.
  ASSERT_EQ(main().LstMHeardList.list.size(), 1u);
  EXPECT_EQ(Left(main().LstMHeardList.list[0], 5), "XX9TK");

  // Another station's digipeat counts nothing; "No header" leaves the total standing even
  // for an own frame, while the list still gets the station.
  frame("PA3ABC To CQ Via RS0ISS*");
  main().chkViewDataOnly.value = 1;
  frame("XX9TK To CQ Via RS0ISS*");
  frame("DL1ZZZ To CQ Via RS0ISS*");
  EXPECT_EQ(digi().DigipeatedTotal, 1);
  EXPECT_EQ(main().LstMHeardList.list.size(), 3u);
}

}  // namespace
}  // namespace tesk::testing
