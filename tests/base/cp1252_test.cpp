// The cp1252 conversion: every byte survives the trip to UTF-8 and back, the 0x80-0x9F block
// carries the right punctuation, and text that cp1252 cannot hold becomes "?" one piece at a time.
#include "base/cp1252.h"

#include <gtest/gtest.h>

#include <string>

namespace tesk {
namespace {

TEST(Cp1252, AllBytesRoundTrip) {
  std::string all;
  for (int b = 0; b < 256; ++b)
    all += static_cast<char>(b);
  const std::string utf8 = Cp1252ToUtf8(all);
  // 128 ASCII bytes, 17 three-byte marks in the high block, the rest two bytes each.
  EXPECT_EQ(utf8.size(), 128u + 17u * 3u + (128u - 17u) * 2u);
  EXPECT_EQ(Utf8ToCp1252(utf8), all);
}

TEST(Cp1252, ToUtf8) {
  EXPECT_EQ(Cp1252ToUtf8("\x80"), "\xE2\x82\xAC");  // euro sign
  EXPECT_EQ(Cp1252ToUtf8("\x93x\x94"), "\xE2\x80\x9Cx\xE2\x80\x9D");
  EXPECT_EQ(Cp1252ToUtf8("\x96\x97"), "\xE2\x80\x93\xE2\x80\x94");
  EXPECT_EQ(Cp1252ToUtf8("\x9F"), "\xC5\xB8");
  EXPECT_EQ(Cp1252ToUtf8("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
  EXPECT_EQ(Cp1252ToUtf8("\xA0\xE9\xFF"), "\xC2\xA0\xC3\xA9\xC3\xBF");
  EXPECT_EQ(Cp1252ToUtf8(std::string("a\0b", 3)), std::string("a\0b", 3));
}

TEST(Cp1252, FromUtf8MarksWhatDoesNotFit) {
  struct {
    std::string in, want;
  } cases[] = {
      {"\xE2\x82\xAC 5", "\x80 5"},
      {"caf\xC3\xA9", "caf\xE9"},
      {"\xE2\x9C\x93", "?"},        // check mark: no place in cp1252
      {"\xF0\x9F\x98\x80!", "?!"},  // four-byte emoji
      {"\xC2\x80", "?"},            // C1 control with no cp1252 byte
      {"\xFF"
       "A",
       "?A"},  // never a UTF-8 byte
      {"\x80"
       "A",
       "?A"},             // continuation without a lead
      {"\xE2\x82", "?"},  // cut short at the end
      {"\xE2\x82"
       "A",
       "?A"},                       // cut short before ASCII
      {"\xC0\xAF", "??"},           // overlong "/"
      {"\xE0\x80\xAF", "??"},       // overlong "/" in three bytes
      {"\xED\xA0\x80", "??"},       // UTF-16 surrogate
      {"\xF4\x90\x80\x80", "???"},  // past U+10FFFF
      {std::string("\0", 1), std::string("\0", 1)},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Utf8ToCp1252(c.in), c.want) << c.in;
}

}  // namespace
}  // namespace tesk
