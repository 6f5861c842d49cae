// In-memory TCP: connection set-up, deliveries and closes as events of the virtual-time loop.
#include "platform/sim/sim_network.h"

namespace tesk {

void SimConnection::send(const std::vector<uint8_t>& bytes) {
  if (!m_client) return;
  SimSocket* client = m_client;
  auto alive = client->m_alive;
  auto self = shared_from_this();
  m_loop.schedule(m_latency, [self, client, alive, bytes] {
    if (*alive && self->m_client == client) client->deliver(bytes);
  });
}

void SimConnection::close() {
  if (!m_client) return;
  SimSocket* client = m_client;
  auto alive = client->m_alive;
  auto self = shared_from_this();
  m_client = nullptr;
  m_loop.schedule(m_latency, [client, alive] {
    if (*alive) client->remoteClosed();
  });
}

void SimNetwork::listen(const std::string& host, int port, AcceptFn onAccept) {
  m_listeners[key(host, port)] = std::move(onAccept);
}

void SimNetwork::unlisten(const std::string& host, int port) {
  m_listeners.erase(key(host, port));
}

void SimNetwork::setSilent(const std::string& host, int port, bool silent) {
  m_silent[key(host, port)] = silent;
}

std::unique_ptr<TcpSocket> SimNetwork::createSocket() {
  return std::make_unique<SimSocket>(*this, m_loop);
}

SimSocket::~SimSocket() {
  *m_alive = false;
  detach();
}

void SimSocket::detach() {
  if (!m_conn) return;
  auto conn = m_conn;
  m_conn.reset();
  if (conn->m_client == this) {
    conn->m_client = nullptr;
    m_loop.schedule(m_net.latency, [conn] {
      if (conn->onClientClose) conn->onClientClose();
    });
  }
}

void SimSocket::connectToHost(const std::string& host, int port) {
  detach();
  m_rx.clear();
  m_state = Connecting;
  const uint64_t attempt = ++m_attempt;
  ++m_net.connectAttempts;
  auto alive = m_alive;
  const std::string key = SimNetwork::key(host, port);
  m_loop.schedule(m_net.latency, [this, alive, attempt, key] {
    if (!*alive || attempt != m_attempt || m_state != Connecting) return;
    auto silent = m_net.m_silent.find(key);
    if (silent != m_net.m_silent.end() && silent->second) return;
    auto it = m_net.m_listeners.find(key);
    if (it == m_net.m_listeners.end()) {
      // A refused connection goes back to closed at once, with the error event.
      m_state = Closed;
      m_errorText = "Connection refused";
      if (onError) onError(10061, m_errorText);
      return;
    }
    m_conn = std::make_shared<SimConnection>(m_loop);
    m_conn->m_client = this;
    m_conn->m_latency = m_net.latency;
    m_state = Connected;
    it->second(m_conn);
  });
}

void SimSocket::close() {
  ++m_attempt;
  detach();
  m_state = Closed;
}

std::vector<uint8_t> SimSocket::peek(std::size_t n) {
  n = std::min(n, m_rx.size());
  return std::vector<uint8_t>(m_rx.begin(), m_rx.begin() + static_cast<long>(n));
}

std::vector<uint8_t> SimSocket::read(std::size_t n) {
  auto out = peek(n);
  m_rx.erase(m_rx.begin(), m_rx.begin() + static_cast<long>(out.size()));
  return out;
}

int SimSocket::send(const std::vector<uint8_t>& bytes) {
  if (m_state != Connected || !m_conn) {
    m_errorText = "not connected";
    return kNotConnected;
  }
  auto conn = m_conn;
  // On the wire at once, delivered after the latency: a process that ends right after a send
  // has still sent it.
  conn->received.push_back(bytes);
  m_loop.schedule(m_net.latency, [conn, bytes] {
    if (conn->onReceive) conn->onReceive(bytes);
  });
  auto alive = m_alive;
  m_loop.post([this, alive] {
    if (*alive && onSendComplete) onSendComplete();
  });
  return 0;
}

void SimSocket::deliver(const std::vector<uint8_t>& bytes) {
  if (m_state != Connected) return;
  m_rx.insert(m_rx.end(), bytes.begin(), bytes.end());
  if (onDataArrival) onDataArrival();
}

void SimSocket::remoteClosed() {
  if (m_state != Connected) return;
  m_conn.reset();
  // The state is still "connected" when the close event arrives, as the real socket reports it.
  if (onClose) onClose();
}

}  // namespace tesk
