// What the link tells the rest of the station: Monitor lines, notes, mailbox posts, the echo of
// an own frame, the link lamp and a program to start. The station connects these; each is called
// synchronously where the link used to write itself, so the order of effects (a Monitor line,
// then FrameReady, then the mailbox post) is what it always was.
#pragma once

#include <string>

namespace tesk {

class LinkEvents {
 public:
  virtual ~LinkEvents() = default;
  // A line in the Monitor's header colour, past every filter.
  virtual void MonitorLine(const std::string& text) = 0;
  // A note for the operator that takes no answer.
  virtual void Note(const std::string& text) = 0;
  // A post for the add-on programs in mailbox slot `slot`; the text may be rewritten.
  virtual void MailboxPost(std::string& text, int slot) = 0;
  // An own frame the engine will not report back (the slow-network emulation).
  virtual void OwnFrameSent(int port, const std::string& from, const std::string& to,
                            const std::string& data, const std::string& via) = 0;
  // The link lamp: its caption, and lit green (up) or red (down).
  virtual void LampCaption(const std::string& caption) = 0;
  virtual void LampLit(bool up) = 0;
  // Starts a program the way the command line's /RUN does.
  virtual void RunProgram(const std::string& commandLine) = 0;
};

}  // namespace tesk
