// Reception of APRS messages. The Monitor's frame routine hands it every message line, the own
// frame's echo every frame sent: the ack and the auto-reply go out from here, a received ack is
// booked against the table of messages sent, and each message heard is stored once in the list
// the messenger shows. Both routines take header and data by reference and rewrite them.
#pragma once

#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class MonitorConsole;
class SoundTable;
class TransmitPrimitives;
class TxPanel;

class MessageReception {
 public:
  struct Parts {
    MonitorConsole& monitor;  // holds MessageFlagForMe, the colour of the next data line
    TxPanel& txPanel;
    TransmitPrimitives& transmit;
    SoundTable& sounds;
  };
  MessageReception(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                   Parts parts);
  MessageReception(const MessageReception&) = delete;
  MessageReception& operator=(const MessageReception&) = delete;

  // Stores a received message line in the message list, once, and raises the signs of a
  // message for this station. `data` is cut to the message.
  void LogAPRSMessages(std::string& header, std::string& data);
  // Answers a message for this station that asks for an ack (the ack, then the auto-reply), or
  // books a received ack. `header` becomes the sender's call.
  void AutoAckCall(std::string& header, std::string& data);

  // The sender in a Monitor header: from place [ShowPortInHeader] + 3 up to "To", trimmed.
  static std::string SenderOf(const std::string& header, int showPortInHeader);
  // The received text as the list keeps it: cut at the first NUL, the line end and blanks gone.
  static std::string CutMessage(const std::string& data);

 private:
  void AnswerAckRequest(const std::string& sender, const std::string& data, long brace);
  void BookAck(const std::string& sender, const std::string& number);
  void Store(const std::string& entry);
  void SignalMessageForMe(const std::string& sender);
  void SendAfterASecond(std::string text);

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  Parts m_parts;
};

}  // namespace tesk
