// Windows-1252 <-> UTF-8. The station keeps its texts as 8-bit ANSI; the windows and the terminal
// speak UTF-8. The five codes cp1252 leaves unassigned are carried as the C1 code points of the
// same value, so any byte string survives the trip to UTF-8 and back unchanged.
#include "base/cp1252.h"

#include <array>
#include <cstdint>

namespace tesk {

namespace {

// Code points of the bytes 0x80-0x9F; the rest of the page is Latin-1.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80-87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88-8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90-97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98-9F
};

char32_t ToCodePoint(unsigned char b) {
  return b >= 0x80 && b <= 0x9F ? kHigh[b - 0x80] : static_cast<char32_t>(b);
}

// The cp1252 byte of a code point, or -1 when it has none.
int ToByte(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<int>(cp);
  for (size_t i = 0; i < kHigh.size(); ++i) {
    if (kHigh[i] == cp) return static_cast<int>(0x80 + i);
  }
  return -1;
}

void PutUtf8(std::string& out, char32_t cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

// Decodes one UTF-8 sequence at `pos`. On success returns the code point and advances past the
// sequence; on a malformed one returns -1 and advances past the bytes that could still have
// begun a valid sequence (at least one), so each broken piece becomes one "?".
long DecodeUtf8(std::string_view s, size_t& pos) {
  const unsigned char b = static_cast<unsigned char>(s[pos++]);
  if (b < 0x80) return b;
  int more = 0;
  char32_t cp = 0, min = 0;
  if (b >= 0xC2 && b <= 0xDF) {
    more = 1, cp = b & 0x1F, min = 0x80;
  } else if (b >= 0xE0 && b <= 0xEF) {
    more = 2, cp = b & 0x0F, min = 0x800;
  } else if (b >= 0xF0 && b <= 0xF4) {
    more = 3, cp = b & 0x07, min = 0x10000;
  } else {
    return -1;
  }
  for (int i = 0; i < more; ++i) {
    if (pos >= s.size()) return -1;
    const unsigned char c = static_cast<unsigned char>(s[pos]);
    if ((c & 0xC0) != 0x80) return -1;
    cp = (cp << 6) | (c & 0x3F);
    ++pos;
    // Overlong forms, surrogates and values past U+10FFFF are caught as early as possible.
    if (i == 0 && more >= 2 && (cp << (6 * (more - 1))) < min) return -1;
    if (i == 0 && more == 2 && cp >= (0xD800 >> 6) && cp <= (0xDFFF >> 6)) return -1;
    if (i == 0 && more == 3 && cp > (0x10FFFF >> 12)) return -1;
  }
  return static_cast<long>(cp);
}

}  // namespace

std::string Cp1252ToUtf8(std::string_view ansi) {
  std::string out;
  out.reserve(ansi.size() + ansi.size() / 4);
  for (char c : ansi)
    PutUtf8(out, ToCodePoint(static_cast<unsigned char>(c)));
  return out;
}

std::string Utf8ToCp1252(std::string_view utf8) {
  std::string out;
  out.reserve(utf8.size());
  for (size_t pos = 0; pos < utf8.size();) {
    const long cp = DecodeUtf8(utf8, pos);
    const int b = cp < 0 ? -1 : ToByte(static_cast<char32_t>(cp));
    out += b < 0 ? '?' : static_cast<char>(b);
  }
  return out;
}

}  // namespace tesk
