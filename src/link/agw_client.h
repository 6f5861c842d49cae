// A complete client of the AGWPE host interface over TCP, for direct mode: it connects, logs on
// (version request, login, call registration, monitoring and raw frames on, the port list),
// reassembles the byte stream into frames however the reads cut it, refuses a declared length
// above a fixed maximum, and keeps reading on every data event so that the engine never stalls.
// When the engine goes away it tries again in the background, from a timer, without blocking
// anyone.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "link/agw_frame.h"
#include "platform/platform.h"

namespace tesk {

class AgwClient {
 public:
  // The engines' monitor texts and raw frames stay below 1 KB and Dire Wolf refuses more than
  // 2122 bytes itself; a declared length above this means the stream is out of step.
  static constexpr uint32_t kMaxDataLen = 8192;
  static constexpr double kRetrySeconds = 3.0;         // pause between background attempts
  static constexpr double kConnectTimeoutSeconds = 5;  // a background attempt gives up after

  struct LogOn {
    std::string ownCall;
    std::string password;               // the login is sent only when this is not empty
    std::vector<int> registerPorts{0};  // ports on which the own call is registered
  };
  enum class State { Idle, Connecting, Up, RetryWait };

  explicit AgwClient(Platform& platform);
  ~AgwClient();
  AgwClient(const AgwClient&) = delete;
  AgwClient& operator=(const AgwClient&) = delete;

  // Connects to host:port (waiting, with events running, at most `connectSeconds`), logs on and
  // waits at most `answerSeconds` for the engine's version reply. True when it answered. Either
  // way the client stays wanted: a failed or lost connection is tried again in the background.
  bool open(const std::string& host, int port, const LogOn& logOn, double connectSeconds,
            double answerSeconds);
  // Closes the connection and stops trying. Harmless when nothing is open.
  void close();

  // Sends one frame; false when no connection is up.
  bool send(const AgwFrame& frame);

  State state() const { return m_state; }
  bool up() const { return m_state == State::Up; }
  bool answered() const { return m_answered; }
  uint32_t versionMajor() const { return m_versionMajor; }
  int connections() const { return m_connections; }  // connections made, for the tests

  // Every frame of the engine except the version reply, in the order received.
  std::function<void(const AgwFrame&)> onFrame;
  // The connection broke: the engine closed it, the socket failed, or the stream went wrong.
  std::function<void()> onLost;

 private:
  void ensureSocket();
  void connectNow();
  void becameUp();
  void sendLogOn();
  void lost(double retryAfterSeconds);
  void waitForRetry(double seconds);
  void onTimer();
  void onDataArrival();
  void takeFrames();
  void handle(const AgwFrame& frame);

  Platform& m_platform;
  std::unique_ptr<TcpSocket> m_socket;
  std::unique_ptr<Timer> m_timer;
  State m_state = State::Idle;
  std::string m_host;
  int m_port = 0;
  LogOn m_logOn;
  double m_connectDeadline = 0;
  bool m_answered = false;
  uint32_t m_versionMajor = 0;
  int m_connections = 0;
  std::vector<uint8_t> m_stream;  // bytes received and not yet taken as frames
};

}  // namespace tesk
