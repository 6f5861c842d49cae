// The in-memory rich-text model: one string and a sorted list of style marks, each mark giving
// the style from its position to the next mark. Appending only touches the end of both, so the
// Monitor can grow a half-megabyte buffer line by line without copying it; replacements rebuild
// the marks around the changed range and tell the views to repaint once.
#include "platform/rich_text.h"

#include <algorithm>

#include "base/text.h"

namespace tesk {

namespace {

// Letters, digits and the underscore end a word; cp1252 letters count as letters too.
bool IsWordChar(char ch) {
  const auto c = static_cast<unsigned char>(ch);
  if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_') {
    return true;
  }
  // The cp1252 letters outside the Latin-1 block, and the Latin-1 letters below 0xC0.
  constexpr std::string_view kOtherLetters = "\x83\x8A\x8C\x8E\x9A\x9C\x9E\x9F\xAA\xB5\xBA";
  if (kOtherLetters.find(ch) != std::string_view::npos) return true;
  return c >= 0xC0 && c != 0xD7 && c != 0xF7;  // all but the multiply and divide signs
}

size_t FindNoCase(const std::string& text, std::string_view what, size_t from) {
  if (what.size() > text.size()) return std::string::npos;
  const char first = LCaseChar(what[0]);
  for (size_t i = from; i + what.size() <= text.size(); ++i) {
    if (LCaseChar(text[i]) != first) continue;
    size_t k = 1;
    while (k < what.size() && LCaseChar(text[i + k]) == LCaseChar(what[k]))
      ++k;
    if (k == what.size()) return i;
  }
  return std::string::npos;
}

}  // namespace

void RichText::notify(Change::Kind kind, std::size_t from) {
  if (m_listener) m_listener(Change{kind, from});
}

std::size_t RichText::markIndexAt(std::size_t pos) const {
  const auto it = std::upper_bound(m_marks.begin(), m_marks.end(), pos,
                                   [](std::size_t p, const Mark& m) { return p < m.start; });
  return it == m_marks.begin() ? 0 : static_cast<std::size_t>(it - m_marks.begin()) - 1;
}

std::vector<TextRun> RichText::runs(std::size_t from, std::size_t count) const {
  std::vector<TextRun> out;
  if (from >= m_text.size() || count == 0) return out;
  const std::size_t end = from + std::min(count, m_text.size() - from);
  for (std::size_t i = markIndexAt(from); i < m_marks.size() && m_marks[i].start < end; ++i) {
    const std::size_t a = std::max(m_marks[i].start, from);
    const std::size_t b = i + 1 < m_marks.size() ? std::min(m_marks[i + 1].start, end) : end;
    out.push_back(TextRun{m_text.substr(a, b - a), m_marks[i].style});
  }
  return out;
}

TextStyle RichText::styleAt(std::size_t pos) const {
  if (m_marks.empty()) return m_defaultStyle;
  return m_marks[markIndexAt(std::min(pos, m_text.size() - 1))].style;
}

void RichText::appendRaw(std::string_view text, const TextStyle& style) {
  if (text.empty()) return;
  if (m_marks.empty() || !(m_marks.back().style == style)) {
    m_marks.push_back(Mark{m_text.size(), style});
  }
  m_text.append(text);
}

void RichText::append(std::string_view text, const TextStyle& style) {
  const std::size_t from = m_text.size();
  appendRaw(text, style);
  m_selStart = m_text.size();
  m_selLength = 0;
  if (!text.empty()) notify(Change::Appended, from);
}

void RichText::setText(std::string_view text, const TextStyle& style) {
  m_text.clear();
  m_marks.clear();
  appendRaw(text, style);
  m_selStart = 0;
  m_selLength = 0;
  notify(Change::Reset, 0);
}

void RichText::setRuns(const std::vector<TextRun>& runs) {
  m_text.clear();
  m_marks.clear();
  for (const TextRun& r : runs)
    appendRaw(r.text, r.style);
  m_selStart = 0;
  m_selLength = 0;
  notify(Change::Reset, 0);
}

void RichText::setSelection(std::size_t start, std::size_t length) {
  m_selStart = std::min(start, m_text.size());
  m_selLength = std::min(length, m_text.size() - m_selStart);
}

std::string RichText::selectedText() const {
  return m_text.substr(m_selStart, m_selLength);
}

void RichText::mergeMarks() {
  std::size_t kept = 0;
  for (std::size_t i = 0; i < m_marks.size(); ++i) {
    if (kept > 0 && m_marks[kept - 1].style == m_marks[i].style) continue;
    m_marks[kept++] = m_marks[i];
  }
  m_marks.resize(kept);
}

void RichText::replaceSelection(std::string_view text, const TextStyle& style) {
  const std::size_t a = std::min(m_selStart, m_text.size());
  const std::size_t b = std::min(a + m_selLength, m_text.size());
  const bool hasTail = b < m_text.size();
  const TextStyle tailStyle = hasTail ? m_marks[markIndexAt(b)].style : TextStyle{};

  // Marks starting inside [a, b] go; the one covering the kept tail is put back behind the text.
  const auto lo = std::lower_bound(m_marks.begin(), m_marks.end(), a,
                                   [](const Mark& m, std::size_t p) { return m.start < p; });
  const auto hi = std::upper_bound(lo, m_marks.end(), b,
                                   [](std::size_t p, const Mark& m) { return p < m.start; });
  auto at = m_marks.erase(lo, hi);
  for (auto it = at; it != m_marks.end(); ++it)
    it->start = it->start - (b - a) + text.size();
  if (hasTail) at = m_marks.insert(at, Mark{a + text.size(), tailStyle});
  if (!text.empty()) m_marks.insert(at, Mark{a, style});
  mergeMarks();

  m_text.replace(a, b - a, text);
  m_selStart = a + text.size();
  m_selLength = 0;
  notify(Change::Reset, 0);
}

long RichText::find(std::string_view what, std::size_t start, const FindOptions& options) {
  if (what.empty()) return -1;
  for (std::size_t pos = start; pos < m_text.size(); ++pos) {
    pos = options.matchCase ? m_text.find(what, pos) : FindNoCase(m_text, what, pos);
    if (pos == std::string::npos) return -1;
    const std::size_t end = pos + what.size();
    const bool whole = (pos == 0 || !IsWordChar(m_text[pos - 1])) &&
                       (end >= m_text.size() || !IsWordChar(m_text[end]));
    if (!options.wholeWord || whole) {
      setSelection(pos, what.size());
      return static_cast<long>(pos);
    }
  }
  return -1;
}

}  // namespace tesk
