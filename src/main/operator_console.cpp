// The console's line parsing: ":name argument", the name case-blind, the argument trimmed.
#include "main/operator_console.h"

#include "base/text.h"

namespace tesk {

void OperatorConsole::error(const std::string& text) {
  std::string known;
  for (const std::string& usage : m_commands.consoleUsages())
    known += (known.empty() ? "" : ", ") + usage;
  m_platform.views().notice(text + " (commands: " + known + ")");
}

void OperatorConsole::line(const std::string& text) {
  // A line end of another system arrives as a trailing CR; it is no part of what was typed.
  std::string typed = text;
  while (!typed.empty() && (typed.back() == '\r' || typed.back() == '\n'))
    typed.pop_back();
  if (Left(typed, 1) != ":") {
    if (m_plain) m_plain(typed);
    return;
  }
  const long blank = InStr(typed, " ");
  const std::string name = LCase(blank > 0 ? Mid(typed, 2, blank - 2) : Mid(typed, 2));
  const std::string argument = blank > 0 ? Trim(Mid(typed, blank + 1)) : std::string();
  const CommandSpec* command = m_commands.findConsole(name);
  if (command == nullptr) {
    error("Unknown console command: " + typed);
    return;
  }
  // A command that may not run now does nothing, as its grey menu row would.
  if (!m_commands.run(command->key, argument))
    m_platform.views().notice("Not available now: " + typed);
}

}  // namespace tesk
