// The port display.
#include "main/ports.h"

#include <string>

namespace tesk {

void Ports::ToonAktievePoort() {
  m_run.CurrentPort = m_config.AGWPERadioPort;
  const std::string tx = "Communication Ports: TX-" + std::to_string(m_run.CurrentPort + 1);
  if (m_config.AGWPERXPort < 6)
    m_main.FrameComm.caption = tx + " / RX-" + std::to_string(m_config.AGWPERXPort + 1);
  else
    m_main.FrameComm.caption = tx + " / RX All";
}

}  // namespace tesk
