// Window views of the windowed program, and the notices of the headless one.
#include "platform/qt/qt_views.h"

#include <QApplication>
#include <QPainter>
#include <QSplashScreen>
#include <cstdio>

#include "base/cp1252.h"
#include "main/main_window.h"
#include "platform/qt/qt_text.h"
#include "platform/qt/views/main_window_view.h"

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
  }
  return *m_main;
}

void QtViews::show(const std::string& window) {
  if (window == "main" && m_mainData != nullptr) {
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
  if (window == "main" && m_main) {
    m_main->hide();
  } else if (window == "tray" && m_main) {
    m_main->refresh();
  } else if (window == "frmSplash" && m_splash) {
    m_splash->close();
    m_splash.reset();
  }
}

void QtViews::refresh(const std::string& window) {
  if ((window.empty() || window == "main") && m_main) m_main->refresh();
}

void HeadlessViews::notice(const std::string& text) {
  const std::string line = Cp1252ToUtf8(text);
  if (m_out) {
    m_out(line);
    return;
  }
  std::fputs(line.c_str(), stdout);
  std::fputc('\n', stdout);
  std::fflush(stdout);
}

}  // namespace tesk
