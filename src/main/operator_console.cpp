// The console's line parsing: ":name argument", the name case-blind, the argument trimmed.
#include "main/operator_console.h"

#include "base/text.h"

namespace tesk {

void OperatorConsole::add(const std::string& name, const std::string& usage, Handler handler) {
  m_commands[LCase(name)] = Command{usage, std::move(handler)};
}

void OperatorConsole::error(const std::string& text) {
  std::string known;
  for (const auto& [name, command] : m_commands)
    known += (known.empty() ? "" : ", ") + command.usage;
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
  const auto it = m_commands.find(name);
  if (it == m_commands.end()) {
    error("Unknown console command: " + typed);
    return;
  }
  it->second.handler(argument);
}

}  // namespace tesk
