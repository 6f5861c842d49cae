// LAN mode. Every routine here runs in continue-on-error fashion: a step that fails leaves its
// outcome in LinkStatus, the Monitor or the lamp colour, and the next step runs.
#include "link/tcp_link.h"

#include "base/text.h"

namespace tesk {

TcpLink::TcpLink(Platform& platform, StationConfig& config, RunState& run, LinkEvents& events)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_events(events),
      m_socket(platform.createSocket()) {
  m_socket->onDataArrival = [this] { onDataArrival(); };
  m_socket->onClose = [this] { onClose(); };
  m_socket->onError = [this](int n, const std::string& d) { onError(n, d); };
  m_socket->onSendComplete = [this] { m_run.LinkStatus = "Send complete"; };
  m_socket->onSendProgress = [this](long sent, long remaining) {
    m_run.LinkStatus = "Send progress = " + std::to_string(sent) + "/" + std::to_string(remaining);
  };
}

TcpLink::~TcpLink() = default;

std::string TcpLink::host() const {
  return m_run.OverrideHost.empty() ? m_config.HostName_IP_Default : m_run.OverrideHost;
}

int TcpLink::port() const {
  return m_run.OverridePort > 0 ? m_run.OverridePort : static_cast<int>(m_config.LanPort);
}

void TcpLink::AGWWinsockInitialiseLan() {
  EventLoop& loop = m_platform.loop();
  m_run.CurrentPort = m_config.AGWPERadioPort;
  loop.yield();
  if (m_socket->state() != TcpSocket::Closed) {
    m_socket->close();
    loop.yield();
  }
  const std::string h = host();
  m_socket->connectToHost(h, port());
  loop.waitUntil(10.0, [this] {
    const int s = m_socket->state();
    return s == TcpSocket::Connected || s == TcpSocket::Closed;
  });
  if (loop.ended()) return;
  const int state = m_socket->state();
  if (state != TcpSocket::Connected && state != TcpSocket::Closed) {
    m_run.LinkStatus = "Error: Connection time out";
    m_events.MonitorLine("Connection retry time-out to " + h + CRLF +
                         "Check your 'Software Modem' and LAN settings on client or server PC.");
    return;
  }
  if (state == TcpSocket::Connected) {
    m_events.LampCaption("+LAN");
    m_events.MonitorLine("Connected to Server " + h);
    const std::string call = m_config.YourCallSign;
    if (!m_config.Lan_Password.empty()) {
      AGWWinsockPasword(0, "P", m_config.Lan_Password);
      WachtEfkes(0.5);
      m_events.MonitorLine("Authorizing Password of UserID " + call + "...");
    }
    if (m_config.RegisterCall != 0) {
      AGWWinsockReqRegInfo(0, "X", call);
      WachtEfkes(0.5);
      m_events.MonitorLine(call + " Registered.");
    }
    AGWWinsockReqRegInfo(m_run.CurrentPort, "G", "");
    WachtEfkes(0.5);
    std::string list = m_run.EnginePortList;
    if (Len(list) > 5) list = Mid(list, 3);
    list = Replace(list, ";", std::string(";") + CRLF);
    LogEerstPoorten(list + std::string(1, '\0'));
    m_events.LampLit(true);
  } else {
    m_events.MonitorLine("Could not connect to Server " + h);
    m_run.LinkStatus = "Error connecting Server Winsock state:" + std::to_string(state);
    m_events.LampLit(false);
  }
  AGWWinsockMonitor();
}

void TcpLink::AGWWinsockCloseOpenWAIT(double seconds) {
  m_platform.loop().waitUntil(seconds, [this] {
    const int s = m_socket->state();
    return s == TcpSocket::Closed || s == TcpSocket::Connected;
  });
  m_platform.loop().sleepMs(5);
}

void TcpLink::WachtEfkes(double seconds) {
  m_platform.loop().waitUntil(seconds, {});
}

bool TcpLink::sendFrame(const std::vector<uint8_t>& bytes, int& error, std::string& errorText) {
  error = m_socket->send(bytes);
  if (error != 0) {
    errorText = m_socket->lastErrorText();
    return false;
  }
  return true;
}

void TcpLink::AGWWinsockMonitor() {
  m_run.LinkStatus = "Winsock Connect";
  AGWWinsockCloseOpenWAIT(0.5);
  if (m_socket->state() != TcpSocket::Connected) {
    m_run.LinkStatus = "Error Winsock State" + std::to_string(m_socket->state());
    return;
  }
  int error = 0;
  std::string text;
  sendFrame(BuildMonitor(), error, text);
  m_platform.loop().yield();
  m_run.LinkStatus = "Connected and listening.";
}

void TcpLink::AGWWinsockReqRegInfo(int port, const std::string& kind, const std::string& data) {
  AGWWinsockCloseOpenWAIT(1.0);
  if (m_socket->state() != TcpSocket::Connected) {
    m_run.LinkStatus = "Error Winsock State " + std::to_string(m_socket->state());
    return;
  }
  // The request marks the slot on purpose: the next core tick goes once through the old frame.
  FrameSlot_.FrameReady = -1;
  int error = 0;
  std::string text;
  sendFrame(BuildReqRegInfo(port, kind, data), error, text);
  m_platform.loop().yield();
  m_run.LinkStatus = "Winsock Normal Connection Inquiry";
}

void TcpLink::AGWWinsockPasword(int port, const std::string& kind, const std::string& data) {
  AGWWinsockCloseOpenWAIT(1.0);
  if (m_socket->state() != TcpSocket::Connected) {
    m_run.LinkStatus = "Error Winsock State " + std::to_string(m_socket->state());
    return;
  }
  FrameSlot_.FrameReady = -1;  // as for the other requests, deliberately
  int error = 0;
  std::string text;
  sendFrame(BuildPassword(port, kind, m_config.YourCallSign, data), error, text);
  m_platform.loop().yield();
  m_run.LinkStatus = "Winsock set UserID & Password";
}

void TcpLink::AGWWinSockControlUI(int port, const std::string& kind, const std::string& from,
                                  const std::string& to, const std::string& data,
                                  const std::string& via) {
  AGWWinsockCloseOpenWAIT(0.5);
  int error = 0;
  std::string errorText;
  sendFrame(BuildControlUI(port, kind, from, to, data, via), error, errorText);
  m_platform.loop().yield();
  if (m_config.Emulate_TXFrames_On_SlowNetPC != 0 && m_socket->state() == TcpSocket::Connected)
    m_events.OwnFrameSent(port, from, to, data, via);
  if (error == TcpSocket::kNotConnected) {
    m_events.Note(
        std::string("Could not establish connection with Server!") + CRLF +
        "Current LAN Settings: Host=" + host() + " -- Port=" + std::to_string(this->port()) + CRLF +
        "Be sure the settings are correct and a 'Software Modem' is running on the Server. "
        "Err nr:" +
        std::to_string(error));
    m_run.LinkStatus = "Error connecting Server";
  } else if (error != 0) {
    m_events.Note(std::string("Error connecting to Server") + CRLF + errorText + " Error nr " +
                  std::to_string(error));
    m_run.LinkStatus = "Error connecting Server";
  }
}

void TcpLink::LogEerstPoorten(const std::string& text) {
  if (Len(Trim(text)) <= 2) return;
  if (Left(text, 4) == "Port" && Val(Mid(text, 5, 1)) >= 0) {
    const std::string line = CutAtNul(text);
    m_run.EngineStatus += line + " - ";
    m_events.MonitorLine(line);
    if (m_config.TESKServer != 0 || m_run.ServerSwitch != 0) {
      std::string post = text;
      m_events.MailboxPost(post, 2);
    }
    FrameSlot_.FrameReady = 0;
  }
}

void TcpLink::KlokkenTick() {
  if (LCase(Left(m_run.LinkStatus, 5)) != "error") {
    m_events.LampLit(true);
    m_retryCounter = 0;
  } else {
    m_events.LampLit(false);
    m_retryCounter = static_cast<int16_t>((m_retryCounter + 1) % 10000);
    if (m_retryCounter >= 61) {
      AGWWinsockInitialiseLan();
      m_retryCounter = 0;
    }
  }
  std::string status = m_run.LinkStatus;
  m_events.MailboxPost(status, 7);
}

void TcpLink::closeSocket() {
  m_socket->close();
}

void TcpLink::onDataArrival() {
  const std::size_t n = m_socket->bytesAvailable();
  std::vector<uint8_t> bytes = m_socket->peek(n);
  bytes = m_socket->read(n);
  AGWWinsockGetDataLAN(bytes, FrameSlot_, m_run.EnginePortList, m_run.LinkStatus);
}

void TcpLink::onClose() {
  if (m_socket->state() == TcpSocket::Connected) m_socket->close();
  if (m_socket->state() == TcpSocket::Closed) m_run.LinkStatus = "Closed and waiting";
}

void TcpLink::onError(int /*number*/, const std::string& description) {
  m_run.LinkStatus = "Error: " + description;
}

}  // namespace tesk
