// The simulated engine on the in-memory network of the tests, in virtual time: a pipe from the
// engine's server to each accepted SimConnection, and a bare client that sends requests and
// reassembles the engine's stream into frames.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "link/agw_frame.h"
#include "platform/sim/sim_platform.h"
#include "sim/sim_engine.h"

namespace tesk::testing {

// Serves `engine` on host:port of the platform's network.
void ServeOnNetwork(SimPlatform& platform, sim::SimEngine& engine, const std::string& host,
                    int port);

// A scenario with the satellite up from `aos` to `los`, repeating every frame it may, with no
// other traffic.
sim::Scenario QuietPass(double aos, double los, double chance = 1.0);
sim::Scenario DefaultPass();

class BareClient {
 public:
  BareClient(SimPlatform& platform, const std::string& host, int port);
  void request(char kind, const std::string& callFrom = "", const std::string& data = "",
               const std::string& callTo = "");
  // Reads what arrived; returns the frames completed since the last call.
  std::vector<AgwFrame> frames();
  int chunks = 0;  // reads that had data

 private:
  std::unique_ptr<TcpSocket> m_socket;
  std::vector<uint8_t> m_stream;
};

}  // namespace tesk::testing
