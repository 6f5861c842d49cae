// In-memory TCP for the tests: engines listen on a host and port inside the test, the station's
// socket connects to them through a byte pipe, and every delivery is an event at a virtual time.
// A send of the engine arrives as one chunk; chunks that arrive before the client reads
// coalesce in its buffer, as on a real stream.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "platform/sim/sim_loop.h"

namespace tesk {

class SimSocket;

// The engine's side of one accepted connection.
class SimConnection : public std::enable_shared_from_this<SimConnection> {
 public:
  explicit SimConnection(SimLoop& loop) : m_loop(loop) {}
  // Bytes to the client, delivered after the network's latency.
  void send(const std::vector<uint8_t>& bytes);
  void send(const std::string& bytes) { send(std::vector<uint8_t>(bytes.begin(), bytes.end())); }
  // Closes from the engine's side: the client gets its close event.
  void close();
  bool open() const { return m_client != nullptr; }

  std::function<void(const std::vector<uint8_t>&)> onReceive;  // one call per client send
  std::function<void()> onClientClose;
  // Everything the client sent, as it went on the wire (before the latency), for asserts.
  std::vector<std::vector<uint8_t>> received;

 private:
  friend class SimSocket;
  friend class SimNetwork;
  SimLoop& m_loop;
  SimSocket* m_client = nullptr;
  double m_latency = 0.001;
};

class SimNetwork {
 public:
  using AcceptFn = std::function<void(std::shared_ptr<SimConnection>)>;
  explicit SimNetwork(SimLoop& loop) : m_loop(loop) {}

  void listen(const std::string& host, int port, AcceptFn onAccept);
  void unlisten(const std::string& host, int port);
  // Connection attempts to this address are never answered (a host that is not there).
  void setSilent(const std::string& host, int port, bool silent);
  std::unique_ptr<TcpSocket> createSocket();

  double latency = 0.001;  // seconds, each way
  int connectAttempts = 0;

 private:
  friend class SimSocket;
  static std::string key(const std::string& host, int port) {
    return host + ":" + std::to_string(port);
  }
  SimLoop& m_loop;
  std::map<std::string, AcceptFn> m_listeners;
  std::map<std::string, bool> m_silent;
};

class SimSocket : public TcpSocket {
 public:
  SimSocket(SimNetwork& net, SimLoop& loop) : m_net(net), m_loop(loop) {}
  ~SimSocket() override;
  int state() const override { return m_state; }
  void connectToHost(const std::string& host, int port) override;
  void close() override;
  std::size_t bytesAvailable() const override { return m_rx.size(); }
  std::vector<uint8_t> peek(std::size_t n) override;
  std::vector<uint8_t> read(std::size_t n) override;
  int send(const std::vector<uint8_t>& bytes) override;
  std::string lastErrorText() const override { return m_errorText; }

 private:
  friend class SimConnection;
  void deliver(const std::vector<uint8_t>& bytes);
  void remoteClosed();
  void detach();

  SimNetwork& m_net;
  SimLoop& m_loop;
  int m_state = Closed;
  uint64_t m_attempt = 0;  // a close or a new connect makes older pending events void
  std::deque<uint8_t> m_rx;
  std::shared_ptr<SimConnection> m_conn;
  std::string m_errorText;
  std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};

}  // namespace tesk
