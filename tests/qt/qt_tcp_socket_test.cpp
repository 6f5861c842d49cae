// The engine socket against a real local server: states, data, the close event of a remote
// close, send on a closed socket, and a refused connection.
#include "qt/qt_tcp_socket.h"

#include <gtest/gtest.h>

#include <QTcpServer>
#include <QTcpSocket>

#include "qt/qt_event_loop.h"
#include "qt/qt_test_app.h"

namespace tesk {
namespace {

class QtTcpSocketTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testing::QtApp();
    sock.onError = [this](int n, const std::string& text) {
      errors.push_back(n);
      errorText = text;
    };
    sock.onClose = [this] { ++closes; };
    sock.onDataArrival = [this] { ++arrivals; };
    sock.onSendComplete = [this] { ++sendsComplete; };
  }
  QtEventLoop loop;
  QtTcpSocket sock;
  std::vector<int> errors;
  std::string errorText;
  int closes = 0, arrivals = 0, sendsComplete = 0;
};

TEST_F(QtTcpSocketTest, ConnectsExchangesDataAndReportsARemoteCloseAsTheCloseEvent) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0));
  EXPECT_EQ(sock.state(), TcpSocket::Closed);
  sock.connectToHost("127.0.0.1", server.serverPort());
  EXPECT_NE(sock.state(), TcpSocket::Closed);  // looking up or connecting
  ASSERT_TRUE(loop.waitUntil(5, [&] { return sock.state() == TcpSocket::Connected; }));
  ASSERT_TRUE(loop.waitUntil(5, [&] { return server.hasPendingConnections(); }));
  QTcpSocket* peer = server.nextPendingConnection();

  EXPECT_EQ(sock.send({'a', 'b', 'c'}), 0);
  ASSERT_TRUE(loop.waitUntil(5, [&] { return peer->bytesAvailable() >= 3; }));
  EXPECT_EQ(peer->readAll(), QByteArray("abc"));
  EXPECT_TRUE(loop.waitUntil(5, [&] { return sendsComplete >= 1; }));

  peer->write("\x01\x02\x03\x04", 4);
  ASSERT_TRUE(loop.waitUntil(5, [&] { return sock.bytesAvailable() >= 4; }));
  EXPECT_GE(arrivals, 1);
  EXPECT_EQ(sock.peek(2), (std::vector<uint8_t>{1, 2}));
  EXPECT_EQ(sock.bytesAvailable(), 4u);  // peek leaves the data
  EXPECT_EQ(sock.read(3), (std::vector<uint8_t>{1, 2, 3}));
  EXPECT_EQ(sock.read(10), (std::vector<uint8_t>{4}));

  peer->close();
  ASSERT_TRUE(loop.waitUntil(5, [&] { return closes >= 1; }));
  EXPECT_TRUE(errors.empty());
  EXPECT_TRUE(loop.waitUntil(5, [&] { return sock.state() == TcpSocket::Closed; }));
  EXPECT_EQ(sock.send({'x'}), TcpSocket::kNotConnected);
}

TEST_F(QtTcpSocketTest, SendWhileClosedFailsAtOnceAndALocalCloseRaisesNoEvent) {
  EXPECT_EQ(sock.send({'x'}), 40006);
  EXPECT_EQ(sock.lastErrorText(), "not connected");

  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress::LocalHost, 0));
  sock.connectToHost("127.0.0.1", server.serverPort());
  ASSERT_TRUE(loop.waitUntil(5, [&] { return sock.state() == TcpSocket::Connected; }));
  sock.close();
  EXPECT_EQ(sock.state(), TcpSocket::Closed);  // at once: a reconnect may follow
  sock.connectToHost("127.0.0.1", server.serverPort());
  EXPECT_TRUE(loop.waitUntil(5, [&] { return sock.state() == TcpSocket::Connected; }));
  loop.waitUntil(0.05, {});
  EXPECT_EQ(closes, 0);
  EXPECT_TRUE(errors.empty());
}

TEST_F(QtTcpSocketTest, ARefusedConnectionIsError10061AndLeavesTheSocketClosed) {
  quint16 port = 0;
  {
    QTcpServer probe;  // a port that was free a moment ago and has no listener now
    ASSERT_TRUE(probe.listen(QHostAddress::LocalHost, 0));
    port = probe.serverPort();
  }
  sock.connectToHost("127.0.0.1", port);
  ASSERT_TRUE(loop.waitUntil(5, [&] { return !errors.empty(); }));
  EXPECT_EQ(errors.front(), 10061);
  EXPECT_FALSE(errorText.empty());
  EXPECT_EQ(sock.state(), TcpSocket::Closed);
  EXPECT_EQ(closes, 0);
}

TEST_F(QtTcpSocketTest, ASocketMayBeDroppedInsideItsOwnEvent) {
  auto owned = std::make_unique<QtTcpSocket>();
  bool dropped = false;
  owned->onError = [&](int, const std::string&) {
    owned.reset();
    dropped = true;
  };
  QTcpServer probe;
  ASSERT_TRUE(probe.listen(QHostAddress::LocalHost, 0));
  const quint16 port = probe.serverPort();
  probe.close();
  owned->connectToHost("127.0.0.1", port);
  EXPECT_TRUE(loop.waitUntil(5, [&] { return dropped; }));
  loop.waitUntil(0.02, {});
}

}  // namespace
}  // namespace tesk
