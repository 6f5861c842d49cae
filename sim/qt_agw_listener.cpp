// TCP connections of the simulated engine.
#include "sim/qt_agw_listener.h"

#include "base/shared_files.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <filesystem>
#include <memory>

namespace tesk::sim {

namespace {

class SocketPipe : public EnginePipe {
 public:
  explicit SocketPipe(QTcpSocket* socket) : m_socket(socket) {}
  void write(const std::vector<uint8_t>& bytes) override {
    if (m_socket)
      m_socket->write(reinterpret_cast<const char*>(bytes.data()),
                      static_cast<qint64>(bytes.size()));
  }
  void close() override {
    if (m_socket) m_socket->disconnectFromHost();
  }
  void forget() { m_socket = nullptr; }

 private:
  QTcpSocket* m_socket;
};

}  // namespace

QtAgwListener::QtAgwListener(SimEngine& engine) : m_engine(engine) {
  connect(&m_server, &QTcpServer::newConnection, this, &QtAgwListener::onNewConnection);
}

bool QtAgwListener::listen(const std::string& host, int port, std::string& error) {
  if (m_server.listen(QHostAddress(QString::fromStdString(host)), static_cast<quint16>(port)))
    return true;
  error = m_server.errorString().toStdString();
  return false;
}

int QtAgwListener::port() const {
  return m_server.serverPort();
}

void QtAgwListener::onNewConnection() {
  while (QTcpSocket* socket = m_server.nextPendingConnection()) {
    auto pipe = std::make_shared<SocketPipe>(socket);
    const int id = m_engine.server().attach(pipe);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket, id] {
      const QByteArray bytes = socket->readAll();
      m_engine.server().receive(id, std::vector<uint8_t>(bytes.begin(), bytes.end()));
    });
    connect(socket, &QTcpSocket::disconnected, this, [this, socket, pipe, id] {
      pipe->forget();
      m_engine.server().detach(id);
      socket->deleteLater();
    });
  }
}

std::string FindDefaultPass(const std::string& programFolder, const std::string& exeDir) {
  namespace fs = std::filesystem;
  std::error_code ec;
  if (!programFolder.empty()) {
    const fs::path own = fs::path(programFolder) / "passes" / "default.pass";
    if (fs::is_regular_file(own, ec)) return own.lexically_normal().string();
  }
  const fs::path shared = FindSharedFiles(exeDir).found;
  if (shared.empty()) return "";
  const fs::path pass = shared / "passes" / "default.pass";
  return fs::is_regular_file(pass, ec) ? pass.lexically_normal().string() : "";
}

}  // namespace tesk::sim
