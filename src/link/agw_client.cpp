// The AGWPE TCP client of direct mode: connection states, log-on, stream reassembly and the
// background reconnect.
#include "link/agw_client.h"

#include <algorithm>
#include <span>

namespace tesk {

namespace {

constexpr int kConnectPollMs = 50;
constexpr std::size_t kLoginFieldSize = 255;
constexpr double kBrokenStreamRetrySeconds = 0.1;

AgwFrame Request(char kind, int port = 0, const std::string& callFrom = "") {
  AgwFrame f;
  f.kind = kind;
  f.port = static_cast<uint8_t>(port);
  f.callFrom = callFrom;
  return f;
}

// The login's data: the user and the password, each in a NUL-padded field of 255 bytes.
std::string LoginData(const std::string& user, const std::string& password) {
  std::string data(2 * kLoginFieldSize, '\0');
  data.replace(0, std::min(user.size(), kLoginFieldSize), user, 0, kLoginFieldSize);
  data.replace(kLoginFieldSize, std::min(password.size(), kLoginFieldSize), password, 0,
               kLoginFieldSize);
  return data;
}

uint32_t Le32(const std::string& data) {
  uint32_t v = 0;
  for (std::size_t i = 0; i < 4 && i < data.size(); ++i)
    v |= static_cast<uint32_t>(static_cast<unsigned char>(data[i])) << (8 * i);
  return v;
}

}  // namespace

AgwClient::AgwClient(Platform& platform) : m_platform(platform) {}

AgwClient::~AgwClient() {
  if (m_socket) {
    m_socket->onDataArrival = nullptr;
    m_socket->onClose = nullptr;
    m_socket->onError = nullptr;
    m_socket->close();
  }
}

void AgwClient::ensureSocket() {
  if (m_socket) return;
  m_socket = m_platform.createSocket();
  m_socket->onDataArrival = [this] { onDataArrival(); };
  m_socket->onClose = [this] {
    if (m_state == State::Up) lost(kRetrySeconds);
  };
  m_socket->onError = [this](int, const std::string&) {
    if (m_state == State::Up) {
      lost(kRetrySeconds);
    } else if (m_state == State::Connecting) {
      m_socket->close();
      waitForRetry(kRetrySeconds);
    }
  };
  m_timer = m_platform.loop().createTimer();
  m_timer->setHandler([this] { onTimer(); });
}

bool AgwClient::open(const std::string& host, int port, const LogOn& logOn, double connectSeconds,
                     double answerSeconds) {
  EventLoop& loop = m_platform.loop();
  const bool sameEngine = m_state == State::Up && host == m_host && port == m_port;
  m_host = host;
  m_port = port;
  if (sameEngine) {
    // Still connected to this engine: register a changed call, ask the version and the ports
    // again.
    if (logOn.ownCall != m_logOn.ownCall) {
      for (int p : logOn.registerPorts)
        send(Request('X', p, logOn.ownCall));
    }
    m_logOn = logOn;
    m_answered = false;
    send(Request('R'));
    send(Request('G'));
  } else {
    m_logOn = logOn;
    close();
    connectNow();
    m_connectDeadline = m_platform.clock().monotonicSeconds() + connectSeconds;
    loop.waitUntil(connectSeconds + 0.2, [this] { return m_state != State::Connecting; });
    if (m_state != State::Up) return false;
  }
  loop.waitUntil(answerSeconds, [this] { return m_answered || m_state != State::Up; });
  return m_answered;
}

void AgwClient::close() {
  m_state = State::Idle;
  if (m_timer) m_timer->setEnabled(false);
  if (m_socket) m_socket->close();
  m_stream.clear();
  m_answered = false;
}

bool AgwClient::send(const AgwFrame& frame) {
  if (m_state != State::Up) return false;
  return m_socket->send(frame.encode()) == 0;
}

void AgwClient::connectNow() {
  ensureSocket();
  m_stream.clear();
  m_answered = false;
  m_state = State::Connecting;
  m_connectDeadline = m_platform.clock().monotonicSeconds() + kConnectTimeoutSeconds;
  m_socket->connectToHost(m_host, m_port);
  m_timer->setInterval(kConnectPollMs);
  m_timer->setEnabled(true);
}

void AgwClient::becameUp() {
  m_state = State::Up;
  m_timer->setEnabled(false);
  ++m_connections;
  sendLogOn();
}

void AgwClient::sendLogOn() {
  send(Request('R'));
  if (!m_logOn.password.empty()) {
    AgwFrame login = Request('P');
    login.data = LoginData(m_logOn.ownCall, m_logOn.password);
    send(login);
  }
  for (int p : m_logOn.registerPorts)
    send(Request('X', p, m_logOn.ownCall));
  // Both are toggles that start off on each new connection: send each once.
  send(Request('m'));
  send(Request('k'));
  // The engine's ports, for the operator to see which engine and sound card answered.
  send(Request('G'));
}

void AgwClient::lost(double retryAfterSeconds) {
  m_socket->close();
  m_stream.clear();
  m_answered = false;
  waitForRetry(retryAfterSeconds);
  if (onLost) onLost();
}

void AgwClient::waitForRetry(double seconds) {
  m_state = State::RetryWait;
  m_timer->setInterval(static_cast<int>(seconds * 1000));
  m_timer->setEnabled(true);
}

void AgwClient::onTimer() {
  if (m_state == State::RetryWait) {
    connectNow();
    return;
  }
  if (m_state != State::Connecting) {
    m_timer->setEnabled(false);
    return;
  }
  const int s = m_socket->state();
  if (s == TcpSocket::Connected) {
    becameUp();
  } else if (s == TcpSocket::Closed || s == TcpSocket::Error ||
             m_platform.clock().monotonicSeconds() >= m_connectDeadline) {
    m_socket->close();
    waitForRetry(kRetrySeconds);
  }
}

void AgwClient::onDataArrival() {
  if (m_state == State::Connecting && m_socket->state() == TcpSocket::Connected) becameUp();
  const std::vector<uint8_t> bytes = m_socket->read(m_socket->bytesAvailable());
  if (m_state != State::Up) return;
  m_stream.insert(m_stream.end(), bytes.begin(), bytes.end());
  takeFrames();
}

void AgwClient::takeFrames() {
  std::size_t used = 0;
  while (m_state == State::Up) {
    const AgwTakeResult r =
        takeAgwFrame(std::span<const uint8_t>(m_stream).subspan(used), kMaxDataLen);
    if (r.status == AgwTake::NeedMore) break;
    if (r.status == AgwTake::BadLength) {
      // The stream is out of step and cannot be trusted again: start a fresh connection.
      lost(kBrokenStreamRetrySeconds);
      return;
    }
    used += r.consumed;
    handle(r.frame);
  }
  if (m_state == State::Up)
    m_stream.erase(m_stream.begin(), m_stream.begin() + static_cast<long>(used));
}

void AgwClient::handle(const AgwFrame& frame) {
  if (frame.kind == 'R') {
    m_answered = true;
    m_versionMajor = Le32(frame.data);
    return;
  }
  if (onFrame) onFrame(frame);
}

}  // namespace tesk
