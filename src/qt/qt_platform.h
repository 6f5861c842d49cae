// The real platform: the Qt implementations of every interface, in one of two forms. The
// windowed form has Qt's dialogs, the desktop clipboard and the window views; the headless form
// (QCoreApplication) answers boxes from the console input and prints notices.
#pragma once

#include <memory>

#include "platform/platform.h"
#include "qt/console_input.h"
#include "qt/qt_clock.h"
#include "qt/qt_event_loop.h"
#include "qt/qt_services.h"
#include "qt/qt_shell.h"
#include "qt/qt_store.h"

namespace tesk {

class QtViews;

class QtPlatform : public Platform {
 public:
  // Needs a QCoreApplication (headless) or a QApplication (windowed) to exist already.
  QtPlatform(bool headless, SystemInfo system);
  ~QtPlatform() override;

  // windowsDir "/etc/", the system's name and version, the given command line.
  static SystemInfo DescribeSystem(const std::string& commandLine, bool headless);

  EventLoop& loop() override { return m_loop; }
  Clock& clock() override { return m_clock; }
  std::unique_ptr<TcpSocket> createSocket() override;
  Dialogs& dialogs() override { return *m_dialogs; }
  Store& store() override { return m_store; }
  Sound& sound() override { return m_sound; }
  Shell& shell() override { return m_shell; }
  Printer& printer() override { return m_printer; }
  Clipboard& clipboard() override { return m_clipboard; }
  Views& views() override { return *m_views; }
  const SystemInfo& system() const override { return m_system; }

  // The standard-input line queue (headless only; null in the windowed program).
  ConsoleInput* consoleInput() { return m_input.get(); }
  // The window views (windowed only; null in the headless program).
  QtViews* qtViews() { return m_qtViews; }

 private:
  SystemInfo m_system;
  QtEventLoop m_loop;
  QtClock m_clock;
  QtStore m_store;
  QtSound m_sound;
  QtShell m_shell;
  QtPrinter m_printer;
  QtClipboard m_clipboard;
  std::unique_ptr<ConsoleInput> m_input;
  std::unique_ptr<Dialogs> m_dialogs;
  std::unique_ptr<Views> m_views;
  QtViews* m_qtViews = nullptr;
};

}  // namespace tesk
