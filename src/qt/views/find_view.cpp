// The find window's widgets: the text with its two options on the left, the buttons on the
// right, as find windows of desktop programs are laid out. Enter in the text finds the next hit.
#include "qt/views/find_view.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "qt/qt_text.h"

namespace tesk {

FindView::FindView(MonitorFind& find, std::function<void()> afterCommand, QWidget* parent)
    : QDialog(parent), m_find(find), m_after(std::move(afterCommand)) {
  setObjectName(QStringLiteral("frmFind"));
  setModal(false);
  auto* row = new QHBoxLayout(this);
  auto* left = new QVBoxLayout;
  auto* line = new QHBoxLayout;
  m_text = new QLineEdit(this);
  m_text->setObjectName(QStringLiteral("txtToFind"));
  m_text->setMinimumWidth(m_text->fontMetrics().horizontalAdvance(QLatin1Char('M')) * 22);
  auto* label = new QLabel(tr("Fi&nd what:"), this);
  label->setBuddy(m_text);
  line->addWidget(label);
  line->addWidget(m_text, 1);
  left->addLayout(line);
  m_word = new QCheckBox(this);
  m_word->setObjectName(QStringLiteral("ChkWordOnly"));
  m_case = new QCheckBox(this);
  m_case->setObjectName(QStringLiteral("ChkCase"));
  left->addWidget(m_word);
  left->addWidget(m_case);
  left->addStretch(1);
  row->addLayout(left, 1);
  auto* buttons = new QVBoxLayout;
  m_next = new QPushButton(this);
  m_next->setObjectName(QStringLiteral("CmdFindNext"));
  m_next->setAutoDefault(false);
  m_close = new QPushButton(this);
  m_close->setObjectName(QStringLiteral("CmdClose"));
  m_close->setAutoDefault(false);
  buttons->addWidget(m_next);
  buttons->addWidget(m_close);
  buttons->addStretch(1);
  row->addLayout(buttons);

  FindWindow& w = m_find.window();
  connect(m_text, &QLineEdit::textEdited, this,
          [&w](const QString& t) { w.txtToFind.text = FromQString(t); });
  connect(m_case, &QCheckBox::clicked, this, [&w](bool on) { w.ChkCase.value = on ? 1 : 0; });
  connect(m_word, &QCheckBox::clicked, this, [&w](bool on) { w.ChkWordOnly.value = on ? 1 : 0; });
  connect(m_text, &QLineEdit::returnPressed, this,
          [this]() { run([this]() { m_find.txtToFind_KeyPress(13); }); });
  connect(m_next, &QPushButton::clicked, this,
          [this]() { run([this]() { m_find.CmdFindNext_Click(); }); });
  connect(m_close, &QPushButton::clicked, this,
          [this]() { run([this]() { m_find.CmdClose_Click(); }); });
  refresh();
}

void FindView::refresh() {
  const FindWindow& w = m_find.window();
  setWindowTitle(ToQString(w.form.caption));
  if (m_text->text() != ToQString(w.txtToFind.text)) m_text->setText(ToQString(w.txtToFind.text));
  const auto box = [](QCheckBox* b, const CheckBox& d) {
    const QSignalBlocker block(b);
    b->setText(ToQString(d.caption));
    b->setChecked(d.checked());
  };
  box(m_case, w.ChkCase);
  box(m_word, w.ChkWordOnly);
  m_next->setText(ToQString(w.CmdFindNext.caption));
  m_next->setEnabled(w.CmdFindNext.enabled);
  m_close->setText(ToQString(w.CmdClose.caption));
}

void FindView::run(const std::function<void()>& handler) {
  handler();
  refresh();
  if (m_after) m_after();
}

void FindView::closeEvent(QCloseEvent* event) {
  // Closed by its frame: the same unload as the Close button.
  if (m_find.window().form.loaded) run([this]() { m_find.Form_Unload(); });
  event->accept();
}

void FindView::reject() {
  run([this]() { m_find.CmdClose_Click(); });
  QDialog::reject();
}

}  // namespace tesk
