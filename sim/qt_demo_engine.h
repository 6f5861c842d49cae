// The simulated engine of `tesk --demo`: it runs on a thread of its own with its own event loop,
// so the console's waits and boxes can never starve it, and serves 127.0.0.1 on a free port.
#pragma once

#include <QThread>
#include <memory>
#include <string>

#include "sim/sim_engine.h"

namespace tesk::sim {

class QtDemoEngine {
 public:
  QtDemoEngine() = default;
  ~QtDemoEngine();
  QtDemoEngine(const QtDemoEngine&) = delete;
  QtDemoEngine& operator=(const QtDemoEngine&) = delete;

  // Starts the thread and waits until the engine listens. Returns the port, or 0 with `error`.
  // `log` is called on the engine's thread.
  int start(EngineOptions options, std::function<void(const std::string&)> log, std::string& error);
  void stop();

 private:
  std::unique_ptr<QThread> m_thread;
};

}  // namespace tesk::sim
