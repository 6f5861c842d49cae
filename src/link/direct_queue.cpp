// The direct-mode frame queue and the pairing of raw frames with their monitor texts.
#include "link/direct_queue.h"

#include <span>

#include "base/text.h"

namespace tesk {

namespace {

bool IsPairable(char kind) {
  // Own transmissions ("T") never come with a raw frame.
  return kind == 'U' || kind == 'I' || kind == 'S';
}

}  // namespace

void DirectFrameQueue::push(const AgwFrame& frame, const DateTime& at) {
  switch (frame.kind) {
    case 'K':
      pushRaw(frame);
      return;
    case 'U':
    case 'I':
    case 'S':
    case 'T':
      pushMonitor(frame, at);
      return;
    case 'C':
      // The core's name for a connection that has opened.
      pushNotice('c', frame.port, frame.callFrom, frame.data);
      return;
    case 'D':
    case 'd':
      pushNotice(frame.kind, frame.port, frame.callFrom, frame.data);
      return;
    case 'G':
      pushPorts(frame);
      return;
    default:
      return;
  }
}

void DirectFrameQueue::pushRaw(const AgwFrame& frame) {
  if (frame.data.size() < 2) return;
  const auto* bytes = reinterpret_cast<const uint8_t*>(frame.data.data());
  // Byte 0 is the engine's port byte (0, or the port shifted left by 4).
  std::optional<Ax25Frame> raw =
      DecodeAx25(std::span<const uint8_t>(bytes + 1, frame.data.size() - 1));
  if (!raw) return;
  if (!m_entries.empty()) {
    Entry& last = m_entries.back();
    if (IsPairable(last.frame.kind) && last.monitor && !last.raw && last.frame.port == frame.port &&
        SamePacket(*last.monitor, *raw)) {
      last.raw = std::move(raw);
      m_rawFollowsText = true;
      return;
    }
  }
  if (m_rawFollowsText) return;  // its text was handed out already
  m_pendingRaw = PendingRaw{frame.port, std::move(*raw)};
}

void DirectFrameQueue::pushPorts(const AgwFrame& frame) {
  // "count;Port1 text;Port2 text;...;" up to a NUL. The count is no port; Dire Wolf 1.6 also
  // lists the channels it has not set up, which the operator has no use for.
  const std::string list = CutAtNul(frame.data);
  for (long at = 1; at <= Len(list);) {
    const long semicolon = InStr(at, list, ";");
    const long end = semicolon > 0 ? semicolon : Len(list) + 1;
    const std::string entry = Trim(Mid(list, at, end - at));
    at = end + 1;
    if (Left(entry, 4) != "Port" || InStr(entry, "INVALID CHANNEL") > 0 ||
        InStr(entry, "Disabled") > 0)
      continue;
    // "PortN" counts from 1; a number the port byte cannot hold is the first port.
    const double number = Val(Mid(entry, 5));
    const int port = number >= 1 && number <= 256 ? static_cast<int>(number) - 1 : 0;
    pushNotice('G', port, "", entry);
  }
}

void DirectFrameQueue::pushMonitor(const AgwFrame& frame, const DateTime& at) {
  Entry entry;
  entry.frame = DirectFrame{frame.kind, frame.port, frame.callFrom, frame.data};
  entry.monitor = ParseMonitorText(frame.data);
  entry.at = at;
  if (IsPairable(frame.kind) && entry.monitor && m_pendingRaw && m_pendingRaw->port == frame.port &&
      SamePacket(*entry.monitor, m_pendingRaw->raw)) {
    entry.raw = std::move(m_pendingRaw->raw);
    m_rawFollowsText = false;
  }
  // A raw frame belongs to the text right after it or to none.
  if (IsPairable(frame.kind)) m_pendingRaw.reset();
  add(std::move(entry));
}

void DirectFrameQueue::pushNotice(char kind, int port, const std::string& call,
                                  const std::string& text) {
  Entry entry;
  entry.frame = DirectFrame{kind, port, call, text};
  add(std::move(entry));
}

void DirectFrameQueue::add(Entry entry) {
  if (m_entries.size() >= kMaxFrames) {
    m_entries.pop_front();
    ++m_dropped;
  }
  m_entries.push_back(std::move(entry));
}

std::optional<DirectFrame> DirectFrameQueue::pop() {
  if (m_entries.empty()) return std::nullopt;
  Entry entry = std::move(m_entries.front());
  m_entries.pop_front();
  DirectFrame out = std::move(entry.frame);
  if (entry.monitor) {
    out.text = BuildMonitorText(*entry.monitor, entry.raw ? &*entry.raw : nullptr, entry.at);
  } else if (IsPairable(out.kind) || out.kind == 'T') {
    // A text that is not a monitor header passes as the engine wrote it, up to its NUL.
    while (!out.text.empty() && out.text.back() == '\0')
      out.text.pop_back();
  }
  return out;
}

void DirectFrameQueue::clear() {
  m_entries.clear();
  m_pendingRaw.reset();
}

}  // namespace tesk
