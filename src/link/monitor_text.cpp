// Taking engine monitor texts apart and writing them in the one shape the core reads.
#include "link/monitor_text.h"

#include <cstdio>

#include "base/text.h"

namespace tesk {

namespace {

// The value behind `key` in a type text ("Len=" in "UI pid=F0 Len=5 "), up to the next blank.
std::string TokenValue(std::string_view type, std::string_view key) {
  const long at = InStr(type, key);
  if (at == 0) return "";
  const std::string rest = Mid(type, at + Len(key));
  const long blank = InStr(rest, " ");
  return blank > 0 ? Left(rest, blank - 1) : rest;
}

// The PID of a type text: "F0" or "0xF0" (hexadecimal either way).
std::optional<int> TypePid(std::string_view type) {
  std::string v = UCase(TokenValue(type, "pid="));
  if (Left(v, 2) == "0X") v = Mid(v, 3);
  if (v.empty() || v.size() > 2 || v.find_first_not_of("0123456789ABCDEF") != std::string::npos)
    return std::nullopt;
  return std::stoi(v, nullptr, 16);
}

std::optional<long> TypeLen(std::string_view type) {
  const std::string v = TokenValue(type, "Len=");
  if (v.empty() || v.size() > 6 || v.find_first_not_of("0123456789") != std::string::npos)
    return std::nullopt;
  return std::stol(v);
}

bool IsUiType(std::string_view type) {
  return type == "UI" || Left(type, 3) == "UI ";
}

std::string Hex2(int value) {
  char buf[8];
  std::snprintf(buf, sizeof buf, "%02X", value & 0xFF);
  return buf;
}

// Splits "CALL To DEST[ Via LIST]" at its markers; false when " To " is missing.
bool SplitCalls(std::string_view calls, MonitorText& m) {
  const long to = InStr(calls, " To ");
  if (to == 0) return false;
  m.from = Left(calls, to - 1);
  const std::string rest = Mid(calls, to + 4);
  const long via = InStr(rest, " Via ");
  m.to = via > 0 ? Left(rest, via - 1) : rest;
  m.via = via > 0 ? Mid(rest, via + 5) : "";
  return !m.from.empty() && !m.to.empty();
}

}  // namespace

std::optional<MonitorText> ParseMonitorText(std::string_view text) {
  const long cr = InStr(text, "\r");
  const std::string header = CutAtNul(cr > 0 ? Left(text, cr - 1) : std::string(text));
  MonitorText m;
  m.rawInfo = cr > 0 ? Mid(text, cr + 1) : "";
  const long fm = InStr(header, ":Fm ");
  const std::string portText = Trim(Left(header, fm - 1));
  if (fm == 0 || portText.empty() || portText.size() > 3 ||
      portText.find_first_not_of("0123456789") != std::string::npos)
    return std::nullopt;
  m.port = std::stoi(portText);
  const std::string rest = Mid(header, fm + 4);
  const long open = InStr(rest, " <");
  if (open == 0) return std::nullopt;
  const long close = InStr(open, rest, ">");
  if (close == 0 || !SplitCalls(Left(rest, open - 1), m)) return std::nullopt;
  m.type = Mid(rest, open + 2, close - open - 2);
  std::string tail = Mid(rest, close + 1);
  const long bracket = InStrRev(tail, "[");
  m.afterType = bracket > 0 ? Left(tail, bracket - 1) : tail;
  return m;
}

std::string MonitorInfo(const MonitorText& m) {
  std::string info = m.rawInfo;
  while (!info.empty() && info.back() == '\0')
    info.pop_back();
  const std::optional<long> len = TypeLen(m.type);
  if (len && Len(info) > *len) {
    info.resize(static_cast<std::size_t>(*len));
  } else if (!info.empty() && info.back() == '\r') {
    info.pop_back();
  }
  return info;
}

std::vector<std::string> ViaCalls(std::string_view via) {
  std::vector<std::string> calls;
  std::string current;
  auto flush = [&] {
    if (!current.empty()) calls.push_back(current);
    current.clear();
  };
  for (char c : via) {
    if (c == ',' || c == ' ') {
      flush();
    } else if (c != '*') {
      current += c;
    }
  }
  flush();
  return calls;
}

std::string ViaFromRaw(const Ax25Frame& raw) {
  std::string via;
  for (const Ax25Address& d : raw.digipeaters) {
    if (!via.empty()) via += ",";
    via += d.call;
    if (d.repeated) via += "*";
  }
  return via;
}

bool SamePacket(const MonitorText& m, const Ax25Frame& raw) {
  if (UCase(m.from) != raw.source.call || UCase(m.to) != raw.destination.call) return false;
  const std::vector<std::string> calls = ViaCalls(m.via);
  if (calls.size() != raw.digipeaters.size()) return false;
  for (std::size_t i = 0; i < calls.size(); ++i)
    if (UCase(calls[i]) != raw.digipeaters[i].call) return false;
  return true;
}

std::string BuildMonitorText(const MonitorText& m, const Ax25Frame* raw, const DateTime& local) {
  const std::string via = raw ? ViaFromRaw(*raw) : m.via;
  const std::string info = raw ? raw->info : MonitorInfo(m);
  std::string type = m.type;
  if (IsUiType(m.type)) {
    // One form for UI frames whatever the engine wrote ("PF=0", "pid=0xF0" and the like go).
    const std::optional<int> pid =
        raw && raw->pid ? std::optional<int>(*raw->pid) : TypePid(m.type);
    const std::optional<long> len = raw ? std::optional<long>(Len(info)) : TypeLen(m.type);
    type = "UI pid=" + Hex2(pid.value_or(0xF0)) +
           " Len=" + std::to_string(len.value_or(Len(info))) + " ";
  }
  std::string text = " " + std::to_string(m.port) + ":Fm " + m.from + " To " + m.to;
  if (!via.empty()) text += " Via " + via;
  text += " <" + type + ">" + m.afterType + "[" + Format00(local.hour) + ":" +
          Format00(local.minute) + ":" + Format00(local.second) + "]\r";
  return text + info + "\r";
}

}  // namespace tesk
