// The details window's widgets: the column title over the visible box, the option row, the
// total and the buttons along the bottom.
#include "qt/views/view_heard_view.h"

#include <QCloseEvent>
#include <QFont>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "qt/qt_text.h"
#include "qt/views/combo_items.h"

namespace tesk {

ViewHeardView::ViewHeardView(ViewHeard& heard, QWidget* parent)
    : QWidget(parent, Qt::Window), m_heard(heard) {
  setObjectName(QString::fromLatin1(ViewHeard::kWindowName));
  ViewHeardWindow& w = m_heard.window();
  auto* col = new QVBoxLayout(this);
  auto* title = new QLabel(ToQString(w.lblColumnTitle.caption).replace("&&", "&"), this);
  QFont fixed(ToQString(w.fontName));
  fixed.setStyleHint(QFont::TypeWriter);
  title->setFont(fixed);
  title->setIndent(QFontMetrics(fixed).horizontalAdvance(QString(21, QLatin1Char(' '))));
  col->addWidget(title);
  for (std::size_t i = 0; i < 2; ++i) {
    m_boxes[i] = new QListWidget(this);
    m_boxes[i]->setObjectName(QStringLiteral("LstViewHeard%1").arg(i));
    m_boxes[i]->setFont(fixed);
    ListBox* data = &w.LstViewHeard[i];
    connect(m_boxes[i], &QListWidget::currentRowChanged, this,
            [data](int r) { data->listIndex = r; });
    col->addWidget(m_boxes[i], 1);
  }
  auto* row = new QHBoxLayout;
  for (std::size_t i = 0; i < 2; ++i) {
    m_options[i] = new QRadioButton(ToQString(w.OptMHSort[i].caption), this);
    m_options[i]->setObjectName(QStringLiteral("OptMHSort%1").arg(i));
    const int index = static_cast<int>(i);
    connect(m_options[i], &QRadioButton::clicked, this, [this, index]() {
      m_heard.OptMHSort_Click(index);
      refresh();
    });
    row->addWidget(m_options[i]);
  }
  row->addStretch(1);
  m_autoClear = new QLabel(ToQString(w.Label4.caption), this);
  m_autoClear->setObjectName(QStringLiteral("Label4"));
  row->addWidget(m_autoClear);
  row->addSpacing(12);
  row->addWidget(new QLabel(ToQString(w.lblTotalCaption.caption), this));
  m_total = new QLabel(this);
  m_total->setObjectName(QStringLiteral("LblTotalheard"));
  QFont bold = m_total->font();
  bold.setBold(true);
  m_total->setFont(bold);
  row->addWidget(m_total);
  col->addLayout(row);
  auto* buttons = new QHBoxLayout;
  const auto add = [&](Button& b, const char* name, void (ViewHeard::*handler)()) {
    auto* p = new QPushButton(ToQString(b.caption), this);
    p->setObjectName(QString::fromLatin1(name));
    p->setAutoDefault(false);
    connect(p, &QPushButton::clicked, this, [this, handler]() { press(handler); });
    buttons->addWidget(p);
  };
  add(w.cmdcopy, "cmdcopy", &ViewHeard::cmdcopy_Click);
  add(w.cmdsave, "cmdsave", &ViewHeard::cmdsave_Click);
  add(w.cmdOpenmheard, "cmdOpenmheard", &ViewHeard::cmdOpenmheard_Click);
  add(w.Cmdheardsetup, "Cmdheardsetup", &ViewHeard::Cmdheardsetup_Click);
  add(w.cmdMHeardView, "cmdMHeardView", &ViewHeard::cmdMHeardView_Click);
  buttons->addStretch(1);
  add(w.Command1, "Command1", &ViewHeard::Command1_Click);
  col->addLayout(buttons);
  resize(QFontMetrics(fixed).horizontalAdvance(QString(48, QLatin1Char('M'))), 420);
  refresh();
}

void ViewHeardView::press(void (ViewHeard::*handler)()) {
  (m_heard.*handler)();
  refresh();
}

void ViewHeardView::refresh() {
  const ViewHeardWindow& w = m_heard.window();
  setWindowTitle(ToQString(w.form.caption));
  for (std::size_t i = 0; i < 2; ++i) {
    const ListBox& d = w.LstViewHeard[i];
    QListWidget* box = m_boxes[i];
    const QSignalBlocker block(box);
    RenderListItems(box, d);
    box->setVisible(d.visible);
    const QSignalBlocker blockOption(m_options[i]);
    m_options[i]->setChecked(w.OptMHSort[i].value);
  }
  m_total->setText(ToQString(w.LblTotalheard.caption));
  m_autoClear->setVisible(w.Label4.visible);
}

void ViewHeardView::closeEvent(QCloseEvent* event) {
  // Closing by the window frame is the Close button: the refresh timer stops with it.
  event->ignore();
  m_heard.Command1_Click();
}

}  // namespace tesk
