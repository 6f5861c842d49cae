// The Monitor's QPlainTextEdit, painted incrementally from the RichText's change notices, and
// the operator's edits mirrored back. The document has one character per line end where the
// RichText has CR LF, so every position crossing between them is mapped.
#include "qt/views/monitor_view.h"

#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QFontInfo>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

#include "base/cp1252.h"
#include "qt/qt_text.h"

namespace tesk {

std::size_t DocPosition(std::string_view text, std::size_t textPos) {
  textPos = std::min(textPos, text.size());
  std::size_t doc = textPos;
  for (std::size_t i = 1; i < textPos; ++i)
    if (text[i] == '\n' && text[i - 1] == '\r') --doc;
  return doc;
}

std::size_t TextPosition(std::string_view text, std::size_t docPos) {
  std::size_t i = 0;
  for (std::size_t d = 0; d < docPos && i < text.size(); ++d)
    i += text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n' ? 2 : 1;
  return i;
}

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
  connect(document(), &QTextDocument::contentsChange, this, &MonitorView::onDocumentChange);
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
  m_painting = true;
  setFont(MonitorFont(look));
  document()->setDefaultFont(font());
  m_painting = false;
}

void MonitorView::setEditable(bool on) {
  if (isReadOnly() != on) return;
  setReadOnly(!on);
  setTextInteractionFlags(on ? Qt::TextEditorInteraction
                             : Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void MonitorView::onChange(const RichText::Change& change) {
  if (m_mirroring) return;  // the document shows it already
  if (change.kind == RichText::Change::Reset || change.from < m_rendered) m_resetPending = true;
  if (!m_batch.isActive()) m_batch.start();
}

void MonitorView::onDocumentChange(int position, int removed, int added) {
  if (m_painting || isReadOnly() || m_resetPending) return;
  const std::string_view shown(m_text.text().data(), m_rendered);
  const std::size_t docLength = DocPosition(shown, shown.size());
  // Qt may count the document's closing paragraph mark into a change: it is no text.
  const auto from = std::min(static_cast<std::size_t>(position), docLength);
  const auto to = std::min(static_cast<std::size_t>(position + removed), docLength);
  QTextCursor cursor(document());
  const int last = document()->characterCount() - 1;
  cursor.setPosition(std::min(position, last));
  cursor.setPosition(std::min(position + added, last), QTextCursor::KeepAnchor);
  QString typed = cursor.selectedText();
  typed.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
  typed.replace(QChar::LineSeparator, QStringLiteral("\r\n"));
  const std::string text = FromQString(typed);
  const std::size_t at = TextPosition(shown, from);
  const std::size_t count = TextPosition(shown, to) - at;
  if (removed == added && shown.substr(at, count) == text) return;  // a change of format only
  const std::size_t expected = m_text.length() - count + text.size();
  m_mirroring = true;
  if (m_handlers.change) {
    m_handlers.change(at, count, text);
  } else {
    m_text.setSelection(at, count);
    m_text.replaceSelection(text, m_text.defaultStyle());
  }
  m_mirroring = false;
  if (m_text.length() != expected) {
    // The station did not take the edit: show its text as it is.
    m_resetPending = true;
    if (!m_batch.isActive()) m_batch.start();
    return;
  }
  m_rendered = m_rendered - count + text.size();
  m_lastWasCr = m_rendered > 0 && m_text.text()[m_rendered - 1] == '\r';
}

void MonitorView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Undo)) {
    if (m_handlers.undo) m_handlers.undo();
    return;
  }
  if (!isReadOnly() && !event->text().isEmpty() && m_handlers.keyPress) {
    // What the operator types takes the typing style the station sets on a key press.
    m_handlers.keyPress();
    const TextStyle style = m_text.defaultStyle();
    QTextCharFormat format;
    format.setForeground(ToQColor(style.color));
    format.setFontWeight(style.bold ? QFont::Bold : QFont::Normal);
    if (style.size > 0) format.setFontPointSize(style.size);
    setCurrentCharFormat(format);
  }
  QPlainTextEdit::keyPressEvent(event);
}

void MonitorView::contextMenuEvent(QContextMenuEvent* event) {
  if (!m_handlers.rightPress) {
    QPlainTextEdit::contextMenuEvent(event);
    return;
  }
  m_handlers.rightPress(event->globalPos());
}

void MonitorView::writeSelectionBack() {
  if (m_resetPending) return;  // the document is older than the text: its selection means little
  const std::string_view shown(m_text.text().data(), m_rendered);
  const QTextCursor cursor = textCursor();
  const std::size_t a = TextPosition(shown, static_cast<std::size_t>(cursor.selectionStart()));
  const std::size_t b = TextPosition(shown, static_cast<std::size_t>(cursor.selectionEnd()));
  m_text.setSelection(a, b - a);
}

void MonitorView::showModelSelection() {
  flush();
  const std::string& text = m_text.text();
  const int last = document()->characterCount() - 1;
  const auto docAt = [&](std::size_t pos) {
    return std::min(static_cast<int>(DocPosition(text, pos)), last);
  };
  QTextCursor cursor(document());
  cursor.setPosition(docAt(m_text.selStart()));
  cursor.setPosition(docAt(m_text.selStart() + m_text.selLength()), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ensureCursorVisible();
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
  QScrollBar* bar = verticalScrollBar();
  const int kept = bar->value();
  m_painting = true;
  document()->clear();
  m_painting = false;
  m_rendered = 0;
  m_lastWasCr = false;
  appendFrom(0);
  if (!m_follow) bar->setValue(std::min(kept, bar->maximum()));
}

void MonitorView::appendFrom(std::size_t from) {
  const std::size_t end = m_text.length();
  if (from >= end) return;
  QScrollBar* bar = verticalScrollBar();
  m_painting = true;
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
  m_painting = false;
  m_rendered = end;
  // With "Scroll" on the end comes into view, as the caret set past the end does; off, the
  // view stays where the operator left it.
  if (m_follow) bar->setValue(bar->maximum());
}

}  // namespace tesk
