// The simulated engine inside the tests.
#include "sim/sim_engine_bench.h"

#include <gtest/gtest.h>

#include <span>

namespace tesk::testing {

namespace {

class ConnectionPipe : public sim::EnginePipe {
 public:
  explicit ConnectionPipe(std::shared_ptr<SimConnection> c) : m_conn(std::move(c)) {}
  void write(const std::vector<uint8_t>& bytes) override {
    if (m_conn->open()) m_conn->send(bytes);
  }
  void close() override { m_conn->close(); }

 private:
  std::shared_ptr<SimConnection> m_conn;
};

}  // namespace

void ServeOnNetwork(SimPlatform& platform, sim::SimEngine& engine, const std::string& host,
                    int port) {
  platform.network.listen(host, port, [&engine](std::shared_ptr<SimConnection> c) {
    const int id = engine.server().attach(std::make_shared<ConnectionPipe>(c));
    c->onReceive = [&engine, id](const std::vector<uint8_t>& b) { engine.server().receive(id, b); };
    c->onClientClose = [&engine, id] { engine.server().detach(id); };
  });
}

sim::Scenario QuietPass(double aos, double los, double chance) {
  sim::Scenario s;
  s.cycle = 100000;
  s.aos = aos;
  s.los = los;
  s.repeatAtHorizon = s.repeatAtTop = chance;
  return s;
}

sim::Scenario DefaultPass() {
  std::string error;
  std::optional<sim::Scenario> s =
      sim::LoadScenario(std::string(TESK_SOURCE_DIR) + "/data/passes/default.pass", error);
  EXPECT_TRUE(s) << error;
  return s ? *s : sim::Scenario{};
}

BareClient::BareClient(SimPlatform& platform, const std::string& host, int port)
    : m_socket(platform.createSocket()) {
  m_socket->connectToHost(host, port);
  platform.simLoop.run(0.01);
}

void BareClient::request(char kind, const std::string& callFrom, const std::string& data,
                         const std::string& callTo) {
  AgwFrame f;
  f.kind = kind;
  f.callFrom = callFrom;
  f.callTo = callTo;
  f.data = data;
  m_socket->send(f.encode());
}

std::vector<AgwFrame> BareClient::frames() {
  const std::size_t n = m_socket->bytesAvailable();
  if (n > 0) {
    ++chunks;
    const std::vector<uint8_t> bytes = m_socket->read(n);
    m_stream.insert(m_stream.end(), bytes.begin(), bytes.end());
  }
  std::vector<AgwFrame> out;
  for (;;) {
    const AgwTakeResult r = takeAgwFrame(m_stream);
    if (r.status != AgwTake::Frame) break;
    out.push_back(r.frame);
    m_stream.erase(m_stream.begin(), m_stream.begin() + static_cast<long>(r.consumed));
  }
  return out;
}

}  // namespace tesk::testing
