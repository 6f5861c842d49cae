// The main window's menu bar: File, Edit, Send, Filters, Options, Beacon, Modules, Launch, Log and
// Help, each row a command of the table. The Edit menu is also the Monitor's right-click menu,
// the Log menu the automatic log label's popup, the Filters menu the filter label's.
#pragma once

#include "qt/views/view_kit.h"

class QMainWindow;
class QMenu;

namespace tesk {

class TransmitPanelView;

class WindowMenusView {
 public:
  explicit WindowMenusView(ViewKit& kit) : m_kit(kit) {}
  void build(QMainWindow& window, TransmitPanelView& transmit);
  void render();

  QMenu* editMenu() const { return m_editMenu; }
  QMenu* logMenu() const { return m_logMenu; }
  QMenu* filterMenu() const { return m_filterMenu; }

 private:
  QMenu* addMenu(QMainWindow& window, const QString& title, Command command,
                 const std::vector<int>& rows);
  void buildFile(QMainWindow& window);
  void buildEdit(QMainWindow& window);
  void buildSend(QMainWindow& window, TransmitPanelView& transmit);

  ViewKit& m_kit;
  QMenu* m_editMenu = nullptr;       // menuedit
  QMenu* m_logMenu = nullptr;        // mnuautolog
  QMenu* m_filterMenu = nullptr;     // menufilter
  QMenu* m_heardSendMenu = nullptr;  // menusends 7: menuheardsend
  QMenu* m_modulesMenu = nullptr;
  QMenu* m_launchMenu = nullptr;
};

}  // namespace tesk
