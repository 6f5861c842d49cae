// Where the link's events land in the station.
#include "main/station_link_events.h"

#include "alarms/meld.h"
#include "core/monitor_console.h"
#include "modules/add_ons.h"
#include "modules/module_mailbox.h"
#include "transmit/transmit_primitives.h"

namespace tesk {

namespace {
constexpr Color kLampGreen = RGB(0, 170, 0);
constexpr Color kLampRed = 255;
}  // namespace

void StationLinkEvents::MonitorLine(const std::string& text) {
  m_parts.monitor.NotaInMonitor(text, 0);
}

void StationLinkEvents::Note(const std::string& text) {
  m_parts.meld.ShowMeld(text, 0);
}

void StationLinkEvents::MailboxPost(std::string& text, int slot) {
  m_parts.mailbox.TESKRegistryMod(text, slot);
}

void StationLinkEvents::OwnFrameSent(int port, const std::string& from, const std::string& to,
                                     const std::string& data, const std::string& via) {
  m_parts.transmit.EchoOwnFrame(port, from, to, data, via);
}

void StationLinkEvents::LampCaption(const std::string& caption) {
  m_strip.frmLogoTitle.caption = caption;
}

void StationLinkEvents::LampLit(bool up) {
  m_strip.frmLogoTitle.backColor = up ? kLampGreen : kLampRed;
}

void StationLinkEvents::RunProgram(const std::string& commandLine) {
  m_parts.addOns.RunBatchApplication(commandLine);
}

}  // namespace tesk
