// The note window's widgets: the text over a right-aligned OK button, sized from twips.
#include "qt/views/meld_view.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/qt_text.h"

namespace tesk {

namespace {

// Twips as the struct keeps them: 15 to a pixel at the classic 96 dots per inch.
int Pixels(long twips) {
  return static_cast<int>(twips / 15);
}

}  // namespace

MeldView::MeldView(MeldWindow& data, std::function<void()> onOk, QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::WindowStaysOnTopHint), m_data(data), m_onOk(std::move(onOk)) {
  setObjectName(QStringLiteral("Meld"));
  setWindowModality(Qt::NonModal);
  // A notice, not a question: it must not take the keyboard from the transmit fields.
  setAttribute(Qt::WA_ShowWithoutActivating);
  auto* col = new QVBoxLayout(this);
  col->setContentsMargins(10, 8, 10, 8);
  m_label = new QLabel(this);
  m_label->setObjectName(QStringLiteral("lblMelding"));
  m_label->setWordWrap(true);
  m_label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  m_label->setTextFormat(Qt::PlainText);
  col->addWidget(m_label, 1);
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  m_ok = new QPushButton(this);
  m_ok->setObjectName(QStringLiteral("cmd_OK_Meld"));
  m_ok->setAutoDefault(false);
  row->addWidget(m_ok);
  col->addLayout(row);
  connect(m_ok, &QPushButton::clicked, this, [this]() {
    if (m_onOk) m_onOk();
  });
  refresh();
}

void MeldView::refresh() {
  const QString caption = ToQString(m_data.form.caption);
  setWindowTitle(caption.isEmpty() ? QStringLiteral("TESK") : caption);
  const QString text = ToQStringLines(m_data.lblMelding.caption);
  if (m_label->text() != text) m_label->setText(text);
  m_label->setMinimumHeight(Pixels(m_data.labelHeight));
  const QString ok = ToQString(m_data.cmd_OK_Meld.caption);
  m_ok->setText(ok.isEmpty() ? QStringLiteral("OK") : ok);
  m_ok->setVisible(m_data.cmd_OK_Meld.visible);
  // The note's size, but never so small that its text is cut.
  const int width = Pixels(m_data.form.width);
  const int height = std::max(Pixels(m_data.form.height), m_label->heightForWidth(width - 20) +
                                                              (m_ok->isVisibleTo(this) ? 48 : 24));
  resize(width, height);
}

void MeldView::placeBeside(const QRect& anchor, const QRect& screen) {
  QPoint at(anchor.right() + 8, anchor.top());
  if (at.x() + width() > screen.right()) at.setX(anchor.right() - width() - 8);
  at.setX(std::max(screen.left(), std::min(at.x(), screen.right() - width())));
  at.setY(std::max(screen.top(), std::min(at.y(), screen.bottom() - height())));
  move(at);
}

void MeldView::placeByData() {
  move(Pixels(m_data.form.left), Pixels(m_data.form.top));
}

void MeldView::closeEvent(QCloseEvent* event) {
  // The window's close box is the OK button: the note's routine unloads it.
  event->ignore();
  if (m_onOk) m_onOk();
}

}  // namespace tesk
