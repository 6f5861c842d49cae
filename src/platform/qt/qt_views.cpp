// Window views of the windowed program, and the notices of the headless one.
#include "platform/qt/qt_views.h"

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QSplashScreen>
#include <cstdio>

#include "alarms/meld.h"
#include "base/cp1252.h"
#include "base/text.h"
#include "core/monitor_find.h"
#include "heard/view_heard.h"
#include "link/lan_setup.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/views/edit_tx_data_view.h"
#include "platform/qt/views/find_view.h"
#include "platform/qt/views/lan_setup_view.h"
#include "platform/qt/views/main_window_view.h"
#include "platform/qt/views/meld_view.h"
#include "platform/qt/views/view_heard_view.h"
#include "transmit/edit_tx_data.h"

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

void QtViews::registerViews() {
  // One line a window: its data, then its view's show, hide and repaint.
  m_registry[WindowKind::Main] = {[this] { return m_mainData != nullptr; }, [this] { showMain(); },
                                  [this] {
                                    if (m_main) m_main->hide();
                                  },
                                  [this] {
                                    if (m_main) m_main->refresh();
                                  }};
  // The tray icon follows the struct's flag and tool tip.
  m_registry[WindowKind::Tray] = {[this] { return m_mainData != nullptr; },
                                  [this] { ensureMain().refresh(); },
                                  [this] {
                                    if (m_main) m_main->refresh();
                                  },
                                  [this] {
                                    if (m_main) m_main->refresh();
                                  }};
  m_registry[WindowKind::Splash] = {[] { return true; }, [this] { showSplash(); },
                                    [this] {
                                      if (!m_splash) return;
                                      m_splash->close();
                                      m_splash.reset();
                                    },
                                    [] {}};
  m_registry[WindowKind::Meld] = {[this] { return m_meldData != nullptr; }, [this] { showMeld(); },
                                  [this] {
                                    if (m_meld) m_meld->hide();
                                  },
                                  [this] {
                                    if (m_meld) m_meld->refresh();
                                  }};
  m_registry[WindowKind::Find] = {[this] { return m_findData != nullptr; }, [this] { showFind(); },
                                  [this] {
                                    if (m_find) m_find->hide();
                                  },
                                  [this] {
                                    if (m_find) m_find->refresh();
                                  }};
  m_registry[WindowKind::ViewHeard] = {[this] { return m_viewHeardData != nullptr; },
                                       [this] {
                                         if (!m_viewHeard)
                                           m_viewHeard = std::make_unique<ViewHeardView>(
                                               *m_viewHeardData, m_main.get());
                                         m_viewHeard->refresh();
                                         m_viewHeard->show();
                                         m_viewHeard->raise();
                                       },
                                       [this] {
                                         if (m_viewHeard) m_viewHeard->hide();
                                       },
                                       [this] {
                                         if (m_viewHeard) m_viewHeard->refresh();
                                       }};
  m_registry[WindowKind::LanSetup] = {[this] { return m_lanData != nullptr; },
                                      [this] {
                                        if (!m_lanSetup)
                                          m_lanSetup = std::make_unique<LanSetupView>(*m_lanData,
                                                                                      m_main.get());
                                        m_lanSetup->refresh();
                                        bringUp(*m_lanSetup);
                                      },
                                      [this] {
                                        if (m_lanSetup) m_lanSetup->hide();
                                      },
                                      [this] {
                                        if (m_lanSetup) m_lanSetup->refresh();
                                      }};
  m_registry[WindowKind::EditTXData] = {[this] { return m_editorData != nullptr; },
                                        [this] {
                                          if (!m_editTXData)
                                            m_editTXData = std::make_unique<EditTXDataView>(
                                                *m_editorData, m_main.get());
                                          m_editTXData->refresh();
                                          bringUp(*m_editTXData);
                                        },
                                        [this] {
                                          if (m_editTXData) m_editTXData->hide();
                                        },
                                        [this] {
                                          if (m_editTXData) m_editTXData->refresh();
                                        }};
  // The port rows pop up beside their selectors in the main window's status strip.
  m_registry[WindowKind::TxPortPopup] = {[this] { return m_mainData != nullptr; },
                                         [this] { ensureMain().popupPorts(true); }, [] {}, [] {}};
  m_registry[WindowKind::RxPortPopup] = {[this] { return m_mainData != nullptr; },
                                         [this] { ensureMain().popupPorts(false); }, [] {}, [] {}};
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

void QtViews::refreshAll() {
  for (WindowKind kind : kWindowKinds)
    refresh(kind);
}

void QtViews::attachMainWindow(MainWindow& data, CommandTable& commands,
                               MainWindowHandlers handlers, std::function<MonitorLook()> look,
                               std::function<void()> onClose) {
  m_mainData = &data;
  m_commands = &commands;
  m_handlers = handlers;
  m_look = std::move(look);
  m_onClose = std::move(onClose);
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
    view.show();
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
