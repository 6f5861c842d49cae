// The differences between the engines, as observed on their sockets.
#include "sim/dialect.h"

#include <cstdio>

#include "base/text.h"
#include "sim/air_frame.h"

namespace tesk::sim {

namespace {

std::string Le32(uint32_t v) {
  std::string s;
  for (int i = 0; i < 4; ++i)
    s.push_back(static_cast<char>((v >> (8 * i)) & 0xFF));
  return s;
}

std::string Hex2(int v) {
  char buf[8];
  std::snprintf(buf, sizeof buf, "%02X", v & 0xFF);
  return buf;
}

std::string Clock(const DateTime& t) {
  return Format00(t.hour) + ":" + Format00(t.minute) + ":" + Format00(t.second);
}

bool IsDireWolf(Dialect d) {
  return d == Dialect::DireWolf16 || d == Dialect::DireWolfNew;
}

// Dire Wolf 1.6 marks nothing, its newer versions the last used digipeater, the others every
// used one.
std::string ViaText(Dialect d, const Ax25Frame& f) {
  long lastUsed = -1;
  for (std::size_t i = 0; i < f.digipeaters.size(); ++i)
    if (f.digipeaters[i].repeated) lastUsed = static_cast<long>(i);
  std::string via;
  for (std::size_t i = 0; i < f.digipeaters.size(); ++i) {
    if (i > 0) via += ",";
    via += f.digipeaters[i].call;
    const bool mark = d == Dialect::DireWolf16    ? false
                      : d == Dialect::DireWolfNew ? static_cast<long>(i) == lastUsed
                                                  : f.digipeaters[i].repeated;
    if (mark) via += "*";
  }
  return via;
}

std::string ShownInfo(Dialect d, const std::string& info) {
  if (d == Dialect::DireWolf16) return CutAtNul(info);
  if (d != Dialect::QtSoundModem) return info;
  std::string shown;
  for (char c : info)
    if (static_cast<unsigned char>(c) > 31 || c == '\r' || c == '\t') shown += c;
  return shown;
}

}  // namespace

std::optional<Dialect> ParseDialect(const std::string& name) {
  const std::string n = UCase(name);
  if (n == "DIREWOLF16") return Dialect::DireWolf16;
  if (n == "DIREWOLF") return Dialect::DireWolfNew;
  if (n == "QTSOUNDMODEM") return Dialect::QtSoundModem;
  if (n == "AGWPE") return Dialect::AgwPacketEngine;
  return std::nullopt;
}

const char* DialectName(Dialect d) {
  switch (d) {
    case Dialect::DireWolf16:
      return "direwolf16";
    case Dialect::DireWolfNew:
      return "direwolf";
    case Dialect::QtSoundModem:
      return "qtsoundmodem";
    case Dialect::AgwPacketEngine:
      return "agwpe";
  }
  return "?";
}

std::string VersionReply(Dialect d) {
  switch (d) {
    case Dialect::QtSoundModem:
      return Le32(2019) + Le32('B');
    case Dialect::AgwPacketEngine:
      return Le32(2000) + Le32(78);
    default:
      return Le32(2005) + Le32(127);
  }
}

std::string PortListReply(Dialect d) {
  std::string text;
  switch (d) {
    case Dialect::DireWolf16:
      // Six ports listed, the count only of the usable one.
      text = "1;Port1 first soundcard mono;";
      for (int p = 2; p <= 6; ++p)
        text += "Port" + std::to_string(p) + " INVALID CHANNEL;";
      break;
    case Dialect::DireWolfNew:
      text = "1;Port1 first soundcard mono;";
      break;
    case Dialect::QtSoundModem:
      text = "1;Port1 with SoundCard Ch A;";
      break;
    case Dialect::AgwPacketEngine:
      text = "1;Port1 Simulated sound card 1200 baud;";
      break;
  }
  return text + std::string(1, '\0');
}

std::string PortCapabilities() {
  // 1200 baud, no traffic, TXDELAY 30, TXTAIL 10, persist 63, slot 10, maxframe 4, no links,
  // bytes heard in two minutes.
  return std::string("\x00\x00\x1E\x0A\x3F\x0A\x04\x00", 8) + Le32(0);
}

char RegisterReplyKind(Dialect d) {
  return d == Dialect::QtSoundModem ? 'x' : 'X';
}

bool AnswersPortQueue(Dialect) {
  return true;
}

bool AnswersLinkQueue(Dialect d) {
  return d != Dialect::QtSoundModem;
}

bool IgnoresViaRequest(Dialect d) {
  return d == Dialect::QtSoundModem;
}

bool UsesHeaderPid(Dialect d) {
  return d == Dialect::DireWolfNew || d == Dialect::QtSoundModem;
}

bool MonitorBeforeRaw(Dialect d) {
  return d == Dialect::QtSoundModem;
}

std::string MonitorText(Dialect d, const Ax25Frame& f, int port, const DateTime& local,
                        const DateTime& utc) {
  const std::string via = ViaText(d, f);
  const std::string info = ShownInfo(d, f.info);
  const DateTime& t = d == Dialect::QtSoundModem ? utc : local;
  const std::string text = " " + std::to_string(port + 1) + ":Fm " + f.source.call + " To " +
                           f.destination.call + (via.empty() ? "" : " Via " + via) +
                           " <UI pid=" + Hex2(f.pid.value_or(0xF0)) +
                           " Len=" + std::to_string(f.info.size()) +
                           (IsDireWolf(d) ? " PF=0" : "") + " >[" + Clock(t) + "]\r";
  switch (d) {
    case Dialect::DireWolf16:
    case Dialect::DireWolfNew:
      return text + (info.empty() ? "" : info + "\r") + std::string(1, '\0');
    case Dialect::QtSoundModem:
      return text + info + "\r";
    case Dialect::AgwPacketEngine:
      return text + info + "\r\r" + std::string(1, '\0');
  }
  return text;
}

std::string RawFrameData(Dialect d, const Ax25Frame& f, int port) {
  const std::vector<uint8_t> air = EncodeAir(f);
  const char portByte = IsDireWolf(d) ? 0 : static_cast<char>(port << 4);
  return std::string(1, portByte) + std::string(air.begin(), air.end());
}

}  // namespace tesk::sim
