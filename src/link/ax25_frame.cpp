// AX.25 address field and UI frame coding for the raw frames of the engine interface.
#include "link/ax25_frame.h"

#include <algorithm>

#include "base/text.h"

namespace tesk {

namespace {

constexpr std::size_t kAddressSize = 7;
constexpr std::size_t kMaxAddresses = 2 + kAx25MaxDigipeaters;

Ax25Address DecodeAddress(std::span<const uint8_t> a) {
  std::string call;
  for (std::size_t i = 0; i < 6; ++i) {
    const char c = static_cast<char>(a[i] >> 1);
    if (c != ' ') call += c;
  }
  const int ssid = (a[6] >> 1) & 0x0F;
  if (ssid != 0) call += "-" + std::to_string(ssid);
  return Ax25Address{call, (a[6] & 0x80) != 0};
}

void EncodeAddress(std::vector<uint8_t>& out, const std::string& text, uint8_t high, bool last) {
  const std::string call = UCase(Trim(text));
  const long dash = InStr(call, "-");
  const std::string base = dash > 0 ? Left(call, dash - 1) : call;
  int ssid = dash > 0 ? static_cast<int>(Val(Mid(call, dash + 1))) : 0;
  if (ssid < 0 || ssid > 15) ssid = 0;
  for (std::size_t i = 0; i < 6; ++i) {
    const char c = i < base.size() ? base[i] : ' ';
    out.push_back(static_cast<uint8_t>(static_cast<unsigned char>(c) << 1));
  }
  out.push_back(static_cast<uint8_t>(high | 0x60 | (ssid << 1) | (last ? 0x01 : 0x00)));
}

bool HasPid(uint8_t control) {
  return (control & 0x01) == 0 || (control & 0xEF) == 0x03;
}

}  // namespace

std::optional<Ax25Frame> DecodeAx25(std::span<const uint8_t> bytes) {
  std::vector<Ax25Address> addresses;
  std::size_t at = 0;
  bool ended = false;
  while (!ended) {
    if (at + kAddressSize > bytes.size() || addresses.size() == kMaxAddresses) return std::nullopt;
    const auto a = bytes.subspan(at, kAddressSize);
    addresses.push_back(DecodeAddress(a));
    ended = (a[6] & 0x01) != 0;
    at += kAddressSize;
  }
  if (addresses.size() < 2 || at >= bytes.size()) return std::nullopt;
  Ax25Frame frame;
  frame.destination = addresses[0];
  frame.source = addresses[1];
  frame.destination.repeated = frame.source.repeated = false;  // those are C bits there
  frame.digipeaters.assign(addresses.begin() + 2, addresses.end());
  frame.control = bytes[at++];
  if (HasPid(frame.control) && at < bytes.size()) frame.pid = bytes[at++];
  frame.info.assign(bytes.begin() + static_cast<long>(at), bytes.end());
  return frame;
}

std::vector<uint8_t> EncodeAx25Ui(const std::string& destination, const std::string& source,
                                  const std::vector<std::string>& digipeaters, uint8_t pid,
                                  const std::string& info) {
  std::vector<uint8_t> out;
  const std::size_t digis = std::min(digipeaters.size(), kAx25MaxDigipeaters);
  // A command frame: C bit set in the destination, clear in the source.
  EncodeAddress(out, destination, 0x80, false);
  EncodeAddress(out, source, 0x00, digis == 0);
  for (std::size_t i = 0; i < digis; ++i)
    EncodeAddress(out, digipeaters[i], 0x00, i + 1 == digis);
  out.push_back(0x03);
  out.push_back(pid);
  out.insert(out.end(), info.begin(), info.end());
  return out;
}

}  // namespace tesk
