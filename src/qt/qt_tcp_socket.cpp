// QTcpSocket behind the station's socket interface.
#include "qt/qt_tcp_socket.h"

#include "qt/qt_text.h"

namespace tesk {

namespace {

// Calls an event handler through a copy: a handler may destroy the socket, and with it the
// std::function that is running.
template <typename Fn, typename... Args>
void Fire(const Fn& handler, Args&&... args) {
  if (!handler) return;
  Fn copy = handler;
  copy(std::forward<Args>(args)...);
}

std::vector<uint8_t> ToBytes(const QByteArray& a) {
  return std::vector<uint8_t>(reinterpret_cast<const uint8_t*>(a.constData()),
                              reinterpret_cast<const uint8_t*>(a.constData()) + a.size());
}

}  // namespace

QtTcpSocket::QtTcpSocket() : m_socket(new QTcpSocket) {
  connect(m_socket, &QTcpSocket::readyRead, this, [this]() { Fire(onDataArrival); });
  connect(m_socket, &QTcpSocket::errorOccurred, this, &QtTcpSocket::onQtError);
  connect(m_socket, &QTcpSocket::bytesWritten, this, &QtTcpSocket::onBytesWritten);
}

QtTcpSocket::~QtTcpSocket() {
  m_socket->disconnect(this);
  m_socket->abort();
  m_socket->deleteLater();
}

int QtTcpSocket::state() const {
  switch (m_socket->state()) {
    case QAbstractSocket::UnconnectedState:
      return Closed;
    case QAbstractSocket::HostLookupState:
      return HostLookup;
    case QAbstractSocket::ConnectingState:
      return Connecting;
    case QAbstractSocket::ConnectedState:
      return Connected;
    case QAbstractSocket::BoundState:
      return 1;  // "open"
    case QAbstractSocket::ListeningState:
      return 2;
    case QAbstractSocket::ClosingState:
      return Closing;
  }
  return Closed;
}

void QtTcpSocket::connectToHost(const std::string& host, int port) {
  // A connect on a socket that is not closed is refused, as the classic socket refuses it.
  if (m_socket->state() != QAbstractSocket::UnconnectedState) {
    m_lastError = "Invalid operation at current state";
    return;
  }
  m_sentInBatch = 0;
  m_socket->connectToHost(ToQString(host), static_cast<quint16>(port));
}

void QtTcpSocket::close() {
  // Closing is immediate (state 0 at once, so a reconnect may follow straight away); what is
  // still buffered is handed to the system first. A local close raises no close event.
  m_socket->flush();
  m_socket->abort();
  m_sentInBatch = 0;
}

std::size_t QtTcpSocket::bytesAvailable() const {
  return static_cast<std::size_t>(m_socket->bytesAvailable());
}

std::vector<uint8_t> QtTcpSocket::peek(std::size_t n) {
  return ToBytes(m_socket->peek(static_cast<qint64>(n)));
}

std::vector<uint8_t> QtTcpSocket::read(std::size_t n) {
  return ToBytes(m_socket->read(static_cast<qint64>(n)));
}

int QtTcpSocket::send(const std::vector<uint8_t>& bytes) {
  if (m_socket->state() != QAbstractSocket::ConnectedState) {
    m_lastError = "not connected";
    return kNotConnected;
  }
  const qint64 n = m_socket->write(reinterpret_cast<const char*>(bytes.data()),
                                   static_cast<qint64>(bytes.size()));
  if (n < 0) {
    m_lastError = FromQString(m_socket->errorString());
    return ErrorNumber(m_socket->error());
  }
  return 0;
}

int QtTcpSocket::ErrorNumber(QAbstractSocket::SocketError error) {
  switch (error) {
    case QAbstractSocket::ConnectionRefusedError:
      return 10061;
    case QAbstractSocket::HostNotFoundError:
      return 11001;
    case QAbstractSocket::SocketTimeoutError:
      return 10060;
    case QAbstractSocket::NetworkError:
      return 10050;
    case QAbstractSocket::SocketAccessError:
      return 10013;
    case QAbstractSocket::SocketResourceError:
      return 10055;
    case QAbstractSocket::DatagramTooLargeError:
      return 10040;
    case QAbstractSocket::AddressInUseError:
      return 10048;
    case QAbstractSocket::SocketAddressNotAvailableError:
      return 10049;
    case QAbstractSocket::UnsupportedSocketOperationError:
      return 10045;
    case QAbstractSocket::TemporaryError:
      return 10035;
    case QAbstractSocket::RemoteHostClosedError:
      return 10054;
    case QAbstractSocket::UnknownSocketError:
      return 10000;
    default:
      return 10000 + static_cast<int>(error);
  }
}

void QtTcpSocket::onQtError(QAbstractSocket::SocketError error) {
  // The far end closing the connection is the close event, not an error.
  if (error == QAbstractSocket::RemoteHostClosedError) {
    Fire(onClose);
    return;
  }
  m_lastError = FromQString(m_socket->errorString());
  const std::string text = m_lastError;  // the handler may drop the socket
  Fire(onError, ErrorNumber(error), text);
}

void QtTcpSocket::onBytesWritten(qint64 n) {
  m_sentInBatch += static_cast<long>(n);
  const long remaining = static_cast<long>(m_socket->bytesToWrite());
  const long sent = m_sentInBatch;
  if (remaining == 0) m_sentInBatch = 0;
  // The progress handler may drop the socket: decide about the complete event first.
  auto complete = remaining == 0 ? onSendComplete : std::function<void()>();
  Fire(onSendProgress, sent, remaining);
  if (complete) complete();
}

}  // namespace tesk
