// Line Input # and Input # as the settings files need them: line ends of either kind, fields
// that end at blanks and commas, quoted texts, and which inputs leave an error pending.
#include "settings/sequential_input.h"

#include <gtest/gtest.h>

namespace tesk {
namespace {

TEST(SequentialInput, LinesEndInCrLfLfOrCr) {
  SequentialInput in("a\r\nb\nc\rd\r\n\r\ne");
  for (const char* want : {"a", "b", "c", "d", "", "e"}) {
    ASSERT_FALSE(in.atEnd());
    EXPECT_EQ(in.lineInput().value_or("<none>"), want);
  }
  EXPECT_TRUE(in.atEnd());
  EXPECT_EQ(in.pendingError(), 0);
  EXPECT_FALSE(in.lineInput().has_value());
  EXPECT_EQ(in.pendingError(), SequentialInput::kPastEnd);
}

TEST(SequentialInput, NumberFieldsEndAtBlanksAndCommas) {
  SequentialInput in(" 1  2 -3 \r\n 30,45 rest\r\n\r\n\"7\" , 8\r\n 5\r\n");
  EXPECT_EQ(*in.numberFields(3), (std::vector<std::string>{"1", "2", "-3"}));
  EXPECT_EQ(*in.numberFields(1), (std::vector<std::string>{"30"}));
  EXPECT_EQ(*in.numberFields(2), (std::vector<std::string>{"", ""}));
  EXPECT_EQ(*in.numberFields(2), (std::vector<std::string>{"7", "8"}));
  EXPECT_EQ(*in.numberFields(2), (std::vector<std::string>{"5", ""}));
}

TEST(SequentialInput, TextFieldsEndAtACommaAndLoseTheirQuotes) {
  SequentialInput in("  Courier New  \r\nArial, Bold\r\n \"a, b\" c\r\n\r\n");
  EXPECT_EQ(*in.textField(), "Courier New");
  EXPECT_EQ(*in.textField(), "Arial");
  EXPECT_EQ(*in.textField(), "a, b");
  EXPECT_EQ(*in.textField(), "");
}

TEST(SequentialInput, AssignsLikeInputOfANumber) {
  SequentialInput in("");
  int16_t i = 9;
  int32_t l = 9;
  float f = 9;
  in.assign("", i);
  EXPECT_EQ(i, 0);
  in.assign("2.5", i);  // half goes to even
  EXPECT_EQ(i, 2);
  in.assign("&HFFFF", i);
  EXPECT_EQ(i, -1);
  in.assign("-2147483626", l);
  EXPECT_EQ(l, static_cast<int32_t>(0x80000016));
  in.assign("1.5D2", f);
  EXPECT_EQ(f, 150.0f);
  EXPECT_EQ(in.pendingError(), 0);
  in.assign("12abc", i);
  EXPECT_EQ(in.pendingError(), SequentialInput::kTypeMismatch);
  EXPECT_EQ(i, -1);
  in.assign("32768", i);
  EXPECT_EQ(in.pendingError(), SequentialInput::kOverflow);
  in.assign("2147483670", l);  // the unsigned spelling of a system colour does not fit
  EXPECT_EQ(l, static_cast<int32_t>(0x80000016));
  in.assign("1e999", f);
  EXPECT_EQ(f, 150.0f);
  EXPECT_EQ(in.pendingError(), SequentialInput::kOverflow);
}

}  // namespace
}  // namespace tesk
