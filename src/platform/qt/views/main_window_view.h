// The main window on screen: renders the MainWindow struct (link lamp, port frame, clocks, the
// Monitor, the MHeard list, the six transmit fields and their buttons, the menus) and writes the
// operator's edits of the transmit fields back into it. It holds no behaviour: a button or menu
// entry works only once a command handler is registered for it, and is disabled until then.
#pragma once

#include <QMainWindow>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "main/main_window.h"
#include "platform/qt/views/monitor_view.h"

class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QPushButton;
class QRadioButton;
class QSystemTrayIcon;

namespace tesk {

class MainWindowView : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindowView(MainWindow& data, QWidget* parent = nullptr);
  ~MainWindowView() override;

  // Copies every plain field of the struct into its widget.
  void refresh();
  void setMonitorLook(const MonitorLook& look) { m_monitor->setLook(look); }
  MonitorView& monitor() { return *m_monitor; }

  // The handler of a control ("cmdTXDataText") or menu entry ("menusends:1"); a control without
  // one stays disabled.
  void setCommand(const std::string& key, std::function<void()> handler);
  // Called when the operator closes the window; the window itself stays (the shut-down ends the
  // process).
  void setOnClose(std::function<void()> handler) { m_onClose = std::move(handler); }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  struct ComboField {
    ComboBox* data;
    QComboBox* widget;
  };
  struct ButtonField {
    Button* data;
    QPushButton* widget;
    std::string key;
    QString caption;  // shown while the struct's caption is empty
  };
  struct MenuEntry {
    MenuArray* array;  // null: an entry with no indexed item behind it
    int index;
    std::string key;
    QString caption;
    QAction* action;
  };

  QWidget* buildStatusStrip();
  QWidget* buildMonitorArea();
  QWidget* buildHeardArea();
  QWidget* buildTransmitPanel();
  void buildMenus();
  QMenu* addMenu(const QString& title, const char* arrayName, MenuArray* array,
                 const std::vector<std::pair<int, QString>>& entries);
  QComboBox* addCombo(ComboBox& data, const char* name, const QString& toolTip);
  QPushButton* addButton(Button& data, const char* name, const QString& caption);
  void renderLamp();
  void renderMenus();
  void renderTray();
  void runCommand(const std::string& key);
  bool hasCommand(const std::string& key) const;

  MainWindow& m_data;
  MonitorView* m_monitor = nullptr;
  QLabel* m_lamp = nullptr;
  QLabel* m_frameComm = nullptr;
  std::map<Label*, QLabel*> m_labels;
  std::vector<ComboField> m_combos;
  std::vector<ButtonField> m_buttons;
  std::vector<MenuEntry> m_menuEntries;
  QMenu* m_modulesMenu = nullptr;
  QMenu* m_launchMenu = nullptr;
  QRadioButton* m_optSort = nullptr;
  QRadioButton* m_optUnsort = nullptr;
  QSystemTrayIcon* m_tray = nullptr;
  std::map<std::string, std::function<void()>> m_commands;
  std::function<void()> m_onClose;
  bool m_geometrySet = false;
};

}  // namespace tesk
