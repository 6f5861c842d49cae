// Heard reports on the wire: the four forms, frames split by the room with the comma and the
// tag rules, type 1's part numbering from its dry run, the own and ignored calls dropped by a
// substring test, the notes for an empty list, and the ignore list's editor.
#include <gtest/gtest.h>

#include <random>
#include <set>

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

// One type 1 report as the stations receive it: the frames with the 80-character pieces joined
// again, each split into its part, its total and its calls.
struct Report {
  struct Frame {
    int part = 0, total = 0;
    std::vector<std::string> calls;
    bool endsInComma = false, tagged = false;
  };
  std::vector<Frame> frames;
  std::vector<std::string> calls() const {
    std::vector<std::string> out;
    for (const Frame& f : frames)
      out.insert(out.end(), f.calls.begin(), f.calls.end());
    return out;
  }
};

Report ReadReport(const std::vector<std::string>& texts, const std::string& tag) {
  std::vector<std::string> whole;
  for (const std::string& t : texts) {
    if (Left(t, 7) == ":BLNQSL" || whole.empty()) {
      whole.push_back(t);
    } else {
      whole.back() += t;  // a frame over 80 characters went out in two pieces
    }
  }
  Report report;
  for (std::string text : whole) {
    Report::Frame f;
    const long slash = InStr(text, "/");
    const long colon = InStr(2, text, ":");
    EXPECT_EQ(Left(text, 7), ":BLNQSL") << text;
    f.part = static_cast<int>(Val(Mid(text, 8, slash - 8)));
    f.total = static_cast<int>(Val(Mid(text, slash + 1, colon - slash - 1)));
    std::string list = Mid(text, colon + 1);
    f.tagged = !tag.empty() && Right(list, Len(tag)) == tag;
    if (f.tagged) list = Left(list, Len(list) - Len(tag));
    f.endsInComma = Right(list, 1) == ",";
    for (long at = 1; at <= Len(list);) {
      const long comma = InStr(at, list, ",");
      const long end = comma > 0 ? comma : Len(list) + 1;
      f.calls.push_back(Mid(list, at, end - at));
      at = end + 1;
    }
    report.frames.push_back(f);
  }
  return report;
}

// Calls of 3 to 9 characters, some with an SSID, all different and none inside the ignore
// text, so that each one must go out.
std::vector<std::string> MixedCalls(std::mt19937& rng, int n, const std::string& ignoreText) {
  const auto pick = [&rng](int lo, int hi) {
    return std::uniform_int_distribution<int>(lo, hi)(rng);
  };
  std::set<std::string> seen;
  std::vector<std::string> out;
  while (static_cast<int>(out.size()) < n) {
    std::string call;
    for (int i = pick(1, 2); i > 0; --i)
      call += static_cast<char>('A' + pick(0, 25));
    call += static_cast<char>('0' + pick(0, 9));
    for (int i = pick(1, 3); i > 0; --i)
      call += static_cast<char>('A' + pick(0, 25));
    if (pick(0, 2) == 0) call += "-" + std::to_string(pick(1, 15));
    if (InStr(ignoreText, call) > 0 || !seen.insert(call).second) continue;
    out.push_back(call);
  }
  return out;
}

TEST_F(HeardReportTest, Type1PartsRunFromOneToTheTotalOnListsOfAnySize) {
  const std::string ignoreText = "RS0ISS PCSATXX9TK";
  const std::string tag = "{TESK54}";
  // Each report must read 1/N .. N/N with every call that is not ignored once, in list order.
  const auto check = [&](const std::vector<std::string>& rows, const std::string& what) {
    std::vector<std::string> expected;
    for (const std::string& r : rows)
      if (InStr(ignoreText, r) == 0) expected.push_back(r);
    heard(rows);
    framesBefore = lan->frames().size();
    reports().SendMheardList(1);
    const Report report = ReadReport(sentTexts(), config().TESKTag == 0 ? tag : "");
    ASSERT_FALSE(report.frames.empty()) << what;
    const int total = static_cast<int>(report.frames.size());
    for (int i = 0; i < total; ++i) {
      const Report::Frame& f = report.frames[static_cast<std::size_t>(i)];
      EXPECT_EQ(f.part, i + 1) << what;
      EXPECT_EQ(f.total, total) << what;
      const bool last = i + 1 == total;
      EXPECT_EQ(f.endsInComma, !last) << what;
      EXPECT_EQ(f.tagged, last && config().TESKTag == 0) << what;
    }
    EXPECT_EQ(report.calls(), expected) << what;
  };

  // 80 calls of six characters, no Via, tag on: the old count said 10 and 12 frames went out.
  std::vector<std::string> sixes;
  for (int i = 0; i < 80; ++i)
    sixes.push_back("PA" + std::to_string(i % 10) + "A" + std::string(1, 'A' + i / 10 % 26) +
                    std::string(1, 'A' + i % 26));
  path("CQ", "");
  check(sixes, "80 six-character calls");

  std::mt19937 rng(29);
  const char* const vias[] = {"", "ARISS", "RS0ISS,ARISS", "RS0ISS,ARISS,WIDE2-1"};
  for (int list = 0; list < 200; ++list) {
    const int n = std::uniform_int_distribution<int>(60, 250)(rng);
    std::vector<std::string> rows = MixedCalls(rng, n, ignoreText);
    // Ignored and own calls among them, never last: a list ending in ignored rows may end on
    // a flush, which the count of frames does not foresee.
    for (const char* skip : {"RS0ISS", "PCSAT", "XX9TK", "ISS"})
      rows.insert(rows.begin() + std::uniform_int_distribution<int>(0, n - 1)(rng), skip);
    const char* via = vias[list % 4];
    config().TESKTag = static_cast<int16_t>(list / 4 % 2 == 0 ? 0 : -1);
    path("CQ", via);
    check(rows, "list " + std::to_string(list) + " of " + std::to_string(n) + " via \"" + via +
                    "\" tag " + std::to_string(config().TESKTag));
    if (HasFailure()) break;
  }
}

TEST_F(HeardReportTest, Type1FramesOfAReportBelowTenPartsAreAsTheyWere) {
  heard({"PA3ABC", "K1A",       "DL1XYZ-7", "RS0ISS", "G4XYZ",  "OK1ABC-15",
         "F5AB",   "VE3ZZZ-9",  "W1AW",     "JA1XYZ", "PCSAT",  "EA4ABC-1",
         "ON4BBB", "SP9CCC-12", "N0XYZ",    "IK2DDD", "LU1EEE", "ZS6FFF-3",
         "VK2GGG", "HB9HH",     "OH2III-7", "SM5JJJ", "YO3K",   "LA1LLL-11",
         "OZ1MMM", "9A1NN",     "S51OOO-2", "CT1PPP", "EI4QQQ", "UA3RRR-14",
         "KB2SSS", "M0TTT",     "PY2UUU-5", "4X1VVV", "TA1WWW", "KP4XXX-9"});
  reports().SendMheardList(1);
  EXPECT_EQ(sentTexts(), (std::vector<std::string>{
                             ":BLNQSL1/5:PA3ABC,K1A,DL1XYZ-7,G4XYZ,OK1ABC-15,F5AB,VE3ZZZ-9,",
                             ":BLNQSL2/5:W1AW,JA1XYZ,EA4ABC-1,ON4BBB,SP9CCC-12,N0XYZ,IK2DDD,",
                             ":BLNQSL3/5:LU1EEE,ZS6FFF-3,VK2GGG,HB9HH,OH2III-7,SM5JJJ,YO3K,",
                             ":BLNQSL4/5:LA1LLL-11,OZ1MMM,9A1NN,S51OOO-2,CT1PPP,EI4QQQ,UA3RRR-14,",
                             ":BLNQSL5/5:KB2SSS,M0TTT,PY2UUU-5,4X1VVV,TA1WWW,KP4XXX-9{TESK54}",
                         }));
  config().TESKTag = -1;
  path("CQ", "RS0ISS,ARISS");
  framesBefore = lan->frames().size();
  reports().SendMheardList(1);
  EXPECT_EQ(sentTexts(),
            (std::vector<std::string>{
                ":BLNQSL1/5:PA3ABC,K1A,DL1XYZ-7,G4XYZ,OK1ABC-15,F5AB,VE3ZZZ-9,W1AW,",
                ":BLNQSL2/5:JA1XYZ,EA4ABC-1,ON4BBB,SP9CCC-12,N0XYZ,IK2DDD,LU1EEE,ZS6FFF-3,",
                ":BLNQSL3/5:VK2GGG,HB9HH,OH2III-7,SM5JJJ,YO3K,LA1LLL-11,OZ1MMM,9A1NN,",
                ":BLNQSL4/5:S51OOO-2,CT1PPP,EI4QQQ,UA3RRR-14,KB2SSS,M0TTT,PY2UUU-5,",
                ":BLNQSL5/5:4X1VVV,TA1WWW,KP4XXX-9",
            }));
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
