// The engine socket on QTcpSocket, mapped to the states and events the link code was written
// for: numbered states, a close event for a remote close (not an error), error numbers of the
// classic socket library with Qt's description, and send progress from bytesWritten.
#pragma once

#include <QAbstractSocket>
#include <QObject>
#include <QTcpSocket>

#include "platform/platform.h"

namespace tesk {

class QtTcpSocket : public QObject, public TcpSocket {
  Q_OBJECT
 public:
  QtTcpSocket();
  ~QtTcpSocket() override;
  int state() const override;
  void connectToHost(const std::string& host, int port) override;
  void close() override;
  std::size_t bytesAvailable() const override;
  std::vector<uint8_t> peek(std::size_t n) override;
  std::vector<uint8_t> read(std::size_t n) override;
  int send(const std::vector<uint8_t>& bytes) override;
  std::string lastErrorText() const override { return m_lastError; }

  // The number the station sees for a Qt socket error.
  static int ErrorNumber(QAbstractSocket::SocketError error);

 private:
  void onQtError(QAbstractSocket::SocketError error);
  void onBytesWritten(qint64 n);

  // Deleted later, so that the station may drop this socket inside one of its own events.
  QTcpSocket* m_socket;
  std::string m_lastError;
  long m_sentInBatch = 0;  // bytes written since the write buffer was last empty
};

}  // namespace tesk
