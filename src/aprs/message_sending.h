// APRS messages out: the press of the message send button, the ack request with its number for
// addressees that can answer one, the table of messages waiting for their ack, and the retry
// tick that sends them again until they are answered, given up or stopped.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class TransmitPrimitives;
class TxPanel;

class MessageSending {
 public:
  MessageSending(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                 TxPanel& panel, TransmitPrimitives& transmit);
  MessageSending(const MessageSending&) = delete;
  MessageSending& operator=(const MessageSending&) = delete;

  // The send button (and so Enter in the message field and send menu row 3), Stop Pending,
  // and the console's message lines.
  void RegisterCommands(CommandTable& commands);

  // The press of the message send button.
  void cmdTXAPRSMessage_Click();
  // Sends `text` to `forCall`, cut to the frame's room, with an ack request and a pending row
  // when the addressee is one that can answer it.
  void TXUIviewAck(std::string& forCall, std::string& text);
  // One tick of tmrSendAckMes: serves the first pending row.
  void SendAckMesTick();
  // Gives up every pending row and stops the tick; only while the tick runs.
  void mnuStopPending_Click();
  // The sent list's clearing: the rows go, their numbers stay, the tick stops.
  void ClearSent();
  // The factory reset: the whole table, numbers and retry counts included.
  void EraseAll();

  bool retryTickRunning() const;
  // The sent list, one line a row with text: the frame text, its number and whether it was
  // answered.
  std::vector<std::string> SentLines() const;

 private:
  static bool AsksAck(const std::string& forCall);

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  TxPanel& m_panel;
  TransmitPrimitives& m_transmit;
  std::unique_ptr<Timer> m_tmrSendAckMes;
};

}  // namespace tesk
