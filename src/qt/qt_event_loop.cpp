// QTimer and QEventLoop under the station's timer and wait rules.
#include "qt/qt_event_loop.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QThread>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace tesk {

QtTimer::QtTimer(QtEventLoop& loop) : m_loop(loop) {
  // Queued: the handler runs outside QTimer's own signal, so it may delete this timer.
  connect(&m_timer, &QTimer::timeout, this, &QtTimer::fire, Qt::QueuedConnection);
}

QtTimer::~QtTimer() {
  *m_alive = false;
}

void QtTimer::setInterval(int ms) {
  m_interval = ms < 0 ? 0 : ms;
  apply();
}

void QtTimer::setEnabled(bool on) {
  m_enabled = on;
  apply();
}

void QtTimer::apply() {
  // Interval 0 disables the timer whatever the enabled flag says; any change restarts the count.
  if (m_enabled && m_interval > 0) {
    m_timer.start(m_interval);
  } else {
    m_timer.stop();
  }
}

void QtTimer::fire() {
  // A tick that falls due while the handler still runs (inside one of its waits) is dropped.
  if (m_running || !m_handler || m_loop.ended()) return;
  const std::shared_ptr<bool> alive = m_alive;
  m_running = true;
  const std::function<void()> handler = m_handler;  // the handler may replace itself
  handler();
  if (*alive) m_running = false;
}

QtEventLoop::QtEventLoop() {
  m_clock.start();
}

std::unique_ptr<Timer> QtEventLoop::createTimer() {
  return std::make_unique<QtTimer>(*this);
}

void QtEventLoop::yield() {
  if (m_ended) return;
  QCoreApplication::processEvents(QEventLoop::AllEvents);
}

bool QtEventLoop::waitUntil(double seconds, const std::function<bool()>& done) {
  if (m_ended) return false;
  const qint64 ms = seconds <= 0 ? 0 : std::llround(seconds * 1000.0);
  const QDeadlineTimer deadline(ms, Qt::PreciseTimer);
  // A wake-up at the deadline, so that the blocking event wait below returns in time even when
  // nothing else happens. QTimer takes an int, hence the cap; the loop re-arms it.
  QTimer wake;
  wake.setSingleShot(true);
  wake.setTimerType(Qt::PreciseTimer);
  constexpr qint64 kMaxArm = qint64{3600} * 1000;
  while (true) {
    if (done && done()) return true;
    if (m_ended) return false;
    const qint64 left = deadline.remainingTime();
    if (left <= 0) return false;
    wake.start(static_cast<int>(left < kMaxArm ? left : kMaxArm));
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  }
}

void QtEventLoop::sleepMs(int ms) {
  if (ms > 0) QThread::msleep(static_cast<unsigned long>(ms));
}

void QtEventLoop::post(std::function<void()> fn) {
  QTimer::singleShot(0, this, [this, fn = std::move(fn)]() {
    if (!m_ended) fn();
  });
}

void QtEventLoop::endNow(int exitCode) {
  m_ended = true;
  std::fflush(stdout);
  std::fflush(stderr);
  // The one way out of the process: nothing further runs, no destructors, no Qt shutdown.
  std::_Exit(exitCode);
}

double QtEventLoop::monotonicSeconds() const {
  return static_cast<double>(m_clock.nsecsElapsed()) / 1e9;
}

}  // namespace tesk
