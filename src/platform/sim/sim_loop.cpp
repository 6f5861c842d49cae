// The virtual-time event loop: events and timers ordered by due time, run re-entrantly inside
// waits, time set to a wait's deadline when nothing more is due before it.
#include "platform/sim/sim_loop.h"

#include <algorithm>
#include <limits>

namespace tesk {

std::unique_ptr<Timer> SimLoop::createTimer() {
  return std::make_unique<SimTimer>(*this);
}

void SimLoop::schedule(double delaySeconds, std::function<void()> fn) {
  const int64_t at = m_nowUs + static_cast<int64_t>(delaySeconds * 1e6 + 0.5);
  m_events.emplace(std::make_pair(at, m_seq++), std::move(fn));
}

void SimLoop::post(std::function<void()> fn) {
  schedule(0, std::move(fn));
}

void SimLoop::endNow(int exitCode) {
  if (m_ended) return;
  m_ended = true;
  m_exitCode = exitCode;
  m_events.clear();
}

void SimLoop::sleepMs(int ms) {
  if (ms > 0) m_nowUs += static_cast<int64_t>(ms) * 1000;
}

bool SimLoop::runNext(int64_t limitUs, uint64_t maxSeq) {
  if (m_ended) return false;
  // The earliest timer that may fire (a running handler is never entered again).
  SimTimer* timer = nullptr;
  for (SimTimer* t : m_timers) {
    if (!t->armed() || t->m_running || t->m_nextDueUs > limitUs) continue;
    if (!timer || t->m_nextDueUs < timer->m_nextDueUs) timer = t;
  }
  auto ev = m_events.begin();
  bool eventDue = ev != m_events.end() && ev->first.first <= limitUs && ev->first.second < maxSeq;
  if (!timer && !eventDue) return false;
  if (eventDue && (!timer || ev->first.first <= timer->m_nextDueUs)) {
    m_nowUs = std::max(m_nowUs, ev->first.first);
    auto fn = std::move(ev->second);
    m_events.erase(ev);
    fn();
    return true;
  }
  fireTimer(*timer);
  return true;
}

void SimLoop::fireTimer(SimTimer& t) {
  m_nowUs = std::max(m_nowUs, t.m_nextDueUs);
  t.m_nextDueUs += static_cast<int64_t>(t.m_intervalMs) * 1000;
  t.m_running = true;
  // The handler may destroy the timer; keep a copy of what we need.
  auto handler = t.m_handler;
  SimTimer* self = &t;
  if (handler) handler();
  if (std::find(m_timers.begin(), m_timers.end(), self) == m_timers.end()) return;
  self->m_running = false;
  // Ticks missed while the handler ran are dropped, as a real timer does.
  if (self->m_nextDueUs <= m_nowUs)
    self->m_nextDueUs = m_nowUs + static_cast<int64_t>(self->m_intervalMs) * 1000;
}

void SimLoop::yield() {
  // Each item due now runs once; events posted meanwhile wait for the next pass.
  const uint64_t maxSeq = m_seq;
  std::vector<SimTimer*> fired;
  while (!m_ended) {
    SimTimer* timer = nullptr;
    for (SimTimer* t : m_timers) {
      if (!t->armed() || t->m_running || t->m_nextDueUs > m_nowUs) continue;
      if (std::find(fired.begin(), fired.end(), t) != fired.end()) continue;
      if (!timer || t->m_nextDueUs < timer->m_nextDueUs) timer = t;
    }
    auto ev = m_events.begin();
    bool eventDue = ev != m_events.end() && ev->first.first <= m_nowUs && ev->first.second < maxSeq;
    if (eventDue && (!timer || ev->first.first <= timer->m_nextDueUs)) {
      auto fn = std::move(ev->second);
      m_events.erase(ev);
      fn();
    } else if (timer) {
      fired.push_back(timer);
      fireTimer(*timer);
    } else {
      break;
    }
  }
}

bool SimLoop::waitUntil(double seconds, const std::function<bool()>& done) {
  if (m_ended) return false;
  const int64_t deadline = m_nowUs + static_cast<int64_t>(std::max(0.0, seconds) * 1e6 + 0.5);
  while (!m_ended) {
    if (done && done()) return true;
    if (!runNext(deadline, std::numeric_limits<uint64_t>::max())) break;
  }
  if (m_ended) return false;
  m_nowUs = std::max(m_nowUs, deadline);
  return done && done();
}

SimTimer::SimTimer(SimLoop& loop) : m_loop(loop) {
  m_loop.m_timers.push_back(this);
}

SimTimer::~SimTimer() {
  auto& v = m_loop.m_timers;
  v.erase(std::remove(v.begin(), v.end(), this), v.end());
}

void SimTimer::setInterval(int ms) {
  m_intervalMs = std::max(0, ms);
  m_nextDueUs = m_loop.m_nowUs + static_cast<int64_t>(m_intervalMs) * 1000;
}

void SimTimer::setEnabled(bool on) {
  m_enabled = on;
  if (on) m_nextDueUs = m_loop.m_nowUs + static_cast<int64_t>(m_intervalMs) * 1000;
}

}  // namespace tesk
