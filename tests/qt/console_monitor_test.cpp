// The headless Monitor prints each finished line once, in its runs' colours when asked.
#include "qt/console_monitor.h"

#include <gtest/gtest.h>

namespace tesk {
namespace {

constexpr Color kYellow = RGB(255, 255, 0);
constexpr Color kCyan = RGB(0, 255, 255);

TEST(ConsoleMonitor, PrintsFinishedLinesAndHoldsAnUnfinishedOne) {
  RichText text;
  std::vector<std::string> out;
  ConsoleMonitor monitor(text, false, [&](const std::string& l) { out.push_back(l); });
  monitor.attach();
  text.setText("RUNNING WITHOUT SOFTWARE MODEM or PACKET ENGINE!\r\n", TextStyle{kYellow});
  ASSERT_EQ(out.size(), 1u);  // a text set into an empty Monitor is new text
  out.clear();
  text.append("Fm PA3XYZ To CQ", kYellow);
  EXPECT_TRUE(out.empty());
  text.append(" <UI>\r\n", kYellow);
  text.append("hello\r\r\nsecond\r", kCyan);
  text.append("\nthird", kCyan);
  EXPECT_EQ(out, (std::vector<std::string>{"Fm PA3XYZ To CQ <UI>", "hello", "", "second"}));
  text.append("\r\n", kCyan);
  EXPECT_EQ(out.back(), "third");
}

TEST(ConsoleMonitor, ColoursRunsAndIgnoresACutBufferButPrintsNewText) {
  RichText text;
  std::vector<std::string> out;
  ConsoleMonitor monitor(text, true, [&](const std::string& l) { out.push_back(l); });
  monitor.attach();
  text.append("Fm A", kYellow);
  text.append(" \xE9\r\n", kCyan);
  ASSERT_EQ(out.size(), 1u);
  EXPECT_EQ(out[0],
            "\x1b[38;2;255;255;0mFm A\x1b[38;2;0;255;255m \xC3\xA9\x1b[0m");  // cp1252 -> UTF-8

  // The buffer limit keeps the tail: nothing new to print.
  text.append("line two\r\n", kCyan);
  const std::vector<TextRun> tail = text.runs(6, text.length() - 6);
  out.clear();
  text.setRuns(tail);
  EXPECT_TRUE(out.empty());
  // A text put in its place is printed.
  text.setText("RUNNING WITHOUT SOFTWARE MODEM or PACKET ENGINE!\r\n", TextStyle{kYellow});
  ASSERT_EQ(out.size(), 1u);
  EXPECT_NE(out[0].find("RUNNING WITHOUT"), std::string::npos);
}

}  // namespace
}  // namespace tesk
