// One tick of the receive path, step by step. Both links end in the same locals; everything
// after the bring-in reads only those. The order of the hand-offs is part of the behaviour
// (later stages read what earlier ones changed), so each is noted in the hand-off log.
#include "core/packet_core.h"

#include "alarms/alarms.h"
#include "alarms/packet_log.h"
#include "aprs/message_reception.h"
#include "base/text.h"
#include "beacon/beacon_scheduler.h"
#include "connected/connection_control.h"
#include "core/digi_flash.h"
#include "core/digipeat.h"
#include "core/hand_off_log.h"
#include "core/monitor_console.h"
#include "core/monitor_filters.h"
#include "heard/mheard_list.h"
#include "link/tcp_link.h"
#include "modules/module_mailbox.h"
#include "platform/platform_helpers.h"

namespace tesk {

namespace {

constexpr std::size_t kFrameCallLength = 25;
constexpr std::size_t kFrameTextLength = 512;

bool IsConnectionKind(int32_t kind) {
  return kind == 'c' || kind == 'd' || kind == 'D';
}

}  // namespace

PacketCore::PacketCore(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                       Parts parts, GetData agwGetData)
    : AGWGetData(std::move(agwGetData)),
      m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_parts(parts) {}

void PacketCore::Tick() {
  // The timers never re-enter a running handler; this holds the rule for any other caller.
  if (m_running) return;
  m_running = true;
  RunTick();
  m_running = false;
}

void PacketCore::RunTick() {
  m_run.CurrentPort = m_config.AGWPERadioPort;
  m_platform.loop().yield();  // a socket event may fill the frame slot here
  if (m_platform.loop().ended()) return;
  Frame f;
  BringFrameIn(f);
  if (m_config.Beacon != 0) {
    m_parts.handOffs.note("TimedBeacon");
    // An item sent ends the tick: a LAN frame waits in the slot, a direct-mode frame is lost.
    if (m_parts.beacon.TimedBeacon()) return;
  }
  if (f.received != 0) {
    m_parts.handOffs.note("LogEerstPoorten");
    m_parts.tcpLink.LogEerstPoorten(f.text);
  }
  if (!f.forced && !PassesGate(f)) return;
  m_parts.beacon.SmartBeaconRelease(f.text);
  m_parts.tcpLink.FrameSlot_.FrameReady = 0;
  ServerCopy(f);
  m_parts.lamps.ReceiveLamp();
  if (m_config.Beacon != 0 && m_config.MHeard_AutoClear > 0) m_parts.heard.QuietSeconds = 0;
  f.split = SplitFrameText(f.text, f.length, m_config.ShowPortInHeader);
  ShowFrame(f);
  m_parts.handOffs.note("buffer limit");
  m_parts.monitor.BufferLimit();
  AlarmTests(f);
  if (m_run.LanMode != 0) return;
  ConnectionRules(f);
}

void PacketCore::BringFrameIn(Frame& f) {
  f.call = std::string(kFrameCallLength, ' ');
  f.text = std::string(kFrameTextLength, ' ');
  if (m_run.LanMode != 0) {
    FrameSlot& slot = m_parts.tcpLink.FrameSlot_;
    f.received = slot.FrameReady;
    if (f.received == 0) return;
    f.call = FixedLength(slot.FrameFrom, kFrameCallLength);
    f.text = FixedLength(slot.FrameData, kFrameTextLength);
    f.kind = Asc(slot.FrameKind);
    f.length = slot.FrameLen;  // one byte on the wire: a TCP frame is at most 255 long
    m_run.CurrentPort = slot.FramePort;
    return;
  }
  if (AGWGetData) f.received = AGWGetData(f.call, f.text, f.kind, f.length, f.port);
  f.call = FixedLength(f.call, kFrameCallLength);
  f.text = FixedLength(f.text, kFrameTextLength);
  // Connection events go on whatever the library said and pass the gate (direct mode only).
  if (IsConnectionKind(f.kind)) {
    f.received = 1;
    f.forced = true;
  }
}

bool PacketCore::PassesGate(const Frame& f) const {
  if (f.received == 0) return false;
  // A frozen Monitor stops reception itself: no list, no log, no alarm.
  if (m_main.menuedits[100].checked) return false;
  const int rx = m_config.AGWPERXPort;
  return rx >= 6 || Trim(Mid(f.text, 2, 2)) == std::to_string(rx + 1) + ":";
}

void PacketCore::ServerCopy(const Frame& f) {
  if (m_config.TESKServer == 0 && m_run.ServerSwitch == 0) return;
  std::string text = CutAtNul(f.text);
  if (Len(text) <= 1) return;
  m_parts.handOffs.note("TESKRegistryMod");
  m_parts.mailbox.TESKRegistryMod(text, m_run.ServerSwitch);
  if (WriteDataToDisk == -1) {
    // The whole buffer with its NUL and padding, no line end: only the last frame, for add-ons.
    m_parts.handOffs.note("WriteTextFile(UIdata.dat)");
    WriteTextFile(f.text, JoinPath(m_run.AppPath, "UIdata.dat"), 0);
  }
}

void PacketCore::ShowFrame(Frame& f) {
  std::string& header = f.split.header;
  if (m_config.ShowUTCInHeader != 0) header = m_parts.monitor.HeaderWithUTC(header);
  // An assumed connection: its partner's frames count as connected data. The two positions
  // are combined with a bitwise AND, so it fails when they share no bit; kept on purpose.
  const long partner = InStr(header, "Fm " + m_run.ConnectedCall + " To " + m_config.YourCallSign);
  const long assumed = InStr(m_parts.connection.frmConnected.caption, "[AC]");
  if ((partner & assumed) != 0) f.kind = 'D';
  if (m_parts.filters.FilterPasses(header)) PaintFrame(f);
}

void PacketCore::PaintFrame(Frame& f) {
  std::string& header = f.split.header;
  std::string& data = f.split.data;
  MonitorConsole& monitor = m_parts.monitor;
  HandOffLog& log = m_parts.handOffs;
  monitor.RemoveDouble(header, data);
  if (!header.empty() && header != data) {
    log.note("AddToMheardList");
    m_parts.heard.AddToMheardList(header);
  }
  monitor.KeepCaret();
  // With "No header" the own digipeats go uncounted, as LogDigi is not reached; kept on purpose.
  if (!header.empty() && !m_main.chkViewDataOnly.checked()) {
    log.note("LogDigi");
    const bool digipeated = m_parts.digipeat.LogDigi(header);
    log.note("header line");
    monitor.PaintHeader(header, digipeated);
  }
  if (Len(data) > 1 && data.back() == '\0') data.pop_back();
  if (Left(data, 1) == ":" && Mid(data, 11, 1) == ":") {
    log.note("LogAPRSMessages");
    m_parts.messages.LogAPRSMessages(header, data);
    log.note("AutoAckCall");
    m_parts.messages.AutoAckCall(header, data);
  }
  log.note("data line");
  monitor.PaintData(data);  // even when empty: a header-only frame gives an empty line
  monitor.RestoreCaret();
  if (m_config.AutomaticLogging != 0) {
    log.note("LogPacketToDisk(1)");
    m_parts.packetLog.LogPacketToDisk(1, header, data);
  }
  if (m_config.AutoDigiLogBook != 0) {
    log.note("LogPacketToDisk(2)");
    m_parts.packetLog.LogPacketToDisk(2, header, data);
  }
}

void PacketCore::AlarmTests(const Frame& f) {
  const std::string& header = f.split.header;
  const std::string& data = f.split.data;
  if (m_config.AlarmSet == 1 && InStr(UCase(header), UCase(m_config.AlarmSetHeaderText)) > 0) {
    m_parts.handOffs.note("PlayAlarm(1)");
    m_parts.alarms.PlayAlarm(1, header, data);
  }
  if (m_config.AlarmSet == 2 && InStr(UCase(data), UCase(m_config.AlarmSetDataText)) > 0) {
    m_parts.handOffs.note("PlayAlarm(2)");
    m_parts.alarms.PlayAlarm(2, header, data);
  }
}

void PacketCore::ConnectionRules(Frame& f) {
  ConnectionControl& connection = m_parts.connection;
  HandOffLog& log = m_parts.handOffs;
  // Each block tests the kind for itself.
  if (f.kind == 'c') {
    log.note("ConnectionUp");
    if (connection.ConnectionUp(f.call)) return;
  }
  if (f.kind == 'D') {
    log.note("ConnectedData");
    connection.ConnectedData(f.split.firstLine, f.split.data);
  }
  if (f.kind == 'd' && Val(Left(f.text, 1)) == m_run.CurrentPort) {
    log.note("Disconnected");
    connection.Disconnected(f.call);
  }
}

}  // namespace tesk
