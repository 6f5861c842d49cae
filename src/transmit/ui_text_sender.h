// From a press to one UI frame: the send button of the Text/data field, the header-only frame,
// the rows of the send menu, text dropped on the send button, and StuurMonitorTekst, which
// sends a text of any length in pieces of 80 (heard reports and the beacon file go through it).
#pragma once

#include <functional>
#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class MHeardList;
class TransmitPrimitives;
class TxPanel;

class UiTextSender {
 public:
  // Rows 2, 3 and 9 to 11 of the send menu run the position, message and connection commands
  // of `commands`, which their subsystems register.
  UiTextSender(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
               TxPanel& panel, TransmitPrimitives& transmit, const MHeardList& heardList,
               CommandTable& commands);

  // The Text/data send, the send menu and the console's header line.
  void RegisterCommands(CommandTable& commands);
  UiTextSender(const UiTextSender&) = delete;
  UiTextSender& operator=(const UiTextSender&) = delete;

  // The press of the Text/data send button (the guard is tested first).
  void cmdTXDataText_Click();
  // Row 0 of the send menu: a bare UI frame with the path and no text.
  void SendHeaderOnly();
  void menusends_Click(int row);
  // The send menu is about to open: Stop Pending follows the rule of its command, which the
  // message sending registers (enabled while its retry tick runs).
  void menusend_Click();
  // Dragging over the send button: may this be dropped?
  bool DropAllowed(const std::string& data, bool isText) const;
  // The drop itself; the drop effect (1 when the text went out, else 0).
  int Drop(const std::string& data, bool isText);
  // Sends RunState::MonitorSendText to the present To and Via.
  void StuurMonitorTekst();

 private:
  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  TxPanel& m_panel;
  TransmitPrimitives& m_transmit;
  const MHeardList& m_heardList;
  CommandTable& m_commands;
};

}  // namespace tesk
