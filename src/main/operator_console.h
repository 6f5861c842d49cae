// The operator console of a station without windows: lines typed on standard input. A plain
// line is Text/data sent as Enter in that field sends it; a line that starts with ":" is a
// command. Subsystems add their commands; an unknown one is refused with one line, and never
// transmits.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/platform.h"

namespace tesk {

class OperatorConsole {
 public:
  using Handler = std::function<void(const std::string& argument)>;

  explicit OperatorConsole(Platform& platform) : m_platform(platform) {}

  // `name` without the colon; `usage` is shown in the list of commands.
  void add(const std::string& name, const std::string& usage, Handler handler);
  // What a line without the colon does.
  void setPlainLine(Handler handler) { m_plain = std::move(handler); }
  void line(const std::string& text);

 private:
  struct Command {
    std::string usage;
    Handler handler;
  };
  void error(const std::string& text);

  Platform& m_platform;
  std::map<std::string, Command> m_commands;
  Handler m_plain;
};

}  // namespace tesk
