// The port rows and the port display. The transmit row asks first; the receive row tells
// what it did in a note.
#include "core/ports.h"

#include <string>

#include "alarms/meld.h"
#include "base/text.h"

namespace tesk {

void Ports::ToonAktievePoort() {
  m_run.CurrentPort = m_config.AGWPERadioPort;
  const std::string tx = "Communication Ports: TX-" + std::to_string(m_run.CurrentPort + 1);
  if (m_config.AGWPERXPort < 6)
    m_main.FrameComm.caption = tx + " / RX-" + std::to_string(m_config.AGWPERXPort + 1);
  else
    m_main.FrameComm.caption = tx + " / RX All";
  m_platform.views().refresh(WindowKind::Main);
}

void Ports::AGWPortRX(int index) {
  if (index == m_config.AGWPERXPort || index >= kRows) return;
  if (index == 6) {
    m_meld.ShowMeld(std::string("RX Port") + CRLF + "Now listening on all available ports...", 0);
  } else {
    m_meld.ShowMeld(
        std::string("RX Port") + CRLF + "Now listening on port" + " " + std::to_string(index + 1),
        0);
  }
  m_config.AGWPERXPort = static_cast<int16_t>(index);
  m_main.menuAgwportRX[index].checked = true;
  ToonAktievePoort();
}

void Ports::AGWPorts(int index) {
  // The sixth transmit row cannot be taken here, although the LAN settings offer it.
  if (index == m_config.AGWPERadioPort || index >= 5) return;
  const MsgResult answer =
      m_platform.dialogs().msgBox("Are you sure you want to change the TX port?", MsgButtons::YesNo,
                                  MsgIcon::Question, "Change TX port");
  if (answer == MsgResult::No) return;
  m_run.CurrentPort = index;
  m_config.AGWPERadioPort = index;
  m_main.menuAgwport[index].checked = true;
  ToonAktievePoort();
}

void Ports::imgRXPortSelector_Click() {
  for (int i = 0; i < kRows; ++i)
    m_main.menuAgwportRX[i].checked = false;
  if (m_config.AGWPERXPort < 7) m_main.menuAgwportRX[m_config.AGWPERXPort].checked = true;
  m_platform.views().show(WindowKind::RxPortPopup);
}

void Ports::imgTXPortSelector_Click() {
  for (int i = 0; i < kRows; ++i)
    m_main.menuAgwport[i].checked = false;
  if (m_config.AGWPERadioPort < 6) m_main.menuAgwport[m_config.AGWPERadioPort].checked = true;
  m_platform.views().show(WindowKind::TxPortPopup);
}

void Ports::RegisterCommands(CommandTable& commands) {
  commands.addClick({Command::imgTXPortSelector}, [this] { imgTXPortSelector_Click(); });
  commands.addClick({Command::imgRXPortSelector}, [this] { imgRXPortSelector_Click(); });
  for (int i = 0; i < kRows; ++i) {
    const std::string port = "Port " + std::to_string(i + 1);
    commands.addRow(Command::menuAgwport, m_main.menuAgwport, i, port,
                    [this](int index) { AGWPorts(index); });
    // The last receive row listens on every port.
    commands.addRow(Command::menuAgwportRX, m_main.menuAgwportRX, i, i == 6 ? "All ports" : port,
                    [this](int index) { AGWPortRX(index); });
  }
}

}  // namespace tesk
