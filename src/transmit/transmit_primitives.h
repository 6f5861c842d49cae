// The two routines every frame leaves through: AGWPE_UI_Send for an unnumbered information
// frame and AGWPE_Con_Send for data on the open connection. They count the frame, pick the
// link (TCP or the library stand-in), light the transmit lamp, and nothing more: callers have
// filled the transmit fields and cut the text. The echo of own frames for slow networks lives
// here too, since it paints exactly what the TCP sender just sent.
#pragma once

#include <cstdint>
#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class AgwDirect;
class DigiFlash;
class MessageReception;
class MHeardList;
class MonitorConsole;
class PacketLog;
class TcpLink;

// The transmission types callers pass; each is also its TxCounters index.
enum TxType : int16_t {
  TxHeaderOnly = 0,
  TxDataText = 1,
  TxAPRSPosition = 2,
  TxAPRSMessage = 3,
  TxMonitorText = 4,
  TxAck = 7,
  TxAPRSMessageAck = 8,
  TxMultiLine = 9,
  TxShadow = 10,
  TxConnectedData = 11,
};

class TransmitPrimitives {
 public:
  struct Parts {
    TcpLink& tcpLink;
    AgwDirect& direct;
    MonitorConsole& monitor;
    DigiFlash& lamps;
    PacketLog& packetLog;
    MHeardList& heardList;
    MessageReception& messages;
  };
  TransmitPrimitives(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                     Parts parts);
  TransmitPrimitives(const TransmitPrimitives&) = delete;
  TransmitPrimitives& operator=(const TransmitPrimitives&) = delete;

  void AGWPE_UI_Send(const std::string& text, int16_t type);
  void AGWPE_Con_Send(std::string& text);
  // Shows an own frame in the Monitor right after the TCP link sent it
  // ([Emulate_TXFrames_On_SlowNetPC]), so it is seen even when the engine's report is late.
  void EchoOwnFrame(int port, const std::string& from, const std::string& to,
                    const std::string& data, const std::string& via);
  int echoes() const { return m_echoes; }

 private:
  void CountTransmission(int16_t type);

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  Parts m_parts;
  int m_echoes = 0;
};

}  // namespace tesk
