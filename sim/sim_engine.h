// The simulated packet engine as a whole: the host-interface server, the satellite pass and
// the other stations' traffic of a scenario, on the engine's scaled clock with one seeded random
// source, so the same scenario, seed and client give the same run. Adapters hand it connections
// as byte pipes (in-memory in tests, TCP in tesk-sim and the demo).
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "platform/event_loop.h"
#include "platform/platform.h"
#include "sim/agw_server.h"
#include "sim/engine_clock.h"
#include "sim/satellite_pass.h"
#include "sim/scenario.h"

namespace tesk::sim {

struct EngineOptions {
  Dialect dialect = Dialect::DireWolf16;
  double timeScale = 1;
  uint32_t seed = 1;
  Scenario scenario;
};

struct PassCounts {
  int sent = 0;         // frames other stations put on the air
  int repeated = 0;     // frames the satellite repeated
  int ownSent = 0;      // own frames of the clients
  int ownRepeated = 0;  // own frames the satellite repeated
  int direct = 0;       // frames heard directly
};

class SimEngine {
 public:
  SimEngine(EventLoop& loop, const Clock& clock, EngineOptions options);
  SimEngine(const SimEngine&) = delete;
  SimEngine& operator=(const SimEngine&) = delete;

  AgwServer& server() { return m_server; }
  const SatellitePass& pass() const { return m_pass; }
  const Scenario& scenario() const { return m_options.scenario; }
  const PassCounts& counts() const { return m_counts; }
  double now() const { return m_clock.now(); }
  // Lines telling what the engine does, each with the scenario time in front.
  void setLog(std::function<void(const std::string&)> log);

 private:
  void onTick();
  void runRules(double t);
  void runTimedFrames(double from, double to);
  void fireRule(std::size_t index);
  // A station's frame on the air: heard directly as its reach allows, and maybe repeated.
  void onAir(const Ax25Frame& frame, Reach reach, std::function<void()> delivered = {});
  void onOwnTransmit(const Ax25Frame& frame, int port);
  // A station of the scenario that an own message reached acks it, as it acks its peers.
  void answerOwnMessage(const Ax25Frame& frame);
  bool stationActive(const StationPlan& s, double t) const;
  void say(const std::string& text);

  EngineOptions m_options;
  EngineClock m_clock;
  std::mt19937 m_rng;
  AgwServer m_server;
  SatellitePass m_pass;
  PassCounts m_counts;
  std::vector<double> m_ruleNext;
  std::map<std::string, int> m_messageSeq;
  std::set<std::string> m_heardThisPass;
  std::string m_ownCall;  // the source of the clients' last transmission: "@me" of the rules
  double m_lastTick = -1;
  std::function<void(const std::string&)> m_log;
};

}  // namespace tesk::sim
