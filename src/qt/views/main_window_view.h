// The main window on screen: the composition of the panel views (status strip, Monitor, stations
// heard, transmit fields) and the menu bar, the window's title, size and tray icon, and the way a
// command is run from any of them. It holds no behaviour: every button and menu row runs a
// command of the table, and shows grey while the table says it may not run.
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "qt/views/monitor_view.h"
#include "qt/views/view_kit.h"
#include "state/main_window.h"

class QSystemTrayIcon;

namespace tesk {

class HeardPanelView;
class MonitorPanelView;
class StatusStripView;
class TransmitPanelView;
class WindowMenusView;

class MainWindowView : public QMainWindow, public ViewKit {
  Q_OBJECT
 public:
  // Without a table the window has its own, empty one: every command shows grey (view tests).
  explicit MainWindowView(MainWindow& data, CommandTable* commands = nullptr,
                          MainWindowHandlers handlers = {}, QWidget* parent = nullptr);
  ~MainWindowView() override;

  // Copies every plain field of the struct into its widget.
  void refresh() override;
  void run(CommandKey key) override;
  void followTxFocus() override;
  void setMonitorLook(const MonitorLook& look);
  MonitorView& monitor();
  // The automatic log's menu, which a right press on its label pops up.
  QMenu* logMenu() const;
  // A command for a test: registered in the window's table and painted.
  void setCommand(CommandKey key, std::function<void()> handler);
  // The popup of the transmit or receive port rows.
  void popupPorts(bool tx);
  // The tray icon's menu, at the mouse.
  void popupTray();
  // Fills the desktop's usable size and whether it has a tray area into the struct; the
  // settings read at start-up need them before the window is shown.
  static void readDesktop(MainWindow& data);
  // Called when the operator closes the window; the window itself stays (the shut-down ends the
  // process).
  void setOnClose(std::function<void()> handler) { m_onClose = std::move(handler); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  // Place, size and tray: main_window_frame.cpp.
  void renderTray();
  void applyPlace();
  void writePlace();
  void beforeCommand();

  CommandTable m_ownCommands;
  std::unique_ptr<StatusStripView> m_status;
  std::unique_ptr<MonitorPanelView> m_monitorPanel;
  std::unique_ptr<HeardPanelView> m_heard;
  std::unique_ptr<TransmitPanelView> m_transmit;
  std::unique_ptr<WindowMenusView> m_menus;
  QSystemTrayIcon* m_tray = nullptr;
  QMenu* m_trayMenu = nullptr;
  std::function<void()> m_onClose;
  // The place and size last put on screen or read from it, in twips: a change in the struct
  // that differs from it came from the station and is applied.
  long m_placedLeft = 0, m_placedTop = 0, m_placedWidth = 0, m_placedHeight = 0;
};

}  // namespace tesk
