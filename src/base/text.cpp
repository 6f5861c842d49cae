// The BASIC-style text helpers. Every function takes any argument without faulting: positions
// and counts outside the text give empty results, as the station's rules expect. Numbers are
// printed and read without the C locale (the Qt layer sets one), so "." is always the decimal
// point and blanks inside a number are skipped the way Val skips them.
#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace tesk {

namespace {

// Length of `s` as a signed count, clamped so that position arithmetic cannot overflow.
long SafeLen(std::string_view s) {
  return static_cast<long>(std::min<size_t>(s.size(), 1L << 40));
}

bool IsValBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n';
}
bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Walks a text for Val, skipping blanks, tabs and line feeds wherever they stand.
class ValCursor {
 public:
  explicit ValCursor(std::string_view s) : m_s(s) { skip(); }
  char peek() const { return m_pos < m_s.size() ? m_s[m_pos] : '\0'; }
  void next() {
    ++m_pos;
    skip();
  }
  bool take(char c) {
    if (peek() != c) return false;
    next();
    return true;
  }

 private:
  void skip() {
    while (m_pos < m_s.size() && IsValBlank(m_s[m_pos]))
      ++m_pos;
  }
  std::string_view m_s;
  size_t m_pos = 0;
};

int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// "&H1F", "&O17": up to 4 hex digits are a 16-bit integer and up to 8 a 32-bit one, so
// "&HFFFF" is -1 as the BASIC runtime reads it. Longer numbers are taken as unsigned values.
double ValRadix(ValCursor& cur, int radix) {
  unsigned long long v = 0;
  int digits = 0;
  for (;;) {
    const int d = HexDigit(cur.peek());
    if (d < 0 || d >= radix) break;
    if (digits < 22) v = v * static_cast<unsigned>(radix) + static_cast<unsigned>(d);
    ++digits;
    cur.next();
  }
  if (v <= 0xFFFF && (radix != 16 || digits <= 4)) {
    return static_cast<int16_t>(static_cast<uint16_t>(v));
  }
  if (v <= 0xFFFFFFFFULL) return static_cast<int32_t>(static_cast<uint32_t>(v));
  return static_cast<double>(v);
}

// Reads digits into `out`; returns how many.
int TakeDigits(ValCursor& cur, std::string& out) {
  int n = 0;
  while (IsDigit(cur.peek())) {
    out += cur.peek();
    cur.next();
    ++n;
  }
  return n;
}

// The decimal part of Val: digits, one point, digits, and an exponent E or D with a sign.
double ValDecimal(ValCursor& cur) {
  std::string num = "0";
  int digits = TakeDigits(cur, num);
  if (cur.take('.')) {
    std::string frac;
    digits += TakeDigits(cur, frac);
    if (!frac.empty()) num.append(".").append(frac);
  }
  if (digits == 0) return 0;
  const char e = cur.peek();
  if (e == 'e' || e == 'E' || e == 'd' || e == 'D') {
    cur.next();
    std::string exp = "e";
    if (cur.peek() == '-' || cur.peek() == '+') {
      exp += cur.peek();
      cur.next();
    }
    if (TakeDigits(cur, exp) > 0) num += exp;
  }
  double v = 0;
  const auto res = std::from_chars(num.data(), num.data() + num.size(), v);
  return res.ec == std::errc() ? v : 0;  // an overflow reads as 0 rather than faulting
}

// The significant digits and decimal exponent of `v` rounded to `precision` digits,
// trailing zeros removed: 1234.5 with 7 gives "12345" and 3.
struct Digits {
  std::string digits;
  int exponent = 0;
};

template <typename T>
Digits SignificantDigits(T v, int precision) {
  char buf[64];
  const auto res =
      std::to_chars(buf, buf + sizeof buf, v, std::chars_format::scientific, precision - 1);
  const std::string_view s(buf, static_cast<size_t>(res.ptr - buf));
  const size_t e = s.find('e');
  Digits d;
  for (char c : s.substr(0, e)) {
    if (IsDigit(c)) d.digits += c;
  }
  d.exponent = std::atoi(std::string(s.substr(e + 1)).c_str());
  while (d.digits.size() > 1 && d.digits.back() == '0')
    d.digits.pop_back();
  return d;
}

// The BASIC print form: a blank or "-", no leading zero before the point (" .5"), and the
// exponent form ("1E+15", "1.5E-05") where the plain form would need more digits than the
// precision or the value is below 0.0001.
template <typename T>
std::string FormatReal(T v, int precision) {
  if (!std::isfinite(v)) return std::isnan(v) ? " NaN" : (v < 0 ? "-Inf" : " Inf");
  if (v == 0) return " 0";  // also -0
  std::string out = v < 0 ? "-" : " ";
  const Digits d = SignificantDigits(std::fabs(v), precision);
  const int n = static_cast<int>(d.digits.size());
  if (d.exponent >= precision || d.exponent < -4) {
    out += d.digits[0];
    if (n > 1) out.append(".").append(d.digits, 1);
    const int e = std::abs(d.exponent);
    out += d.exponent < 0 ? "E-" : "E+";
    if (e < 10) out += "0";
    out += std::to_string(e);
  } else if (d.exponent < 0) {
    out.append(".").append(static_cast<size_t>(-d.exponent - 1), '0').append(d.digits);
  } else if (n <= d.exponent + 1) {
    out.append(d.digits).append(static_cast<size_t>(d.exponent + 1 - n), '0');
  } else {
    const size_t whole = static_cast<size_t>(d.exponent) + 1;
    out.append(d.digits, 0, whole).append(".").append(d.digits, whole);
  }
  return out;
}

}  // namespace

std::string Mid(std::string_view s, long start) {
  return Mid(s, start, SafeLen(s));
}

std::string Mid(std::string_view s, long start, long length) {
  if (start < 1) start = 1;
  if (length <= 0 || start > SafeLen(s)) return "";
  const size_t from = static_cast<size_t>(start - 1);
  return std::string(s.substr(from, static_cast<size_t>(length)));
}

std::string Left(std::string_view s, long n) {
  if (n <= 0) return "";
  return std::string(s.substr(0, static_cast<size_t>(n)));
}

std::string Right(std::string_view s, long n) {
  if (n <= 0) return "";
  const size_t k = std::min(s.size(), static_cast<size_t>(n));
  return std::string(s.substr(s.size() - k));
}

long InStr(std::string_view s, std::string_view find) {
  return InStr(1, s, find);
}

long InStr(long start, std::string_view s, std::string_view find) {
  if (start < 1) start = 1;
  if (s.empty() || start > SafeLen(s) + 1) return 0;
  if (find.empty()) return start;
  const size_t at = s.find(find, static_cast<size_t>(start - 1));
  return at == std::string_view::npos ? 0 : static_cast<long>(at) + 1;
}

long InstrCount(std::string_view text, std::string_view word) {
  if (word.empty()) return 0;
  if (text.empty()) return -1;
  long count = 0;
  for (long at = InStr(text, word); at > 0; at = InStr(at + Len(word), text, word))
    ++count;
  return count;
}

long InStrRev(std::string_view s, std::string_view find) {
  if (s.empty()) return 0;
  if (find.empty()) return SafeLen(s);
  const size_t at = s.rfind(find);
  return at == std::string_view::npos ? 0 : static_cast<long>(at) + 1;
}

std::string LTrim(std::string_view s) {
  const size_t a = s.find_first_not_of(' ');
  return a == std::string_view::npos ? "" : std::string(s.substr(a));
}

std::string RTrim(std::string_view s) {
  const size_t b = s.find_last_not_of(' ');
  return b == std::string_view::npos ? "" : std::string(s.substr(0, b + 1));
}

std::string Trim(std::string_view s) {
  return LTrim(RTrim(s));
}

std::string UCase(std::string_view s) {
  std::string out(s);
  for (char& c : out)
    c = UCaseChar(c);
  return out;
}

std::string LCase(std::string_view s) {
  std::string out(s);
  for (char& c : out)
    c = LCaseChar(c);
  return out;
}

std::string Replace(std::string_view s, std::string_view find, std::string_view with) {
  if (find.empty()) return std::string(s);
  std::string out;
  out.reserve(s.size());
  size_t pos = 0;
  for (size_t at = s.find(find); at != std::string_view::npos; at = s.find(find, pos)) {
    out.append(s.substr(pos, at - pos)).append(with);
    pos = at + find.size();
  }
  out.append(s.substr(pos));
  return out;
}

double Val(std::string_view s) {
  ValCursor cur(s);
  if (cur.take('&')) {
    if (cur.take('H') || cur.take('h')) return ValRadix(cur, 16);
    if (cur.take('O') || cur.take('o')) return ValRadix(cur, 8);
    return 0;
  }
  double sign = 1;
  if (cur.take('-')) {
    sign = -1;
  } else {
    cur.take('+');
  }
  const double v = ValDecimal(cur);
  return v == 0 ? 0 : sign * v;
}

std::string Str(long long n) {
  std::string out = n < 0 ? "" : " ";
  return out.append(std::to_string(n));
}
std::string Str(double d) {
  return FormatReal(d, 15);
}
std::string StrSingle(float f) {
  return FormatReal(f, 7);
}

std::string PrintNumber(long long n) {
  return Str(n) + " ";
}
std::string PrintNumber(double d) {
  return Str(d) + " ";
}
std::string PrintSingle(float f) {
  return StrSingle(f) + " ";
}

std::string Format00(long n) {
  return FormatZeros(n, 2);
}

std::string FormatZeros(long n, int width) {
  const unsigned long mag =
      n < 0 ? 0UL - static_cast<unsigned long>(n) : static_cast<unsigned long>(n);
  const std::string digits = std::to_string(mag);
  std::string out = n < 0 ? "-" : "";
  if (width > 0 && digits.size() < static_cast<size_t>(width)) {
    out.append(static_cast<size_t>(width) - digits.size(), '0');
  }
  return out.append(digits);
}

std::string CutAtNul(std::string_view s) {
  return std::string(s.substr(0, s.find('\0')));
}

std::string Chr(int code) {
  if (code < 0 || code > 255) return "";
  return std::string(1, static_cast<char>(code));
}

int Asc(std::string_view s) {
  return s.empty() ? 0 : static_cast<unsigned char>(s[0]);
}

std::string String(long n, char c) {
  return n <= 0 ? std::string() : std::string(static_cast<size_t>(n), c);
}

std::string Space(long n) {
  return String(n, ' ');
}

int16_t CInt(double d) {
  if (!std::isfinite(d)) return 0;
  double r = std::floor(d);
  const double frac = d - r;
  if (frac > 0.5 || (frac == 0.5 && std::fmod(r, 2.0) != 0)) r += 1;  // half goes to even
  const long long wrapped = static_cast<long long>(std::fmod(r, 65536.0));
  return static_cast<int16_t>(static_cast<uint16_t>(wrapped));
}

}  // namespace tesk
