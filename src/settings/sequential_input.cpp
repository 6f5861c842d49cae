// Line Input # and Input # over a file's bytes held in memory. Bytes above 127 pass through
// untouched: the settings files are 8-bit ANSI and are never converted on the way in.
#include "settings/sequential_input.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "base/text.h"

namespace tesk {

namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}
bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

std::size_t SkipBlanks(std::string_view s, std::size_t i) {
  while (i < s.size() && IsBlank(s[i]))
    ++i;
  return i;
}

// A quoted field: the text up to the closing quote (or the line's end), and the position
// behind the closing quote.
std::string_view Quoted(std::string_view line, std::size_t& i) {
  const std::size_t start = i + 1;
  std::size_t end = line.find('"', start);
  if (end == std::string_view::npos) end = line.size();
  i = end < line.size() ? end + 1 : end;
  return line.substr(start, end - start);
}

// Moves past the blanks and one comma behind a field, so the next field of the line starts.
std::size_t PastDelimiter(std::string_view line, std::size_t i) {
  i = SkipBlanks(line, i);
  if (i < line.size() && line[i] == ',') ++i;
  return i;
}

bool AllDigitsOfRadix(std::string_view s, int radix) {
  if (s.empty()) return false;
  for (char c : s) {
    const bool hex = (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    if (!(IsDigit(c) && c - '0' < radix) && !(radix == 16 && hex)) return false;
  }
  return true;
}

// Digits, an optional point with digits, an optional exponent E or D with a sign: the decimal
// forms a number field may take. Returns the text in the form from_chars reads, or nothing.
std::optional<std::string> DecimalText(std::string_view s) {
  std::string out;
  std::size_t i = 0;
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) {
    if (s[i] == '-') out += '-';
    ++i;
  }
  int digits = 0;
  for (; i < s.size() && IsDigit(s[i]); ++i, ++digits)
    out += s[i];
  if (i < s.size() && s[i] == '.') {
    out += s[i++];
    for (; i < s.size() && IsDigit(s[i]); ++i, ++digits)
      out += s[i];
  }
  if (digits == 0) return std::nullopt;
  if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
    out += 'e';
    ++i;
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) out += s[i++];
    int expDigits = 0;
    for (; i < s.size() && IsDigit(s[i]); ++i, ++expDigits)
      out += s[i];
    if (expDigits == 0) return std::nullopt;
  }
  if (i != s.size()) return std::nullopt;
  return out;
}

// Round half to even, as the runtime assigns a number to an integer variable.
double RoundHalfEven(double v) {
  double r = std::floor(v);
  const double frac = v - r;
  if (frac > 0.5 || (frac == 0.5 && std::fmod(r, 2.0) != 0)) r += 1;
  return r;
}

}  // namespace

std::optional<std::string_view> SequentialInput::nextLine() {
  if (atEnd()) {
    m_error = kPastEnd;
    return std::nullopt;
  }
  const std::string_view all(m_text);
  std::size_t end = all.find_first_of("\r\n", m_pos);
  if (end == std::string_view::npos) end = all.size();
  const std::string_view line = all.substr(m_pos, end - m_pos);
  m_pos = end;
  if (m_pos < all.size() && all[m_pos] == '\r') ++m_pos;
  if (m_pos < all.size() && all[m_pos] == '\n' && (m_pos == end || all[end] == '\r')) ++m_pos;
  return line;
}

std::optional<std::string> SequentialInput::lineInput() {
  const auto line = nextLine();
  if (!line) return std::nullopt;
  return std::string(*line);
}

std::optional<std::vector<std::string>> SequentialInput::numberFields(std::size_t count) {
  const auto line = nextLine();
  if (!line) return std::nullopt;
  std::vector<std::string> fields;
  std::size_t i = 0;
  while (fields.size() < count) {
    i = SkipBlanks(*line, i);
    if (i < line->size() && (*line)[i] == '"') {
      fields.emplace_back(Quoted(*line, i));
    } else {
      const std::size_t start = i;
      while (i < line->size() && !IsBlank((*line)[i]) && (*line)[i] != ',')
        ++i;
      fields.emplace_back(line->substr(start, i - start));
    }
    i = PastDelimiter(*line, i);
  }
  return fields;
}

std::optional<std::string> SequentialInput::textField() {
  const auto line = nextLine();
  if (!line) return std::nullopt;
  std::size_t i = SkipBlanks(*line, 0);
  if (i < line->size() && (*line)[i] == '"') return std::string(Quoted(*line, i));
  const std::size_t comma = line->find(',', i);
  const std::string_view field =
      line->substr(i, comma == std::string_view::npos ? comma : comma - i);
  return RTrim(field);
}

std::optional<double> SequentialInput::parseNumber(std::string_view field) {
  if (field.empty()) return 0.0;
  if (field.size() > 2 && field[0] == '&') {
    const char kind = field[1];
    const std::string_view digits = field.substr(2);
    if ((kind == 'H' || kind == 'h') && AllDigitsOfRadix(digits, 16)) return Val(field);
    if ((kind == 'O' || kind == 'o') && AllDigitsOfRadix(digits, 8)) return Val(field);
    return std::nullopt;
  }
  const auto text = DecimalText(field);
  if (!text) return std::nullopt;
  double v = 0;
  const auto res = std::from_chars(text->data(), text->data() + text->size(), v);
  if (res.ec == std::errc::result_out_of_range) return std::numeric_limits<double>::infinity();
  if (res.ec != std::errc()) return std::nullopt;
  return v;
}

std::optional<double> SequentialInput::numberOf(const std::string& field) {
  const auto v = parseNumber(field);
  if (!v) m_error = kTypeMismatch;
  return v;
}

void SequentialInput::assign(const std::string& field, int16_t& out) {
  const auto v = numberOf(field);
  if (!v) return;
  const double r = RoundHalfEven(*v);
  if (!std::isfinite(r) || r < -32768.0 || r > 32767.0) {
    m_error = kOverflow;
    return;
  }
  out = static_cast<int16_t>(r);
}

void SequentialInput::assign(const std::string& field, int32_t& out) {
  const auto v = numberOf(field);
  if (!v) return;
  const double r = RoundHalfEven(*v);
  if (!std::isfinite(r) || r < -2147483648.0 || r > 2147483647.0) {
    m_error = kOverflow;
    return;
  }
  out = static_cast<int32_t>(r);
}

void SequentialInput::assign(const std::string& field, float& out) {
  const auto v = numberOf(field);
  if (!v) return;
  if (!std::isfinite(*v) || std::fabs(*v) > std::numeric_limits<float>::max()) {
    m_error = kOverflow;
    return;
  }
  out = static_cast<float>(*v);
}

}  // namespace tesk
