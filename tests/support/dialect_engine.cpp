// The dialect engine of the direct-mode tests: replies, monitor forms and connected mode as
// each real engine writes them (see the notes on the engines beside the design).
#include "support/dialect_engine.h"

#include <span>

#include "base/text.h"
#include "sim/air_frame.h"
#include "sim/dialect.h"

namespace tesk::testing {

namespace {

// The engines' rules are the simulated engine's; this engine adds the scripting tests need.
sim::Dialect SimDialect(Dialect d) {
  switch (d) {
    case Dialect::DireWolf16:
      return sim::Dialect::DireWolf16;
    case Dialect::DireWolf18:
      return sim::Dialect::DireWolfNew;
    case Dialect::QtSoundModem:
      return sim::Dialect::QtSoundModem;
    case Dialect::AgwPacketEngine:
      break;
  }
  return sim::Dialect::AgwPacketEngine;
}

std::string WithNul(std::string s) {
  s.push_back('\0');
  return s;
}

}  // namespace

const char* DialectName(Dialect d) {
  switch (d) {
    case Dialect::DireWolf16:
      return "DireWolf16";
    case Dialect::DireWolf18:
      return "DireWolf18";
    case Dialect::QtSoundModem:
      return "QtSoundModem";
    case Dialect::AgwPacketEngine:
      return "AgwPacketEngine";
  }
  return "?";
}

Ax25Frame Tnc2(const std::string& line) {
  return sim::ParseTnc2(line).value_or(Ax25Frame{});
}

std::vector<uint8_t> Ax25Bytes(const Ax25Frame& f) {
  return sim::EncodeAir(f);
}

DialectEngine::DialectEngine(SimPlatform& platform, Dialect dialect, std::string host, int port)
    : m_platform(platform), m_dialect(dialect), m_host(std::move(host)), m_port(port) {
  start();
}

DialectEngine::~DialectEngine() {
  *m_alive = false;
  m_platform.network.unlisten(m_host, m_port);
  if (m_conn) m_conn->onReceive = nullptr;
}

void DialectEngine::start() {
  m_platform.network.listen(m_host, m_port, [this](std::shared_ptr<SimConnection> c) {
    ++accepted;
    m_conn = std::move(c);
    m_stream.clear();
    m_links.clear();
    monitorOn = rawOn = false;  // both start off on each connection
    m_conn->onReceive = [this](const std::vector<uint8_t>& b) { onBytes(b); };
  });
}

void DialectEngine::stop() {
  m_platform.network.unlisten(m_host, m_port);
  dropClient();
}

void DialectEngine::dropClient() {
  if (m_conn) m_conn->close();
  m_conn.reset();
  m_links.clear();
}

bool DialectEngine::clientConnected() const {
  return m_conn && m_conn->open();
}

void DialectEngine::later(double seconds, std::function<void()> fn) {
  auto alive = m_alive;
  m_platform.simLoop.schedule(seconds, [alive, fn = std::move(fn)] {
    if (*alive) fn();
  });
}

void DialectEngine::write(const std::vector<uint8_t>& bytes) {
  if (m_conn && !bytes.empty()) m_conn->send(bytes);
}

void DialectEngine::writeLater(double seconds, const std::vector<uint8_t>& bytes) {
  later(seconds, [this, bytes] { write(bytes); });
}

std::string DialectEngine::kinds() const {
  std::string out;
  for (const AgwFrame& f : received)
    out.push_back(f.kind);
  return out;
}

std::string DialectEngine::monitorText(const Ax25Frame& f, int port, char) const {
  return sim::MonitorText(SimDialect(m_dialect), f, port, m_platform.simClock.localNow(),
                          m_platform.simClock.utcNow());
}

std::vector<uint8_t> DialectEngine::monitorBytes(const Ax25Frame& f, int port, char kind) const {
  AgwFrame m;
  m.kind = kind;
  m.port = static_cast<uint8_t>(port);
  m.callFrom = f.source.call;
  m.callTo = f.destination.call;
  m.data = monitorText(f, port, kind);
  return m.encode();
}

std::vector<uint8_t> DialectEngine::heardBytes(const std::string& tnc2, int port) const {
  const Ax25Frame f = Tnc2(tnc2);
  std::vector<uint8_t> raw, monitor;
  if (rawOn) {
    AgwFrame k;
    k.kind = 'K';
    k.port = static_cast<uint8_t>(port);
    k.callFrom = f.source.call;
    k.callTo = f.destination.call;
    k.data = sim::RawFrameData(SimDialect(m_dialect), f, port);
    raw = k.encode();
  }
  if (monitorOn) monitor = monitorBytes(f, port, 'U');
  const bool monitorFirst = sim::MonitorBeforeRaw(SimDialect(m_dialect));
  std::vector<uint8_t> out = monitorFirst ? monitor : raw;
  const std::vector<uint8_t>& second = monitorFirst ? raw : monitor;
  out.insert(out.end(), second.begin(), second.end());
  return out;
}

void DialectEngine::sendFrame(char kind, int port, const std::string& from, const std::string& to,
                              const std::string& data, double delay) {
  AgwFrame f;
  f.kind = kind;
  f.port = static_cast<uint8_t>(port);
  f.callFrom = from;
  f.callTo = to;
  f.data = data;
  if (delay > 0) {
    writeLater(delay, f.encode());
  } else {
    write(f.encode());
  }
}

void DialectEngine::onBytes(const std::vector<uint8_t>& bytes) {
  m_stream.insert(m_stream.end(), bytes.begin(), bytes.end());
  std::size_t used = 0;
  for (;;) {
    const AgwTakeResult r = takeAgwFrame(std::span<const uint8_t>(m_stream).subspan(used), 4096);
    if (r.status != AgwTake::Frame) break;
    used += r.consumed;
    received.push_back(r.frame);
    onFrame(r.frame);
  }
  m_stream.erase(m_stream.begin(), m_stream.begin() + static_cast<long>(used));
}

void DialectEngine::onFrame(const AgwFrame& f) {
  switch (f.kind) {
    case 'R':
      sendFrame('R', 0, "", "", sim::VersionReply(SimDialect(m_dialect)));
      break;
    case 'X':
      registered.push_back(f.callFrom);
      sendFrame(sim::RegisterReplyKind(SimDialect(m_dialect)), f.port, f.callFrom, "",
                std::string(1, '\1'));
      break;
    case 'G':
      sendFrame('G', 0, "", "", sim::PortListReply(SimDialect(m_dialect)));
      break;
    case 'm':
      monitorOn = !monitorOn;
      break;
    case 'k':
      rawOn = !rawOn;
      break;
    case 'M':
    case 'V':
    case 'K':
      echoTransmission(f);
      break;
    case 'C':
    case 'v':
      onConnect(f);
      break;
    case 'D':
      onData(f);
      break;
    case 'd':
      onDisconnect(f);
      break;
    default:
      break;
  }
}

void DialectEngine::echoTransmission(const AgwFrame& f) {
  // The UZ7HO engine ignores "V"; the others report what they sent as "T" a moment later.
  if (m_dialect == Dialect::QtSoundModem && f.kind == 'V') return;
  Ax25Frame air;
  if (f.kind == 'K') {
    const auto* b = reinterpret_cast<const uint8_t*>(f.data.data());
    std::optional<Ax25Frame> d = DecodeAx25(std::span<const uint8_t>(b + 1, f.data.size() - 1));
    if (!d) return;
    air = *d;
  } else {
    air.source.call = f.callFrom;
    air.destination.call = f.callTo;
    air.pid = 0xF0;
    std::size_t at = 0;
    if (f.kind == 'V' && !f.data.empty()) {
      const std::size_t n = static_cast<unsigned char>(f.data[0]);
      for (std::size_t i = 0; i < n; ++i)
        air.digipeaters.push_back(Ax25Address{CutAtNul(f.data.substr(1 + 10 * i, 10)), false});
      at = 1 + 10 * n;
    }
    air.info = f.data.substr(std::min(at, f.data.size()));
  }
  if (monitorOn) writeLater(0.8, monitorBytes(air, f.port, 'T'));
}

DialectEngine::Link* DialectEngine::findLink(const std::string& remote) {
  for (Link& l : m_links)
    if (l.remote == remote) return &l;
  return nullptr;
}

void DialectEngine::onConnect(const AgwFrame& f) {
  m_links.push_back(Link{f.callTo, f.callFrom, f.port, false});
  const std::string remote = f.callTo, local = f.callFrom;
  const int port = f.port;
  if (answerConnects) {
    later(answerDelay, [this, remote, local, port] {
      Link* l = findLink(remote);
      if (!l) return;
      l->open = true;
      sendFrame('C', port, remote, local, WithNul("*** CONNECTED With Station " + remote + "\r"));
    });
  } else {
    later(retryOutDelay, [this, remote, local, port] {
      if (!findLink(remote)) return;
      std::erase_if(m_links, [&](const Link& l) { return l.remote == remote; });
      const std::string text = m_dialect == Dialect::QtSoundModem
                                   ? "*** DISCONNECTED RETRYOUT With Station " + remote + "\r"
                                   : "*** DISCONNECTED RETRYOUT With " + remote + "\r";
      sendFrame('d', port, remote, local, WithNul(text));
    });
  }
}

void DialectEngine::onData(const AgwFrame& f) {
  Link* l = findLink(f.callTo);
  if (!l || !l->open || l->local != f.callFrom) dataWithoutLink = true;
}

void DialectEngine::onDisconnect(const AgwFrame& f) {
  Link* l = findLink(f.callTo);
  // Dire Wolf 1.6 lets a connect attempt run on whatever the client says.
  if (l && !l->open && m_dialect == Dialect::DireWolf16) return;
  std::erase_if(m_links, [&](const Link& x) { return x.remote == f.callTo; });
  sendFrame('d', f.port, f.callTo, f.callFrom,
            WithNul("*** DISCONNECTED From Station " + f.callTo + "\r"), 0.5);
}

void DialectEngine::remoteConnects(const std::string& remote, int port) {
  const std::string local = registered.empty() ? "" : registered.front();
  m_links.push_back(Link{remote, local, port, true});
  const std::string blanks = m_dialect == Dialect::QtSoundModem ? "  " : " ";
  sendFrame('C', port, remote, local, WithNul("*** CONNECTED To Station" + blanks + remote + "\r"));
}

void DialectEngine::remoteSends(const std::string& remote, const std::string& text, int port) {
  Link* l = findLink(remote);
  sendFrame('D', port, remote, l ? l->local : "", text);
}

void DialectEngine::remoteDisconnects(const std::string& remote, int port) {
  Link* l = findLink(remote);
  const std::string local = l ? l->local : "";
  std::erase_if(m_links, [&](const Link& x) { return x.remote == remote; });
  sendFrame('d', port, remote, local, WithNul("*** DISCONNECTED From Station " + remote + "\r"));
}

}  // namespace tesk::testing
