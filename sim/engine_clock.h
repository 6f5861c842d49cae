// The simulated engine's time: scenario seconds since the engine started, running `scale` times
// faster than the platform's monotonic clock, and a queue of things due at a scenario time,
// worked off by one periodic timer of the event loop. Scaling every delay alike keeps a fast test
// pass in the same order of events as a real one.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

#include "platform/event_loop.h"
#include "platform/platform.h"

namespace tesk::sim {

class EngineClock {
 public:
  EngineClock(EventLoop& loop, const Clock& clock, double scale, int tickMs = 20);
  EngineClock(const EngineClock&) = delete;
  EngineClock& operator=(const EngineClock&) = delete;

  double now() const;  // scenario seconds
  double scale() const { return m_scale; }
  // Runs `fn` once `seconds` of scenario time have passed (at the next tick at the earliest).
  void after(double seconds, std::function<void()> fn);
  // Runs `fn` at every tick, after the due items.
  void everyTick(std::function<void()> fn) { m_onTick = std::move(fn); }
  std::size_t pending() const { return m_due.size(); }
  // Works off what is due now; the timer calls this.
  void tick();

 private:
  const Clock& m_clock;
  double m_scale;
  double m_start;
  uint64_t m_seq = 0;
  std::multimap<std::pair<double, uint64_t>, std::function<void()>> m_due;
  std::function<void()> m_onTick;
  std::unique_ptr<Timer> m_timer;
};

}  // namespace tesk::sim
