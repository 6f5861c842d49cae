// The rich-text model behind the Monitor: styled appends that merge, runs of any range,
// replacing a selection while the kept text keeps its styles (the buffer limit and editing),
// find with whole word and match case, and the change notices the views repaint from.
#include "platform/rich_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace tesk {
namespace {

const TextStyle kRed{0x0000FF, false, 0};
const TextStyle kBlue{0xFF0000, false, 0};
const TextStyle kRedBold{0x0000FF, true, 10};

struct Recorder {
  std::vector<RichText::Change> changes;
  void attach(RichText& t) {
    t.setListener([this](const RichText::Change& c) { changes.push_back(c); });
  }
  std::string kinds() const {
    std::string s;
    for (const auto& c : changes) {
      if (c.kind == RichText::Change::Appended) {
        s.append("A").append(std::to_string(c.from)).append(" ");
      } else {
        s.append("R ");
      }
    }
    return s;
  }
};

TEST(RichText, AppendMergesEqualStylesAndNotifies) {
  RichText t;
  Recorder rec;
  rec.attach(t);
  t.append("abc", kRed);
  t.append("def", kRed);
  t.append("", kBlue);  // nothing to show, no notice, no mark
  t.append("gh", kBlue);
  t.append("ij", kRedBold);
  EXPECT_EQ(t.text(), "abcdefghij");
  EXPECT_EQ(t.runs(), (std::vector<TextRun>{{"abcdef", kRed}, {"gh", kBlue}, {"ij", kRedBold}}));
  EXPECT_EQ(rec.kinds(), "A0 A3 A6 A8 ");
  EXPECT_EQ(t.selStart(), 10u);
  EXPECT_EQ(t.selLength(), 0u);
  t.append("k", Color{0xFF0000});  // the colour-only form is the plain style
  EXPECT_EQ(t.runs(8, 99), (std::vector<TextRun>{{"ij", kRedBold}, {"k", kBlue}}));
}

TEST(RichText, RunsOfARangeAndStyleAt) {
  RichText t;
  t.setDefaultStyle(kRedBold);
  EXPECT_EQ(t.styleAt(0), kRedBold);  // empty: the control's own style
  EXPECT_TRUE(t.runs().empty());
  t.append("aaaa", kRed);
  t.append("bbbb", kBlue);
  t.append("cccc", kRed);
  EXPECT_EQ(t.runs(2, 8), (std::vector<TextRun>{{"aa", kRed}, {"bbbb", kBlue}, {"cc", kRed}}));
  EXPECT_EQ(t.runs(5, 2), (std::vector<TextRun>{{"bb", kBlue}}));
  EXPECT_EQ(t.runs(4, 4), (std::vector<TextRun>{{"bbbb", kBlue}}));
  EXPECT_EQ(t.runs(10, 1000), (std::vector<TextRun>{{"cc", kRed}}));
  EXPECT_TRUE(t.runs(12, 5).empty());
  EXPECT_TRUE(t.runs(99, 5).empty());
  EXPECT_TRUE(t.runs(3, 0).empty());
  EXPECT_EQ(t.styleAt(3), kRed);
  EXPECT_EQ(t.styleAt(4), kBlue);
  EXPECT_EQ(t.styleAt(99), kRed);  // past the end: the last character's style
}

TEST(RichText, SelectionClampsAndResetsNotify) {
  RichText t;
  Recorder rec;
  rec.attach(t);
  t.setText("hello world", kBlue);
  t.setSelection(6, 100);
  EXPECT_EQ(t.selStart(), 6u);
  EXPECT_EQ(t.selLength(), 5u);
  EXPECT_EQ(t.selectedText(), "world");
  t.setSelection(50, 3);
  EXPECT_EQ(t.selStart(), 11u);
  EXPECT_EQ(t.selLength(), 0u);
  EXPECT_EQ(t.selectedText(), "");
  t.setRuns({{"a", kRed}, {"", kBlue}, {"b", kRed}, {"c", kBlue}});
  EXPECT_EQ(t.runs(), (std::vector<TextRun>{{"ab", kRed}, {"c", kBlue}}));
  t.setSelection(0, 1);
  t.replaceSelection("x", kRed);
  t.clear();
  EXPECT_EQ(t.length(), 0u);
  EXPECT_TRUE(t.runs().empty());
  EXPECT_EQ(rec.kinds(), "R R R R ");
}

TEST(RichText, ReplaceSelectionKeepsStylesAroundIt) {
  RichText t;
  t.append("AAAA", kRed);
  t.append("BBBB", kBlue);
  t.append("CCCC", kRedBold);
  t.setSelection(2, 4);  // "AABB"
  t.replaceSelection("xy", kRedBold);
  EXPECT_EQ(t.runs(), (std::vector<TextRun>{
                          {"AA", kRed}, {"xy", kRedBold}, {"BB", kBlue}, {"CCCC", kRedBold}}));
  EXPECT_EQ(t.selStart(), 4u);
  EXPECT_EQ(t.selLength(), 0u);

  // Deleting the blue run joins the two bold runs into one.
  t.setSelection(4, 2);
  t.replaceSelection("", kRed);
  EXPECT_EQ(t.runs(), (std::vector<TextRun>{{"AA", kRed}, {"xyCCCC", kRedBold}}));

  // Inserting in the own style of the neighbour adds no mark; at the very start and end too.
  t.setSelection(1, 0);
  t.replaceSelection("-", kRed);
  t.setSelection(0, 0);
  t.replaceSelection("<", kBlue);
  t.setSelection(t.length(), 0);
  t.replaceSelection(">", kBlue);
  EXPECT_EQ(t.runs(), (std::vector<TextRun>{
                          {"<", kBlue}, {"A-A", kRed}, {"xyCCCC", kRedBold}, {">", kBlue}}));

  t.setSelection(0, t.length());
  t.replaceSelection("", kRed);
  EXPECT_EQ(t.length(), 0u);
  EXPECT_TRUE(t.runs().empty());
}

// The Monitor's buffer limit: select h characters from h and keep only those, styles and all.
TEST(RichText, KeepingASelectedRangeKeepsItsStyles) {
  RichText t;
  for (int i = 0; i < 6; ++i) {
    const std::string n = std::to_string(i);
    t.append(std::string("Fm A").append(n).append("\r\n"), kRed);
    t.append(std::string("data").append(n).append("\r\n"), kBlue);
  }
  const std::size_t h = t.length() / 2;
  const std::vector<TextRun> kept = t.runs(h, h);
  t.setSelection(h, h);
  const std::string keptText = t.selectedText();
  t.setRuns(t.runs(t.selStart(), t.selLength()));
  t.setSelection(t.length(), 0);
  EXPECT_EQ(t.text(), keptText);
  EXPECT_EQ(t.runs(), kept);
  EXPECT_EQ(t.selStart(), h);
}

// Random edits against a model that stores one style per character.
TEST(RichText, RandomEditsMatchACharacterModel) {
  const TextStyle styles[] = {kRed, kBlue, kRedBold};
  std::mt19937 rng(1234);
  auto pick = [&](std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n)(rng); };
  RichText t;
  std::string text;
  std::vector<int> model;
  for (int step = 0; step < 3000; ++step) {
    const int s = static_cast<int>(pick(2));
    const std::string piece(pick(4), static_cast<char>('a' + step % 26));
    if (pick(2) == 0) {
      t.append(piece, styles[s]);
      text += piece;
      model.insert(model.end(), piece.size(), s);
    } else {
      const std::size_t a = pick(text.size());
      const std::size_t n = pick(std::min<std::size_t>(6, text.size() - a));
      t.setSelection(a, n);
      t.replaceSelection(piece, styles[s]);
      text.replace(a, n, piece);
      model.erase(model.begin() + a, model.begin() + a + n);
      model.insert(model.begin() + a, piece.size(), s);
    }
    std::vector<TextRun> want;
    for (std::size_t i = 0; i < model.size(); ++i) {
      if (want.empty() || !(want.back().style == styles[model[i]])) {
        want.push_back({"", styles[model[i]]});
      }
      want.back().text += text[i];
    }
    ASSERT_EQ(t.text(), text) << "step " << step;
    ASSERT_EQ(t.runs(), want) << "step " << step;
  }
}

TEST(RichText, FindCaseAndWholeWord) {
  RichText t;
  t.setText("concat Cat_ cat. fm Fm caT\xE9 cat", kRed);
  const FindOptions any{};
  const FindOptions matchCase{false, true};
  const FindOptions whole{true, false};
  const FindOptions wholeCase{true, true};

  EXPECT_EQ(t.find("CAT", 0, any), 3);
  EXPECT_EQ(t.selStart(), 3u);
  EXPECT_EQ(t.selLength(), 3u);
  EXPECT_EQ(t.find("Cat", 0, matchCase), 7);
  EXPECT_EQ(t.find("cat", 0, whole), 12);   // "concat" and "Cat_" are parts of words
  EXPECT_EQ(t.find("cat", 13, whole), 28);  // "caT\xE9" goes on with a letter
  EXPECT_EQ(t.find("Fm", 0, wholeCase), 20);
  EXPECT_EQ(t.find("fm", 0, any), 17);
  EXPECT_EQ(t.find("fm", 18, any), 20);

  t.setSelection(1, 2);
  EXPECT_EQ(t.find("dog", 0, any), -1);
  EXPECT_EQ(t.selStart(), 1u);  // a miss leaves the selection alone
  EXPECT_EQ(t.selLength(), 2u);
  EXPECT_EQ(t.find("", 0, any), -1);
  EXPECT_EQ(t.find("cat", t.length(), any), -1);
  EXPECT_EQ(t.find("cat", 1000, any), -1);
  EXPECT_EQ(t.find("cat CAT", 0, matchCase), -1);
  EXPECT_EQ(t.find("cat CAT", 0, any), 3);

  // Walking from each hit plus one, as Find Next does, counts every occurrence once.
  int hits = 0;
  for (long at = t.find("cat", 0, any); at >= 0; at = t.find("cat", at + 1, any)) {
    ++hits;
  }
  EXPECT_EQ(hits, 5);
}

}  // namespace
}  // namespace tesk
