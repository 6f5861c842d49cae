// Starting and closing the modem program.
#include "link/modem_program.h"

#include "base/text.h"
#include "main/platform_helpers.h"
#include "modules/add_ons.h"

namespace tesk {

void ModemProgram::StartModemProgram() {
  if (m_config.AutoRunModemProgram == 0) return;
  long window = 0;
  if (m_config.TypeOfModem == 1) {
    if (m_config.ModemProgramPath.empty())
      m_config.ModemProgramPath = JoinPath(m_run.AppPath, "soundmodem.exe");
    window = FindTopWindow(m_platform.shell(), "soundmodem");
  }
  if (window == 0) window = FindTopWindow(m_platform.shell(), "Packet Engine");
  if (window != 0) return;
  m_addOns.RunBatchApplication("/RUN" + m_config.ModemProgramPath);
  m_run.ModemStartNote = m_platform.clock().localNow().secondsSinceMidnight();
  m_main.form.visible = true;
  m_platform.views().show("main");
  m_platform.loop().waitUntil(2.0, {});
}

void ModemProgram::DetectProgWindow() {
  std::string title;
  switch (m_config.TypeOfModem) {
    case 0:
      if (Len(m_config.OtherTypeModemCaption) >= 3) title = m_config.OtherTypeModemCaption;
      break;
    case 1:
      title = "Soundmodem";
      break;
    case 2:
    case 3:
      title = "Packet Engine";
      break;
    default:
      break;
  }
  if (title.empty()) return;
  if (FindTopWindow(m_platform.shell(), title) == 0) return;
  m_platform.shell().closeProgramWindow(FindTopWindow(m_platform.shell(), title));
}

}  // namespace tesk
