// The real event loop: QTimer-based timers that keep the station's two timer rules (interval 0
// disables; a handler is never re-entered while it runs), waits that run events until a
// condition or a deadline on the monotonic clock without spinning, and the one immediate exit.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>

#include "platform/event_loop.h"

namespace tesk {

class QtEventLoop;

class QtTimer : public QObject, public Timer {
  Q_OBJECT
 public:
  explicit QtTimer(QtEventLoop& loop);
  ~QtTimer() override;
  void setInterval(int ms) override;
  int interval() const override { return m_interval; }
  void setEnabled(bool on) override;
  bool enabled() const override { return m_enabled; }
  void setHandler(std::function<void()> handler) override { m_handler = std::move(handler); }

 private:
  void apply();
  void fire();

  QtEventLoop& m_loop;
  QTimer m_timer;
  std::function<void()> m_handler;
  int m_interval = 0;
  bool m_enabled = false;
  bool m_running = false;
  // Cleared when the timer is destroyed, so a handler that deletes its own timer is safe.
  std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
};

class QtEventLoop : public QObject, public EventLoop {
  Q_OBJECT
 public:
  QtEventLoop();
  std::unique_ptr<Timer> createTimer() override;
  void yield() override;
  bool waitUntil(double seconds, const std::function<bool()>& done) override;
  void sleepMs(int ms) override;
  void post(std::function<void()> fn) override;
  void endNow(int exitCode) override;
  bool ended() const override { return m_ended; }

  // Seconds since the loop was made, on a clock that never jumps.
  double monotonicSeconds() const;

 private:
  QElapsedTimer m_clock;
  bool m_ended = false;
};

}  // namespace tesk
