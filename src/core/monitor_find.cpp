// Find and count. A hit selects the text and moves the next start one past it, so repeated
// presses walk through every hit; after the last one the operator is told the end is reached
// and the next search starts from the top again.
#include "core/monitor_find.h"

#include <utility>

#include "base/text.h"

namespace tesk {

MonitorFind::MonitorFind(Platform& platform, MainWindow& main)
    : m_platform(platform), m_main(main) {
  m_target = &m_main.txtMonitor;
  m_findNext = &m_main.menuFindNext;
}

MonitorFind::~MonitorFind() = default;

void MonitorFind::Show(int mode, RichText& target, MenuItem& findNext) {
  if (!m_window.form.loaded) Form_Load();
  m_mode = mode;
  m_target = &target;
  m_findNext = &findNext;
  m_window.form.visible = true;
  m_platform.views().show(kWindowKind);
}

void MonitorFind::Form_Load() {
  // Swapped with a fresh window rather than assigned from a temporary: GCC 12 at -O3 sees the
  // temporary's strings as uninitialised (a false warning that -Werror would make fatal).
  FindWindow fresh;
  std::swap(m_window, fresh);
  m_window.form.loaded = true;
  m_start = 0;
  m_found = false;
}

void MonitorFind::txtToFind_KeyPress(int keyAscii) {
  if (keyAscii == 13) FindText();
}

void MonitorFind::CmdClose_Click() {
  Form_Unload();
}

void MonitorFind::Form_Unload() {
  if (!m_window.form.loaded) return;
  m_window.form.loaded = false;
  m_window.form.visible = false;
  m_findNext->enabled = false;
  m_platform.views().hide(kWindowKind);
}

void MonitorFind::FindText() {
  FindOptions options;
  options.wholeWord = m_window.ChkWordOnly.checked();
  options.matchCase = m_window.ChkCase.checked();
  const long hit =
      m_target->find(m_window.txtToFind.text, static_cast<std::size_t>(m_start), options);
  if (hit >= 0) {
    m_findNext->enabled = true;
    m_start = hit + 1;
    m_found = true;
    return;
  }
  // The flag is never lowered again: after one hit every miss reads as the end.
  m_platform.dialogs().msgBox(m_found ? "Reached the end..." : "Nothing found.", MsgButtons::Ok,
                              MsgIcon::Information, "Find");
  m_start = 0;
}

void MonitorFind::menufindcount_Click() {
  Dialogs& dialogs = m_platform.dialogs();
  for (;;) {
    const std::string word = dialogs.inputBox(kCountPrompt, kCountTitle, m_lastCounted);
    if (word.empty()) return;
    m_lastCounted = word;
    // Case-sensitive, non-overlapping and blind to word boundaries: "aa" is twice in "aaaa".
    const long count = InstrCount(m_main.txtMonitor.text(), word);
    const std::string result =
        count > 0 ? "'" + word + "' has been found " + std::to_string(count) + " time(s)"
                  : "'" + word + "' has NOT been found";
    dialogs.msgBox(result, MsgButtons::Ok, MsgIcon::Information, "Results");
  }
}

void MonitorFind::RegisterCommands(CommandTable& commands) {
  const auto add = [&commands](Command command, std::string caption, std::string shortcut,
                               MenuItem* item, std::function<void()> run) {
    CommandSpec desc;
    desc.key = {command};
    desc.caption = std::move(caption);
    desc.shortcut = std::move(shortcut);
    desc.item = item;
    if (item != nullptr) desc.enabled = WhileEnabled(*item);
    desc.handler = [run = std::move(run)](const std::string&) { run(); };
    commands.add(std::move(desc));
  };
  add(Command::cmdFind, {}, {}, nullptr, [this] { ShowForMonitor(); });
  add(Command::menufind, "&Find...", "Ctrl+F", &m_main.menufind, [this] { ShowForMonitor(); });
  add(Command::menuFindNext, "Find &Next", "F3", &m_main.menuFindNext,
      [this] { menuFindNext_Click(); });
  add(Command::menufindcount, "C&ount found words...", {}, &m_main.menufindcount,
      [this] { menufindcount_Click(); });
}

}  // namespace tesk
