// The demo engine's thread.
#include "sim/qt_demo_engine.h"

#include <QEventLoop>
#include <future>

#include "qt/qt_clock.h"
#include "qt/qt_event_loop.h"
#include "sim/qt_agw_listener.h"

namespace tesk::sim {

QtDemoEngine::~QtDemoEngine() {
  stop();
}

int QtDemoEngine::start(EngineOptions options, std::function<void(const std::string&)> log,
                        std::string& error) {
  struct Started {
    int port = 0;
    std::string error;
  };
  auto promise = std::make_shared<std::promise<Started>>();
  std::future<Started> started = promise->get_future();
  m_thread.reset(QThread::create([options = std::move(options), log, promise]() mutable {
    QtEventLoop loop;
    QtClock clock;
    SimEngine engine(loop, clock, std::move(options));
    if (log) engine.setLog(log);
    QtAgwListener listener(engine);
    Started result;
    if (listener.listen("127.0.0.1", 0, result.error)) result.port = listener.port();
    const bool ok = result.port > 0;
    promise->set_value(result);
    if (!ok) return;
    QEventLoop events;
    events.exec();  // until the thread is told to quit
  }));
  m_thread->start();
  const Started s = started.get();
  error = s.error;
  return s.port;
}

void QtDemoEngine::stop() {
  if (!m_thread) return;
  m_thread->quit();
  m_thread->wait();
  m_thread.reset();
}

}  // namespace tesk::sim
