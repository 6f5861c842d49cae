// The direct-mode calls on top of the engine client: start and close, the kinds the core puts
// (UI frames, connect, connected data, disconnect) and the frames it gets, one per call.
#include "link/agw_direct.h"

#include <algorithm>

#include "base/text.h"
#include "link/ax25_frame.h"

namespace tesk {

namespace {

// The version an engine of the UZ7HO family reports; those engines ignore "V".
constexpr uint32_t kQtSoundModemVersion = 2019;
constexpr std::size_t kMaxAgwDigipeaters = 7;
constexpr std::size_t kCallFieldSize = 10;
constexpr std::size_t kMaxHeldData = 100;
constexpr uint8_t kPidText = 0xF0;

// A text copied into a fixed text of `size` characters: cut, or padded with blanks as a
// fixed-length text of the old runtime is when a shorter value is put in.
std::string FixedText(const std::string& s, long size) {
  if (Len(s) >= size) return s.substr(0, static_cast<std::size_t>(size));
  return s + Space(size - Len(s));
}

// The digipeater list of "V" and "v": a count byte, then each call in a NUL-padded field.
std::string DigipeaterField(const std::vector<std::string>& digis) {
  std::string out(1, static_cast<char>(digis.size()));
  for (const std::string& d : digis) {
    std::string field = d.substr(0, kCallFieldSize - 1);
    field.resize(kCallFieldSize, '\0');
    out += field;
  }
  return out;
}

uint8_t PortByte(int32_t port) {
  return static_cast<uint8_t>(std::clamp(port, 0, 255));
}

}  // namespace

AgwDirect::AgwDirect(Platform& platform, StationConfig& config, RunState& run)
    : m_platform(platform), m_config(config), m_run(run), m_client(platform) {
  m_client.onFrame = [this](const AgwFrame& f) { onEngineFrame(f); };
  m_client.onLost = [this] { onEngineLost(); };
}

std::string AgwDirect::host() const {
  return m_run.OverrideHost.empty() ? m_config.HostName_IP_Default : m_run.OverrideHost;
}

int AgwDirect::port() const {
  return m_run.OverridePort > 0 ? m_run.OverridePort : static_cast<int>(m_config.LanPort);
}

int16_t AgwDirect::AGWStartPoll(const std::string& ownCall, const std::string&, int32_t callLength,
                                int32_t) {
  // The application key meant something to the library only; engines over TCP know none.
  ++m_startPolls;
  m_portsWanted = true;
  const std::string call = callLength >= 0 ? Left(ownCall, callLength) : ownCall;
  m_ownCall = UCase(Trim(call));
  AgwClient::LogOn logOn;
  logOn.ownCall = m_ownCall;
  logOn.password = m_config.Lan_Password;
  // Incoming connections reach a registered call only, and some engines register per port.
  if (m_config.AGWPERadioPort > 0 && m_config.AGWPERadioPort < 256)
    logOn.registerPorts.push_back(m_config.AGWPERadioPort);
  const bool answered =
      m_client.open(host(), port(), logOn, kStartConnectSeconds, kStartAnswerSeconds);
  return answered ? 1 : 0;
}

void AgwDirect::AGWClose() {
  ++m_closes;
  m_client.close();
  m_queue.clear();
  m_links.clear();
}

int16_t AgwDirect::AGWPutData(const std::string& callText, const std::string& data, int32_t kind,
                              int32_t length, int32_t port) {
  ++m_puts;
  const std::string info = length >= 0 && length < Len(data) ? Left(data, length) : data;
  const CallPath path = ParseCallPath(callText);
  switch (kind) {
    case 'U':
    case 'M':
      return sendUi(path, info, false, port);
    case 'V':
      return sendUi(path, info, true, port);
    case 'c':
    case 'C':
    case 'v':
      return connect(path, port);
    case 'D':
      return sendData(path, info);
    case 'd':
      return disconnect(path, port);
    case 'P':
      // The log-on at the start already sent the login when a password is set; another one
      // with the empty text the core gives could only undo it.
      return m_client.up() ? 1 : 0;
    default:
      return 0;
  }
}

int16_t AgwDirect::AGWGetData(std::string& frameCall, std::string& frameText, int32_t& kind,
                              int32_t& length, int32_t& port) {
  std::optional<DirectFrame> f = m_queue.pop();
  if (!f) {
    // Nothing came: the kind is cleared so that an old connection kind cannot act again.
    kind = 0;
    length = 0;
    return 0;
  }
  // The texts are written as the library writes C strings into the caller's fixed texts: the
  // value, a NUL, and the rest of the fixed text (blanks). A text of 512 or more is cut.
  frameCall = FixedText(f->call + '\0', kCallBufferSize);
  frameText = FixedText(f->text + '\0', kTextBufferSize);
  kind = static_cast<unsigned char>(f->kind);
  length = static_cast<int32_t>(std::min(Len(f->text), kTextBufferSize));
  port = f->port;
  return 1;
}

AgwDirect::CallPath AgwDirect::ParseCallPath(const std::string& callText) {
  // "TO VIA1,VIA2": the destination, a blank, the digipeaters.
  const std::string text = UCase(Trim(callText));
  const long blank = InStr(text, " ");
  CallPath path;
  path.to = blank > 0 ? Left(text, blank - 1) : text;
  if (blank > 0) path.digipeaters = ViaCalls(Mid(text, blank + 1));
  if (path.digipeaters.size() > kMaxAgwDigipeaters) path.digipeaters.resize(kMaxAgwDigipeaters);
  return path;
}

int16_t AgwDirect::sendUi(const CallPath& path, const std::string& info, bool viaDigipeaters,
                          int port) {
  AgwFrame f;
  f.port = PortByte(port);
  f.pid = kPidText;  // newer engines put the header's PID on the air
  f.callFrom = m_ownCall;
  f.callTo = path.to;
  if (!viaDigipeaters || path.digipeaters.empty()) {
    f.kind = 'M';
    f.data = info;
  } else if (m_client.versionMajor() == kQtSoundModemVersion) {
    // This family ignores "V"; a raw frame takes the same path.
    const std::vector<uint8_t> ax25 =
        EncodeAx25Ui(path.to, m_ownCall, path.digipeaters, kPidText, info);
    f.kind = 'K';
    f.pid = 0;
    f.data = std::string(1, static_cast<char>(f.port << 4)) + std::string(ax25.begin(), ax25.end());
  } else {
    f.kind = 'V';
    f.data = DigipeaterField(path.digipeaters) + info;
  }
  return m_client.send(f) ? 1 : 0;
}

int16_t AgwDirect::connect(const CallPath& path, int port) {
  if (path.to.empty()) return 0;
  AgwFrame f;
  f.port = PortByte(port);
  f.callFrom = m_ownCall;
  f.callTo = path.to;
  // The library's "c" opens a plain connection; "C" is the request every engine knows for it
  // (some have no "c" at all). With a path it becomes "v" with the digipeaters.
  f.kind = path.digipeaters.empty() ? 'C' : 'v';
  if (!path.digipeaters.empty()) f.data = DigipeaterField(path.digipeaters);
  if (!m_client.send(f)) return 0;
  if (!findLink(path.to)) m_links.push_back(Link{f.port, path.to, m_ownCall, false, {}});
  return 1;
}

int16_t AgwDirect::sendData(const CallPath& path, const std::string& data) {
  Link* link = findLink(path.to);
  // Data for a station the engine holds no link with would hang some engines' link layer.
  if (!link) return 0;
  if (!link->open) {
    if (link->held.size() >= kMaxHeldData) return 0;
    link->held.push_back(data);
    return 1;
  }
  return sendLinkData(*link, data) ? 1 : 0;
}

int16_t AgwDirect::disconnect(const CallPath& path, int port) {
  AgwFrame f;
  f.kind = 'd';
  Link* link = findLink(path.to);
  if (link) {
    // The link stays known until the engine's notice; data not yet sent is given up.
    link->held.clear();
    f.port = PortByte(link->port);
    f.callFrom = link->local;
  } else {
    f.port = PortByte(port);
    f.callFrom = m_ownCall;
  }
  f.callTo = path.to;
  return m_client.send(f) ? 1 : 0;
}

bool AgwDirect::sendLinkData(const Link& link, const std::string& data) {
  AgwFrame f;
  f.kind = 'D';
  f.port = PortByte(link.port);
  f.pid = kPidText;
  // The engine finds the link by the exact pair of calls it reported.
  f.callFrom = link.local;
  f.callTo = link.remote;
  f.data = data;
  return m_client.send(f);
}

AgwDirect::Link* AgwDirect::findLink(const std::string& remote) {
  const std::string call = UCase(remote);
  for (Link& l : m_links)
    if (UCase(l.remote) == call) return &l;
  return nullptr;
}

void AgwDirect::onEngineFrame(const AgwFrame& frame) {
  if (frame.kind == 'G') {
    if (!m_portsWanted) return;
    m_portsWanted = false;
  } else if (frame.kind == 'C') {
    linkOpened(frame);
  } else if (frame.kind == 'd') {
    const std::string call = UCase(frame.callFrom);
    std::erase_if(m_links, [&](const Link& l) { return UCase(l.remote) == call; });
  }
  m_queue.push(frame, m_platform.clock().localNow());
}

void AgwDirect::linkOpened(const AgwFrame& frame) {
  Link* link = findLink(frame.callFrom);
  if (!link) {
    // Called by another station.
    m_links.push_back(Link{frame.port, frame.callFrom, m_ownCall, false, {}});
    link = &m_links.back();
  }
  link->open = true;
  link->port = frame.port;
  if (!frame.callTo.empty()) link->local = frame.callTo;
  std::vector<std::string> held = std::move(link->held);
  link->held.clear();
  for (const std::string& data : held)
    sendLinkData(*link, data);
}

void AgwDirect::onEngineLost() {
  // The engine drops every link with its client; the core hears of each one once.
  for (const Link& l : m_links)
    m_queue.pushNotice('d', l.port, l.remote, "*** DISCONNECTED From Station " + l.remote + "\r");
  m_links.clear();
}

}  // namespace tesk
