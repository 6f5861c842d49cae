// Requests, replies and the stream to the simulated engine's clients.
#include "sim/agw_server.h"

#include <span>

#include "base/text.h"
#include "sim/air_frame.h"

namespace tesk::sim {

AgwServer::AgwServer(Dialect dialect, EngineClock& clock, const Clock& wallClock, std::mt19937& rng)
    : m_dialect(dialect), m_clock(clock), m_wallClock(wallClock), m_rng(rng) {}

int AgwServer::attach(std::shared_ptr<EnginePipe> pipe) {
  const int id = m_nextId++;
  m_clients[id].pipe = std::move(pipe);
  ++m_counts.clients;
  say("client " + std::to_string(id) + " connected");
  return id;
}

void AgwServer::detach(int client) {
  if (m_clients.erase(client) > 0) say("client " + std::to_string(client) + " left");
}

void AgwServer::receive(int client, const std::vector<uint8_t>& bytes) {
  auto found = m_clients.find(client);
  if (found == m_clients.end()) return;
  std::vector<uint8_t>& stream = found->second.stream;
  stream.insert(stream.end(), bytes.begin(), bytes.end());
  std::size_t used = 0;
  for (;;) {
    const AgwTakeResult r =
        takeAgwFrame(std::span<const uint8_t>(stream).subspan(used), kMaxDataLen);
    if (r.status == AgwTake::BadLength) {
      say("client " + std::to_string(client) + " declared a bad length; closing it");
      std::shared_ptr<EnginePipe> pipe = found->second.pipe;
      m_clients.erase(found);
      pipe->close();
      return;
    }
    if (r.status != AgwTake::Frame) break;
    used += r.consumed;
    ++m_counts.requests;
    onFrame(client, found->second, r.frame);
    found = m_clients.find(client);  // a handler may have dropped it
    if (found == m_clients.end()) return;
  }
  found->second.stream.erase(found->second.stream.begin(),
                             found->second.stream.begin() + static_cast<long>(used));
}

void AgwServer::onFrame(int id, Client& c, const AgwFrame& f) {
  const std::string who = "client " + std::to_string(id);
  switch (f.kind) {
    case 'R':
      reply(c, 'R', 0, "", VersionReply(m_dialect));
      break;
    case 'G':
      reply(c, 'G', 0, "", PortListReply(m_dialect));
      break;
    case 'g':
      reply(c, 'g', f.port, "", PortCapabilities());
      break;
    case 'X':
      c.registered.push_back(f.callFrom);
      say(who + " registered " + f.callFrom);
      reply(c, RegisterReplyKind(m_dialect), f.port, f.callFrom, std::string(1, '\1'));
      break;
    case 'x':
      std::erase(c.registered, f.callFrom);
      break;
    case 'm':
      c.monitor = !c.monitor;
      say(who + " monitoring " + (c.monitor ? "on" : "off"));
      break;
    case 'k':
      c.raw = !c.raw;
      say(who + " raw frames " + (c.raw ? "on" : "off"));
      break;
    case 'y':
      if (AnswersPortQueue(m_dialect)) reply(c, 'y', f.port, "", std::string(4, '\0'));
      break;
    case 'Y':
      if (AnswersLinkQueue(m_dialect)) reply(c, 'Y', f.port, f.callFrom, std::string(4, '\0'));
      break;
    case 'M':
    case 'V':
    case 'K':
      transmit(f);
      break;
    default:  // H and P get no answer, as with the real engines
      break;
  }
}

void AgwServer::reply(Client& c, char kind, int port, const std::string& from,
                      const std::string& data) {
  AgwFrame f;
  f.kind = kind;
  f.port = static_cast<uint8_t>(port);
  f.callFrom = from;
  f.data = data;
  write(c, f.encode());
}

void AgwServer::write(Client& c, const std::vector<uint8_t>& bytes) {
  if (bytes.empty()) return;
  ++m_counts.writes;
  std::uniform_real_distribution<double> chance(0.0, 1.0);
  if (bytes.size() > 1 && splitChance > 0 && chance(m_rng) < splitChance) {
    std::uniform_int_distribution<std::size_t> at(1, bytes.size() - 1);
    const std::size_t cut = at(m_rng);
    ++m_counts.splitWrites;
    c.pipe->write(std::vector<uint8_t>(bytes.begin(), bytes.begin() + static_cast<long>(cut)));
    c.pipe->write(std::vector<uint8_t>(bytes.begin() + static_cast<long>(cut), bytes.end()));
    return;
  }
  c.pipe->write(bytes);
}

std::optional<Ax25Frame> AgwServer::airFrame(const AgwFrame& f) const {
  if (f.kind == 'K') {
    if (f.data.size() < 2) return std::nullopt;
    const auto* b = reinterpret_cast<const uint8_t*>(f.data.data());
    return DecodeAx25(std::span<const uint8_t>(b + 1, f.data.size() - 1));
  }
  if (f.kind == 'V' && IgnoresViaRequest(m_dialect)) return std::nullopt;
  Ax25Frame air;
  air.source.call = UCase(f.callFrom);
  air.destination.call = UCase(f.callTo);
  air.pid = UsesHeaderPid(m_dialect) ? f.pid : 0xF0;
  std::size_t at = 0;
  if (f.kind == 'V') {
    if (f.data.empty()) return std::nullopt;
    const std::size_t n = static_cast<unsigned char>(f.data[0]);
    if (n > kAx25MaxDigipeaters || f.data.size() < 1 + 10 * n) return std::nullopt;
    for (std::size_t i = 0; i < n; ++i)
      air.digipeaters.push_back(Ax25Address{UCase(CutAtNul(f.data.substr(1 + 10 * i, 10)))});
    at = 1 + 10 * n;
  }
  air.info = f.data.substr(at);
  return air;
}

void AgwServer::transmit(const AgwFrame& f) {
  const std::optional<Ax25Frame> air = airFrame(f);
  if (!air) {
    say(std::string("request ") + f.kind + " ignored");
    return;
  }
  ++m_counts.transmitted;
  const int port = f.port;
  say("transmit " + FormatTnc2(*air));
  // The report follows the end of the transmission, to every monitoring client.
  m_clock.after(kTransmitReportDelay, [this, frame = *air, port] {
    for (auto& [id, c] : m_clients)
      if (c.monitor) write(c, monitorFrame(frame, port, 'T'));
    if (onTransmit) onTransmit(frame, port);
  });
}

std::vector<uint8_t> AgwServer::monitorFrame(const Ax25Frame& f, int port, char kind) const {
  AgwFrame m;
  m.kind = kind;
  m.port = static_cast<uint8_t>(port);
  m.pid = f.pid.value_or(0xF0);
  m.callFrom = f.source.call;
  m.callTo = f.destination.call;
  m.data = MonitorText(m_dialect, f, port, m_wallClock.localNow(), m_wallClock.utcNow());
  return m.encode();
}

void AgwServer::hear(const Ax25Frame& frame, int port) {
  ++m_counts.heard;
  say("heard " + FormatTnc2(frame));
  for (auto& [id, c] : m_clients) {
    std::vector<uint8_t> raw, monitor;
    if (c.raw) {
      AgwFrame k;
      k.kind = 'K';
      k.port = static_cast<uint8_t>(port);
      k.callFrom = frame.source.call;
      k.callTo = frame.destination.call;
      k.data = RawFrameData(m_dialect, frame, port);
      raw = k.encode();
    }
    if (c.monitor) {
      monitor = monitorFrame(frame, port, 'U');
      ++m_counts.monitored;
    }
    // Both forms of one packet go out in one write, as the engines do.
    std::vector<uint8_t> out = MonitorBeforeRaw(m_dialect) ? monitor : raw;
    const std::vector<uint8_t>& second = MonitorBeforeRaw(m_dialect) ? raw : monitor;
    out.insert(out.end(), second.begin(), second.end());
    write(c, out);
  }
}

void AgwServer::say(const std::string& text) const {
  if (log) log(text);
}

}  // namespace tesk::sim
