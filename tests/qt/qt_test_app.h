// The one QApplication of the view tests, made on first use (offscreen unless the environment
// names another platform), so each test file can ask for it without a main() of its own.
#pragma once

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include "main/station.h"
#include "main/station_parts.h"
#include "qt/views/view_kit.h"

namespace tesk::testing {

inline QApplication& QtApp() {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static int argc = 1;
  static char name[] = "tesk_view_tests";
  static char* argv[] = {name, nullptr};
  // Never destroyed: Qt's own statics go first at exit, and a late QApplication warns.
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

// Where the pictures for a person go: $TESK_SCREENSHOTS when set, else a new folder under the
// system's temporary folder, made once a run and kept so the pictures can be looked at.
inline QString PictureFile(const QString& name) {
  static const QString folder = [] {
    const QByteArray asked = qgetenv("TESK_SCREENSHOTS");
    if (!asked.isEmpty()) return QString::fromLocal8Bit(asked);
    QTemporaryDir made(QDir::tempPath() + QStringLiteral("/tesk-pictures-XXXXXX"));
    made.setAutoRemove(false);
    return made.path();
  }();
  return folder + QLatin1Char('/') + name;
}

// The handlers a station hands the main window's view, as the program wires them.
inline MainWindowHandlers HandlersOf(Station& station) {
  StationParts& p = station.parts();
  return MainWindowHandlers{&p.txPanel, &p.monitor, &p.heardList, &p.uiTextSender};
}

}  // namespace tesk::testing
