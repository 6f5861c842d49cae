// The scripted engine used by the scenario tests.
#include "support/scripted_engine.h"

namespace tesk::testing {

std::vector<uint8_t> AgwBytes(int port, char kind, const std::string& from, const std::string& to,
                              const std::string& data) {
  std::vector<uint8_t> b(36, 0);
  b[0] = static_cast<uint8_t>(port);
  b[4] = static_cast<uint8_t>(kind);
  for (std::size_t i = 0; i < from.size() && i < 10; ++i)
    b[8 + i] = static_cast<uint8_t>(from[i]);
  for (std::size_t i = 0; i < to.size() && i < 10; ++i)
    b[18 + i] = static_cast<uint8_t>(to[i]);
  const uint32_t n = static_cast<uint32_t>(data.size());
  for (int i = 0; i < 4; ++i)
    b[28 + i] = static_cast<uint8_t>((n >> (8 * i)) & 0xFF);
  b.insert(b.end(), data.begin(), data.end());
  return b;
}

ScriptedEngine::ScriptedEngine(SimNetwork& net, std::string host, int port)
    : m_net(net), m_host(std::move(host)), m_port(port) {
  start();
}

ScriptedEngine::~ScriptedEngine() {
  m_net.unlisten(m_host, m_port);
}

void ScriptedEngine::start() {
  m_net.listen(m_host, m_port, [this](std::shared_ptr<SimConnection> c) {
    ++accepted;
    m_conn = std::move(c);
    m_all.push_back(m_conn);
    m_conn->onReceive = [this](const std::vector<uint8_t>& bytes) { onFrame(bytes); };
  });
}

void ScriptedEngine::stop() {
  m_net.unlisten(m_host, m_port);
  closeConnection();
}

void ScriptedEngine::closeConnection() {
  if (m_conn) m_conn->close();
  m_conn.reset();
}

void ScriptedEngine::onFrame(const std::vector<uint8_t>& bytes) {
  if (bytes.size() >= 36 && bytes[4] == 'G') {
    std::string list = portListReply;
    list.push_back('\0');
    sendRaw(AgwBytes(0, 'G', "", "", list));
  }
}

void ScriptedEngine::sendRaw(const std::vector<uint8_t>& bytes) {
  if (m_conn) m_conn->send(bytes);
}

void ScriptedEngine::sendMonitor(const std::string& from, const std::string& to,
                                 const std::string& info, char kind, int port) {
  std::string text = " " + std::to_string(port + 1) + ":Fm " + from + " To " + to +
                     " <UI pid=F0 Len=" + std::to_string(info.size()) + " >[12:00:00]\r" + info +
                     "\r\r";
  text.push_back('\0');
  sendRaw(AgwBytes(port, kind, from, to, text));
}

std::vector<std::vector<uint8_t>> ScriptedEngine::frames() const {
  std::vector<std::vector<uint8_t>> out;
  for (const auto& c : m_all)
    out.insert(out.end(), c->received.begin(), c->received.end());
  return out;
}

std::string ScriptedEngine::kinds() const {
  std::string out;
  for (const auto& f : frames())
    if (f.size() > 4) out.push_back(static_cast<char>(f[4]));
  return out;
}

}  // namespace tesk::testing
