// Frames of the AGWPE host interface. Two faces: `AgwFrame`, a typed frame with a stream-safe
// decoder for code that reassembles the byte stream, and the LAN link's own codec, which reads
// one socket read as one frame into the single `FrameSlot` and builds its frames in a fixed
// 256-byte work area. The LAN codec keeps its old byte-for-byte habits on purpose: the core reads
// `FrameData` through the one-byte `FrameLen`, and the engines are used to these frames.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tesk {

inline constexpr std::size_t kAgwHeaderSize = 36;
// Largest DataLen a stream reader accepts before it calls the stream broken.
inline constexpr uint32_t kAgwMaxDataLen = 65536;

// One frame: the 36-byte little-endian header and its data.
struct AgwFrame {
  uint8_t port = 0;  // 0-based radio port
  char kind = 0;     // DataKind letter
  uint8_t pid = 0;
  std::string callFrom, callTo;  // at most 10 bytes each on the wire
  uint32_t dataLen = 0;          // as declared by a decoded header
  uint32_t user = 0;
  std::string data;

  // Header + data; DataLen is written from data.size(), calls are cut to their 10 bytes.
  std::vector<uint8_t> encode() const;
  // The header alone (data stays empty); calls are read up to their first NUL inside the
  // field, as engines leave garbage behind it. Nothing when fewer than 36 bytes are given.
  static std::optional<AgwFrame> decodeHeader(std::span<const uint8_t> bytes);
};

enum class AgwTake { Frame, NeedMore, BadLength };
struct AgwTakeResult {
  AgwTake status = AgwTake::NeedMore;
  AgwFrame frame;            // valid when status is Frame
  std::size_t consumed = 0;  // bytes of the stream the frame took
};
// The first complete frame at the front of a reassembly buffer. NeedMore while its header or
// data are not all there; BadLength when the declared DataLen is above maxDataLen.
AgwTakeResult takeAgwFrame(std::span<const uint8_t> stream, uint32_t maxDataLen = kAgwMaxDataLen);

// The one slot where a decoded LAN read waits for the core.
struct FrameSlot {
  int16_t FrameReady = 0;  // 16-bit boolean, true = -1
  int32_t FramePort = 0;
  std::string FrameKind;  // one character
  int16_t FramePid = 0;
  std::string FrameFrom, FrameTo;
  int16_t FrameLen = 0;   // byte 28 alone: the data length modulo 256
  std::string FrameData;  // bytes 36 to the end of the read, then one NUL
};

// Decodes one socket read into the slot. Fields the read does not reach keep their values.
// A port list reply ("G") replaces enginePortList and leaves FrameReady and linkStatus alone;
// any other read sets FrameReady and linkStatus := GetKind(kind). Returns true for a port list.
bool AGWWinsockGetDataLAN(const std::vector<uint8_t>& read, FrameSlot& slot,
                          std::string& enginePortList, std::string& linkStatus);

// The UI frame of AGWWinSockControlUI: kind "M" or "V" when kind is empty, via split by ",".
std::vector<uint8_t> BuildControlUI(int port, const std::string& kind, const std::string& from,
                                    const std::string& to, const std::string& data,
                                    const std::string& via);
// A bare 36-byte request; data (trimmed) goes into CallFrom and the fields behind it.
std::vector<uint8_t> BuildReqRegInfo(int port, const std::string& kind, const std::string& data);
// The 546-byte login: own call and password in two 255-byte fields, always on port 0.
std::vector<uint8_t> BuildPassword(int port, const std::string& kind, const std::string& ownCall,
                                   const std::string& password);
// Monitoring on: 36 bytes, kind "m", port 0.
std::vector<uint8_t> BuildMonitor();

// The description of a DataKind letter; "" for a letter the interface does not know.
std::string GetKind(const std::string& kind);
// Field `index` (0 to 10) of source split at each delimiter; field 10 takes the rest of the
// source. "" for an index out of range or a field the source does not have.
std::string SplitIt(const std::string& delimiter, const std::string& source, int index);

}  // namespace tesk
