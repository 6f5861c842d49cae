// A scripted packet engine for scenario tests: listens on the in-memory network, records each
// frame the station sends, answers the port-list request and sends monitor frames on demand.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "platform/sim/sim_network.h"

namespace tesk::testing {

// One AGWPE frame as bytes: a 36-byte header and the data.
std::vector<uint8_t> AgwBytes(int port, char kind, const std::string& from, const std::string& to,
                              const std::string& data);

class ScriptedEngine {
 public:
  ScriptedEngine(SimNetwork& net, std::string host, int port);
  ~ScriptedEngine();
  void stop();   // stops listening and closes the open connection
  void start();  // listens again

  // Monitor text of a received UI frame in the engine's usual form, sent to the client.
  void sendMonitor(const std::string& from, const std::string& to, const std::string& info,
                   char kind = 'U', int port = 0);
  void sendRaw(const std::vector<uint8_t>& bytes);
  void closeConnection();
  bool connected() const { return m_conn && m_conn->open(); }

  // Kinds of the frames the station put on the wire, in order (one per send).
  std::string kinds() const;
  std::vector<std::vector<uint8_t>> frames() const;
  std::string portListReply = "2;Port1 stereo left;Port2 stereo right;";
  int accepted = 0;

 private:
  void onFrame(const std::vector<uint8_t>& bytes);
  SimNetwork& m_net;
  std::string m_host;
  int m_port;
  std::shared_ptr<SimConnection> m_conn;
  std::vector<std::shared_ptr<SimConnection>> m_all;
};

}  // namespace tesk::testing
