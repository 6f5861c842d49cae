// Reception of APRS messages. Built later; the Monitor's frame routine already hands it every
// message line. Both routines take header and data by reference: the real ones rewrite them
// (the data is cut, the header becomes the sender's call) before the data line is painted.
#pragma once

#include <string>

namespace tesk {

class MessageReception {
 public:
  // Stores a received message line in the message list.
  void LogAPRSMessages(std::string& header, std::string& data) {
    (void)header;
    (void)data;
  }
  // Answers a message that asks for an ack, or books a received ack.
  void AutoAckCall(std::string& header, std::string& data) {
    (void)header;
    (void)data;
  }
};

}  // namespace tesk
