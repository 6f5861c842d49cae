// The main window's widgets, laid out as the operator reads them during a pass: the link lamp
// and clocks on top, the Monitor as the largest area with the MHeard list beside it behind a
// splitter, and the transmit fields below.
#include "qt/views/main_window_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QPainter>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include "base/text.h"
#include "qt/qt_text.h"
#include "qt/views/heard_panel_view.h"
#include "qt/views/monitor_panel_view.h"
#include "qt/views/status_strip_view.h"
#include "qt/views/transmit_panel_view.h"
#include "qt/views/window_menus_view.h"

namespace tesk {

namespace {

QIcon AppIcon() {
  QPixmap pm(64, 64);
  pm.fill(Qt::transparent);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing);
  p.setBrush(QColor(0, 0, 64));
  p.setPen(QPen(QColor(0, 170, 0), 4));
  p.drawEllipse(4, 4, 56, 56);
  p.setPen(QColor(255, 255, 0));
  QFont f = p.font();
  f.setBold(true);
  f.setPixelSize(26);
  p.setFont(f);
  p.drawText(pm.rect(), Qt::AlignCenter, QStringLiteral("TK"));
  return QIcon(pm);
}

// The name the station knows a focused widget by: a transmit field's line edit is its field.
std::string ControlName(const QWidget* w) {
  if (w == nullptr) return {};
  if (qobject_cast<const QComboBox*>(w->parentWidget()) != nullptr) w = w->parentWidget();
  return w->objectName().toStdString();
}

}  // namespace

MainWindowView::MainWindowView(MainWindow& data, CommandTable* commands,
                               MainWindowHandlers handlers, QWidget* parent)
    : QMainWindow(parent),
      ViewKit(data, commands != nullptr ? *commands : m_ownCommands, handlers),
      m_status(std::make_unique<StatusStripView>(
          *this, [this] { return m_menus->logMenu(); }, [this] { return m_menus->filterMenu(); })),
      m_monitorPanel(
          std::make_unique<MonitorPanelView>(*this, [this] { return m_menus->editMenu(); })),
      m_heard(std::make_unique<HeardPanelView>(*this)),
      m_transmit(std::make_unique<TransmitPanelView>(*this)),
      m_menus(std::make_unique<WindowMenusView>(*this)) {
  setObjectName(QStringLiteral("frmMain"));
  setWindowIcon(AppIcon());
  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);
  layout->setContentsMargins(6, 6, 6, 6);
  layout->setSpacing(6);
  layout->addWidget(m_status->build(central));
  auto* split = new QSplitter(Qt::Horizontal, central);
  split->setObjectName(QStringLiteral("splitMonitorHeard"));
  split->setChildrenCollapsible(false);
  split->addWidget(m_monitorPanel->build(split));
  split->addWidget(m_heard->build(split));
  split->setStretchFactor(0, 4);
  split->setStretchFactor(1, 1);
  layout->addWidget(split, 1);
  layout->addWidget(m_transmit->build(central));
  setCentralWidget(central);
  m_menus->build(*this, *m_transmit);
  resize(1100, 720);
  readDesktop(data);
  refresh();
}

MainWindowView::~MainWindowView() {
  // The widgets outlive the panel views: closing a shown window moves the focus out of a field,
  // and an editable combo box then reports its text as picked from the list. Nothing of that
  // may reach the handlers of a window half taken down.
  for (QObject* child : findChildren<QObject*>())
    child->blockSignals(true);
  m_transmit.reset();
}

MonitorView& MainWindowView::monitor() {
  return m_monitorPanel->monitor();
}

void MainWindowView::setMonitorLook(const MonitorLook& look) {
  monitor().setLook(look);
}

QMenu* MainWindowView::logMenu() const {
  return m_menus->logMenu();
}

void MainWindowView::popupPorts(bool tx) {
  m_status->popupPorts(tx);
}

void MainWindowView::followTxFocus() {
  m_transmit->followTxFocus();
}

void MainWindowView::refresh() {
  const Window& form = ViewKit::data().form;
  setWindowTitle(form.caption.empty() ? QStringLiteral("TESK") : ToQString(form.caption));
  applyPlace();
  paint();
  m_status->render();
  m_transmit->render();
  m_heard->render();
  m_menus->render();
  m_monitorPanel->render();
  renderTray();
}

void MainWindowView::setCommand(CommandKey key, std::function<void()> handler) {
  commands().addClick(key, std::move(handler));
  refresh();
}

void MainWindowView::beforeCommand() {
  // A handler reads the focus and the Monitor's selection from the struct.
  ViewKit::data().ActiveControl = ControlName(QApplication::focusWidget());
  monitor().writeSelectionBack();
}

void MainWindowView::run(CommandKey key) {
  if (!commands().enabled(key)) return;
  beforeCommand();
  const RichText& text = ViewKit::data().txtMonitor;
  const std::pair<std::size_t, std::size_t> selection{text.selStart(), text.selLength()};
  commands().run(key);
  // Checks, captions and enabled entries follow what the handler changed; a selection it made
  // in the Monitor (a find, select all) shows.
  refresh();
  if (selection != std::pair{text.selStart(), text.selLength()}) monitor().showModelSelection();
}

void MainWindowView::closeEvent(QCloseEvent* event) {
  if (!m_onClose) {
    event->accept();
    return;
  }
  // The shut-down ends the process; it runs from the loop, not inside the close event.
  event->ignore();
  QTimer::singleShot(0, this, [this]() { m_onClose(); });
}

}  // namespace tesk
