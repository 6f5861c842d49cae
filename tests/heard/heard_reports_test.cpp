// Heard reports on the wire: the four forms, frames split by the room with the comma and the
// tag rules, type 1's part numbering from its dry run, the own and ignored calls dropped by a
// substring test, the notes for an empty list, and the ignore list's editor.
#include <gtest/gtest.h>

#include "base/text.h"
#include "heard/heard_reports.h"
#include "transmit/send_fixture.h"

namespace tesk::testing {
namespace {

class HeardReportTest : public SendTest {
 protected:
  void SetUp() override {
    startLan();
    path("CQ", "");
    config().IgnoreMheardCalls = "RS0ISS PCSAT";
  }
  // Rows of the MHeard list as the list writes them: the call in 21 columns, then the time.
  void heard(const std::vector<std::string>& calls) {
    ListBox& box = main().LstMHeardList;
    box.list.clear();
    for (const std::string& call : calls) {
      std::string row = call;
      row.resize(21, ' ');
      box.list.push_back(row + "22-11-2026 12:00:00");
    }
  }
  static std::vector<std::string> Calls(int n) {
    std::vector<std::string> out;
    for (int i = 0; i < n; ++i)
      out.push_back("PA" + std::to_string(i % 10) + "AB" + std::string(1, 'A' + i / 10));
    return out;
  }
  // The calls of the report frames, in order, with the prefixes and the tag taken off.
  static std::string JoinedCalls(const std::vector<std::string>& frames, std::size_t prefix) {
    std::string out;
    for (const std::string& f : frames)
      out += Mid(f, static_cast<long>(prefix) + 1);
    return Replace(out, "{TESK54}", "");
  }
  HeardReports& reports() { return parts().heardReports; }
};

TEST_F(HeardReportTest, ALongListSplitsByTheRoomWithCommasAndTheTagOnlyAtTheEnd) {
  const std::vector<std::string> calls = Calls(24);
  heard(calls);
  std::string expected;
  for (const std::string& c : calls)
    expected += c + ",";
  expected.pop_back();
  for (int type : {0, 2}) {
    framesBefore = lan->frames().size();
    reports().SendMheardList(static_cast<int16_t>(type));
    const std::vector<std::string> frames = sentTexts();
    ASSERT_GE(frames.size(), 3u) << type;
    const std::string prefix = HeardReports::Prefix(type, 0, 0);
    for (std::size_t i = 0; i < frames.size(); ++i) {
      EXPECT_EQ(Left(frames[i], 11), prefix);
      EXPECT_LE(Len(frames[i]), 80);
      const bool last = i + 1 == frames.size();
      EXPECT_EQ(Right(frames[i], 1) == ",", !last) << frames[i];
      EXPECT_EQ(InStr(frames[i], "{TESK54}") > 0, last) << frames[i];
      // A frame is flushed once its list reaches 80 - 19 - 11 = 50 characters.
      if (!last) {
        EXPECT_GE(Len(frames[i]) - 11, 50);
        EXPECT_LT(Len(frames[i]) - 11, 50 + 7);
      }
    }
    EXPECT_EQ(JoinedCalls(frames, 11), expected);
  }
  // With the tag off the room grows by six, and no tag goes anywhere.
  config().TESKTag = -1;
  framesBefore = lan->frames().size();
  reports().SendMheardList(0);
  const auto frames = sentTexts();
  EXPECT_EQ(JoinedCalls(frames, 11), expected);
  EXPECT_GE(Len(frames[0]) - 11, 56);
  for (const std::string& f : frames)
    EXPECT_EQ(InStr(f, "{"), 0) << f;
}

TEST_F(HeardReportTest, Type1NumbersItsPartsFromTheDryRun) {
  heard(Calls(24));
  reports().SendMheardList(1);
  auto frames = sentTexts();
  ASSERT_EQ(frames.size(), 3u);
  EXPECT_EQ(Left(frames[0], 11), ":BLNQSL1/3:");
  EXPECT_EQ(Left(frames[1], 11), ":BLNQSL2/3:");
  EXPECT_EQ(Left(frames[2], 11), ":BLNQSL3/3:");
  EXPECT_EQ(Right(frames[2], 8), "{TESK54}");

  heard({"PA3ABC", "DL1XYZ-7"});
  framesBefore = lan->frames().size();
  reports().SendMheardList(1);
  frames = sentTexts();
  ASSERT_EQ(frames.size(), 1u);
  EXPECT_EQ(frames[0], ":BLNQSL1/1:PA3ABC,DL1XYZ-7{TESK54}");

  // Ignored rows at the end: the last frame carries fewer calls, the count still agrees.
  std::vector<std::string> calls = Calls(10);
  calls.insert(calls.end(), {"RS0ISS", "PCSAT", "RS0ISS"});
  heard(calls);
  framesBefore = lan->frames().size();
  reports().SendMheardList(1);
  frames = sentTexts();
  ASSERT_EQ(frames.size(), 2u);
  EXPECT_EQ(Left(frames[1], 11), ":BLNQSL2/2:");
}

TEST_F(HeardReportTest, OwnAndIgnoredCallsAreDroppedBySubstring) {
  // The own call is dropped; so is "ISS", which only the longer RS0ISS in the list contains.
  heard({"XX9TK", "PA3ABC", "ISS", "RS0ISS", "SAT", "DL1XYZ", "XX9"});
  reports().SendMheardList(0);
  EXPECT_EQ(sentTexts(), std::vector<std::string>{":Heard    :PA3ABC,DL1XYZ{TESK54}"});
  // The own call and one other: the other goes out.
  heard({"XX9TK", "PA3ABC"});
  framesBefore = lan->frames().size();
  reports().SendMheardList(2);
  EXPECT_EQ(sentTexts(), std::vector<std::string>{":BLN0QSLs :PA3ABC{TESK54}"});
}

TEST_F(HeardReportTest, EmptyAndOwnOnlyListsSendNothing) {
  heard({});
  reports().SendMheardList(0);
  EXPECT_EQ(meldText(), "No stations heard, so nothing to send.");
  heard({"XX9TK"});
  reports().SendMheardList(1);
  EXPECT_EQ(meldText(), "You can't send your own station as a heard station.");
  parts().meld.cmd_OK_Meld_Click();
  // The own call among ignored rows only: no frame and no note.
  heard({"XX9TK", "RS0ISS", "PCSAT"});
  reports().SendMheardList(0);
  reports().SendMheardList(1);
  EXPECT_TRUE(sent().empty());
  EXPECT_FALSE(parts().meld.window().form.visible);
}

TEST_F(HeardReportTest, LastHeardTakesSixWithDigipeatersAndSevenWithout) {
  heard({"PA3ABC"});
  MHeardList& list = parts().heardList;
  const char* calls[] = {"PA1AAA", "PA2BBB", "PA3CCC", "PA4DDD", "PA5EEE", "PA6FFF", "PA7GGG"};
  for (int i = 0; i < 7; ++i) {
    platform.simLoop.run(1.0);
    list.AddToLastMheard(calls[i], false);
  }
  reports().SendMheardList(3);
  path("CQ", "RS0ISS,ARISS,WIDE2-1");
  reports().SendMheardList(3);
  const auto frames = sentTexts();
  ASSERT_EQ(frames.size(), 2u);
  EXPECT_EQ(frames[0], ":HEARDlast:PA7GGG,PA6FFF,PA5EEE,PA4DDD,PA3CCC,PA2BBB,PA1AAA{TESK54}");
  EXPECT_EQ(frames[1], ":HEARDlast:PA7GGG,PA6FFF,PA5EEE,PA4DDD,PA3CCC,PA2BBB{TESK54}");
  // An empty last-heard list: the prefix alone.
  list.LastMHeard = {};
  path("CQ", "");
  framesBefore = lan->frames().size();
  reports().SendMheardList(3);
  EXPECT_EQ(sentTexts(), std::vector<std::string>{":HEARDlast:{TESK54}"});
}

TEST_F(HeardReportTest, ButtonAndMenusSendTheChosenType) {
  heard({"PA3ABC"});
  config().TXMHeardType = 2;
  parts().txPanel.Press(SendButton::MHeard);
  reports().menumheardsend_Click(0);
  EXPECT_TRUE(main().menumheardsend[0].checked);
  EXPECT_FALSE(main().menumheardsend[2].checked);
  bool setupOpened = false;
  parts().heardList.openSetupMHeard = [&] { setupOpened = true; };
  reports().menuheardsend_Click(4);
  EXPECT_TRUE(setupOpened);
  path("", "");
  parts().txPanel.Press(SendButton::MHeard);  // no To call: nothing
  EXPECT_EQ(sentTexts(),
            (std::vector<std::string>{":BLN0QSLs :PA3ABC{TESK54}", ":Heard    :PA3ABC{TESK54}"}));
  EXPECT_EQ(run().TxCounters[4], 2);
}

TEST_F(HeardReportTest, SetupExampleShowsTheFormOfEachType) {
  const std::pair<int, std::vector<std::string>> cases[] = {
      {0, {"Heard    :PA3ABC", "Heard    :G4XYZ"}},
      {1, {"BLNQSL1/2:PA3ABC", "BLNQSL2/2:G4XYZ"}},
      {2, {"BLN0QSLs :PA3ABC", "BLN0QSLs :G4XYZ"}},
      {3, {"HEARDlast:PA3ABC"}},
  };
  for (const auto& [type, lines] : cases) {
    reports().SetTXMHeardType(static_cast<int16_t>(type));
    const std::string& text = reports().example();
    EXPECT_EQ(Left(text, 22), "Fm XX9TK To ARISS...\r\n") << type;
    for (const std::string& line : lines)
      EXPECT_NE(InStr(text, "\r\n" + line), 0) << text;
    EXPECT_EQ(Right(text, 8), "{TESK54}") << text;
    EXPECT_EQ(InStr(text, "\r\n:"), 0) << "no leading colon: " << text;
  }
}

TEST_F(HeardReportTest, IgnoreListTakes255CharactersAndCannotBeEmptied) {
  auto& answers = platform.simDialogs.answers;
  answers.push_back(std::string(256, 'A'));
  reports().EditMheardIgnore();
  EXPECT_EQ(config().IgnoreMheardCalls, "RS0ISS PCSAT");
  ASSERT_FALSE(platform.simDialogs.shown.empty());
  EXPECT_EQ(platform.simDialogs.shown.back().title, "To many calls in the ignore list");
  answers.push_back(std::string(254, 'a') + "b");
  reports().EditMheardIgnore();
  EXPECT_EQ(config().IgnoreMheardCalls, std::string(254, 'A') + "B");
  answers.push_back("");
  reports().EditMheardIgnore();
  EXPECT_EQ(config().IgnoreMheardCalls, std::string(254, 'A') + "B");
}

}  // namespace
}  // namespace tesk::testing
