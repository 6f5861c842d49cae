// The main window on screen: renders the MainWindow struct (link lamp, port frame, clocks, the
// Monitor, the MHeard list, the six transmit fields and their buttons, the menus) and writes the
// operator's edits of the transmit fields back into it. It holds no behaviour: a button or menu
// entry works only once a command handler is registered for it, and is disabled until then.
#pragma once

#include <QMainWindow>
#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "main/main_window.h"
#include "platform/qt/views/monitor_view.h"
#include "transmit/tx_panel.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QListWidget;
class QMenu;
class QPushButton;
class QRadioButton;
class QSystemTrayIcon;
class QToolButton;

namespace tesk {

class MainWindowView : public QMainWindow {
  Q_OBJECT
 public:
  explicit MainWindowView(MainWindow& data, QWidget* parent = nullptr);
  ~MainWindowView() override;

  // Copies every plain field of the struct into its widget.
  void refresh();
  void setMonitorLook(const MonitorLook& look) { m_monitor->setLook(look); }
  // The automatic log's menu, which a right press on its label pops up.
  QMenu* logMenu() const { return m_logMenu; }
  MonitorView& monitor() { return *m_monitor; }

  // The handler of a control ("cmdTXDataText") or menu entry ("menusends:1"); a control without
  // one stays disabled.
  void setCommand(const std::string& key, std::function<void()> handler);
  // Called when the operator closes the window; the window itself stays (the shut-down ends the
  // process).
  void setOnClose(std::function<void()> handler) { m_onClose = std::move(handler); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  // The transmit fields' keys, focus and drops, and the mouse released on a send button.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct ComboField {
    ComboBox* data;
    QComboBox* widget;
    TxField field;
    QString toolTip;  // shown while the struct's tool tip is empty
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
  // The MHeard list's side: the lamps, the digipeat flash and total, the list with its popup
  // menu and drag, the counter, the sort options and the list's buttons.
  QWidget* buildDigiRow(QWidget* parent);
  void buildHeardMenus();
  void heardPopup(const QPoint& at);
  void renderHeard();
  QWidget* buildTransmitPanel();
  void buildMenus();
  // The automatic log's label and menus: the label's double click and right press, the menu
  // mnuautolog (also the label's popup) and the "Open Log" entries of the File menu.
  QLabel* buildAutoLogLabel(QWidget* parent);
  void buildLogMenus(QMenu* file);
  QMenu* addMenu(const QString& title, const char* arrayName, MenuArray* array,
                 const std::vector<std::pair<int, QString>>& entries);
  void addEntries(QMenu* menu, const char* arrayName, MenuArray* array,
                  const std::vector<std::pair<int, QString>>& entries);
  // The send menu: its rows, Stop Pending, and the heard report's copy (menusends 7 holding
  // menuheardsend); the heard report button's popup (menumheardsend); F8 and the commands.
  void buildSendMenu();
  void addHeardReportEntries(QMenu* menu, const char* arrayName, MenuArray& array);
  void wireSendCommands();
  void heardReportPopup(const QPoint& at);
  // The send buttons' own events: the heard report's right press, drops on the Text/data send.
  bool sendButtonEvent(QObject* watched, SendButton which, QEvent* event);
  bool sendDropEvent(QEvent* event);
  // A button's press from the keyboard (F8), as a click would run it.
  void pressButton(const std::string& key);
  QComboBox* addCombo(ComboBox& data, TxField field, const char* name, const QString& toolTip);
  QWidget* addCounter(int index);
  void addTransmitButtons(QGridLayout* grid);
  QToolButton* addEditButton(int selector);
  bool fieldEvent(const ComboField& combo, QEvent* event);
  bool dropEvent(const ComboField& combo, QEvent* event);
  void textEdited(TxField field);
  void followTxFocus();
  bool pressSend(const std::string& key);
  bool hasSender(const std::string& key) const;
  QPushButton* addButton(Button& data, const char* name, const QString& caption);
  void renderLamp();
  void renderMenus();
  void renderTray();
  void runCommand(const std::string& key);
  bool hasCommand(const std::string& key) const;
  // The Monitor's buttons and boxes, the filter label, the Monitor's entries of the File and
  // Edit menus, the right-click menu, and the focus and selection handed over around a command.
  struct ItemEntry {
    MenuItem* item;
    std::string key;
    QAction* action;
  };
  QWidget* buildMonitorControls(QWidget* parent);
  QLabel* buildFilterLabel(QWidget* parent);
  void buildMonitorMenus(QMenu* file, QMenu* edit);
  QAction* addItemAction(QMenu* menu, QAction* before, const std::string& key,
                         const QString& caption, MenuItem* item);
  void wireMonitorCommands();
  void monitorPopup(const QPoint& at);
  void renderMonitorControls();
  void beforeCommand();

  MainWindow& m_data;
  MonitorView* m_monitor = nullptr;
  QLabel* m_lamp = nullptr;
  QLabel* m_frameComm = nullptr;
  std::map<Label*, QLabel*> m_labels;
  std::vector<ComboField> m_combos;
  std::map<const QObject*, std::size_t> m_comboOf;  // a field's combo box and line edit
  std::vector<std::pair<Button*, QToolButton*>> m_editButtons;
  std::map<const QObject*, SendButton> m_sendButtons;
  std::vector<ButtonField> m_buttons;
  std::vector<MenuEntry> m_menuEntries;
  QMenu* m_modulesMenu = nullptr;
  QMenu* m_launchMenu = nullptr;
  QMenu* m_sendMenu = nullptr;         // menusend
  QMenu* m_heardSendMenu = nullptr;    // menusends 7: menuheardsend
  QMenu* m_heardReportMenu = nullptr;  // the popup of cmdTXMHeard: menumheardsend
  QMenu* m_logMenu = nullptr;          // mnuautolog
  QRadioButton* m_optSort = nullptr;
  QRadioButton* m_optUnsort = nullptr;
  QListWidget* m_heardList = nullptr;    // LstMHeardList
  std::array<QLabel*, 2> m_rxtxLamps{};  // imgTXRXlight 0 receive, 1 transmit
  QLabel* m_digiLogo = nullptr;          // imgLogoDigi
  QMenu* m_heardMenu = nullptr;          // mnuMHeard
  QMenu* m_digiMenu = nullptr;           // mnuShowDigiStatus
  QSystemTrayIcon* m_tray = nullptr;
  QMenu* m_editMenu = nullptr;    // menuedit: also the Monitor's right-click menu
  QMenu* m_filterMenu = nullptr;  // menufilter: also the filter label's popup
  QCheckBox* m_chkScroll = nullptr;
  QCheckBox* m_chkViewDataOnly = nullptr;
  std::vector<ItemEntry> m_itemEntries;  // single entries: find, find next, count, export
  std::map<std::string, std::function<void()>> m_commands;
  std::function<void()> m_onClose;
  bool m_geometrySet = false;
};

}  // namespace tesk
