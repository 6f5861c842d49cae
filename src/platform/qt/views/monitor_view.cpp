// The Monitor's QPlainTextEdit, painted incrementally from the RichText's change notices.
#include "platform/qt/views/monitor_view.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include "base/cp1252.h"
#include "platform/qt/qt_text.h"

namespace tesk {

QFont MonitorFont(const MonitorLook& look) {
  const QString name = ToQString(look.fontName);
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  if (!name.isEmpty() && name.compare(QStringLiteral("Fixedsys"), Qt::CaseInsensitive) != 0) {
    const QFont wanted(name);
    if (QFontInfo(wanted).family().compare(name, Qt::CaseInsensitive) == 0) font = wanted;
  }
  if (look.fontSize > 0) font.setPointSize(look.fontSize);
  font.setBold(look.fontBold);
  return font;
}

MonitorView::MonitorView(RichText& text, QWidget* parent) : QPlainTextEdit(parent), m_text(text) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setUndoRedoEnabled(false);
  setLineWrapMode(QPlainTextEdit::WidgetWidth);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  m_batch.setSingleShot(true);
  m_batch.setInterval(kBatchMs);
  connect(&m_batch, &QTimer::timeout, this, &MonitorView::flush);
  m_text.setListener([this](const RichText::Change& c) { onChange(c); });
  setLook(MonitorLook{});
  flush();
}

MonitorView::~MonitorView() {
  m_text.setListener({});
}

void MonitorView::setLook(const MonitorLook& look) {
  QPalette p = palette();
  const QColor back = ToQColor(look.background);
  p.setColor(QPalette::Base, back);
  p.setColor(QPalette::Text, back.lightness() < 128 ? QColor(Qt::white) : QColor(Qt::black));
  setPalette(p);
  setFont(MonitorFont(look));
  document()->setDefaultFont(font());
}

void MonitorView::onChange(const RichText::Change& change) {
  if (change.kind == RichText::Change::Reset || change.from < m_rendered) m_resetPending = true;
  if (!m_batch.isActive()) m_batch.start();
}

void MonitorView::flush() {
  m_batch.stop();
  if (m_resetPending) {
    rebuild();
  } else {
    appendFrom(m_rendered);
  }
}

void MonitorView::rebuild() {
  m_resetPending = false;
  document()->clear();
  m_rendered = 0;
  m_lastWasCr = false;
  appendFrom(0);
}

void MonitorView::appendFrom(std::size_t from) {
  const std::size_t end = m_text.length();
  if (from >= end) return;
  QScrollBar* bar = verticalScrollBar();
  const bool following = bar->value() >= bar->maximum() - 2;
  QTextCursor cursor(document());
  cursor.movePosition(QTextCursor::End);
  cursor.beginEditBlock();
  QTextCharFormat format;
  for (const TextRun& run : m_text.runs(from, end - from)) {
    // One newline per line end, whether it is CR LF, a lone CR or a lone LF.
    std::string bytes;
    bytes.reserve(run.text.size());
    for (char c : run.text) {
      if (c == '\n' && m_lastWasCr) {
        m_lastWasCr = false;
        continue;
      }
      m_lastWasCr = c == '\r';
      bytes += c == '\r' ? '\n' : c;
    }
    format.setForeground(ToQColor(run.style.color));
    format.setFontWeight(run.style.bold ? QFont::Bold : QFont::Normal);
    if (run.style.size > 0) {
      format.setFontPointSize(run.style.size);
    } else {
      format.clearProperty(QTextFormat::FontPointSize);
    }
    cursor.insertText(QString::fromStdString(Cp1252ToUtf8(bytes)), format);
  }
  cursor.endEditBlock();
  m_rendered = end;
  if (following) bar->setValue(bar->maximum());
}

}  // namespace tesk
