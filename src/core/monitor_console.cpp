// The Monitor's line painter.
#include "core/monitor_console.h"

namespace tesk {

void MonitorConsole::NotaInMonitor(const std::string& text, int flag) {
  TextStyle style{flag != 0 ? m_config.DataColor : m_config.HeaderColor};
  m_main.txtMonitor.append(text + "\r\n", style);
}

}  // namespace tesk
