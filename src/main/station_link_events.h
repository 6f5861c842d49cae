// The station's side of the link's events: Monitor lines go to the Monitor, notes to the note
// window, posts to the mailbox, echoes to the transmit primitives, the lamp into the status strip
// and programs to the add-on runner.
#pragma once

#include "link/link_events.h"
#include "state/status_strip.h"

namespace tesk {

class AddOns;
class Meld;
class ModuleMailbox;
class MonitorConsole;
class TransmitPrimitives;

class StationLinkEvents : public LinkEvents {
 public:
  struct Parts {
    MonitorConsole& monitor;
    Meld& meld;
    ModuleMailbox& mailbox;
    TransmitPrimitives& transmit;
    AddOns& addOns;
  };
  StationLinkEvents(StatusStrip& strip, Parts parts) : m_strip(strip), m_parts(parts) {}

  void MonitorLine(const std::string& text) override;
  void Note(const std::string& text) override;
  void MailboxPost(std::string& text, int slot) override;
  void OwnFrameSent(int port, const std::string& from, const std::string& to,
                    const std::string& data, const std::string& via) override;
  void LampCaption(const std::string& caption) override;
  void LampLit(bool up) override;
  void RunProgram(const std::string& commandLine) override;

 private:
  StatusStrip& m_strip;
  Parts m_parts;
};

}  // namespace tesk
