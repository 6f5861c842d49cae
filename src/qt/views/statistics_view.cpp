// The statistics window's widgets: the Monitor's counts on the left, the three name-and-value
// groups on the right, the engine's state under them and the buttons along the bottom. Values
// stand right-aligned beside their names so the columns of figures read at a glance.
#include "qt/views/statistics_view.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "qt/qt_text.h"
#include "qt/views/view_kit.h"

namespace tesk {

namespace {

QLabel* NewLabel(QWidget* parent, const char* name, Qt::Alignment align = Qt::AlignLeft) {
  auto* l = new QLabel(parent);
  l->setObjectName(QString::fromLatin1(name));
  l->setAlignment(align | Qt::AlignTop);
  l->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return l;
}

// A group of names with their values beside them.
QGroupBox* PairGroup(QWidget* parent, const QString& title, QLabel*& names, QLabel*& values,
                     const char* namesName, const char* valuesName) {
  auto* box = new QGroupBox(title, parent);
  auto* row = new QHBoxLayout(box);
  names = NewLabel(box, namesName);
  values = NewLabel(box, valuesName, Qt::AlignRight);
  QFont bold = values->font();
  bold.setBold(true);
  values->setFont(bold);
  row->addWidget(names, 1);
  row->addWidget(values);
  return box;
}

}  // namespace

StatisticsView::StatisticsView(Statistics& statistics, QWidget* parent)
    : QWidget(parent, Qt::Window), m_statistics(statistics) {
  setObjectName(QString::fromLatin1(Statistics::kWindowName));
  StatisticsWindow& w = m_statistics.window();
  auto* col = new QVBoxLayout(this);
  auto* grid = new QGridLayout;
  auto* monitor = new QGroupBox(tr("Monitor"), this);
  auto* monitorCol = new QVBoxLayout(monitor);
  m_label1 = NewLabel(monitor, "Label1");
  monitorCol->addWidget(m_label1);
  monitorCol->addStretch(1);
  grid->addWidget(monitor, 0, 0, 3, 1);
  grid->addWidget(
      PairGroup(this, tr("Frames sent"), m_txNames, m_txValues, "lblTXbut", "lblTXbutRes"), 0, 1, 3,
      1);
  grid->addWidget(PairGroup(this, tr("History fields"), m_fieldNames, m_fieldValues, "LblFields",
                            "lblFieldsRes"),
                  0, 2);
  grid->addWidget(
      PairGroup(this, tr("Stations"), m_heardNames, m_heardValues, "lblHeard", "lblHeardres"), 1,
      2);
  auto* engine = new QGroupBox(tr("Console"), this);
  auto* engineCol = new QVBoxLayout(engine);
  m_status = NewLabel(engine, "lblStatus");
  QFont fixed(QStringLiteral("Monospace"));
  fixed.setStyleHint(QFont::TypeWriter);
  m_status->setFont(fixed);  // the engine names are padded to line up their "="
  m_mode = NewLabel(engine, "lblMode");
  m_profile = NewLabel(engine, "lblProfile");
  engineCol->addWidget(m_status);
  engineCol->addWidget(m_mode);
  engineCol->addWidget(m_profile);
  engineCol->addStretch(1);
  grid->addWidget(engine, 2, 2);
  grid->setColumnStretch(0, 3);
  grid->setColumnStretch(1, 2);
  grid->setColumnStretch(2, 3);
  col->addLayout(grid, 1);

  auto* buttons = new QHBoxLayout;
  const auto add = [&](Button& b, const char* name, void (Statistics::*handler)()) {
    auto* p = new QPushButton(ToQString(b.caption), this);
    p->setObjectName(QString::fromLatin1(name));
    p->setAutoDefault(false);
    connect(p, &QPushButton::clicked, this, [this, handler]() { press(handler); });
    buttons->addWidget(p);
    return p;
  };
  m_command2 = add(w.Command2, "Command2", &Statistics::Command2_Click);
  m_command3 = add(w.Command3, "Command3", &Statistics::Command3_Click);
  buttons->addStretch(1);
  m_command1 = add(w.Command1, "Command1", &Statistics::Command1_Click);
  m_command1->setDefault(true);
  // Escape closes it as the Close button does.
  auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  connect(escape, &QShortcut::activated, this, [this]() { press(&Statistics::Command1_Click); });
  col->addLayout(buttons);
  refresh();
}

StatisticsView::~StatisticsView() {
  showBusy(false);
}

void StatisticsView::press(void (Statistics::*handler)()) {
  (m_statistics.*handler)();
  refresh();
}

void StatisticsView::showBusy(bool busy) {
  if (busy == m_busyShown) return;
  m_busyShown = busy;
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

void StatisticsView::refresh() {
  const StatisticsWindow& w = m_statistics.window();
  setWindowTitle(ToQString(w.form.caption));
  RenderLabel(m_label1, w.Label1);
  RenderLabel(m_txNames, w.lblTXbut);
  RenderLabel(m_txValues, w.lblTXbutRes);
  RenderLabel(m_fieldNames, w.LblFields);
  RenderLabel(m_fieldValues, w.lblFieldsRes);
  RenderLabel(m_heardNames, w.lblHeard);
  RenderLabel(m_heardValues, w.lblHeardres);
  RenderLabel(m_status, w.lblStatus);
  RenderLabel(m_mode, w.lblMode);
  RenderLabel(m_profile, w.lblProfile);
  const std::pair<QPushButton*, const Button*> buttons[] = {
      {m_command1, &w.Command1}, {m_command2, &w.Command2}, {m_command3, &w.Command3}};
  for (const auto& [widget, data] : buttons) {
    widget->setText(ToQString(data->caption));
    widget->setToolTip(ToQString(data->toolTip));
    widget->setEnabled(data->enabled);
    widget->setVisible(data->visible);
  }
  showBusy(w.busy);
}

void StatisticsView::closeEvent(QCloseEvent* event) {
  // Closing by the window frame is the Close button.
  event->ignore();
  m_statistics.Command1_Click();
}

}  // namespace tesk
