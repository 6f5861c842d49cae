// LAN mode: the station as a TCP client of the packet engine's host interface. One attempt to
// connect at a time, each with a 10-second limit, a retry from the one-second clock once a
// minute while the status says "error", and one read decoded into the one frame slot.
#pragma once

#include <memory>
#include <string>

#include "link/agw_frame.h"
#include "link/link_events.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/run_state.h"

namespace tesk {

class TcpLink {
 public:
  // `events` takes the Monitor lines, notes, mailbox posts, echoes and lamp changes.
  TcpLink(Platform& platform, StationConfig& config, RunState& run, LinkEvents& events);
  ~TcpLink();

  void AGWWinsockInitialiseLan();
  // Waits, yielding, while the socket is in a transition; then sleeps 5 ms.
  void AGWWinsockCloseOpenWAIT(double seconds);
  // Waits the given time, yielding all along.
  void WachtEfkes(double seconds);
  void AGWWinsockMonitor();
  void AGWWinsockReqRegInfo(int port, const std::string& kind, const std::string& data);
  void AGWWinsockPasword(int port, const std::string& kind, const std::string& data);
  void AGWWinSockControlUI(int port, const std::string& kind, const std::string& from,
                           const std::string& to, const std::string& data, const std::string& via);
  void LogEerstPoorten(const std::string& text);
  // The link supervision of the one-second clock, while LAN mode is on.
  void KlokkenTick();
  // Closes the socket (shut-down).
  void closeSocket();

  // The host and port in use: the LAN settings, or the run-only override of the demo engine.
  std::string host() const;
  int port() const;

  FrameSlot FrameSlot_;  // where a decoded read waits for the core
  int retryCounter() const { return m_retryCounter; }
  TcpSocket& socket() { return *m_socket; }

 private:
  void onDataArrival();
  void onClose();
  void onError(int number, const std::string& description);
  bool sendFrame(const std::vector<uint8_t>& bytes, int& error, std::string& errorText);

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  LinkEvents& m_events;
  std::unique_ptr<TcpSocket> m_socket;
  int16_t m_retryCounter = 0;
};

}  // namespace tesk
