// The operator's commands: one table from a typed key to the handler, the rule that says when it
// may run, and the caption, shortcut and console name where one is shown. Menus, buttons, the
// headless console and the tests all run commands through it, so the enabled rule is decided in
// one place. Subsystems register theirs once the station is complete.
#pragma once

#include <compare>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "state/menu_array.h"

namespace tesk {

// Named after the control or menu that runs it; an indexed menu's rows share one command and
// differ by index.
enum class Command {
  // the window's menus
  menufiles,
  menuoptions,
  mnuLanSetup,
  mnuAPRSSetup,
  mnuBeacon,
  lblBeacon_DblClick,
  mnuShadowWizard,
  menuextras,
  mnuRuns,
  mnuHelp,
  // the window itself and its tray icon
  Form_Resize,
  Tray_MouseUp,
  Tray_DblClick,
  mPopupSys,
  // the automatic log
  mnuautolog,
  mnuOpenLog,
  AutoLogLabel_DblClick,
  AutoLogLabel_RightPress,
  // the Monitor, its find and filters
  menuedits,
  menufilters,
  cmdMonitorClear,
  cmdMonitorCut,
  cmdMonitorCopy,
  cmdMonitorPaste,
  cmdMonitorSave,
  cmdMonitorOpen,
  cmdMonitorPrint,
  ExportToASCII,
  chkScroll,
  txtMonitor_RightPress,
  txtMonitor_PopupClosed,
  cmdFind,
  menufind,
  menuFindNext,
  menufindcount,
  cmdStatistics,
  // the stations heard and the own digipeats
  cmdMHeardClear,
  cmdMheardSave,
  cmdViewMHeardList,
  menumheardoptions,
  menumheardoptionspaste,
  mnuShowDigiStatuss,
  OptSort,
  OptUnsort,
  // sending
  cmdTXDataText,
  cmdTXAPRS,
  cmdTXAPRSMessage,
  cmdTXMHeard,
  CmdTXMultiLineDirect,
  cmdTXConnect,
  cmdEditTXData,
  menusends,
  menusend,
  mnuStopPending,
  cmdLoadMessenger,
  menuheardsend,
  menumheardsend,
  cmdTXMHeard_RightPress,
  mnu_multiline,
  CmdTXMultiLineDirect_RightPress,
  // connected mode
  Connecting,
  DisConnecting,
  // the ports
  imgTXPortSelector,
  imgRXPortSelector,
  menuAgwport,
  menuAgwportRX,
  // the headless console's own lines
  ConsoleTo,
  ConsoleVia,
  ConsoleHeader,
  ConsoleHeard,
  ConsolePosition,
  ConsoleLocator,
  ConsoleAprs,
  ConsoleFor,
  ConsoleMsg,
  ConsoleSent,
  ConsoleStopPending,
  ConsoleMultiLine,
  ConsoleMessages,
  ConsoleSaveMessages,
  ConsoleClearMessages,
  ConsoleClearSent,
  ConsoleReport,
  ConsoleStats,
  ConsoleQuit,
  ConsoleSetup,
  ConsoleBeacon,
  ConsoleWizard,
};

struct CommandKey {
  Command command;
  int index = 0;  // the row of an indexed menu
  auto operator<=>(const CommandKey&) const = default;
};

struct CommandSpec {
  CommandKey key;
  std::string caption;   // as the window shows it, "&" marking the accelerator
  std::string shortcut;  // a key sequence such as "F8", or empty
  std::string console;   // the console's name without the colon ("to"), or empty
  std::string usage;     // the console's form (":to CALL"), listed when a line is not understood
  std::function<void(const std::string& argument)> handler;
  // Read before each run and by the views; it reads the controls' enabled and visible flags and
  // never replaces them. Empty: always enabled.
  std::function<bool()> enabled;
  // Registered before its routine is built: shown grey, never runs.
  bool built = true;
  // The menu row behind a menu command, whose caption (when set), check and visibility the
  // views show; null for a command without one.
  MenuItem* item = nullptr;
};

// The usual enabled rules: a button or menu row runs while it is enabled and visible.
inline std::function<bool()> WhileEnabled(const Control& control) {
  return [&control] { return control.enabled && control.visible; };
}
inline std::function<bool()> WhileEnabled(const MenuItem& item) {
  return [&item] { return item.enabled && item.visible; };
}

class CommandTable {
 public:
  // False when the key is registered already: each command is registered once. A command
  // registered unbuilt is filled by the first built registration of its key.
  bool add(CommandSpec desc);
  // A command registered before its routine is built: its row shows grey, as a disabled one.
  bool addUnbuilt(CommandKey key, std::string caption = {}, MenuItem* item = nullptr);
  // A command with no argument and no caption of its own (a button, a label's click); without
  // a rule it is always enabled.
  bool addClick(CommandKey key, std::function<void()> run, std::function<bool()> enabled = {});
  // A row of an indexed menu: the handler gets the row's index, the rule is the row's flags.
  // `also`, when given, is a further condition (the window the row opens exists).
  bool addRow(Command command, MenuArray& rows, int index, std::string caption,
              std::function<void(int index)> handler, std::function<bool()> also = {});

  bool has(CommandKey key) const;
  bool enabled(CommandKey key) const;
  // Runs the handler when the command is there and enabled; true when it ran.
  bool run(CommandKey key, const std::string& argument = {});
  const CommandSpec* find(CommandKey key) const;
  // The entry the console knows by `name` (without the colon, any case), or null.
  const CommandSpec* findConsole(const std::string& name) const;
  // The console's forms in the order of their names, for the line that lists them.
  std::vector<std::string> consoleUsages() const;
  // Every key registered, in order.
  std::vector<CommandKey> keys() const;

 private:
  std::map<CommandKey, CommandSpec> m_entries;
};

}  // namespace tesk
