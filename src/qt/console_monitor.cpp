// Monitor lines on the standard output.
#include "qt/console_monitor.h"

#include <algorithm>
#include <cstdio>

#include "base/cp1252.h"

namespace tesk {

namespace {

constexpr std::size_t kTailKept = 256;

std::string Escape(const TextStyle& s) {
  char buf[48];
  std::snprintf(buf, sizeof buf, "\x1b[%s38;2;%d;%d;%dm", s.bold ? "1;" : "", RedOf(s.color),
                GreenOf(s.color), BlueOf(s.color));
  return buf;
}

}  // namespace

ConsoleMonitor::ConsoleMonitor(RichText& text, bool colour, Output out)
    : m_text(text), m_colour(colour), m_out(std::move(out)) {}

void ConsoleMonitor::attach() {
  m_text.setListener([this](const RichText::Change& c) { onChange(c); });
}

void ConsoleMonitor::onChange(const RichText::Change& change) {
  if (change.kind == RichText::Change::Appended) {
    if (change.from < m_text.length())
      take(m_text.runs(change.from, m_text.length() - change.from));
    return;
  }
  // A replacement that still ends with what was printed last is the front of the buffer cut
  // away: nothing new to show. Anything else is new text (a message set into the Monitor).
  const std::string& all = m_text.text();
  const std::size_t n = std::min(all.size(), m_tail.size());
  if (all.empty() || (n > 0 && all.compare(all.size() - n, n, m_tail, m_tail.size() - n, n) == 0)) {
    return;
  }
  if (!m_pending.empty()) endLine();
  m_afterCr = false;
  m_tail.clear();
  take(m_text.runs());
}

void ConsoleMonitor::take(const std::vector<TextRun>& runs) {
  for (const TextRun& run : runs) {
    for (char c : run.text) {
      if (c == '\n') {
        if (!m_afterCr) endLine();  // CR LF ends the line the CR ended already
        m_afterCr = false;
      } else if (c == '\r') {
        endLine();
        m_afterCr = true;
      } else {
        m_afterCr = false;
        if (m_pending.empty() || !(m_pending.back().style == run.style)) {
          m_pending.push_back(TextRun{"", run.style});
        }
        m_pending.back().text += c;
      }
    }
    m_tail += run.text;
    if (m_tail.size() > kTailKept) m_tail.erase(0, m_tail.size() - kTailKept);
  }
}

void ConsoleMonitor::endLine() {
  std::string line;
  for (const TextRun& run : m_pending) {
    if (m_colour) line += Escape(run.style);
    line += Cp1252ToUtf8(run.text);
  }
  if (m_colour && !m_pending.empty()) line += "\x1b[0m";
  m_pending.clear();
  writeLine(line);
}

void ConsoleMonitor::writeLine(const std::string& line) {
  if (m_out) {
    m_out(line);
    return;
  }
  std::fputs(line.c_str(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

}  // namespace tesk
