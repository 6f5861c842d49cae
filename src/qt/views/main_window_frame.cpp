// The main window's frame: its place and size kept in the struct in twips, as the settings file
// stores them, the minimised state, and the tray icon whose events go to the station.
#include <QCursor>
#include <QGuiApplication>
#include <QMenu>
#include <QMoveEvent>
#include <QResizeEvent>
#include <QScreen>
#include <QSystemTrayIcon>
#include <QTimer>

#include "base/text.h"
#include "qt/qt_text.h"
#include "qt/views/main_window_view.h"

namespace tesk {

namespace {

// Twips: 15 to a pixel at the classic 96 dots per inch.
constexpr long kTwipsPerPixel = 15;

int Pixels(long twips) {
  return static_cast<int>(twips / kTwipsPerPixel);
}

}  // namespace

void MainWindowView::readDesktop(MainWindow& data) {
  data.desktopHasTray = QSystemTrayIcon::isSystemTrayAvailable();
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const QRect area = screen->availableGeometry();
  data.screenWidth = area.width() * kTwipsPerPixel;
  data.screenHeight = area.height() * kTwipsPerPixel;
}

void MainWindowView::applyPlace() {
  Window& form = ViewKit::data().form;
  // Nothing stored keeps the window where the desktop puts it, at its own size.
  if (form.left != m_placedLeft || form.top != m_placedTop) {
    move(Pixels(form.left), Pixels(form.top));
  }
  if ((form.width != m_placedWidth || form.height != m_placedHeight) && form.width > 0 &&
      form.height > 0) {
    resize(Pixels(form.width), Pixels(form.height));
  }
  m_placedLeft = form.left;
  m_placedTop = form.top;
  m_placedWidth = form.width;
  m_placedHeight = form.height;
}

void MainWindowView::writePlace() {
  // A minimised window keeps the place and size it had.
  if (isMinimized()) return;
  Window& form = ViewKit::data().form;
  form.left = m_placedLeft = x() * kTwipsPerPixel;
  form.top = m_placedTop = y() * kTwipsPerPixel;
  form.width = m_placedWidth = width() * kTwipsPerPixel;
  form.height = m_placedHeight = height() * kTwipsPerPixel;
}

void MainWindowView::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  writePlace();
}

void MainWindowView::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  writePlace();
}

void MainWindowView::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::WindowStateChange) return;
  Window& form = ViewKit::data().form;
  form.windowState = isMinimized() ? 1 : isMaximized() ? 2 : 0;
  writePlace();
  // The station may hide the window; not inside the desktop's own state change.
  QTimer::singleShot(0, this, [this] { run({Command::Form_Resize}); });
}

void MainWindowView::renderTray() {
  if (!ViewKit::data().trayIconShown || !QSystemTrayIcon::isSystemTrayAvailable()) {
    if (m_tray != nullptr) m_tray->hide();
    return;
  }
  if (m_tray == nullptr) {
    m_tray = new QSystemTrayIcon(windowIcon(), this);
    // A click is the left button's release, the context request the right one's.
    connect(m_tray, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason r) {
      if (r == QSystemTrayIcon::Trigger) run({Command::Tray_MouseUp, 1});
      if (r == QSystemTrayIcon::Context) run({Command::Tray_MouseUp, 2});
      if (r == QSystemTrayIcon::DoubleClick) run({Command::Tray_DblClick});
    });
  }
  m_tray->setToolTip(ToQString(CutAtNul(ViewKit::data().trayToolTip)));
  m_tray->show();
}

void MainWindowView::popupTray() {
  if (m_trayMenu == nullptr) {
    m_trayMenu = new QMenu(this);
    m_trayMenu->setObjectName(QStringLiteral("mPopupSys"));
    ViewKit::addActions(m_trayMenu, Command::mPopupSys, {0, 1});
  }
  paint();
  m_trayMenu->popup(QCursor::pos());
}

}  // namespace tesk
