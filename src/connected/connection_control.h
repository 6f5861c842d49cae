// The one connection channel, as far as received frames drive it: a connection coming up
// ("c"), connected text ("D") and a disconnect notice ("d"). The packet core calls these in
// direct mode only. The verdicts, notes and the terminal arrive with connected mode; the
// connected-text rule is here already, so that text reaches the remote commands.
#pragma once

#include <string>

#include "core/hand_off_log.h"
#include "platform/controls.h"
#include "state/run_state.h"

namespace tesk {

class RemoteCommands;

class ConnectionControl {
 public:
  ConnectionControl(RunState& run, RemoteCommands& remote, HandOffLog& handOffs)
      : m_run(run), m_remote(remote), m_handOffs(handOffs) {}

  // Kind "c". True when the handling of the frame ends here (a refused station or a second
  // caller); a new connection goes on.
  bool ConnectionUp(const std::string& frameCall);
  // Kind "D": the first line and the rest of the frame go to the terminal and PackCommand.
  void ConnectedData(std::string& firstLine, std::string& data);
  // Kind "d", for the TX port.
  void Disconnected(const std::string& frameCall);

  // The terminal window; only its caption is read so far (the "[AC]" mark of an assumed
  // connection). Its controls arrive with the terminal.
  Window frmConnected;

 private:
  RunState& m_run;
  RemoteCommands& m_remote;
  HandOffLog& m_handOffs;
};

}  // namespace tesk
