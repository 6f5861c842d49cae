// The virtual-time event loop of the tests. Time moves only when the loop runs out of events
// due now: a wait runs every event due before its deadline, in time order and re-entrantly as
// the real loop does, then sets the time to the deadline. Timers keep the real rules: interval
// 0 is disabled and a handler is never entered again while it runs.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/event_loop.h"

namespace tesk {

class SimTimer;

class SimLoop : public EventLoop {
 public:
  SimLoop() = default;
  SimLoop(const SimLoop&) = delete;
  SimLoop& operator=(const SimLoop&) = delete;

  // ---- EventLoop ----
  std::unique_ptr<Timer> createTimer() override;
  void yield() override;
  bool waitUntil(double seconds, const std::function<bool()>& done) override;
  void sleepMs(int ms) override;
  void post(std::function<void()> fn) override;
  void endNow(int exitCode) override;
  bool ended() const override { return m_ended; }

  // ---- for tests and the sim platform ----
  int64_t nowUs() const { return m_nowUs; }
  double now() const { return static_cast<double>(m_nowUs) / 1e6; }
  int exitCode() const { return m_exitCode; }
  // Runs `fn` at virtual time now + delay.
  void schedule(double delaySeconds, std::function<void()> fn);
  // Runs events for `seconds` of virtual time (a plain wait from the top level).
  void run(double seconds) { waitUntil(seconds, {}); }
  // Runs events until `done()` or the time is up; true when done() held.
  bool runUntil(double seconds, const std::function<bool()>& done) {
    return waitUntil(seconds, done);
  }

 private:
  friend class SimTimer;
  struct Event {
    int64_t at;
    uint64_t seq;
    std::function<void()> fn;
  };
  // Runs the earliest item due at or before `limitUs`; false when there is none.
  bool runNext(int64_t limitUs, uint64_t maxSeq);
  void fireTimer(SimTimer& t);

  int64_t m_nowUs = 0;
  uint64_t m_seq = 0;
  std::multimap<std::pair<int64_t, uint64_t>, std::function<void()>> m_events;
  std::vector<SimTimer*> m_timers;
  bool m_ended = false;
  int m_exitCode = 0;
};

class SimTimer : public Timer {
 public:
  explicit SimTimer(SimLoop& loop);
  ~SimTimer() override;
  void setInterval(int ms) override;
  int interval() const override { return m_intervalMs; }
  void setEnabled(bool on) override;
  bool enabled() const override { return m_enabled; }
  void setHandler(std::function<void()> handler) override { m_handler = std::move(handler); }

  bool armed() const { return m_enabled && m_intervalMs > 0; }
  int64_t nextDueUs() const { return m_nextDueUs; }
  bool running() const { return m_running; }

 private:
  friend class SimLoop;
  SimLoop& m_loop;
  int m_intervalMs = 0;
  bool m_enabled = false;
  bool m_running = false;
  int64_t m_nextDueUs = 0;
  std::function<void()> m_handler;
};

}  // namespace tesk
