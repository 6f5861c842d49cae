// The Monitor of the headless program: every line appended to the Monitor's text is printed on
// the standard output as soon as its CR LF arrives, in its runs' colours as 24-bit terminal
// colours when wanted. A replaced text is printed again only when it is new text, not when the
// buffer limit merely cut the front of what was already printed.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/rich_text.h"

namespace tesk {

class ConsoleMonitor {
 public:
  using Output = std::function<void(const std::string& utf8Line)>;
  // `out` gets one finished line at a time, without its line end; by default stdout, flushed.
  ConsoleMonitor(RichText& text, bool colour, Output out = {});
  // Sets the listener on the text (the headless program has no other view of it).
  void attach();
  void onChange(const RichText::Change& change);

 private:
  void take(const std::vector<TextRun>& runs);
  void endLine();
  void writeLine(const std::string& line);

  RichText& m_text;
  bool m_colour;
  Output m_out;
  std::vector<TextRun> m_pending;  // the line being completed
  bool m_afterCr = false;          // the last byte taken was a CR that may start a CR LF
  std::string m_tail;              // the last characters taken, to recognise a cut buffer
};

}  // namespace tesk
