// The Qt platform, windowed or headless.
#include "qt/qt_platform.h"

#include <QSysInfo>

#include "qt/console_dialogs.h"
#include "qt/qt_dialogs.h"
#include "qt/qt_tcp_socket.h"
#include "qt/qt_views.h"

namespace tesk {

QtPlatform::QtPlatform(bool headless, SystemInfo system)
    : m_system(std::move(system)), m_clipboard(!headless) {
  m_system.headless = headless;
  if (headless) {
    m_input = std::make_unique<ConsoleInput>(m_loop);
    m_dialogs = std::make_unique<ConsoleDialogs>(*m_input);
    m_views = std::make_unique<HeadlessViews>();
  } else {
    m_dialogs = std::make_unique<QtDialogs>();
    auto views = std::make_unique<QtViews>();
    m_qtViews = views.get();
    m_views = std::move(views);
  }
}

QtPlatform::~QtPlatform() = default;

SystemInfo QtPlatform::DescribeSystem(const std::string& commandLine, bool headless) {
  SystemInfo info;
  info.commandLine = commandLine;
  info.windowsDir = "/etc/";
  info.osName = (QSysInfo::prettyProductName() + QStringLiteral(" (") + QSysInfo::kernelType() +
                 QLatin1Char(' ') + QSysInfo::kernelVersion() + QLatin1Char(')'))
                    .toStdString();
  info.headless = headless;
  return info;
}

std::unique_ptr<TcpSocket> QtPlatform::createSocket() {
  return std::make_unique<QtTcpSocket>();
}

}  // namespace tesk
