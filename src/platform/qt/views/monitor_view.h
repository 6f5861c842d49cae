// The Monitor on screen: a read-only QPlainTextEdit that follows the Monitor's RichText through
// its change notices. Appends are added at the end of the document in their runs' colours, a
// replaced text is rebuilt; changes are collected and painted at most every 100 ms, so a burst
// of frames during a pass costs one repaint.
#pragma once

#include <QPlainTextEdit>
#include <QTimer>

#include "platform/rich_text.h"

namespace tesk {

struct MonitorLook {
  Color background = RGB(0, 0, 64);
  std::string fontName = "Fixedsys";  // an old setting: the system's fixed-width font stands in
  int fontSize = 9;
  bool fontBold = false;
};

// The font to use for `look`: the named family if the system has it, else the fixed-width
// system font.
QFont MonitorFont(const MonitorLook& look);

class MonitorView : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit MonitorView(RichText& text, QWidget* parent = nullptr);
  ~MonitorView() override;

  void setLook(const MonitorLook& look);
  // Paints what changed now, without waiting for the batch timer.
  void flush();
  // Characters of the RichText that the document shows.
  std::size_t renderedLength() const { return m_rendered; }

  static constexpr int kBatchMs = 100;

 private:
  void onChange(const RichText::Change& change);
  void rebuild();
  void appendFrom(std::size_t from);

  RichText& m_text;
  QTimer m_batch;
  std::size_t m_rendered = 0;
  bool m_resetPending = true;
  bool m_lastWasCr = false;  // a CR painted last: an LF right behind it is the same line end
};

}  // namespace tesk
