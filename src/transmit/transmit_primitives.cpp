// The transmit primitives. Neither checks the text nor reports anything itself: a failing TCP
// send is reported by the TCP link, a failing library call is passed over.
#include "transmit/transmit_primitives.h"

#include <limits>

#include "alarms/packet_log.h"
#include "aprs/message_reception.h"
#include "base/text.h"
#include "core/digi_flash.h"
#include "core/monitor_console.h"
#include "heard/mheard_list.h"
#include "link/agw_direct.h"
#include "link/tcp_link.h"

namespace tesk {

namespace {
constexpr int16_t kSoundModem = 1;
constexpr double kMonitorTextPause = 0.5;
constexpr int kEchoSleepMs = 20;
}  // namespace

TransmitPrimitives::TransmitPrimitives(Platform& platform, StationConfig& config, RunState& run,
                                       MainWindow& main, Parts parts)
    : m_platform(platform), m_config(config), m_run(run), m_main(main), m_parts(parts) {}

void TransmitPrimitives::CountTransmission(int16_t type) {
  // A type outside the table is an error that skips the count; the frame still goes.
  if (type < 0 || type >= static_cast<int16_t>(m_run.TxCounters.size())) return;
  int16_t& counter = m_run.TxCounters[static_cast<std::size_t>(type)];
  // A 16-bit counter that is full stays full: the overflow is an error passed over.
  if (counter < std::numeric_limits<int16_t>::max()) ++counter;
}

void TransmitPrimitives::AGWPE_UI_Send(const std::string& text, int16_t type) {
  // UZ7HO SoundModem needs kind "V" with no digipeaters for a frame without a path, which a
  // Via of one blank gives. It stays so for the rest of the run; deliberate.
  if (m_config.Digistation.empty() && m_config.TypeOfModem == kSoundModem)
    m_config.Digistation = " ";
  m_run.CurrentPort = m_config.AGWPERadioPort;
  CountTransmission(type);
  if (m_run.LanMode != 0) {
    // Monitor texts go out in pieces; the pause lets the engine keep up. Events run meanwhile.
    if (type == TxMonitorText) m_platform.loop().waitUntil(kMonitorTextPause, {});
    if (m_platform.loop().ended()) return;
    m_parts.tcpLink.AGWWinSockControlUI(m_run.CurrentPort, "", m_config.YourCallSign,
                                        m_config.ToCall, text, m_config.Digistation);
  } else {
    // Only the box decides the kind here; the Via value is not looked at.
    const int32_t kind = Trim(m_main.cmbViaCall.text).empty() ? 'U' : 'V';
    m_parts.direct.AGWPutData(m_run.ToVia, text, kind, static_cast<int32_t>(Len(text)),
                              m_run.CurrentPort);
  }
  m_parts.lamps.TransmitLamp();
}

void TransmitPrimitives::AGWPE_Con_Send(std::string& text) {
  CountTransmission(TxConnectedData);
  m_run.ToVia = m_run.ConnectedCall;
  m_run.CurrentPort = m_config.AGWPERadioPort;
  // After a disconnect the connected call may be gone: the To box names the station then.
  if (m_run.ToVia.empty()) m_run.ToVia = Trim(m_main.cmbToCall.text) + " ";
  // Connected mode exists only through the library, whatever the LAN mode.
  m_parts.direct.AGWPutData(m_run.ToVia, text, 'D', static_cast<int32_t>(Len(text)),
                            m_run.CurrentPort);
  m_parts.lamps.TransmitLamp();
}

void TransmitPrimitives::EchoOwnFrame(int port, const std::string& from, const std::string& to,
                                      const std::string& data, const std::string& via) {
  ++m_echoes;
  const Clock& clock = m_platform.clock();
  std::string header = from + " To " + to;
  if (!Trim(via).empty()) header += " Via " + via;
  header += " <UI pid=F0 Len=" + std::to_string(Len(data)) + " >[" +
            clock.longTime(clock.localNow()) + "].";
  // With the port shown ([ShowPortInHeader] 2) the header starts with the digit and colon, as
  // the core cuts received headers, so the MHeard list finds the call at the same place.
  const std::string prefix =
      m_config.ShowPortInHeader != 0 ? std::to_string(port + 1) + ":Fm " : std::string("Fm ");
  m_parts.monitor.NotaInMonitor(prefix + header, 0);
  m_parts.monitor.NotaInMonitor(data + CRLF, 1);
  if (m_config.AutomaticLogging != 0) m_parts.packetLog.LogPacketToDisk(1, header, data);
  m_parts.heardList.AddToMheardList(prefix + header + CRLF);
  std::string logHeader = prefix + header;
  std::string logData = data + "    " + std::string(1, '\0');
  m_parts.messages.LogAPRSMessages(logHeader, logData);
  m_parts.lamps.TransmitLamp();
  m_platform.loop().sleepMs(kEchoSleepMs);
}

}  // namespace tesk
