// Text and byte forms of the simulated air's frames.
#include "sim/air_frame.h"

#include "base/text.h"

namespace tesk::sim {

namespace {

void PutAddress(std::vector<uint8_t>& out, const std::string& text, uint8_t high, bool last) {
  const long dash = InStr(text, "-");
  const std::string base = UCase(dash > 0 ? Left(text, dash - 1) : text);
  const int ssid = dash > 0 ? static_cast<int>(Val(Mid(text, dash + 1))) & 0x0F : 0;
  for (std::size_t i = 0; i < 6; ++i)
    out.push_back(static_cast<uint8_t>((i < base.size() ? base[i] : ' ') << 1));
  out.push_back(static_cast<uint8_t>(high | 0x60 | (ssid << 1) | (last ? 1 : 0)));
}

std::vector<std::string> SplitCommas(const std::string& text) {
  std::vector<std::string> parts;
  std::string rest = text + ",";
  for (long c = InStr(rest, ","); c > 0; c = InStr(rest, ",")) {
    parts.push_back(Trim(Left(rest, c - 1)));
    rest = Mid(rest, c + 1);
  }
  return parts;
}

}  // namespace

std::optional<Ax25Frame> ParseTnc2(const std::string& line) {
  const long colon = InStr(line, ":");
  const long gt = InStr(line, ">");
  if (colon <= 0 || gt <= 1 || gt > colon) return std::nullopt;
  Ax25Frame f;
  f.pid = 0xF0;
  f.info = Mid(line, colon + 1);
  f.source.call = UCase(Trim(Left(line, gt - 1)));
  const std::vector<std::string> parts = SplitCommas(Mid(line, gt + 1, colon - gt - 1));
  f.destination.call = UCase(parts[0]);
  std::size_t lastUsed = 0;
  for (std::size_t i = 1; i < parts.size(); ++i)
    if (!parts[i].empty() && parts[i].back() == '*') lastUsed = i;
  for (std::size_t i = 1; i < parts.size() && i <= kAx25MaxDigipeaters; ++i) {
    std::string call = parts[i];
    if (!call.empty() && call.back() == '*') call.pop_back();
    f.digipeaters.push_back(Ax25Address{UCase(call), i <= lastUsed});
  }
  return f;
}

std::string FormatTnc2(const Ax25Frame& f) {
  std::string out = f.source.call + ">" + f.destination.call;
  std::size_t lastUsed = 0;
  for (std::size_t i = 0; i < f.digipeaters.size(); ++i)
    if (f.digipeaters[i].repeated) lastUsed = i + 1;
  for (std::size_t i = 0; i < f.digipeaters.size(); ++i)
    out += "," + f.digipeaters[i].call + (i + 1 == lastUsed ? "*" : "");
  return out + ":" + f.info;
}

std::vector<uint8_t> EncodeAir(const Ax25Frame& f) {
  std::vector<uint8_t> out;
  PutAddress(out, f.destination.call, 0x80, false);
  PutAddress(out, f.source.call, 0x00, f.digipeaters.empty());
  for (std::size_t i = 0; i < f.digipeaters.size(); ++i)
    PutAddress(out, f.digipeaters[i].call, f.digipeaters[i].repeated ? 0x80 : 0x00,
               i + 1 == f.digipeaters.size());
  out.push_back(f.control);
  if (f.pid) out.push_back(*f.pid);
  out.insert(out.end(), f.info.begin(), f.info.end());
  return out;
}

}  // namespace tesk::sim
