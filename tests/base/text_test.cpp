// Tables of the BASIC text helpers: 1-based positions, arguments outside the text giving empty
// results instead of faults, Val's reading of odd texts and the number print forms that the
// settings file and the on-air texts depend on (" 5", "-5", " .5", " 0 ").
#include "base/text.h"

#include <gtest/gtest.h>

#include <charconv>
#include <climits>
#include <cmath>
#include <functional>
#include <limits>
#include <ostream>
#include <string>

namespace tesk {
namespace {

std::string Show(const std::string& s) {
  return s;
}
std::string Show(long n) {
  return std::to_string(n);
}
std::string Show(int n) {
  return std::to_string(n);
}
std::string Show(double d) {
  char buf[64];
  const auto res = std::to_chars(buf, buf + sizeof buf, d, std::chars_format::general);
  return std::string(buf, res.ptr);
}

struct Case {
  const char* expr;
  std::function<std::string()> run;
  std::string want;
};
void PrintTo(const Case& c, std::ostream* os) {
  *os << c.expr;
}

// The expression is evaluated inside the test, so a fault shows as that case failing.
#define CASE(expr, want)                   \
  Case {                                   \
#expr, [] { return Show(expr); }, want \
  }

class TextHelper : public testing::TestWithParam<Case> {};

TEST_P(TextHelper, GivesTheBasicResult) {
  const Case& c = GetParam();
  EXPECT_EQ(c.run(), c.want) << c.expr;
}

INSTANTIATE_TEST_SUITE_P(
    MidLeftRight, TextHelper,
    testing::Values(CASE(Mid("abcdef", 2, 3), "bcd"), CASE(Mid("abcdef", 4), "def"),
                    CASE(Mid("abc", 0), "abc"), CASE(Mid("abc", -5, 2), "ab"),
                    CASE(Mid("abc", 3, 10), "c"), CASE(Mid("abc", 4), ""), CASE(Mid("abc", 5), ""),
                    CASE(Mid("abc", LONG_MAX, LONG_MAX), ""), CASE(Mid("abc", 2, 0), ""),
                    CASE(Mid("abc", 2, -1), ""), CASE(Mid("", 1, 1), ""),
                    CASE(Left("abc", 2), "ab"), CASE(Left("abc", 9), "abc"),
                    CASE(Left("abc", 0), ""), CASE(Left("abc", -1), ""),
                    CASE(Right("abc", 2), "bc"), CASE(Right("abc", 9), "abc"),
                    CASE(Right("abc", -1), ""), CASE(Right("", 3), "")));

INSTANTIATE_TEST_SUITE_P(
    InStr, TextHelper,
    testing::Values(CASE(InStr("abcabc", "c"), "3"), CASE(InStr(4, "abcabc", "c"), "6"),
                    CASE(InStr(6, "abcabc", "c"), "6"), CASE(InStr(7, "abcabc", "c"), "0"),
                    CASE(InStr(0, "abc", "a"), "1"), CASE(InStr(-3, "abc", "b"), "2"),
                    CASE(InStr(LONG_MAX, "abc", "a"), "0"), CASE(InStr("abc", "B"), "0"),
                    CASE(InStr("abc", "abcd"), "0"), CASE(InStr("abc", ""), "1"),
                    CASE(InStr(4, "abc", ""), "4"), CASE(InStr(5, "abc", ""), "0"),
                    CASE(InStr("", ""), "0"), CASE(InStrRev("abcabc", "bc"), "5"),
                    CASE(InStrRev("abc", "x"), "0"), CASE(InStrRev("", "a"), "0")));

INSTANTIATE_TEST_SUITE_P(
    TrimCaseReplace, TextHelper,
    testing::Values(CASE(Trim("  a b  "), "a b"), CASE(LTrim("  a "), "a "),
                    CASE(RTrim(" a  "), " a"), CASE(Trim("\ta\t"), "\ta\t"),
                    CASE(Trim(std::string("\0 ", 2)), std::string("\0", 1)), CASE(Trim("    "), ""),
                    CASE(UCase("abc\xe9z1"), "ABC\xe9Z1"), CASE(LCase("ABC\xc9Z"), "abc\xc9z"),
                    CASE(Replace("a,b,,c", ",", ";"), "a;b;;c"),
                    CASE(Replace("aaa", "aa", "b"), "ba"), CASE(Replace("abc", "", "x"), "abc"),
                    CASE(Replace("abc", "abc", ""), "")));

INSTANTIATE_TEST_SUITE_P(
    Val, TextHelper,
    testing::Values(CASE(Val("34N"), "34"), CASE(Val("&H1F"), "31"), CASE(Val("&h1f"), "31"),
                    CASE(Val("&HFFFF"), "-1"), CASE(Val("&H8000"), "-32768"),
                    CASE(Val("&H10000"), "65536"), CASE(Val("&HFFFFFFFF"), "-1"),
                    CASE(Val("&O17"), "15"), CASE(Val("&X1"), "0"), CASE(Val(" 1 2"), "12"),
                    CASE(Val("\t\n 42"), "42"), CASE(Val("1 e 2"), "100"), CASE(Val("1e3"), "1000"),
                    CASE(Val("1d2"), "100"), CASE(Val("2E-1"), "0.2"), CASE(Val("1e"), "1"),
                    CASE(Val("1e+"), "1"), CASE(Val(" -1.5e2x"), "-150"), CASE(Val(".5"), "0.5"),
                    CASE(Val("-.5"), "-0.5"), CASE(Val("+7"), "7"), CASE(Val("1.2.3"), "1.2"),
                    CASE(Val("12,5"), "12"), CASE(Val("\r5"), "0"), CASE(Val("--5"), "0"),
                    CASE(Val("-"), "0"), CASE(Val("."), "0"), CASE(Val("abc"), "0"),
                    CASE(Val(""), "0"), CASE(Val("1e999"), "0")));

INSTANTIATE_TEST_SUITE_P(
    Str, TextHelper,
    testing::Values(CASE(Str(5), " 5"), CASE(Str(-5), "-5"), CASE(Str(0), " 0"),
                    CASE(Str(LLONG_MIN), "-9223372036854775808"), CASE(Str(0.5), " .5"),
                    CASE(Str(-0.5), "-.5"), CASE(Str(-0.0), " 0"), CASE(Str(2.5), " 2.5"),
                    CASE(Str(1.1), " 1.1"), CASE(Str(0.1 + 0.2), " .3"),
                    CASE(Str(12345.678), " 12345.678"), CASE(Str(1e15), " 1E+15"),
                    CASE(Str(123456789012345.0), " 123456789012345"), CASE(Str(1e100), " 1E+100"),
                    CASE(Str(0.0001), " .0001"), CASE(Str(0.00001), " 1E-05"),
                    CASE(Str(-1.5e-5), "-1.5E-05"), CASE(StrSingle(1.1f), " 1.1"),
                    CASE(Str(1.1f), " 1.1"), CASE(StrSingle(0.1f), " .1"),
                    CASE(StrSingle(100001.0f), " 100001"), CASE(StrSingle(512000.0f), " 512000"),
                    CASE(StrSingle(9999999.0f), " 9999999"), CASE(StrSingle(1e7f), " 1E+07"),
                    CASE(StrSingle(-2.5f), "-2.5"),
                    CASE(StrSingle(std::numeric_limits<float>::quiet_NaN()), " NaN")));

INSTANTIATE_TEST_SUITE_P(
    PrintAndFormat, TextHelper,
    testing::Values(CASE(PrintNumber(0), " 0 "), CASE(PrintNumber(-1), "-1 "),
                    CASE(PrintNumber(60), " 60 "), CASE(PrintNumber(0.5), " .5 "),
                    CASE(PrintSingle(32000.0f), " 32000 "), CASE(PrintNumber(1.5f), " 1.5 "),
                    CASE(Format00(5), "05"), CASE(Format00(0), "00"), CASE(Format00(12), "12"),
                    CASE(Format00(123), "123"), CASE(Format00(-5), "-05"),
                    CASE(FormatZeros(7, 3), "007"), CASE(FormatZeros(-7, 3), "-007"),
                    CASE(FormatZeros(1234, 3), "1234"), CASE(FormatZeros(5, 0), "5"),
                    CASE(FormatZeros(LONG_MIN, 2), "-9223372036854775808")));

INSTANTIATE_TEST_SUITE_P(SmallHelpers, TextHelper,
                         testing::Values(CASE(CutAtNul(std::string("ab\0cd", 5)), "ab"),
                                         CASE(CutAtNul("abc"), "abc"), CASE(CutAtNul(""), ""),
                                         CASE(Chr(65), "A"), CASE(Chr(0), std::string(1, '\0')),
                                         CASE(Chr(-1), ""), CASE(Chr(256), ""),
                                         CASE(Asc("A"), "65"), CASE(Asc("\xe9"), "233"),
                                         CASE(Asc(""), "0"), CASE(String(3, 'x'), "xxx"),
                                         CASE(String(-1, 'x'), ""), CASE(Space(2), "  "),
                                         CASE(Space(0), ""), CASE(Len("abc"), "3")));

INSTANTIATE_TEST_SUITE_P(CInt, TextHelper,
                         testing::Values(CASE(CInt(2.5), "2"), CASE(CInt(3.5), "4"),
                                         CASE(CInt(-2.5), "-2"), CASE(CInt(-3.5), "-4"),
                                         CASE(CInt(0.5), "0"), CASE(CInt(-0.5), "0"),
                                         CASE(CInt(1.4), "1"), CASE(CInt(1.6), "2"),
                                         CASE(CInt(-1.6), "-2"), CASE(CInt(32767.0), "32767"),
                                         CASE(CInt(32768.0), "-32768"),
                                         CASE(CInt(-32769.0), "32767"), CASE(CInt(1e300), "0"),
                                         CASE(CInt(std::nan("")), "0")));

// Str and Val meet in the settings file: every number printed there must read back unchanged.
TEST(TextRoundTrip, PrintedNumbersReadBack) {
  for (double d : {0.0, 5.0, -5.0, 0.5, -0.5, 60.0, 1e-3, 123456.25, -98765.4321, 1e20, 3e-7}) {
    EXPECT_EQ(Val(PrintNumber(d)), d) << PrintNumber(d);
  }
  for (float f : {0.0f, 1.1f, 100001.0f, 512000.0f, 16000.0f, -0.25f, 12.5f}) {
    EXPECT_EQ(static_cast<float>(Val(PrintSingle(f))), f) << PrintSingle(f);
  }
}

}  // namespace
}  // namespace tesk
