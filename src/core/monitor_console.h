// The Monitor: the coloured text the operator watches during a pass. This first cut paints the
// link's notes (NotaInMonitor); the frame painting, the buffer limit and the operations arrive
// with the packet core.
#pragma once

#include <string>

#include "main/main_window.h"
#include "settings/station_config.h"

namespace tesk {

class MonitorConsole {
 public:
  MonitorConsole(StationConfig& config, MainWindow& main) : m_config(config), m_main(main) {}
  // Appends one line in [Data color] (flag non-zero) or [Header color], ignoring every filter.
  void NotaInMonitor(const std::string& text, int flag);
  // Fills [UTC Time Offset] from the system clock (built with the Monitor's clock rules).
  void CalcUTC() {}

 private:
  StationConfig& m_config;
  MainWindow& m_main;
};

}  // namespace tesk
