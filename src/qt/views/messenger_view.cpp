// The messenger's widgets: the received list over its viewer, the filter and log rows, the
// buttons of the received list, and the sent list in its frame with its own two buttons.
#include "qt/views/messenger_view.h"

#include <QAction>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QFont>
#include <QFontMetrics>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "qt/qt_text.h"
#include "qt/views/combo_items.h"

namespace tesk {

namespace {

QFont FixedFont(const std::string& name) {
  QFont fixed(ToQString(name));
  fixed.setStyleHint(QFont::TypeWriter);
  return fixed;
}

}  // namespace

MessengerView::MessengerView(Messenger& messenger, QWidget* parent)
    : QWidget(parent, Qt::Window), m_messenger(messenger) {
  setObjectName(QString::fromLatin1(Messenger::kWindowName));
  auto* col = new QVBoxLayout(this);
  auto* split = new QSplitter(Qt::Vertical, this);
  split->addWidget(buildReceived());
  split->addWidget(buildSent());
  split->setStretchFactor(0, 3);
  split->setStretchFactor(1, 1);
  split->setChildrenCollapsible(false);
  col->addWidget(split, 1);
  auto* bottom = new QHBoxLayout;
  bottom->addStretch(1);
  auto* close = new QPushButton(ToQString(m_messenger.window().cmdClose.caption), this);
  close->setObjectName(QStringLiteral("cmdClose"));
  close->setAutoDefault(false);
  connect(close, &QPushButton::clicked, this, [this]() { press(&Messenger::cmdClose_Click); });
  bottom->addWidget(close);
  col->addLayout(bottom);
  const QFontMetrics metrics(FixedFont(m_messenger.window().fontName));
  resize(metrics.horizontalAdvance(QString(96, QLatin1Char('M'))) + 40, 600);
  refresh();
}

QWidget* MessengerView::buildReceived() {
  MessengerWindow& w = m_messenger.window();
  auto* box = new QGroupBox(tr("Received messages"), this);
  auto* col = new QVBoxLayout(box);
  m_received = new QListWidget(box);
  m_received->setObjectName(QStringLiteral("List1"));
  m_received->setFont(FixedFont(w.fontName));
  m_received->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(m_received, &QListWidget::currentRowChanged, this,
          [this](int r) { m_messenger.window().List1.listIndex = r; });
  connect(m_received, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    m_messenger.window().List1.listIndex = m_received->row(item);
    press(&Messenger::List1_Click);
  });
  connect(m_received, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
    m_messenger.window().List1.listIndex = m_received->row(item);
    press(&Messenger::List1_DblClick);
  });
  m_popup = new QMenu(this);
  m_popup->setObjectName(QStringLiteral("menueditas"));
  for (std::size_t i = 0; i < w.menueditas.size(); ++i) {
    QAction* action = m_popup->addAction(ToQString(w.menueditas[i].caption));
    const int index = static_cast<int>(i);
    connect(action, &QAction::triggered, this, [this, index]() {
      m_messenger.menueditas_Click(index);
      refresh();
    });
  }
  connect(m_received, &QListWidget::customContextMenuRequested, this, [this](const QPoint& at) {
    if (QListWidgetItem* item = m_received->itemAt(at))
      m_messenger.window().List1.listIndex = m_received->row(item);
    m_messenger.List1_RightPress();
    if (!m_messenger.window().menueditasPopup) return;
    m_popup->exec(m_received->viewport()->mapToGlobal(at));
    m_messenger.window().menueditasPopup = false;
  });
  col->addWidget(m_received, 1);
  m_viewer = new QLabel(box);
  m_viewer->setObjectName(QStringLiteral("lblAPRSMessangerViewer"));
  m_viewer->setFrameShape(QFrame::StyledPanel);
  m_viewer->setFont(FixedFont(w.fontName));
  m_viewer->setWordWrap(true);
  m_viewer->setTextInteractionFlags(Qt::TextSelectableByMouse);
  m_viewer->setMinimumHeight(QFontMetrics(m_viewer->font()).lineSpacing() * 2 + 8);
  col->addWidget(m_viewer);

  auto* filters = new QHBoxLayout;
  filters->addWidget(new QLabel(tr("View:"), box));
  // Two rows of options in one box: each row is its own group, or one row would clear the other.
  auto* filterGroup = new QButtonGroup(box);
  for (std::size_t i = 0; i < m_filters.size(); ++i) {
    m_filters[i] = new QRadioButton(ToQString(w.OptViewMessages[i].caption), box);
    m_filters[i]->setObjectName(QStringLiteral("OptViewMessages%1").arg(i));
    filterGroup->addButton(m_filters[i]);
    const int index = static_cast<int>(i);
    connect(m_filters[i], &QRadioButton::clicked, this, [this, index]() {
      m_messenger.OptViewMessages_Click(index);
      refresh();
    });
    filters->addWidget(m_filters[i]);
  }
  filters->addStretch(1);
  m_total = new QLabel(box);
  m_total->setObjectName(QStringLiteral("LlbTotMes"));
  QFont bold = m_total->font();
  bold.setBold(true);
  m_total->setFont(bold);
  filters->addWidget(m_total);
  col->addLayout(filters);

  auto* logRow = new QHBoxLayout;
  logRow->addWidget(new QLabel(tr("Store:"), box));
  auto* logGroup = new QButtonGroup(box);
  for (std::size_t i = 0; i < m_logTypes.size(); ++i) {
    m_logTypes[i] = new QRadioButton(ToQString(w.OptLogTypeMessages[i].caption), box);
    m_logTypes[i]->setObjectName(QStringLiteral("OptLogTypeMessages%1").arg(i));
    logGroup->addButton(m_logTypes[i]);
    const int index = static_cast<int>(i);
    connect(m_logTypes[i], &QRadioButton::clicked, this, [this, index]() {
      m_messenger.OptLogTypeMessages_Click(index);
      refresh();
    });
    logRow->addWidget(m_logTypes[i]);
  }
  logRow->addStretch(1);
  col->addLayout(logRow);

  auto* buttons = new QHBoxLayout;
  const auto add = [&](Button& b, const char* name, void (Messenger::*handler)()) {
    auto* p = new QPushButton(ToQString(b.caption), box);
    p->setObjectName(QString::fromLatin1(name));
    p->setToolTip(ToQString(b.toolTip));
    p->setAutoDefault(false);
    connect(p, &QPushButton::clicked, this, [this, handler]() { press(handler); });
    buttons->addWidget(p);
  };
  add(w.Command2, "Command2", &Messenger::Command2_Click);
  add(w.cmdMesCopySel, "cmdMesCopySel", &Messenger::cmdMesCopySel_Click);
  add(w.cmdMesCopy, "cmdMesCopy", &Messenger::cmdMesCopy_Click);
  add(w.cmdMesPrint, "cmdMesPrint", &Messenger::cmdMesPrint_Click);
  add(w.cmdMesSave, "cmdMesSave", &Messenger::cmdMesSave_Click);
  add(w.cmdOpen, "cmdOpen", &Messenger::cmdOpen_Click);
  buttons->addStretch(1);
  add(w.cmdMesClear, "cmdMesClear", &Messenger::cmdMesClear_Click);
  col->addLayout(buttons);
  return box;
}

QWidget* MessengerView::buildSent() {
  MessengerWindow& w = m_messenger.window();
  m_sentFrame = new QGroupBox(this);
  m_sentFrame->setObjectName(QStringLiteral("FrameSent"));
  auto* col = new QVBoxLayout(m_sentFrame);
  m_sent = new QListWidget(m_sentFrame);
  m_sent->setObjectName(QStringLiteral("List2"));
  m_sent->setFont(FixedFont(w.fontName));
  connect(m_sent, &QListWidget::currentRowChanged, this,
          [this](int r) { m_messenger.window().List2.listIndex = r; });
  col->addWidget(m_sent, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  const auto add = [&](Button& b, const char* name, void (Messenger::*handler)()) {
    auto* p = new QPushButton(ToQString(b.caption), m_sentFrame);
    p->setObjectName(QString::fromLatin1(name));
    p->setAutoDefault(false);
    connect(p, &QPushButton::clicked, this, [this, handler]() { press(handler); });
    buttons->addWidget(p);
  };
  add(w.CmdStopPend, "CmdStopPend", &Messenger::CmdStopPend_Click);
  add(w.CmdSentOpt, "CmdSentOpt", &Messenger::CmdSentOpt_Click);
  col->addLayout(buttons);
  return m_sentFrame;
}

void MessengerView::press(void (Messenger::*handler)()) {
  (m_messenger.*handler)();
  refresh();
}

void MessengerView::refresh() {
  const MessengerWindow& w = m_messenger.window();
  setWindowTitle(ToQString(w.form.caption));
  {
    const QSignalBlocker block(m_received);
    RenderListItems(m_received, w.List1);
  }
  {
    const QSignalBlocker block(m_sent);
    RenderListItems(m_sent, w.List2);
  }
  m_viewer->setText(ToQStringLines(w.lblAPRSMessangerViewer.caption));
  m_total->setText(ToQString(w.LlbTotMes.caption));
  m_sentFrame->setTitle(ToQString(w.FrameSent.caption));
  for (std::size_t i = 0; i < m_filters.size(); ++i) {
    const QSignalBlocker block(m_filters[i]);
    m_filters[i]->setChecked(w.OptViewMessages[i].value);
  }
  for (std::size_t i = 0; i < m_logTypes.size(); ++i) {
    const QSignalBlocker block(m_logTypes[i]);
    m_logTypes[i]->setChecked(w.OptLogTypeMessages[i].value);
  }
}

void MessengerView::closeEvent(QCloseEvent* event) {
  // Closing by the window frame is the Close button: the refresh timer stops with it.
  event->ignore();
  m_messenger.cmdClose_Click();
}

}  // namespace tesk
