// The periodic routine through which all reception passes (tmrMainPacketCore). This first cut
// takes one frame per tick from the LAN slot and shows its text as lines; the full receive
// path arrives with the packet core.
#pragma once

#include "main/main_window.h"
#include "main/run_state.h"
#include "platform/platform.h"
#include "settings/station_config.h"

namespace tesk {

class TcpLink;
class MonitorConsole;

class PacketCore {
 public:
  PacketCore(Platform& platform, StationConfig& config, RunState& run, TcpLink& link,
             MonitorConsole& monitor)
      : m_platform(platform),
        m_config(config),
        m_run(run),
        m_link(link),
        m_monitor(monitor) {}
  // One tick.
  void Tick();

  // -1 switches the copy of each frame to UIdata.dat on (set from the module mailbox).
  int16_t WriteDataToDisk = 0;

 private:
  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  TcpLink& m_link;
  MonitorConsole& m_monitor;
};

}  // namespace tesk
