// The periodic routine through which all reception passes (tmrMainPacketCore). One tick takes
// at most one frame from the active link, brings it to one shape and hands it, in a fixed
// order, to the Monitor, the stations heard, digipeat tracking, message reception, the logs,
// the alarms and, in direct mode, connected mode. The timed beacon is decided here too.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/frame_split.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class Alarms;
class BeaconScheduler;
class ConnectionControl;
class DigiFlash;
class Digipeat;
class HandOffLog;
class MessageReception;
class MHeardList;
class ModuleMailbox;
class MonitorConsole;
class MonitorFilters;
class PacketLog;
class TcpLink;

class PacketCore {
 public:
  struct Parts {
    TcpLink& tcpLink;
    MonitorConsole& monitor;
    MonitorFilters& filters;
    ModuleMailbox& mailbox;
    MHeardList& heard;
    Digipeat& digipeat;
    MessageReception& messages;
    PacketLog& packetLog;
    Alarms& alarms;
    ConnectionControl& connection;
    BeaconScheduler& beacon;
    DigiFlash& lamps;
    HandOffLog& handOffs;
  };
  // The engine library's AGWGetData: frame call (25), frame text (512), kind, length, port.
  using GetData = std::function<int16_t(std::string& frameCall, std::string& frameText,
                                        int32_t& kind, int32_t& length, int32_t& port)>;

  PacketCore(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
             Parts parts, GetData agwGetData);

  // One tick. A tick never starts while one is running.
  void Tick();

  // -1 switches the copy of each frame to UIdata.dat on (set from the module mailbox).
  int16_t WriteDataToDisk = 0;
  // Where direct mode fetches its frame: the link's AGWGetData (tests put a script here).
  GetData AGWGetData;

 private:
  // One tick's frame: the locals of the tick, lost at its end.
  struct Frame {
    std::string call;  // fixed 25 characters
    std::string text;  // fixed 512 characters
    int32_t kind = 0;  // character code of the frame's kind
    int32_t length = 0;
    int32_t port = 0;
    int16_t received = 0;
    bool forced = false;  // kinds "c", "d", "D" in direct mode
    SplitFrame split;
  };

  void RunTick();
  void BringFrameIn(Frame& f);
  bool PassesGate(const Frame& f) const;
  void ServerCopy(const Frame& f);
  void ShowFrame(Frame& f);
  void PaintFrame(Frame& f);
  void AlarmTests(const Frame& f);
  void ConnectionRules(Frame& f);

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  Parts m_parts;
  bool m_running = false;
};

}  // namespace tesk
