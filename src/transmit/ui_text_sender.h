// From a press to one UI frame: the send button of the Text/data field, the header-only frame,
// the rows of the send menu, text dropped on the send button, and StuurMonitorTekst, which
// sends a text of any length in pieces of 80 (heard reports and the beacon file go through it).
#pragma once

#include <functional>
#include <string>

#include "main/main_window.h"
#include "main/run_state.h"
#include "platform/platform.h"
#include "settings/station_config.h"

namespace tesk {

class MHeardList;
class TransmitPrimitives;
class TxPanel;

class UiTextSender {
 public:
  // The rows of the send menu that other subsystems own; an empty hook does nothing.
  struct MenuHooks {
    std::function<void()> cmdTXAPRS_Click;         // row 2
    std::function<void()> cmdTXAPRSMessage_Click;  // row 3
    std::function<void()> Connecting;              // row 9
    std::function<void()> DisConnecting;           // rows 10 and 11
    std::function<bool()> retryTickRunning;        // the message retry tick, for mnuStopPending
  };

  UiTextSender(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
               TxPanel& panel, TransmitPrimitives& transmit, const MHeardList& heardList);
  ~UiTextSender();
  UiTextSender(const UiTextSender&) = delete;
  UiTextSender& operator=(const UiTextSender&) = delete;

  // The press of the Text/data send button (the guard is tested first).
  void cmdTXDataText_Click();
  // Row 0 of the send menu: a bare UI frame with the path and no text.
  void SendHeaderOnly();
  void menusends_Click(int row);
  // The send menu is about to open.
  void menusend_Click();
  // Dragging over the send button: may this be dropped?
  bool DropAllowed(const std::string& data, bool isText) const;
  // The drop itself; the drop effect (1 when the text went out, else 0).
  int Drop(const std::string& data, bool isText);
  // Sends RunState::MonitorSendText to the present To and Via.
  void StuurMonitorTekst();

  MenuHooks hooks;

 private:
  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  TxPanel& m_panel;
  TransmitPrimitives& m_transmit;
  const MHeardList& m_heardList;
};

}  // namespace tesk
