// The operator console of a station without windows: lines typed on standard input. A plain
// line is Text/data sent as Enter in that field sends it; a line that starts with ":" runs the
// command the table knows by that name. An unknown one is refused with one line listing the
// known ones, and never transmits.
#pragma once

#include <functional>
#include <string>

#include "platform/platform.h"
#include "state/command_table.h"

namespace tesk {

class OperatorConsole {
 public:
  using Handler = std::function<void(const std::string& argument)>;

  OperatorConsole(Platform& platform, CommandTable& commands)
      : m_platform(platform), m_commands(commands) {}

  // What a line without the colon does.
  void setPlainLine(Handler handler) { m_plain = std::move(handler); }
  void line(const std::string& text);

 private:
  void error(const std::string& text);

  Platform& m_platform;
  CommandTable& m_commands;
  Handler m_plain;
};

}  // namespace tesk
