// The event loop and its timers: the one thread's ticks, yields and waits. The station's flows
// rely on two rules that every implementation keeps: an interval of 0 disables a timer, and a
// timer's handler is never entered again while it is still running (a wait inside it lets other
// timers fire). `endNow` is the one way to end the process at once.
#pragma once

#include <functional>
#include <memory>

namespace tesk {

class Timer {
 public:
  virtual ~Timer() = default;
  // Interval in milliseconds; 0 disables the timer whatever `enabled` says. Setting the
  // interval of an enabled timer starts its count again.
  virtual void setInterval(int ms) = 0;
  virtual int interval() const = 0;
  // Enabling starts the count from now; disabling stops it. Setting the same value again on an
  // enabled timer restarts its count, as the original toolkit's timers do.
  virtual void setEnabled(bool on) = 0;
  virtual bool enabled() const = 0;
  virtual void setHandler(std::function<void()> handler) = 0;
};

class EventLoop {
 public:
  virtual ~EventLoop() = default;

  virtual std::unique_ptr<Timer> createTimer() = 0;

  // One pass of the event loop (DoEvents): runs what is due now, returns.
  virtual void yield() = 0;

  // Runs events until `done()` holds or `seconds` have passed on the monotonic clock, never
  // spinning the CPU. Returns true when `done()` held. `done` may be empty: then it is a plain
  // wait (WachtEfkes). Returns at once, false, after endNow.
  virtual bool waitUntil(double seconds, const std::function<bool()>& done) = 0;

  // Sleep: blocks the thread for a few milliseconds without running events.
  virtual void sleepMs(int ms) = 0;

  // Runs `fn` once from the loop, after the current handler has returned.
  virtual void post(std::function<void()> fn) = 0;

  // Ends the process at once without running anything further.
  virtual void endNow(int exitCode) = 0;
  virtual bool ended() const = 0;
};

}  // namespace tesk
