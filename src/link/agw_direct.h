// Direct mode: the four calls of the packet engine's library, which the core polls once per
// tick. That library exists on one platform only, so this is its stand-in: the same calls with
// the same argument and result rules, on top of a TCP client of the engine's host interface
// (the LAN settings give host and port). It keeps every frame in order until the core asks,
// brings all engines' monitor texts to one form and carries connected mode.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "link/agw_client.h"
#include "link/direct_queue.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/run_state.h"

namespace tesk {

class AgwDirect {
 public:
  // The fixed texts the core hands to AGWGetData.
  static constexpr long kCallBufferSize = 25;
  static constexpr long kTextBufferSize = 512;
  // The start waits this long for the TCP connection, then as long for the version reply.
  static constexpr double kStartConnectSeconds = 3.0;
  static constexpr double kStartAnswerSeconds = 3.0;

  AgwDirect(Platform& platform, StationConfig& config, RunState& run);
  AgwDirect(const AgwDirect&) = delete;
  AgwDirect& operator=(const AgwDirect&) = delete;

  // Opens the link; non-zero when the engine answered.
  int16_t AGWStartPoll(const std::string& ownCall, const std::string& appKey, int32_t callLength,
                       int32_t keyLength);
  void AGWClose();
  int16_t AGWPutData(const std::string& callText, const std::string& data, int32_t kind,
                     int32_t length, int32_t port);
  // Gives the next frame without waiting; non-zero when one was delivered.
  int16_t AGWGetData(std::string& frameCall, std::string& frameText, int32_t& kind, int32_t& length,
                     int32_t& port);

  int startPolls() const { return m_startPolls; }
  int closes() const { return m_closes; }
  int puts() const { return m_puts; }
  const AgwClient& client() const { return m_client; }
  std::size_t waiting() const { return m_queue.size(); }

  // The engine's address: the LAN settings, or the run-only override of the demo engine.
  std::string host() const;
  int port() const;

 private:
  // One AX.25 connection the engine holds for this station.
  struct Link {
    int port = 0;
    std::string remote;             // the other station
    std::string local;              // the call this side uses on the link
    bool open = false;              // the engine confirmed it
    std::vector<std::string> held;  // data given before the confirmation
  };
  struct CallPath {
    std::string to;
    std::vector<std::string> digipeaters;
  };
  static CallPath ParseCallPath(const std::string& callText);

  int16_t sendUi(const CallPath& path, const std::string& info, bool viaDigipeaters, int port);
  int16_t connect(const CallPath& path, int port);
  int16_t sendData(const CallPath& path, const std::string& data);
  int16_t disconnect(const CallPath& path, int port);
  bool sendLinkData(const Link& link, const std::string& data);
  Link* findLink(const std::string& remote);
  void onEngineFrame(const AgwFrame& frame);
  void onEngineLost();
  void linkOpened(const AgwFrame& frame);

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  AgwClient m_client;
  DirectFrameQueue m_queue;
  std::vector<Link> m_links;
  std::string m_ownCall;
  // The next port list goes to the core: one is asked at each start, and a reconnect to the
  // same engine must not add its ports to the engine status again.
  bool m_portsWanted = false;
  int m_startPolls = 0;
  int m_closes = 0;
  int m_puts = 0;
};

}  // namespace tesk
