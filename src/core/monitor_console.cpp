// The Monitor's painting. Every run goes in at the end in the configured size and weight; the
// text control takes a text up to its first NUL, so the NUL and blanks that a frame's data
// line carries behind its end never reach the screen.
#include "core/monitor_console.h"

#include <cmath>

#include "base/text.h"
#include "core/utc_clock.h"

namespace tesk {

MonitorConsole::MonitorConsole(Platform& platform, StationConfig& config, MainWindow& main)
    : m_platform(platform), m_config(config), m_main(main) {
  // Read-only until the operator (or [EditMonitor] at start) unlocks it.
  m_main.txtMonitor.setLocked(true);
}

TextStyle MonitorConsole::Style(Color color) const {
  return TextStyle{color, m_config.FontBold != 0, m_config.FontSize};
}

void MonitorConsole::InsertAtEnd(const std::string& text, Color color) {
  m_main.txtMonitor.append(CutAtNul(text), Style(color));
}

void MonitorConsole::NotaInMonitor(const std::string& text, int flag) {
  InsertAtEnd(text + CRLF, flag != 0 ? m_config.DataColor : m_config.HeaderColor);
}

void MonitorConsole::CalcUTC() {
  tesk::CalcUTC(m_platform.clock(), m_config);
}

std::string MonitorConsole::BerekenUTC() const {
  return tesk::BerekenUTC(m_platform.clock(), m_config);
}

std::string MonitorConsole::HeaderWithUTC(const std::string& header) const {
  // The engine ends a header with its local time in brackets; the first "[" is taken even
  // when an earlier field holds one, and an empty header becomes the bare time.
  const long p = InStr(header, "[");
  const std::string tail = Right(header, 1) == "." ? Right(header, 2) : Right(header, 1);
  return Left(header, p) + BerekenUTC() + tail;
}

bool MonitorConsole::RemoveDouble(std::string& header, std::string& data) {
  bool emptied = false;
  if (m_config.RemoveSame == 1 && Trim(header + data) == Trim(lastShownFrame)) {
    // The memory goes too, so a third copy is shown again: only every second one goes.
    header.clear();
    data.clear();
    lastShownFrame.clear();
    emptied = true;
  }
  lastShownFrame = header + data;
  return emptied;
}

void MonitorConsole::KeepCaret() {
  if (!m_main.chkScroll.checked()) m_keptCaret = m_main.txtMonitor.selStart();
}

void MonitorConsole::RestoreCaret() {
  if (!m_main.chkScroll.checked()) m_main.txtMonitor.setSelection(m_keptCaret, 0);
}

void MonitorConsole::PaintHeader(const std::string& header, bool digipeated) {
  InsertAtEnd(header + CRLF, digipeated ? m_config.DigiColor : m_config.HeaderColor);
}

void MonitorConsole::PaintData(const std::string& data) {
  Color color = m_config.DataColor;
  if (MessageFlagForMe != 0) {
    color = m_config.MessageColor;
    MessageFlagForMe = 0;
  }
  InsertAtEnd(data + CRLF, color);
}

void MonitorConsole::chkScroll_Click() {
  RichText& text = m_main.txtMonitor;
  if (!m_main.chkScroll.checked() && text.selStart() + 4 >= text.length()) text.setSelection(0, 0);
}

void MonitorConsole::BufferLimit() {
  const double limit = m_config.MonBufferLimit;
  RichText& text = m_main.txtMonitor;
  if (m_config.SlowPC == 0 || limit < 16000 || static_cast<double>(text.length()) <= limit) {
    return;
  }
  // h characters from character h: the second half of the first L characters. The overhang
  // beyond L (the newest frame) goes with the first half; kept on purpose, not a tail.
  const auto whole = static_cast<long>(std::nearbyint(limit));
  const auto h = static_cast<std::size_t>(std::nearbyint(limit - static_cast<double>(whole / 2)));
  text.setRuns(text.runs(h, h));
  text.setSelection(text.length(), 0);
}

}  // namespace tesk
