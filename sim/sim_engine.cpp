// The pass and its traffic around the host-interface server.
#include "sim/sim_engine.h"

#include <cmath>
#include <cstdio>

#include "base/text.h"
#include "sim/air_frame.h"
#include "sim/traffic.h"

namespace tesk::sim {

SimEngine::SimEngine(EventLoop& loop, const Clock& clock, EngineOptions options)
    : m_options(std::move(options)),
      m_clock(loop, clock, m_options.timeScale),
      m_rng(m_options.seed),
      m_server(m_options.dialect, m_clock, clock, m_rng),
      m_pass(m_options.scenario) {
  for (const TrafficRule& r : m_options.scenario.rules)
    m_ruleNext.push_back(r.first);
  m_server.onTransmit = [this](const Ax25Frame& f, int port) { onOwnTransmit(f, port); };
  m_clock.everyTick([this] { onTick(); });
}

void SimEngine::setLog(std::function<void(const std::string&)> log) {
  m_log = std::move(log);
  m_server.log = [this](const std::string& text) { say(text); };
}

void SimEngine::say(const std::string& text) {
  if (!m_log) return;
  char stamp[32];
  std::snprintf(stamp, sizeof stamp, "[%7.1f] ", m_clock.now());
  m_log(stamp + text);
}

void SimEngine::onTick() {
  const double t = m_clock.now();
  const double before = m_lastTick;
  m_lastTick = t;
  const Scenario& s = m_options.scenario;
  if (before >= 0) {
    const double a = m_pass.cycleTime(before), b = m_pass.cycleTime(t);
    if (a < s.aos && b >= s.aos) say("AOS: " + s.digipeater[0] + " rises");
    if (a <= s.los && (b > s.los || b < a)) say("LOS: " + s.digipeater[0] + " sets");
    if (b < a) m_heardThisPass.clear();
  }
  runTimedFrames(before, t);
  runRules(t);
}

void SimEngine::runTimedFrames(double from, double to) {
  const double cycle = m_options.scenario.cycle;
  const long first = static_cast<long>(std::floor(std::max(from, 0.0) / cycle));
  const long last = static_cast<long>(std::floor(to / cycle));
  for (long k = first; k <= last; ++k) {
    for (const TimedFrame& f : m_options.scenario.frames) {
      const double at = static_cast<double>(k) * cycle + f.at;
      if (at <= from || at > to) continue;
      const std::optional<Ax25Frame> air = ParseTnc2(f.tnc2);
      if (air) onAir(*air, f.reach);
    }
  }
}

bool SimEngine::stationActive(const StationPlan& s, double t) const {
  if (s.reach == Reach::Direct) return true;
  // Satellite users call from shortly before AOS to shortly after LOS.
  const double c = m_pass.cycleTime(t);
  return c >= m_options.scenario.aos - 20 && c <= m_options.scenario.los + 20;
}

void SimEngine::runRules(double t) {
  const std::vector<TrafficRule>& rules = m_options.scenario.rules;
  std::uniform_real_distribution<double> jitter(0.8, 1.2);
  for (std::size_t i = 0; i < rules.size(); ++i) {
    while (m_ruleNext[i] <= t) {
      // A rule for the console waits without drawing from the random source until the console
      // has sent something, so a run without own frames goes as it did before such rules.
      if (rules[i].to == "@ME" && m_ownCall.empty()) {
        m_ruleNext[i] += rules[i].interval;
        continue;
      }
      m_ruleNext[i] += rules[i].interval * jitter(m_rng);
      const StationPlan* s = m_options.scenario.station(rules[i].call);
      if (s && stationActive(*s, t)) fireRule(i);
    }
  }
}

void SimEngine::fireRule(std::size_t index) {
  const TrafficRule& r = m_options.scenario.rules[index];
  const StationPlan& s = *m_options.scenario.station(r.call);
  if (r.kind == "position" || r.kind == "compressed") {
    onAir(PositionFrame(s, r.kind == "compressed"), s.reach);
  } else if (r.kind == "cq") {
    onAir(CqFrame(s), s.reach);
  } else if (r.kind == "heard") {
    std::vector<std::string> heard;
    for (const std::string& c : m_heardThisPass)
      if (c != s.call && heard.size() < 6) heard.push_back(c);
    if (!heard.empty()) onAir(HeardFrame(s, heard), s.reach);
  } else if (r.kind == "message") {
    // "@me" writes to the console, once it has sent something to learn its call from.
    const std::string to = r.to == "@ME" ? m_ownCall : r.to;
    if (to.empty()) return;
    const int seq = ++m_messageSeq[s.call];
    const StationPlan* peer = m_options.scenario.station(to);
    // The addressee acks a message that reached it, a little later, the same way.
    onAir(MessageFrame(s, to, seq), s.reach, [this, peer, from = s.call, seq, reach = s.reach] {
      if (!peer || (reach == Reach::Direct && peer->reach == Reach::Satellite)) return;
      std::uniform_real_distribution<double> wait(4.0, 15.0);
      m_clock.after(wait(m_rng),
                    [this, peer, from, seq] { onAir(AckFrame(*peer, from, seq), peer->reach); });
    });
  }
}

void SimEngine::onAir(const Ax25Frame& frame, Reach reach, std::function<void()> delivered) {
  ++m_counts.sent;
  if (reach != Reach::Satellite) {
    ++m_counts.direct;
    m_server.hear(frame);
  }
  const double t = m_clock.now();
  std::optional<Ax25Frame> repeated = m_pass.repeat(frame, t, m_rng);
  if (!repeated) {
    // Neighbours hear each other without the satellite.
    if (reach == Reach::Direct && delivered) delivered();
    return;
  }
  m_clock.after(m_pass.delay(m_rng), [this, f = *repeated, delivered] {
    ++m_counts.repeated;
    m_heardThisPass.insert(f.source.call);
    m_server.hear(f);
    if (delivered) delivered();
  });
}

void SimEngine::onOwnTransmit(const Ax25Frame& frame, int port) {
  ++m_counts.ownSent;
  m_ownCall = frame.source.call;
  std::optional<Ax25Frame> repeated = m_pass.repeat(frame, m_clock.now(), m_rng);
  if (!repeated) return;
  m_clock.after(m_pass.delay(m_rng), [this, f = *repeated, port] {
    ++m_counts.ownRepeated;
    m_server.hear(f, port);
    answerOwnMessage(f);
  });
}

void SimEngine::answerOwnMessage(const Ax25Frame& frame) {
  const std::string& info = frame.info;
  if (info.size() < 11 || info[0] != ':' || info[10] != ':') return;
  const StationPlan* peer = m_options.scenario.station(UCase(Trim(info.substr(1, 9))));
  const std::size_t brace = info.find('{', 11);
  if (peer == nullptr || brace == std::string::npos || !stationActive(*peer, m_clock.now())) return;
  const std::string number = info.substr(brace + 1);
  if (number.empty()) return;
  std::uniform_real_distribution<double> wait(4.0, 15.0);
  m_clock.after(wait(m_rng), [this, peer, to = frame.source.call, number] {
    onAir(AckFrame(*peer, to, number), peer->reach);
  });
}

}  // namespace tesk::sim
