// The AGWPE frame codec: the typed frame for stream readers and the LAN link's byte-exact
// decoder and builders. The LAN half models the old behaviour of skipping a statement that
// fails: an index past the end of a read or of the work area, or a value that does not fit
// in a byte, leaves the target as it was and the rest goes on.
#include "link/agw_frame.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "base/text.h"

namespace tesk {

namespace {

constexpr std::size_t kWorkAreaSize = 256;
constexpr std::size_t kLoginSize = 546;
constexpr std::size_t kLoginFieldSize = 255;
constexpr int kMaxDigipeaters = 7;

// A byte store that skips what does not fit: an offset outside the buffer or a value outside
// 0..255 changes nothing.
template <typename Buffer>
void Poke(Buffer& buf, std::size_t offset, long long value) {
  if (offset >= buf.size() || value < 0 || value > 255) return;
  buf[offset] = static_cast<uint8_t>(value);
}

// Writes each character of text from offset on, as far as the buffer goes.
template <typename Buffer>
void PokeText(Buffer& buf, std::size_t offset, std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    Poke(buf, offset + i, static_cast<unsigned char>(text[i]));
  }
}

// The character code of a kind text; a missing kind writes nothing.
template <typename Buffer>
void PokeKind(Buffer& buf, std::string_view kind) {
  if (!kind.empty()) Poke(buf, 4, static_cast<unsigned char>(kind[0]));
}

void PutLe32(std::vector<uint8_t>& out, std::size_t offset, uint32_t value) {
  for (int i = 0; i < 4; ++i)
    out[offset + i] = static_cast<uint8_t>(value >> (8 * i));
}

uint32_t GetLe32(std::span<const uint8_t> bytes, std::size_t offset) {
  uint32_t value = 0;
  for (int i = 0; i < 4; ++i)
    value |= static_cast<uint32_t>(bytes[offset + i]) << (8 * i);
  return value;
}

// A call field read up to its first NUL, never past its 10 bytes.
std::string FieldCall(std::span<const uint8_t> bytes, std::size_t offset) {
  std::string call;
  for (std::size_t i = offset; i < offset + 10 && bytes[i] != 0; ++i) {
    call += static_cast<char>(bytes[i]);
  }
  return call;
}

// The LAN reader's call: from offset up to a NUL, deliberately not stopping at the field's
// 10 bytes (a full CallFrom runs on into CallTo); the end of the read ends it too.
std::string CallFromRead(const std::vector<uint8_t>& read, std::size_t offset) {
  std::string call;
  for (std::size_t i = offset; i < read.size() && read[i] != 0; ++i) {
    call += static_cast<char>(read[i]);
  }
  return call;
}

// Header fields of a LAN read; each one the read does not reach keeps its old value.
void DecodeSlotHeader(const std::vector<uint8_t>& read, FrameSlot& slot) {
  if (read.size() > 0) slot.FramePort = read[0];
  if (read.size() > 4) slot.FrameKind = std::string(1, static_cast<char>(read[4]));
  if (read.size() > 6) slot.FramePid = read[6];
  if (read.size() > 28) slot.FrameLen = read[28];
  slot.FrameFrom = CallFromRead(read, 8);
  slot.FrameTo = CallFromRead(read, 18);
}

// The port list as the link has always taken it: FrameLen - 17 bytes from offset 32, which
// starts in the User field and stops 21 bytes short of the data's end, with every blank
// dropped. Kept on purpose: the reader of the list cuts the first two characters off it.
std::string PortListFromRead(const std::vector<uint8_t>& read, int frameLen) {
  std::string list;
  for (int i = 0; i <= frameLen - 18; ++i) {
    const std::size_t at = 32 + static_cast<std::size_t>(i);
    if (at < read.size() && read[at] != ' ') list += static_cast<char>(read[at]);
  }
  return list;
}

// The digipeater calls of a via text: at most 7, trimmed, up to the first empty one.
std::vector<std::string> ViaCalls(const std::string& via) {
  std::vector<std::string> calls;
  for (int k = 0; k < kMaxDigipeaters; ++k) {
    std::string call = Trim(SplitIt(",", via, k));
    if (call.empty()) break;
    calls.push_back(std::move(call));
  }
  return calls;
}

}  // namespace

std::vector<uint8_t> AgwFrame::encode() const {
  std::vector<uint8_t> out(kAgwHeaderSize + data.size(), 0);
  out[0] = port;
  out[4] = static_cast<uint8_t>(kind);
  out[6] = pid;
  for (std::size_t i = 0; i < callFrom.size() && i < 10; ++i)
    out[8 + i] = callFrom[i];
  for (std::size_t i = 0; i < callTo.size() && i < 10; ++i)
    out[18 + i] = callTo[i];
  PutLe32(out, 28, static_cast<uint32_t>(data.size()));
  PutLe32(out, 32, user);
  for (std::size_t i = 0; i < data.size(); ++i)
    out[kAgwHeaderSize + i] = data[i];
  return out;
}

std::optional<AgwFrame> AgwFrame::decodeHeader(std::span<const uint8_t> bytes) {
  if (bytes.size() < kAgwHeaderSize) return std::nullopt;
  AgwFrame frame;
  frame.port = bytes[0];
  frame.kind = static_cast<char>(bytes[4]);
  frame.pid = bytes[6];
  frame.callFrom = FieldCall(bytes, 8);
  frame.callTo = FieldCall(bytes, 18);
  frame.dataLen = GetLe32(bytes, 28);
  frame.user = GetLe32(bytes, 32);
  return frame;
}

AgwTakeResult takeAgwFrame(std::span<const uint8_t> stream, uint32_t maxDataLen) {
  AgwTakeResult result;
  std::optional<AgwFrame> header = AgwFrame::decodeHeader(stream);
  if (!header) return result;
  if (header->dataLen > maxDataLen) {
    result.status = AgwTake::BadLength;
    return result;
  }
  const std::size_t total = kAgwHeaderSize + header->dataLen;
  if (stream.size() < total) return result;
  result.frame = std::move(*header);
  result.frame.data.assign(stream.begin() + kAgwHeaderSize, stream.begin() + total);
  result.status = AgwTake::Frame;
  result.consumed = total;
  return result;
}

bool AGWWinsockGetDataLAN(const std::vector<uint8_t>& read, FrameSlot& slot,
                          std::string& enginePortList, std::string& linkStatus) {
  DecodeSlotHeader(read, slot);
  if (slot.FrameKind == "G" && slot.FrameLen - 18 >= 2) {
    enginePortList = PortListFromRead(read, slot.FrameLen);
    return true;
  }
  // One read is one frame, however many the engine put into it: all of it is the data.
  std::string data;
  if (read.size() > kAgwHeaderSize) data.assign(read.begin() + kAgwHeaderSize, read.end());
  slot.FrameData = data + '\0';
  slot.FrameReady = -1;
  linkStatus = GetKind(slot.FrameKind);
  return false;
}

std::vector<uint8_t> BuildControlUI(int port, const std::string& kind, const std::string& from,
                                    const std::string& to, const std::string& data,
                                    const std::string& via) {
  std::array<uint8_t, kWorkAreaSize> area{};
  const std::string useKind = !kind.empty() ? kind : (via.empty() ? "M" : "V");
  Poke(area, 0, port);
  PokeKind(area, useKind);
  // Calls are not bounded by their fields: a long one runs into the next on purpose.
  PokeText(area, 8, from);
  PokeText(area, 18, to);
  std::size_t n = 0;
  if (via.empty()) {
    if (!data.empty()) {
      Poke(area, 28, static_cast<long long>(data.size()));  // above 255: stays 0
      PokeText(area, 36, data);
    }
  } else {
    // A via text of blanks alone still makes a "V" frame, with no digipeater: kept on purpose.
    const std::vector<std::string> calls = ViaCalls(via);
    n = calls.size();
    Poke(area, 28, static_cast<long long>(data.size() + 10 * n + 1));
    Poke(area, 36, static_cast<long long>(n));
    for (std::size_t k = 1; k <= n; ++k) {
      PokeText(area, 27 + 10 * k, std::string_view(calls[k - 1]).substr(0, 10));
    }
    PokeText(area, 37 + 10 * n, data);
  }
  // One byte more than DataLen says when there is no via: kept on purpose, engines accept it.
  const std::size_t size = std::min(kWorkAreaSize, 37 + data.size() + 10 * n);
  return std::vector<uint8_t>(area.begin(), area.begin() + size);
}

std::vector<uint8_t> BuildReqRegInfo(int port, const std::string& kind, const std::string& data) {
  std::vector<uint8_t> frame(kAgwHeaderSize, 0);
  Poke(frame, 0, port);
  PokeKind(frame, kind);
  const std::string text = Trim(data);
  // Up to 35 characters from offset 8; only 28 fit before the header ends, the rest is lost.
  PokeText(frame, 8, std::string_view(text).substr(0, 35));
  return frame;
}

std::vector<uint8_t> BuildPassword(int /*port*/, const std::string& kind,
                                   const std::string& ownCall, const std::string& password) {
  std::vector<uint8_t> frame(kLoginSize, 0);
  // The login always goes to port 0, whatever port it is asked for.
  PokeKind(frame, kind);
  Poke(frame, 28, 254);
  Poke(frame, 29, 1);  // DataLen 510: two 255-byte fields
  PokeText(frame, 36, std::string_view(ownCall).substr(0, kLoginFieldSize));
  PokeText(frame, 36 + kLoginFieldSize, std::string_view(password).substr(0, kLoginFieldSize));
  return frame;
}

std::vector<uint8_t> BuildMonitor() {
  std::vector<uint8_t> frame(kAgwHeaderSize, 0);
  frame[4] = 'm';
  return frame;
}

std::string GetKind(const std::string& kind) {
  static constexpr std::pair<const char*, const char*> kKinds[] = {
      {"P", "Application Login (User/Password)"},
      {"R", "AGWPE Version"},
      {"G", "Port Information"},
      {"g", "Port Capabilities"},
      {"X", "Register CallSign"},
      {"x", "Unregister CallSign"},
      {"y", "Outstanding frames on a Port"},
      {"Y", "Outstanding frames on a connection"},
      {"H", "Heard Stations on a Port"},
      {"m", "Start Monitoring RWData"},
      {"M", "Send Unproto Info"},
      {"V", "Send Unproto Info VIA"},
      {"C", "Start an AX.25 Connection"},
      {"v", "Start an AX.25 Connection using digipeaters"},
      {"c", "Start a non-standard AX.25 connection (data frames would have PID not 0xF0)"},
      {"D", "Connected RWData"},
      {"d", "Disconnect an AX.25 connection"},
      {"U", "(UI)Frame received for a registered application."},
      {"I",
       "Information Frame between any two connected station (not necessarily the ones "
       "registered by the application)"},
      {"S", "Supervisory Frame (SABM/UA/DISC/DM/RR/REJ)"},
      {"T", "Monitored frame sent by this application"},
      {"K", "Raw Frame"},
      {"k", "Start monitoring using raw frames"},
  };
  for (const auto& [letter, text] : kKinds) {
    if (kind == letter) return text;
  }
  return "";
}

std::string SplitIt(const std::string& delimiter, const std::string& source, int index) {
  constexpr std::size_t kMaxFields = 11;
  if (index < 0 || index >= static_cast<int>(kMaxFields)) return "";
  std::vector<std::string> fields;
  std::size_t start = 0;
  while (!delimiter.empty() && fields.size() < kMaxFields - 1) {
    const std::size_t at = source.find(delimiter, start);
    if (at == std::string::npos) break;
    fields.push_back(source.substr(start, at - start));
    start = at + delimiter.size();
  }
  fields.push_back(source.substr(start));
  return static_cast<std::size_t>(index) < fields.size() ? fields[index] : "";
}

}  // namespace tesk
