// Text helpers with the string semantics the station's rules are written in: 1-based positions,
// out-of-range arguments giving empty results instead of faults, and the number print forms of
// the classic BASIC runtime (a leading blank for values that are not negative).
// Text is 8-bit ANSI held in std::string; these helpers never interpret bytes above 127.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tesk {

// Mid(s, start, length): `length` characters from 1-based `start`; a start past the end or a
// length <= 0 gives "". A start below 1 counts as 1. Without length: to the end.
std::string Mid(std::string_view s, long start);
std::string Mid(std::string_view s, long start, long length);
// Left/Right: at most n characters from that side; n <= 0 gives "".
std::string Left(std::string_view s, long n);
std::string Right(std::string_view s, long n);
// InStr: 1-based position of `find` in `s` at or after `start`, 0 when absent. A start below 1
// counts as 1. An empty `find` gives `start` while start <= Len(s) + 1, else 0, as the BASIC
// runtime does; an empty `s` always gives 0.
long InStr(std::string_view s, std::string_view find);
long InStr(long start, std::string_view s, std::string_view find);
// InStrRev: last position of `find` in `s`, 0 when absent; an empty `find` gives Len(s).
long InStrRev(std::string_view s, std::string_view find);
// How often `word` stands in `text`, counted as the pieces of a split minus one: an empty text
// gives -1 (no pieces at all), which every caller reads as "none"; an empty word gives 0.
long InstrCount(std::string_view text, std::string_view word);
// Trim family: blanks (0x20) only, as the BASIC runtime does; tabs and NULs stay.
std::string Trim(std::string_view s);
std::string LTrim(std::string_view s);
std::string RTrim(std::string_view s);
// Case: ASCII letters only; bytes above 127 are kept as they are.
std::string UCase(std::string_view s);
std::string LCase(std::string_view s);
inline char UCaseChar(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}
inline char LCaseChar(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}
// Replace every occurrence of `find` (non-empty) by `with`, left to right, non-overlapping.
std::string Replace(std::string_view s, std::string_view find, std::string_view with);
// Val: the leading number of the text ("34N" -> 34, " -1.5e2x" -> -150, "&H1F" -> 31,
// "abc" -> 0). Blanks, tabs and line feeds are skipped anywhere in the number, as Val does.
double Val(std::string_view s);
// Str: the number's text with a leading blank when it is not negative ("5" -> " 5", -5 -> "-5").
// Doubles print in the shortest form with up to 7 significant digits for singles, 15 for doubles,
// without a zero before the point (0.5 -> " .5") and in the E form where the plain form would
// need more digits than that or the value is below 0.0001 (1E+15 -> " 1E+15", " 1.5E-05").
std::string Str(long long n);
std::string Str(double d);
std::string StrSingle(float f);
// Print forms of the settings file (Print # of a number): Str() plus one trailing blank,
// so 0 prints " 0 ", -1 prints "-1 ", 60 prints " 60 ".
std::string PrintNumber(long long n);
std::string PrintNumber(double d);
std::string PrintSingle(float f);
// Plain integers and singles pick their own form without casts (a float is a single).
inline std::string Str(int n) {
  return Str(static_cast<long long>(n));
}
inline std::string Str(long n) {
  return Str(static_cast<long long>(n));
}
inline std::string Str(float f) {
  return StrSingle(f);
}
inline std::string PrintNumber(int n) {
  return PrintNumber(static_cast<long long>(n));
}
inline std::string PrintNumber(long n) {
  return PrintNumber(static_cast<long long>(n));
}
inline std::string PrintNumber(float f) {
  return PrintSingle(f);
}
// Format(n, "00"): at least two digits, zero-padded; negative numbers keep their sign.
std::string Format00(long n);
// Format(n, "000") and the like: at least `width` digits.
std::string FormatZeros(long n, int width);
// CutAtNul: the text up to, not including, its first NUL; all of it when there is none.
std::string CutAtNul(std::string_view s);
// Chr / Asc: one byte; Asc of "" gives 0.
std::string Chr(int code);
int Asc(std::string_view s);
// String(n, c) and Space(n).
std::string String(long n, char c);
std::string Space(long n);
// A 16-bit integer conversion of a number as CInt does (round half to even, wrap not checked).
int16_t CInt(double d);
// Len
inline long Len(std::string_view s) {
  return static_cast<long>(s.size());
}

inline constexpr const char* CR = "\r";
inline constexpr const char* LF = "\n";
inline constexpr const char* CRLF = "\r\n";

}  // namespace tesk
