// The position encoders against worked values (plain, compressed, locators), and the position
// send button on a started station: the comment's room with and without the tag and by Via,
// the compressed form in the frame, and the presses that must send nothing.
#include "aprs/aprs_position.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/text.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

struct CompressedCase {
  std::string aprs, compressed;
};

TEST(AprsEncoders, PlainAndCompressedForms) {
  const PositionFields home{"50", "53", "25", "N", "004", "40", "50", "E"};
  EXPECT_EQ(AprsPosition::PositionText(home, "/", "-"), "=5053.25N/00440.50E-");

  // The worked values; the decimals are read as seconds, so 53.25 is 53'25".
  const CompressedCase cases[] = {
      {"=5053.25N/00440.50E-Hello {TESK54}", "=/4g%<O^\\E-  B"},
      {"=9000.00N\\00000.00E-", "=\\!!!!NN!!-  B"},  // the pole: Y is 0
      {"=3352.10S/15112.45W>", "=/_X{N(:+6>  B"},    // south and west
      {"=0000.00N/18000.00W>", "=/NN!!!!!!>  B"},    // the date line: X is 0
  };
  for (const CompressedCase& c : cases) {
    EXPECT_EQ(AprsPosition::APRStoCompressed(c.aprs, Mid(c.aprs, 10, 1), Mid(c.aprs, 20, 1)),
              c.compressed)
        << c.aprs;
  }
  // The symbol comes from the arguments (the icon picked), not from the stored text.
  EXPECT_EQ(AprsPosition::APRStoCompressed("=5053.25N/00440.50E-", "\\", "S"), "=\\4g%<O^\\ES  B");

  // A letter behind the digits is not part of the number.
  EXPECT_DOUBLE_EQ(AprsPosition::DegreesFromParts("34", "30", "36N"), 34.51);
  EXPECT_DOUBLE_EQ(AprsPosition::DegreesFromParts("004", "40", "30E"), 4 + 40 / 60.0 + 30 / 3600.0);
}

TEST(AprsEncoders, LocatorsGiveTheCentreWithSecondsInTheDecimals) {
  struct Case {
    std::string locator;
    PositionFields fields;
  };
  const Case cases[] = {
      {"KN55AB", {"45", "03", "45", "N", "030", "02", "30", "E"}},
      {"JO20", {"50", "28", "45", "N", "004", "57", "30", "E"}},    // "LL" appended
      {"fn31pr", {"41", "43", "45", "N", "072", "42", "30", "W"}},  // lower case, western
      {"JO20X", {"50", "28", "45", "N", "005", "57", "30", "E"}},   // one "L" appended
      {"RE78IR", {"41", "16", "15", "S", "174", "42", "30", "E"}},  // southern
  };
  for (const Case& c : cases)
    EXPECT_EQ(AprsPosition::Maiden2World(c.locator), c.fields) << c.locator;
}

TEST(AprsEncoders, DecodeTakesTheFixedPartApart) {
  const auto d = AprsPosition::DecodeAPRS("=3352.10s/15112.45w>comment");
  ASSERT_TRUE(d.has_value());
  EXPECT_EQ(d->fields, (PositionFields{"33", "52", "10", "S", "151", "12", "45", "W"}));
  EXPECT_EQ(d->table, "/");
  EXPECT_EQ(d->code, ">");
  EXPECT_FALSE(AprsPosition::DecodeAPRS("=").has_value());
  EXPECT_FALSE(AprsPosition::DecodeAPRS("=5053.25N/").has_value());
}

class AprsPressTest : public SendTest {
 protected:
  void SetUp() override {
    startLan();
    config().APRS = kPosition + std::string("old comment") + run().TagText;
    config().APRSEnabled = -1;
    path("APRS", "ARISS");
  }
  void press(const std::string& comment) {
    main().cmbAPRSPos.text = comment;
    parts().aprsPosition.cmdTXAPRS_Click();
  }
  static constexpr const char* kPosition = "=5053.25N/00440.50E-";
};

std::string Letters(long n) {
  std::string s;
  for (long i = 0; i < n; ++i)
    s += static_cast<char>('a' + i % 26);
  return s;
}

TEST_F(AprsPressTest, CommentFillsTheFrameUpTo80WithOrWithoutTheTag) {
  const std::string tag = run().TagText;
  ASSERT_EQ(Len(tag), 9);
  const std::string comment = Letters(70);
  struct Case {
    int16_t tagOff;
    std::string via;
    long room;
  };
  const Case cases[] = {
      {0, "ARISS", 51},         // 80 - 20 - 9
      {-1, "ARISS", 60},        // no tag
      {0, "RS0ISS,ARISS", 50},  // one comma: one less
      {-1, "RS0ISS,ARISS", 59},
  };
  for (const Case& c : cases) {
    config().TESKTag = c.tagOff;
    path("APRS", c.via);
    const std::size_t before = sent().size();
    press(comment + "   ");
    const auto frames = sent();
    ASSERT_EQ(frames.size(), before + 1) << c.via;
    const std::string expectTag = c.tagOff ? "" : tag;
    const std::string expected = kPosition + Left(comment, c.room) + expectTag;
    EXPECT_EQ(frames.back().text, expected) << c.via << " tag " << c.tagOff;
    EXPECT_EQ(frames.back().to, "APRS");
    EXPECT_EQ(config().APRS, expected);
    EXPECT_EQ(run().APRSWorkingText, Left(comment, c.room));
  }
  EXPECT_EQ(run().TxCounters[2], 4);
  // The history keeps the field's text (up to its 60), not the cut comment.
  const auto& history = main().cmbAPRSPos.list;
  EXPECT_NE(std::find(history.begin(), history.end(), Left(comment + "   ", 60)), history.end());
  const auto& via = main().cmbViaCall.list;
  EXPECT_NE(std::find(via.begin(), via.end(), "RS0ISS,ARISS"), via.end());
}

TEST_F(AprsPressTest, EmptyCommentAndTheCompressedFormInItsPlace) {
  press("");
  config().APRSCompressed = "=/4g%<O^\\E-  B";
  press("Hi all");
  // The compressed form takes the place of the 20 characters; the comment keeps the plain cut.
  press(Letters(70));
  const auto frames = sentTexts();
  ASSERT_EQ(frames.size(), 3u);
  EXPECT_EQ(frames[0], kPosition + run().TagText);
  EXPECT_EQ(frames[1], "=/4g%<O^\\E-  BHi all" + run().TagText);
  EXPECT_EQ(frames[2], "=/4g%<O^\\E-  B" + Letters(51) + run().TagText);
  // What is stored stays the plain form.
  EXPECT_EQ(config().APRS, kPosition + Letters(51) + run().TagText);
}

TEST_F(AprsPressTest, PressesThatSendNothing) {
  const std::string stored = config().APRS;
  // No position set up: the popup, and nothing changes.
  config().APRSEnabled = 0;
  const std::size_t boxesBefore = platform.simDialogs.shown.size();
  press("never");
  ASSERT_EQ(platform.simDialogs.shown.size(), boxesBefore + 1);
  EXPECT_EQ(platform.simDialogs.shown.back().text,
            "Please enter your coordinates and enable APRS in the Setup before sending in APRS!");
  EXPECT_EQ(config().APRS, stored);
  const auto& history = main().cmbAPRSPos.list;
  EXPECT_EQ(std::find(history.begin(), history.end(), "never"), history.end());

  // The double-press guard is up: ignored.
  config().APRSEnabled = -1;
  main().cmdTXAPRS.guard = "tx";
  press("never");
  EXPECT_EQ(config().APRS, stored);
  main().cmdTXAPRS.guard.clear();

  // No To call: [APRS] is already rebuilt when the check stops the frame.
  path("", "ARISS");
  press("rebuilt");
  EXPECT_EQ(config().APRS, kPosition + std::string("rebuilt") + run().TagText);
  EXPECT_EQ(meldText(), "No Call Sign entered!\r\nPlease enter the station Call Sign (To:)");
  EXPECT_TRUE(sent().empty());
}

}  // namespace
}  // namespace tesk::testing
