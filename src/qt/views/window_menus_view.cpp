// The menu bar's layout. Captions, checks, visibility and the enabled state come from the
// command table and the rows behind it; the order and the separators are the window's.
#include "qt/views/window_menus_view.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include "qt/qt_text.h"
#include "qt/views/transmit_panel_view.h"

namespace tesk {

QMenu* WindowMenusView::addMenu(QMainWindow& window, const QString& title, Command command,
                                const std::vector<int>& rows) {
  QMenu* menu = window.menuBar()->addMenu(title);
  m_kit.addActions(menu, command, rows);
  return menu;
}

void WindowMenusView::build(QMainWindow& window, TransmitPanelView& transmit) {
  buildFile(window);
  buildEdit(window);
  buildSend(window, transmit);
  m_filterMenu =
      addMenu(window, QObject::tr("&Filters"), Command::menufilters, {0, 1, 2, 3, 5, -1, 15});
  QMenu* options =
      addMenu(window, QObject::tr("&Options"), Command::menuoptions, {0, -1, 130, 140});
  options->addSeparator();
  m_kit.addAction(options, {Command::mnuLanSetup});
  m_kit.addAction(options, {Command::mnuAPRSSetup});
  QMenu* beacon = addMenu(window, QObject::tr("&Beacon"), Command::mnuBeacon, {0});
  m_kit.addAction(beacon, {Command::mnuShadowWizard});
  m_modulesMenu = addMenu(window, QObject::tr("&Modules"), Command::menuextras, {0});
  m_launchMenu = addMenu(window, QObject::tr("&Launch"), Command::mnuRuns, {0});
  // Alt+L opens the Launch menu.
  m_logMenu = addMenu(window, QObject::tr("Lo&g"), Command::mnuautolog,
                      {0, 1, 2, 3, -1, 10, 20, -1, 40, 50});
  m_logMenu->setObjectName(QStringLiteral("mnuautolog"));
  // Alt+H belongs to the M&Heard button, so the help menu takes Alt+P.
  addMenu(window, QObject::tr("Hel&p"), Command::mnuHelp, {0, 1});
}

void WindowMenusView::buildFile(QMainWindow& window) {
  QMenu* file = addMenu(window, QObject::tr("&File"), Command::menufiles, {11, 40, 50});
  // "Open Log" and the Monitor's files, then the closing separator and Exit.
  auto* open = file->addMenu(QObject::tr("Open &Log"));
  open->setObjectName(QStringLiteral("mnuOpenLog"));
  m_kit.addActions(open, Command::mnuOpenLog, {10, 20, 40});
  m_kit.addAction(file, {Command::cmdMonitorOpen}, QObject::tr("&Open File in Monitor..."));
  m_kit.addAction(file, {Command::cmdMonitorSave}, QObject::tr("Save as Rich &Text..."));
  m_kit.addAction(file, {Command::ExportToASCII}, QObject::tr("Save As &ASCII or Log..."));
  m_kit.addAction(file, {Command::cmdMonitorPrint}, QObject::tr("Print Mo&nitor..."));
  file->addSeparator();
  QAction* exit = file->addAction(QObject::tr("E&xit"));
  QObject::connect(exit, &QAction::triggered, &window, &QWidget::close);
}

void WindowMenusView::buildEdit(QMainWindow& window) {
  m_editMenu = addMenu(window, QObject::tr("&Edit"), Command::menuedits, {0});
  // Cut, copy and paste behind Undo; find and count at the end, since the Edit menu is also the
  // Monitor's right-click menu.
  m_kit.addAction(m_editMenu, {Command::cmdMonitorCut}, QObject::tr("Cu&t"));
  m_kit.addAction(m_editMenu, {Command::cmdMonitorCopy}, QObject::tr("&Copy"));
  m_kit.addAction(m_editMenu, {Command::cmdMonitorPaste}, QObject::tr("&Paste"));
  m_kit.addActions(m_editMenu, Command::menuedits, {50, 70, 80, 92, -1, 100, 110, 120, 130, 140});
  m_editMenu->addSeparator();
  m_kit.addAction(m_editMenu, {Command::menufind});
  m_kit.addAction(m_editMenu, {Command::menuFindNext});
  m_kit.addAction(m_editMenu, {Command::menufindcount});
}

void WindowMenusView::buildSend(QMainWindow& window, TransmitPanelView& transmit) {
  QMenu* send = addMenu(window, QObject::tr("&Send"), Command::menusends, {0, 1, 2, 3});
  send->setObjectName(QStringLiteral("menusend"));
  m_kit.addAction(send, {Command::mnuStopPending});
  send->addSeparator();
  m_heardSendMenu = send->addMenu(QObject::tr("MH&eard"));
  m_heardSendMenu->setObjectName(QStringLiteral("menuheardsend"));
  transmit.addHeardReportEntries(m_heardSendMenu, Command::menuheardsend);
  QMenu* multiLine = send->addMenu(QObject::tr("M&ulti-Line"));
  multiLine->setObjectName(QStringLiteral("mnu_multiline"));
  transmit.addMultiLineEntries(multiLine);
  send->addSeparator();
  m_kit.addActions(send, Command::menusends, {9, 10, 11});
  // Stop Pending follows the message retry tick, which is looked at as the menu opens.
  QObject::connect(send, &QMenu::aboutToShow, send, [this]() { m_kit.run({Command::menusend}); });
}

void WindowMenusView::render() {
  // menusends 7 is the submenu of the heard report types.
  const MainWindow& d = m_kit.data();
  const auto heardRow = d.menusends.find(7);
  const MenuItem* heardItem = heardRow != d.menusends.end() ? &heardRow->second : nullptr;
  QAction* heardSend = m_heardSendMenu->menuAction();
  heardSend->setText(heardItem && !heardItem->caption.empty() ? ToQString(heardItem->caption)
                                                              : QObject::tr("MH&eard"));
  heardSend->setVisible(heardItem == nullptr || heardItem->visible);
  heardSend->setEnabled(m_kit.commands().has({Command::menuheardsend, 0}) &&
                        (heardItem == nullptr || heardItem->enabled));
  // The load pass hides these two; the add-on and program lists show them again.
  m_modulesMenu->menuAction()->setVisible(d.menuextra.visible);
  m_launchMenu->menuAction()->setVisible(d.MnuRun.visible);
}

}  // namespace tesk
