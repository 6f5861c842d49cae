// Received connection frames. Connected text is handed on in two pieces: the first line, then
// the rest, which starts with CR LF, so only the first line of a frame can be a command.
#include "connected/connection_control.h"

#include "connected/remote_commands.h"

namespace tesk {

bool ConnectionControl::ConnectionUp(const std::string& frameCall) {
  (void)frameCall;
  return false;
}

void ConnectionControl::ConnectedData(std::string& firstLine, std::string& data) {
  if (!firstLine.empty()) {
    m_handOffs.note("PackCommand(first line)");
    m_remote.PackCommand(firstLine);
  }
  // Compared with the first line as PackCommand may have left it.
  if (data != firstLine) {
    m_handOffs.note("PackCommand(rest)");
    m_remote.PackCommand(data);
  }
  m_run.Connected = -1;
}

void ConnectionControl::Disconnected(const std::string& frameCall) {
  (void)frameCall;
}

}  // namespace tesk
