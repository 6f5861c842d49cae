// The rich-text writer and reader: what the writer makes comes back run for run and byte for
// byte, a document of another word processor reads with its colours, sizes and special
// characters, and a file that is not rich text reads as plain text.
#include "platform/rtf.h"

#include <gtest/gtest.h>

namespace tesk {
namespace {

constexpr Color kRed = RGB(255, 0, 0);
constexpr Color kBlue = RGB(0, 0, 255);
constexpr Color kYellow = RGB(255, 255, 0);

TEST(Rtf, WrittenRunsReadBackExactly) {
  const std::vector<TextRun> runs = {
      {"Fm PA3ABC To CQ <UI>[12:00:00]\r\n", TextStyle{kYellow, false, 10}},
      // Braces, backslashes, a tab, a doubled CR, bytes of the upper half.
      {"{x} a\\b\tc\r\r\n\xE9\x80 \xA0z", TextStyle{kBlue, true, 12}},
      {"lone\rCR and lone\nLF", TextStyle{kRed, false, 0}},
      {"12 digits after a size", TextStyle{kYellow, true, 9}},
  };
  const std::string doc = WriteRtf(runs, "Fixedsys");
  EXPECT_TRUE(IsRtf(doc));
  EXPECT_NE(doc.find("{\\fonttbl{\\f0\\fmodern\\fcharset0 Fixedsys;}}"), std::string::npos);
  // Each colour once in the table, whatever the number of runs in it.
  EXPECT_NE(doc.find("{\\colortbl ;\\red255\\green255\\blue0;\\red0\\green0\\blue255;"
                     "\\red255\\green0\\blue0;}"),
            std::string::npos);
  // Only 7-bit text in the file.
  for (char c : doc)
    EXPECT_LT(static_cast<unsigned char>(c), 0x80);
  EXPECT_EQ(ReadRtf(doc, TextStyle{}), runs);
  EXPECT_TRUE(ReadRtf(WriteRtf({}, ""), TextStyle{}).empty());
}

TEST(Rtf, ReadsAWordProcessorsDocument) {
  const std::string doc =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0\\nouicompat{\\fonttbl{\\f0\\fnil\\fcharset0 "
      "Calibri;}}\r\n"
      "{\\colortbl ;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\r\n"
      "{\\*\\generator Riched20 10.0.19041;}\\viewkind4\\uc1 \r\n"
      "\\pard\\sa200\\sl276\\slmult1\\cf1\\b\\f0\\fs22 Red bold\\cf2\\b0  blue \\u8364?\\par\r\n"
      "{\\cf0 x}\\'e9\\~end\\tab\\line\r\n"
      "\\ldblquote q\\rdblquote\\par\r\n"
      "}";
  const std::vector<TextRun> expected = {
      {"Red bold", TextStyle{kRed, true, 11}},
      // The euro sign arrives as a code point with a stand-in that is skipped.
      {" blue \x80\r\n", TextStyle{kBlue, false, 11}},
      {"x", TextStyle{0, false, 11}},  // colour 0 of the table: automatic
      {"\xE9\xA0"
       "end\t\r\n\x93q\x94\r\n",
       TextStyle{kBlue, false, 11}},
  };
  EXPECT_EQ(ReadRtf(doc, TextStyle{}), expected);
}

TEST(Rtf, PlainTextReadsAsOneRunInTheGivenStyle) {
  const TextStyle plain{kBlue, true, 9};
  const std::vector<TextRun> expected = {{"Fm X To Y\r\n{not rtf}\r\n", plain}};
  EXPECT_EQ(ReadRtf("Fm X To Y\r\n{not rtf}\r\n", plain), expected);
  EXPECT_TRUE(ReadRtf("", plain).empty());
  EXPECT_FALSE(IsRtf(" {\\rtf1}"));
  // A document cut short reads as far as it goes.
  const std::vector<TextRun> cut = {{"abc", TextStyle{kRed, false, 0}}};
  EXPECT_EQ(ReadRtf("{\\rtf1{\\colortbl ;\\red255\\green0\\blue0;}\\cf1 abc\\", plain), cut);
}

}  // namespace
}  // namespace tesk
