// One frame per tick, shown as its header line and data lines.
#include "core/packet_core.h"

#include "base/text.h"
#include "core/monitor_console.h"
#include "link/tcp_link.h"

namespace tesk {

void PacketCore::Tick() {
  m_run.CurrentPort = m_config.AGWPERadioPort;
  m_platform.loop().yield();
  if (m_run.LanMode == 0) return;
  FrameSlot& slot = m_link.FrameSlot_;
  if (slot.FrameReady == 0) return;
  slot.FrameReady = 0;
  m_run.CurrentPort = slot.FramePort;
  // A TCP frame is read through its length byte: at most 255 characters.
  const std::string text = CutAtNul(Left(slot.FrameData, slot.FrameLen));
  long start = 1;
  bool first = true;
  while (start <= Len(text)) {
    long cr = InStr(start, text, "\r");
    std::string line = cr > 0 ? Mid(text, start, cr - start) : Mid(text, start);
    if (!line.empty() || !first) m_monitor.NotaInMonitor(line, first ? 0 : 1);
    first = false;
    if (cr == 0) break;
    start = cr + 1;
  }
}

}  // namespace tesk
