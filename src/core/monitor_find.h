// Searching the received text: the window frmFind, which finds a text in the Monitor or in the
// terminal's text (whoever opens it says which), Find Next without the window, and the count
// of a word in the Monitor. The search goes on from the last hit until the end, then starts
// over from the beginning.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/platform.h"
#include "platform/rich_text.h"
#include "state/command_table.h"
#include "state/main_window.h"

namespace tesk {

struct FindWindow {
  Window form = [] {
    Window w;
    w.caption = "Find";
    return w;
  }();
  TextBox txtToFind;
  CheckBox ChkCase = [] {
    CheckBox c;
    c.caption = "Match &Case";
    return c;
  }();
  CheckBox ChkWordOnly = [] {
    CheckBox c;
    c.caption = "Match &Whole Word Only";
    return c;
  }();
  Button CmdFindNext = [] {
    Button b;
    b.caption = "Find Next";
    return b;
  }();
  Button CmdClose = [] {
    Button b;
    b.caption = "Close";
    return b;
  }();
};

class MonitorFind {
 public:
  static constexpr const char* kWindowName = "frmFind";
  static constexpr WindowKind kWindowKind = WindowKind::Find;
  static constexpr const char* kCountTitle = "Count found words";
  static constexpr const char* kCountPrompt =
      "Type the text you want to count how many times it's found in the Monitor:";

  MonitorFind(Platform& platform, MainWindow& main);
  ~MonitorFind();
  MonitorFind(const MonitorFind&) = delete;
  MonitorFind& operator=(const MonitorFind&) = delete;

  // Registers the commands of this part once the station is complete.
  void RegisterCommands(CommandTable& commands);

  // Opens the window on a text: mode 0 the Monitor, with menuFindNext; mode 1 the terminal's
  // text, with the terminal's own Find Next entry.
  void Show(int mode, RichText& target, MenuItem& findNext);
  // cmdFind and menufind: the window on the Monitor.
  void ShowForMonitor() { Show(0, m_main.txtMonitor, m_main.menuFindNext); }

  void Form_Load();
  // Find Next, and Enter in txtToFind.
  void CmdFindNext_Click() { FindText(); }
  void txtToFind_KeyPress(int keyAscii);
  void CmdClose_Click();
  // Closing the window (by its button or its frame) disables Find Next.
  void Form_Unload();
  // Repeats the search without opening the window.
  void menuFindNext_Click() { FindText(); }
  void FindText();

  // menufindcount: asks for a word and tells how often the Monitor holds it, again and again
  // until the answer is empty.
  void menufindcount_Click();

  FindWindow& window() { return m_window; }
  int mode() const { return m_mode; }
  long start() const { return m_start; }

 private:
  Platform& m_platform;
  MainWindow& m_main;
  FindWindow m_window;
  RichText* m_target = nullptr;
  MenuItem* m_findNext = nullptr;
  int m_mode = 0;
  long m_start = 0;  // where the next search starts, 0-based
  bool m_found = false;
  std::string m_lastCounted;  // the count's input box offers the last word again
};

}  // namespace tesk
