// The rich-text format, both ways. The writer puts every run behind \plain with its full style,
// so each run stands alone and no state leaks from one to the next; bytes that the format has no
// plain spelling for go out as \'hh, so they come back exactly. The reader keeps a style per
// group and skips the groups that hold no text of the document.
#include "platform/rtf.h"

#include <array>
#include <cctype>
#include <cstdlib>
#include <optional>

#include "base/color.h"
#include "base/cp1252.h"

namespace tesk {

namespace {

constexpr std::string_view kHexDigits = "0123456789abcdef";

void AppendEscaped(std::string& out, std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const auto u = static_cast<unsigned char>(c);
    if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
      out += "\\par\r\n";
      ++i;
    } else if (c == '\\' || c == '{' || c == '}') {
      out += '\\';
      out += c;
    } else if (c == '\t') {
      out += "\\tab ";
    } else if (u < 0x20 || u >= 0x80) {
      out += "\\'";
      out += kHexDigits[u >> 4];
      out += kHexDigits[u & 15];
    } else {
      out += c;
    }
  }
}

std::string ColorEntry(Color c) {
  const Color rgb = ResolveSystemColor(c);
  return "\\red" + std::to_string(RedOf(rgb)) + "\\green" + std::to_string(GreenOf(rgb)) +
         "\\blue" + std::to_string(BlueOf(rgb)) + ";";
}

// Groups whose contents are not text of the document.
bool IsSkippedDestination(std::string_view word) {
  static constexpr std::string_view kSkipped[] = {"fonttbl",
                                                  "stylesheet",
                                                  "info",
                                                  "pict",
                                                  "object",
                                                  "header",
                                                  "footer",
                                                  "headerl",
                                                  "headerr",
                                                  "footerl",
                                                  "footerr",
                                                  "listtable",
                                                  "rsidtbl",
                                                  "generator",
                                                  "xmlnstbl",
                                                  "themedata",
                                                  "datastore",
                                                  "latentstyles",
                                                  "filetbl",
                                                  "revtbl",
                                                  "fldinst",
                                                  "footnote",
                                                  "listoverridetable",
                                                  "colorschememapping"};
  for (std::string_view s : kSkipped)
    if (s == word) return true;
  return false;
}

class RtfReader {
 public:
  explicit RtfReader(std::string_view in) : m_in(in) {}
  std::vector<TextRun> read();

 private:
  enum class Dest { Text, Skip, ColorTable };
  struct State {
    TextStyle style;
    Dest dest = Dest::Text;
    int uc = 1;  // characters of fallback behind a \u
  };

  void controlSymbol();
  void controlWord();
  void word(std::string_view name, bool hasParam, long param);
  void emit(char c);
  void emitCodePoint(long code);
  void colorTableChar(char c);

  std::string_view m_in;
  std::size_t m_pos = 0;
  State m_state;
  std::vector<State> m_stack;
  bool m_groupStart = false;
  int m_fallbackLeft = 0;
  std::vector<std::optional<Color>> m_colors;
  std::array<int, 3> m_rgb{};
  bool m_rgbSeen = false;
  std::vector<TextRun> m_runs;
};

std::vector<TextRun> RtfReader::read() {
  while (m_pos < m_in.size()) {
    const char c = m_in[m_pos];
    if (c == '{') {
      m_stack.push_back(m_state);
      m_groupStart = true;
      ++m_pos;
      continue;
    }
    if (c == '}') {
      if (m_stack.empty()) break;
      m_state = m_stack.back();
      m_stack.pop_back();
      m_groupStart = false;
      ++m_pos;
      continue;
    }
    if (c == '\\') {
      ++m_pos;
      if (m_pos >= m_in.size()) break;
      if (std::isalpha(static_cast<unsigned char>(m_in[m_pos])) != 0) {
        controlWord();
      } else {
        controlSymbol();
      }
      m_groupStart = false;
      continue;
    }
    ++m_pos;
    m_groupStart = false;
    if (c != '\r' && c != '\n') emit(c);  // raw line ends only lay out the file
  }
  return m_runs;
}

void RtfReader::controlSymbol() {
  const char d = m_in[m_pos++];
  if (d == '\'') {
    const std::string hex(m_in.substr(m_pos, 2));
    m_pos += hex.size();
    char* end = nullptr;
    const long value = std::strtol(hex.c_str(), &end, 16);
    if (hex.size() == 2 && end == hex.c_str() + 2) emit(static_cast<char>(value));
  } else if (d == '*') {
    m_state.dest = Dest::Skip;
  } else if (d == '\\' || d == '{' || d == '}') {
    emit(d);
  } else if (d == '~') {
    emit('\xA0');
  } else if (d == '_') {
    emit('-');
  } else if (d == '\r' || d == '\n') {
    word("par", false, 0);
  }
}

void RtfReader::controlWord() {
  const std::size_t start = m_pos;
  while (m_pos < m_in.size() && std::isalpha(static_cast<unsigned char>(m_in[m_pos])) != 0)
    ++m_pos;
  const std::string_view name = m_in.substr(start, m_pos - start);
  bool hasParam = false;
  long param = 0;
  const std::size_t numStart = m_pos;
  if (m_pos < m_in.size() && m_in[m_pos] == '-') ++m_pos;
  while (m_pos < m_in.size() && std::isdigit(static_cast<unsigned char>(m_in[m_pos])) != 0)
    ++m_pos;
  if (m_pos > numStart && !(m_pos == numStart + 1 && m_in[numStart] == '-')) {
    hasParam = true;
    param = std::strtol(std::string(m_in.substr(numStart, m_pos - numStart)).c_str(), nullptr, 10);
  } else {
    m_pos = numStart;
  }
  if (m_pos < m_in.size() && m_in[m_pos] == ' ') ++m_pos;  // the delimiter belongs to the word
  word(name, hasParam, param);
}

void RtfReader::word(std::string_view name, bool hasParam, long param) {
  if (m_groupStart && IsSkippedDestination(name)) m_state.dest = Dest::Skip;
  if (name == "colortbl") m_state.dest = Dest::ColorTable;
  if (m_state.dest == Dest::ColorTable) {
    const int v = static_cast<int>(param);
    if (name == "red") m_rgb[0] = v;
    if (name == "green") m_rgb[1] = v;
    if (name == "blue") m_rgb[2] = v;
    if (name == "red" || name == "green" || name == "blue") m_rgbSeen = true;
    return;
  }
  TextStyle& s = m_state.style;
  if (name == "par" || name == "line") {
    emit('\r');
    emit('\n');
  } else if (name == "tab") {
    emit('\t');
  } else if (name == "plain") {
    s = TextStyle{};
  } else if (name == "b") {
    s.bold = !hasParam || param != 0;
  } else if (name == "cf") {
    const auto i = static_cast<std::size_t>(param);
    s.color = param >= 0 && i < m_colors.size() && m_colors[i] ? *m_colors[i] : 0;
  } else if (name == "fs") {
    s.size = static_cast<int>(param / 2);
  } else if (name == "uc") {
    m_state.uc = static_cast<int>(param);
  } else if (name == "u") {
    emitCodePoint(param < 0 ? param + 65536 : param);
    m_fallbackLeft = m_state.uc;
  } else {
    static constexpr std::pair<std::string_view, char> kPunctuation[] = {
        {"emdash", '\x97'},    {"endash", '\x96'},    {"lquote", '\x91'}, {"rquote", '\x92'},
        {"ldblquote", '\x93'}, {"rdblquote", '\x94'}, {"bullet", '\x95'},
    };
    for (const auto& [w, ch] : kPunctuation)
      if (w == name) emit(ch);
  }
}

void RtfReader::emitCodePoint(long code) {
  std::string utf8;
  const auto c = static_cast<unsigned long>(code);
  if (c < 0x80) {
    utf8 += static_cast<char>(c);
  } else if (c < 0x800) {
    utf8 += static_cast<char>(0xC0 | (c >> 6));
    utf8 += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    utf8 += static_cast<char>(0xE0 | ((c >> 12) & 0x0F));
    utf8 += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    utf8 += static_cast<char>(0x80 | (c & 0x3F));
  }
  for (char ch : Utf8ToCp1252(utf8))
    emit(ch);
}

void RtfReader::colorTableChar(char c) {
  if (c != ';') return;
  if (m_rgbSeen) {
    m_colors.emplace_back(RGB(m_rgb[0], m_rgb[1], m_rgb[2]));
  } else {
    m_colors.emplace_back(std::nullopt);  // "auto": the reader's own text colour
  }
  m_rgb = {};
  m_rgbSeen = false;
}

void RtfReader::emit(char c) {
  if (m_state.dest == Dest::ColorTable) {
    colorTableChar(c);
    return;
  }
  if (m_state.dest == Dest::Skip) return;
  if (m_fallbackLeft > 0) {  // the stand-in characters behind a \u
    --m_fallbackLeft;
    return;
  }
  if (m_runs.empty() || !(m_runs.back().style == m_state.style)) {
    m_runs.push_back(TextRun{{}, m_state.style});
  }
  m_runs.back().text += c;
}

}  // namespace

std::string WriteRtf(const std::vector<TextRun>& runs, const std::string& fontName) {
  std::vector<Color> colors;
  const auto indexOf = [&colors](Color c) {
    for (std::size_t i = 0; i < colors.size(); ++i)
      if (colors[i] == c) return i + 1;
    colors.push_back(c);
    return colors.size();
  };
  for (const TextRun& r : runs)
    indexOf(r.style.color);
  std::string out = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fmodern\\fcharset0 ";
  AppendEscaped(out, fontName.empty() ? "Courier New" : fontName);
  out += ";}}\r\n{\\colortbl ;";  // entry 0 is "auto"; the runs' colours count from 1
  for (Color c : colors)
    out += ColorEntry(c);
  out += "}\r\n\\viewkind4\\uc1\\pard\\f0\r\n";
  for (const TextRun& r : runs) {
    out += "\\plain\\f0\\cf" + std::to_string(indexOf(r.style.color));
    if (r.style.bold) out += "\\b";
    if (r.style.size > 0) out += "\\fs" + std::to_string(r.style.size * 2);
    out += ' ';
    AppendEscaped(out, r.text);
  }
  out += "}\r\n";
  return out;
}

bool IsRtf(std::string_view bytes) {
  return bytes.substr(0, 5) == "{\\rtf";
}

std::vector<TextRun> ReadRtf(std::string_view bytes, const TextStyle& plainStyle) {
  if (!IsRtf(bytes)) {
    if (bytes.empty()) return {};
    return {TextRun{std::string(bytes), plainStyle}};
  }
  return RtfReader(bytes).read();
}

}  // namespace tesk
