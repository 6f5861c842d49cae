// The status strip's widgets. The port selectors run their commands; the station checks the row
// in force and asks for the popup, which then shows the seven rows of the table.
#include "qt/views/status_strip_view.h"

#include <QFontDatabase>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

#include "core/ports.h"
#include "qt/qt_text.h"

namespace tesk {

StatusStripView::StatusStripView(ViewKit& kit, std::function<QMenu*()> logMenu,
                                 std::function<QMenu*()> filterMenu)
    : m_kit(kit), m_logMenu(std::move(logMenu)), m_filterMenu(std::move(filterMenu)) {}

QWidget* StatusStripView::build(QWidget* parent) {
  MainWindow& d = m_kit.data();
  auto* strip = new QFrame(parent);
  strip->setFrameShape(QFrame::StyledPanel);
  auto* row = new QHBoxLayout(strip);
  row->setContentsMargins(6, 4, 6, 4);
  m_lamp = new QLabel(strip);
  m_lamp->setObjectName(QStringLiteral("frmLogoTitle"));
  m_lamp->setAlignment(Qt::AlignCenter);
  m_lamp->setMinimumWidth(m_lamp->fontMetrics().horizontalAdvance(QStringLiteral("+LAN")) * 2);
  row->addWidget(m_lamp);
  row->addWidget(buildPorts(strip));
  const auto addLabel = [&](Label& data, const char* name) {
    auto* w = new QLabel(strip);
    w->setObjectName(QString::fromLatin1(name));
    w->setContentsMargins(4, 0, 4, 0);
    m_kit.paintLabel(data, w);
    row->addWidget(w);
    return w;
  };
  auto* beacon = new ClickLabel(strip);  // a double click switches the beacon
  beacon->setObjectName(QStringLiteral("lblBeacon"));
  beacon->setContentsMargins(6, 1, 6, 1);
  beacon->setFrameShape(QFrame::StyledPanel);
  beacon->onDoubleClick = [this]() { m_kit.run({Command::lblBeacon_DblClick}); };
  m_kit.paintLabel(d.lblBeacon, beacon);
  row->addWidget(beacon);
  addLabel(d.LblSpEx, "LblSpEx");
  addLabel(d.LblAckON, "LblAckON");
  auto* log = new ClickLabel(strip);
  log->setObjectName(QStringLiteral("AutoLogLabel"));
  log->setContentsMargins(6, 1, 6, 1);
  log->setFrameShape(QFrame::StyledPanel);
  log->onDoubleClick = [this]() { m_kit.run({Command::AutoLogLabel_DblClick}); };
  log->onRightPress = [this](QPoint at) {
    // The request is noted first, so a mode chosen from the popup may ask for its call.
    m_kit.run({Command::AutoLogLabel_RightPress});
    if (QMenu* menu = m_logMenu()) menu->popup(at);
  };
  m_kit.paintLabel(d.AutoLogLabel, log);
  row->addWidget(log);
  auto* filter = new PressLabel(strip);  // any press pops up the filter menu
  filter->setObjectName(QStringLiteral("lblMonitorFilter"));
  filter->setContentsMargins(6, 1, 6, 1);
  filter->setFrameShape(QFrame::StyledPanel);
  filter->onPress = [this](QPoint at) {
    if (QMenu* menu = m_filterMenu()) menu->popup(at);
  };
  m_kit.paintLabel(d.lblMonitorFilter, filter);
  row->addWidget(filter);
  row->addStretch(1);
  const auto addClock = [&](Label& data, const char* name, const QString& title) {
    auto* caption = new QLabel(title, strip);
    caption->setEnabled(false);  // the dimmed text of a caption
    row->addWidget(caption);
    QLabel* w = addLabel(data, name);
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPointSizeF(w->font().pointSizeF() * 1.15);
    f.setBold(true);
    w->setFont(f);
  };
  addClock(d.UTC_Klok, "UTC_Klok", QObject::tr("UTC"));
  addClock(d.Klok, "Klok", QObject::tr("Local"));
  return strip;
}

QWidget* StatusStripView::buildPorts(QWidget* parent) {
  auto* box = new QFrame(parent);
  box->setFrameShape(QFrame::StyledPanel);
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(2, 0, 2, 0);
  row->setSpacing(2);
  m_frameComm = new QLabel(box);
  m_frameComm->setObjectName(QStringLiteral("FrameComm"));
  m_frameComm->setContentsMargins(4, 0, 4, 0);
  row->addWidget(m_frameComm);
  const auto selector = [&](const char* name, const QString& text, const QString& tip,
                            Command command) {
    auto* b = new QToolButton(box);
    b->setObjectName(QString::fromLatin1(name));
    b->setText(text);
    b->setToolTip(tip);
    b->setAutoRaise(true);
    b->setFocusPolicy(Qt::NoFocus);
    QObject::connect(b, &QToolButton::clicked, b, [this, command]() { m_kit.run({command}); });
    row->addWidget(b);
    return b;
  };
  m_txSelector = selector("imgTXPortSelector", QObject::tr("TX \u25BE"),
                          QObject::tr("Choose the transmit port"), Command::imgTXPortSelector);
  m_rxSelector = selector("imgRXPortSelector", QObject::tr("RX \u25BE"),
                          QObject::tr("Choose the receive port"), Command::imgRXPortSelector);
  m_txPorts = new QMenu(box);
  m_txPorts->setObjectName(QStringLiteral("menuAgwport"));
  m_rxPorts = new QMenu(box);
  m_rxPorts->setObjectName(QStringLiteral("menuAgwportRX"));
  for (int i = 0; i < Ports::kRows; ++i) {
    m_kit.addAction(m_txPorts, {Command::menuAgwport, i});
    m_kit.addAction(m_rxPorts, {Command::menuAgwportRX, i});
  }
  return box;
}

void StatusStripView::popupPorts(bool tx) {
  QToolButton* at = tx ? m_txSelector : m_rxSelector;
  QMenu* menu = tx ? m_txPorts : m_rxPorts;
  m_kit.refresh();  // the row in force shows checked
  menu->popup(at->mapToGlobal(QPoint(0, at->height())));
}

void StatusStripView::renderLamp() {
  const Frame& f = m_kit.data().frmLogoTitle;
  QString caption = ToQString(f.caption);
  m_lamp->setText(caption.isEmpty() ? QStringLiteral(" ") : caption);
  m_lamp->setToolTip(f.toolTip.empty() ? QObject::tr("Link to the packet engine")
                                       : ToQString(f.toolTip));
  m_lamp->setVisible(f.visible);
  QString style = QStringLiteral(
      "QLabel#frmLogoTitle { border-radius: 4px; padding: 3px 12px;"
      " font-weight: bold;");
  if (IsOwnColor(f.backColor, kDefaultBack)) {
    const QColor back = ToQColor(f.backColor);
    const QColor fore = IsOwnColor(f.foreColor, kDefaultFore) ? ToQColor(f.foreColor)
                        : back.lightness() < 150              ? QColor(Qt::white)
                                                              : QColor(Qt::black);
    style += QStringLiteral(" background-color: %1; color: %2;").arg(back.name(), fore.name());
  } else {
    style += QStringLiteral(" border: 1px solid palette(mid);");
  }
  m_lamp->setStyleSheet(style + QStringLiteral(" }"));
}

void StatusStripView::render() {
  renderLamp();
  const Frame& comm = m_kit.data().FrameComm;
  m_frameComm->setText(ToQString(comm.caption));
  m_frameComm->setToolTip(ToQString(comm.toolTip));
  m_frameComm->parentWidget()->setVisible(comm.visible && !comm.caption.empty());
  m_txSelector->setEnabled(m_kit.commands().enabled({Command::imgTXPortSelector}));
  m_rxSelector->setEnabled(m_kit.commands().enabled({Command::imgRXPortSelector}));
}

}  // namespace tesk
