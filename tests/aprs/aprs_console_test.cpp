// The position from the headless console: :position and :locator fill the setup window unseen
// and press OK, with its questions answered from the next input line; :aprs sends from the APRS
// field. Forms the console cannot read change nothing.
#include <gtest/gtest.h>

#include "aprs/aprs_position.h"
#include "base/text.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

class AprsConsoleTest : public SendTest {
 protected:
  void SetUp() override {
    startLan();
    path("APRS", "ARISS");
  }
  void answer(const char* a) { platform.simDialogs.answers.push_back(a); }
  std::vector<ShownBox>& boxes() { return platform.simDialogs.shown; }
  std::vector<std::string>& notices() { return platform.simViews.notices; }
  bool setupOpen() { return parts().aprsSetup.window().form.loaded; }
};

TEST_F(AprsConsoleTest, PositionPlainThenCompressedSentFromConsoleMenuAndField) {
  // No position yet: :aprs gives the box that asks for one and sends nothing.
  const std::size_t first = boxes().size();
  station->consoleLine(":aprs Hi");
  ASSERT_EQ(boxes().size(), first + 1);
  EXPECT_EQ(boxes().back().text,
            "Please enter your coordinates and enable APRS in the Setup before sending in APRS!");
  EXPECT_FALSE(station->commands().enabled({Command::menusends, 2}));

  // Longitude "4" padded, a lower-case direction, the Home icon; the change is confirmed.
  answer("Y");
  station->consoleLine(":position 50 53 25 N 4 40 50 e /- plain");
  ASSERT_EQ(boxes().size(), first + 2);
  EXPECT_EQ(boxes().back().title, "APRS Setup complete");
  EXPECT_EQ(Left(config().APRS, 20), "=5053.25N/00440.50E-");
  EXPECT_EQ(config().APRSEnabled, -1);
  EXPECT_TRUE(config().APRSCompressed.empty());
  EXPECT_FALSE(setupOpen());
  EXPECT_EQ(notices().back(), "[APRS] " + config().APRS);
  EXPECT_TRUE(station->commands().enabled({Command::menusends, 2}));
  EXPECT_FALSE(main().cmbAPRSPos.locked);

  station->consoleLine(":aprs Hi");
  // The same position again: no question; only the form changes.
  station->consoleLine(":position 50 53 25 N 004 40 50 E compressed");
  EXPECT_EQ(boxes().size(), first + 2);
  EXPECT_EQ(config().APRSCompressed, "=/4g%<O^\\E-  B");
  main().cmbAPRSPos.text = "menu";
  station->commands().run({Command::menusends, 2});
  parts().txPanel.TypeAndEnter(TxField::APRSPos, "field");
  const auto frames = sentTexts();
  const std::string tag = run().TagText;
  ASSERT_EQ(frames.size(), 3u);
  EXPECT_EQ(frames[0], "=5053.25N/00440.50E-Hi" + tag);
  EXPECT_EQ(frames[1], "=/4g%<O^\\E-  Bmenu" + tag);
  EXPECT_EQ(frames[2], "=/4g%<O^\\E-  Bfield" + tag);

  // :position alone shows both stored forms.
  notices().clear();
  station->consoleLine(":position");
  EXPECT_EQ(notices(), (std::vector<std::string>{"[APRS] " + config().APRS,
                                                 "[APRSCompressed] =/4g%<O^\\E-  B"}));
}

TEST_F(AprsConsoleTest, LocatorsUserIconsAndFormsThatChangeNothing) {
  // A lower-case locator, cut to six, with a user icon of two characters.
  answer("Y");
  station->consoleLine(":locator kn55abxx XY");
  const PositionFields kn55ab = AprsPosition::Maiden2World("KN55AB");
  EXPECT_EQ(parts().aprsSetup.window().txtMaiden.text, "KN55AB");
  EXPECT_EQ(Left(config().APRS, 20), AprsPosition::PositionText(kn55ab, "X", "Y"));
  const std::string stored = config().APRS;
  const std::size_t boxesBefore = boxes().size();

  notices().clear();
  for (const char* line :
       {":position 50 53 25 N 004 40 50", ":position 50 53 25 N 004 40 50 E /-- plain",
        ":position 50 53 25 N 004 40 50 E /- zip", ":locator", ":locator JO20 /- plain extra"})
    station->consoleLine(line);
  station->consoleLine(":locator JO2");
  ASSERT_EQ(notices().size(), 6u);
  EXPECT_EQ(notices()[0],
            "Usage: :position LATD LATM LATS N|S LOND LONM LONS E|W [ICON] [compressed|plain]");
  EXPECT_EQ(notices()[3], "Usage: :locator LOC [ICON] [compressed|plain]");
  EXPECT_EQ(notices()[5], "A locator has 4 to 6 characters, e.g. JO20 or KN55AB");
  EXPECT_EQ(config().APRS, stored);
  EXPECT_EQ(boxes().size(), boxesBefore);
  EXPECT_FALSE(setupOpen());

  // A window left open by its questions is closed as Cancel: a Yes to "try again" on a
  // latitude of one character, then a No to the confirmation of a new position.
  answer("Y");
  station->consoleLine(":position 5 53 25 N 004 40 50 E");
  EXPECT_EQ(boxes().back().title, "APRS coordinates not correct");
  answer("N");
  station->consoleLine(":locator JO20");
  EXPECT_EQ(boxes().back().title, "APRS Setup complete");
  EXPECT_FALSE(setupOpen());
  EXPECT_EQ(config().APRS, stored);
  EXPECT_EQ(config().APRSEnabled, -1);
  EXPECT_TRUE(sent().empty());
}

}  // namespace
}  // namespace tesk::testing
