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
#include "main/main_window.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/views/edit_tx_data_view.h"
#include "platform/qt/views/find_view.h"
#include "platform/qt/views/lan_setup_view.h"
#include "platform/qt/views/main_window_view.h"
#include "platform/qt/views/meld_view.h"
#include "platform/qt/views/view_heard_view.h"
#include "transmit/tx_panel.h"

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

QtViews::QtViews() = default;

QtViews::~QtViews() = default;

void QtViews::attachMainWindow(MainWindow& data, std::function<MonitorLook()> look,
                               std::function<void()> onClose) {
  m_mainData = &data;
  m_look = std::move(look);
  m_onClose = std::move(onClose);
}

MainWindowView& QtViews::ensureMain() {
  if (!m_main) {
    m_main = std::make_unique<MainWindowView>(*m_mainData);
    m_main->setOnClose(m_onClose);
    if (m_lanData != nullptr) m_main->setCommand("mnuLanSetup", [lan = m_lanData] { lan->Show(); });
  }
  return *m_main;
}

EditTXDataView* QtViews::ensureEditTXData() {
  if (!m_editTXData && m_mainData != nullptr && m_mainData->txPanel != nullptr)
    m_editTXData = std::make_unique<EditTXDataView>(m_mainData->txPanel->editor(), m_main.get());
  return m_editTXData.get();
}

void QtViews::attachLanSetup(LanSetup& lan) {
  m_lanData = &lan;
  if (m_main) m_main->setCommand("mnuLanSetup", [lan = m_lanData] { lan->Show(); });
}

void QtViews::showMeld() {
  if (m_mainData == nullptr || m_mainData->meld == nullptr) return;
  if (!m_meld) {
    MainWindow* data = m_mainData;
    m_meld = std::make_unique<MeldView>(
        data->meld->window(),
        [data] {
          if (data->meld != nullptr) data->meld->cmd_OK_Meld_Click();
        },
        m_main.get());
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
  if (m_mainData == nullptr || m_mainData->monitorFind == nullptr) return;
  MonitorFind& find = *m_mainData->monitorFind;
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
  m_find->show();
  m_find->raise();
  m_find->activateWindow();
}

void QtViews::show(const std::string& window) {
  if (window == "Meld") {
    showMeld();
    return;
  }
  if (window == MonitorFind::kWindowName) {
    showFind();
    return;
  }
  if (window == ViewHeard::kWindowName) {
    if (m_mainData == nullptr || m_mainData->viewHeard == nullptr) return;
    if (!m_viewHeard)
      m_viewHeard = std::make_unique<ViewHeardView>(*m_mainData->viewHeard, m_main.get());
    m_viewHeard->refresh();
    m_viewHeard->show();
    m_viewHeard->raise();
    return;
  }
  if (window == LanSetup::kWindowName && m_lanData != nullptr) {
    if (!m_lanSetup) m_lanSetup = std::make_unique<LanSetupView>(*m_lanData, m_main.get());
    m_lanSetup->refresh();
    m_lanSetup->show();
    m_lanSetup->raise();
    m_lanSetup->activateWindow();
  } else if (window == EditTXData::kWindowName) {
    if (EditTXDataView* view = ensureEditTXData()) {
      view->refresh();
      view->show();
      view->raise();
      view->activateWindow();
    }
  } else if (window == "main" && m_mainData != nullptr) {
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
  } else if (window == "tray" && m_main) {
    m_main->refresh();  // the tray icon follows the struct's flag and tool tip
  } else if (window == "frmSplash") {
    if (!m_splash) {
      const QString line = m_splashText ? ToQString(m_splashText()) : QString();
      m_splash = std::make_unique<QSplashScreen>(SplashPicture(line));
      m_splash->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);  // not on top
    }
    m_splash->show();
    m_splash->repaint();
  }
}

void QtViews::hide(const std::string& window) {
  if (window == "Meld") {
    if (m_meld) m_meld->hide();
    return;
  }
  if (window == ViewHeard::kWindowName) {
    if (m_viewHeard) m_viewHeard->hide();
    return;
  }
  if (window == MonitorFind::kWindowName) {
    if (m_find) m_find->hide();
    return;
  }
  if (window == LanSetup::kWindowName) {
    if (m_lanSetup) m_lanSetup->hide();
  } else if (window == EditTXData::kWindowName) {
    if (m_editTXData) m_editTXData->hide();
  } else if (window == "main" && m_main) {
    m_main->hide();
  } else if (window == "tray" && m_main) {
    m_main->refresh();
  } else if (window == "frmSplash" && m_splash) {
    m_splash->close();
    m_splash.reset();
  }
}

void QtViews::refresh(const std::string& window) {
  if ((window.empty() || window == "Meld") && m_meld) m_meld->refresh();
  if ((window.empty() || window == ViewHeard::kWindowName) && m_viewHeard) m_viewHeard->refresh();
  if ((window.empty() || window == MonitorFind::kWindowName) && m_find) m_find->refresh();
  if ((window.empty() || window == "main") && m_main) m_main->refresh();
  if ((window.empty() || window == LanSetup::kWindowName) && m_lanSetup) m_lanSetup->refresh();
  if ((window.empty() || window == EditTXData::kWindowName) && m_editTXData)
    m_editTXData->refresh();
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
