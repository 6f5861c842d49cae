// Window views of the windowed program, and the notices of the headless one.
#include "qt/qt_views.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QSplashScreen>
#include <cstdio>

#include "alarms/meld.h"
#include "alarms/statistics.h"
#include "aprs/aprs_setup.h"
#include "aprs/messenger.h"
#include "base/cp1252.h"
#include "base/text.h"
#include "beacon/beacon_setup.h"
#include "core/monitor_find.h"
#include "heard/view_heard.h"
#include "link/lan_setup.h"
#include "qt/qt_text.h"
#include "qt/views/aprs_setup_view.h"
#include "qt/views/beacon_view.h"
#include "qt/views/edit_tx_data_view.h"
#include "qt/views/find_view.h"
#include "qt/views/lan_setup_view.h"
#include "qt/views/main_window_view.h"
#include "qt/views/meld_view.h"
#include "qt/views/messenger_view.h"
#include "qt/views/setup_view.h"
#include "qt/views/statistics_view.h"
#include "qt/views/tx_multi_line_view.h"
#include "qt/views/view_heard_view.h"
#include "settings/setup.h"
#include "transmit/edit_tx_data.h"
#include "transmit/tx_multi_line.h"

namespace tesk {

namespace {

QPixmap SplashPicture(const QString& line) {
  QPixmap pm(480, 240);
  QPainter p(&pm);
  p.setRenderHint(QPainter::Antialiasing);
  QLinearGradient g(0, 0, 0, pm.height());
  g.setColorAt(0, QColor(0, 0, 96));
  g.setColorAt(1, QColor(0, 0, 40));
  p.fillRect(pm.rect(), g);
  // An orbit with its spacecraft, in the Monitor's colours.
  p.translate(350, 120);
  p.rotate(-25);
  p.setPen(QPen(QColor(0, 170, 0), 2));
  p.setBrush(Qt::NoBrush);
  p.drawEllipse(QPointF(0, 0), 95, 38);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0, 255, 255));
  p.drawEllipse(QPointF(67, 27), 6, 6);
  p.resetTransform();
  p.setPen(QColor(255, 255, 0));
  QFont f = p.font();
  f.setBold(true);
  f.setPixelSize(64);
  p.setFont(f);
  p.drawText(QRect(32, 48, 400, 80), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("TESK"));
  f.setBold(false);
  f.setPixelSize(16);
  p.setFont(f);
  p.setPen(QColor(0, 255, 255));
  p.drawText(QRect(34, 128, 420, 24), Qt::AlignLeft | Qt::AlignVCenter,
             QStringLiteral("Satellite packet console"));
  p.setPen(QColor(200, 200, 220));
  p.drawText(QRect(34, 190, 420, 24), Qt::AlignLeft | Qt::AlignVCenter, line);
  return pm;
}

}  // namespace

QtViews::QtViews() {
  registerViews();
}

QtViews::~QtViews() = default;

template <typename View>
std::function<void()> QtViews::HideOf(std::unique_ptr<View>& view) {
  return [&view] {
    if (view) view->hide();
  };
}

template <typename View>
std::function<void()> QtViews::RefreshOf(std::unique_ptr<View>& view) {
  return [&view] {
    if (view) view->refresh();
  };
}

template <typename Data, typename View>
QtViews::Entry QtViews::ChildWindow(Data*& data, std::unique_ptr<View>& view, bool takeKeyboard) {
  const auto show = [this, &data, &view, takeKeyboard] {
    if (!view) view = std::make_unique<View>(*data, m_main.get());
    view->refresh();
    if (takeKeyboard) {
      bringUp(*view);
      return;
    }
    view->show();
    view->raise();
  };
  return {[&data] { return data != nullptr; }, show, HideOf(view), RefreshOf(view)};
}

void QtViews::registerViews() {
  // One line a window: its data, then its view's show, hide and repaint.
  const auto mainThere = [this] { return m_mainData != nullptr; };
  m_registry[WindowKind::Main] = {mainThere, [this] { showMain(); }, HideOf(m_main),
                                  RefreshOf(m_main)};
  // The tray icon follows the struct's flag and tool tip.
  m_registry[WindowKind::Tray] = {mainThere, [this] { ensureMain().refresh(); }, RefreshOf(m_main),
                                  RefreshOf(m_main)};
  m_registry[WindowKind::TrayPopup] = {mainThere, [this] { ensureMain().popupTray(); }, [] {},
                                       [] {}};
  m_registry[WindowKind::Splash] = {[] { return true; }, [this] { showSplash(); },
                                    [this] {
                                      if (!m_splash) return;
                                      m_splash->close();
                                      m_splash.reset();
                                    },
                                    [] {}};
  m_registry[WindowKind::Meld] = {[this] { return m_meldData != nullptr; }, [this] { showMeld(); },
                                  HideOf(m_meld), RefreshOf(m_meld)};
  m_registry[WindowKind::Find] = {[this] { return m_findData != nullptr; }, [this] { showFind(); },
                                  HideOf(m_find), RefreshOf(m_find)};
  // The details stay beside the main window without taking the keyboard.
  m_registry[WindowKind::ViewHeard] = ChildWindow(m_viewHeardData, m_viewHeard, false);
  m_registry[WindowKind::Messenger] = ChildWindow(m_messengerData, m_messenger, false);
  m_registry[WindowKind::LanSetup] = ChildWindow(m_lanData, m_lanSetup, true);
  m_registry[WindowKind::EditTXData] = ChildWindow(m_editorData, m_editTXData, true);
  m_registry[WindowKind::APRSSetup] = ChildWindow(m_aprsSetupData, m_aprsSetup, true);
  m_registry[WindowKind::TXMultiLine] = ChildWindow(m_txMultiLineData, m_txMultiLine, true);
  m_registry[WindowKind::Setup] = ChildWindow(m_setupData, m_setup, true);
  m_registry[WindowKind::Statistics] = ChildWindow(m_statisticsData, m_statistics, true);
  m_registry[WindowKind::Beacon] = ChildWindow(m_beaconData, m_beacon, true);
  // The port rows pop up beside their selectors in the main window's status strip.
  m_registry[WindowKind::TxPortPopup] = {mainThere, [this] { ensureMain().popupPorts(true); },
                                         [] {}, [] {}};
  m_registry[WindowKind::RxPortPopup] = {mainThere, [this] { ensureMain().popupPorts(false); },
                                         [] {}, [] {}};
}

bool QtViews::hasView(WindowKind kind) const {
  const auto it = m_registry.find(kind);
  return it != m_registry.end() && it->second.ready();
}

void QtViews::show(WindowKind window) {
  if (!hasView(window)) {
    // A window the station shows must have a view: in a debug build this stops at once.
    qCritical("tesk: no view for the window %s", WindowName(window));
    Q_ASSERT_X(false, "QtViews::show", WindowName(window));
    return;
  }
  m_registry.at(window).show();
}

void QtViews::hide(WindowKind window) {
  if (hasView(window)) m_registry.at(window).hide();
}

void QtViews::refresh(WindowKind window) {
  if (hasView(window)) m_registry.at(window).refresh();
}

void QtViews::attachMainWindow(MainWindow& data, CommandTable& commands,
                               MainWindowHandlers handlers, std::function<MonitorLook()> look,
                               std::function<void()> onClose) {
  m_mainData = &data;
  m_commands = &commands;
  m_handlers = handlers;
  m_look = std::move(look);
  m_onClose = std::move(onClose);
  MainWindowView::readDesktop(data);
}

MainWindowView& QtViews::ensureMain() {
  if (!m_main) {
    m_main = std::make_unique<MainWindowView>(*m_mainData, m_commands, m_handlers);
    m_main->setOnClose(m_onClose);
  }
  return *m_main;
}

void QtViews::bringUp(QWidget& view) {
  view.show();
  view.raise();
  view.activateWindow();
}

void QtViews::showMain() {
  MainWindowView& view = ensureMain();
  if (m_look) view.setMonitorLook(m_look());
  view.refresh();
  if (m_mainData->form.windowState == 2) {
    view.showMaximized();
  } else if (m_mainData->form.windowState == 1) {
    view.showMinimized();
  } else {
    // Also what brings a window back from the tray: normal size, in front.
    view.showNormal();
    view.raise();
    view.activateWindow();
  }
  view.monitor().flush();
  // The splash has done its work once the window it announced is there; left up, it would
  // cover the boxes of the rest of the load pass.
  if (m_splash) m_splash->hide();
}

void QtViews::showMeld() {
  Meld* meld = m_meldData;
  if (!m_meld) {
    m_meld = std::make_unique<MeldView>(
        meld->window(), [meld] { meld->cmd_OK_Meld_Click(); }, m_main.get());
  }
  m_meld->refresh();
  if (m_main && m_main->isVisible()) {
    const QWidget& monitor = m_main->monitor();
    const QRect anchor(monitor.mapToGlobal(QPoint(0, 0)), monitor.size());
    const QScreen* screen = m_main->screen();
    m_meld->placeBeside(anchor, screen != nullptr ? screen->availableGeometry() : anchor);
  } else {
    m_meld->placeByData();
  }
  m_meld->show();
  m_meld->raise();
}

void QtViews::showFind() {
  MonitorFind& find = *m_findData;
  if (!m_find) {
    // After each press the main window repaints, and a hit in the Monitor shows selected.
    m_find = std::make_unique<FindView>(
        find,
        [this, &find] {
          if (!m_main) return;
          m_main->refresh();
          if (find.mode() == 0) m_main->monitor().showModelSelection();
        },
        m_main.get());
  }
  m_find->refresh();
  bringUp(*m_find);
}

void QtViews::showSplash() {
  if (!m_splash) {
    const QString line = m_splashText ? ToQString(m_splashText()) : QString();
    m_splash = std::make_unique<QSplashScreen>(SplashPicture(line));
    m_splash->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);  // not on top
  }
  m_splash->show();
  m_splash->repaint();
}

void HeadlessViews::notice(const std::string& text) {
  // A note of several lines is still one line on the console.
  const std::string flat = Replace(Replace(Replace(text, CRLF, " "), CR, " "), LF, " ");
  const std::string line = Cp1252ToUtf8(flat);
  if (m_out) {
    m_out(line);
    return;
  }
  std::fputs(line.c_str(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

}  // namespace tesk
