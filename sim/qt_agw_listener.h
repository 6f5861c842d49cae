// Serves the simulated engine over TCP: a QTcpServer on one address whose connections become
// the engine's byte pipes. Everything runs on the thread that made the listener.
#pragma once

#include <QObject>
#include <QTcpServer>
#include <string>

#include "sim/sim_engine.h"

namespace tesk::sim {

class QtAgwListener : public QObject {
  Q_OBJECT
 public:
  explicit QtAgwListener(SimEngine& engine);
  // Port 0 takes a free one. False with `error` set when the address is taken.
  bool listen(const std::string& host, int port, std::string& error);
  int port() const;

 private:
  void onNewConnection();
  SimEngine& m_engine;
  QTcpServer m_server;
};

// Where the default pass is: the program folder's copy, then the shared files' one.
std::string FindDefaultPass(const std::string& programFolder, const std::string& exeDir);

}  // namespace tesk::sim
