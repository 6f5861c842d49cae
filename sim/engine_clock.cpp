// Scenario time and the simulated engine's queue of due work.
#include "sim/engine_clock.h"

namespace tesk::sim {

EngineClock::EngineClock(EventLoop& loop, const Clock& clock, double scale, int tickMs)
    : m_clock(clock), m_scale(scale > 0 ? scale : 1), m_start(clock.monotonicSeconds()) {
  m_timer = loop.createTimer();
  m_timer->setHandler([this] { tick(); });
  m_timer->setInterval(tickMs);
  m_timer->setEnabled(true);
}

double EngineClock::now() const {
  return (m_clock.monotonicSeconds() - m_start) * m_scale;
}

void EngineClock::after(double seconds, std::function<void()> fn) {
  m_due.emplace(std::make_pair(now() + seconds, m_seq++), std::move(fn));
}

void EngineClock::tick() {
  const double t = now();
  // Work scheduled while this runs for a time already past waits for the next tick, so a
  // burst of zero delays can never hold the loop.
  const uint64_t limit = m_seq;
  for (auto it = m_due.begin(); it != m_due.end() && it->first.first <= t;) {
    if (it->first.second >= limit) {
      ++it;
      continue;
    }
    std::function<void()> fn = std::move(it->second);
    m_due.erase(it);
    fn();
    it = m_due.begin();
  }
  if (m_onTick) m_onTick();
}

}  // namespace tesk::sim
