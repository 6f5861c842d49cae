// The messenger window frmMessenger: the messages heard, by one of six filters, and the
// messages sent with an ack request, refreshed every 30 seconds while open; with copy, print,
// save and clear, and the reply to a sender. It holds nothing of its own: each fill reads the
// message list and the table of messages sent again.
#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class MessageSending;

struct MessengerWindow {
  Window form = [] {
    Window w;
    w.caption = "APRS Messenger";
    return w;
  }();
  ListBox List1;  // the messages heard, as the filter selects them
  ListBox List2;  // the messages sent with an ack request
  Label lblAPRSMessangerViewer;
  std::array<OptionButton, 6> OptViewMessages = [] {
    std::array<OptionButton, 6> o;
    const char* captions[6] = {"All", "Mine", "BLN", "NWS", "SAT", "EMAIL"};
    for (std::size_t i = 0; i < o.size(); ++i)
      o[i].caption = captions[i];
    o[0].value = true;
    return o;
  }();
  Label LlbTotMes;
  std::array<OptionButton, 2> OptLogTypeMessages = [] {
    std::array<OptionButton, 2> o;
    o[0].caption = "All messages";
    o[1].caption = "Only digipeated";
    return o;
  }();
  Frame FrameSent;  // around List2; its caption counts the list before it is filled
  Button Command2, cmdMesClear, CmdSentOpt, CmdStopPend, cmdMesCopySel, cmdMesCopy, cmdMesPrint,
      cmdMesSave, cmdOpen, cmdClose;
  // The pop-up of List1: 0 copy, 1 show in a box, 2 reply. Set by a right press, the view pops it.
  std::array<MenuItem, 3> menueditas = [] {
    std::array<MenuItem, 3> m;
    m[0].caption = "Copy";
    m[1].caption = "Show";
    m[2].caption = "Reply";
    return m;
  }();
  bool menueditasPopup = false;
  std::string fontName = "Courier New";
};

class Messenger {
 public:
  static constexpr const char* kWindowName = "frmMessenger";
  static constexpr WindowKind kWindowKind = WindowKind::Messenger;
  static constexpr int kRefreshMs = 30000;
  static constexpr int kFilters = 6;

  Messenger(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
            MessageSending& sending);
  Messenger(const Messenger&) = delete;
  Messenger& operator=(const Messenger&) = delete;

  // The main window's Messenger button, and the console's message lines.
  void RegisterCommands(CommandTable& commands);

  // cmdLoadMessenger: loads, fills and shows the window.
  void cmdLoadMessenger_Click();
  // List1 and the total for the filter row (0 to 5); List2 and its frame from the sent table.
  void ToonMyMes(int filter);
  void ToonMySent();
  void OptViewMessages_Click(int index);
  void OptLogTypeMessages_Click(int index);
  void Command2_Click();  // Refresh Now, as the timer
  void List1_Click();
  void List1_DblClick();
  void List1_RightPress();
  void menueditas_Click(int index);
  void cmdMesClear_Click();
  void CmdSentOpt_Click();
  void CmdStopPend_Click();
  void cmdMesCopySel_Click();
  void cmdMesCopy_Click();
  void cmdMesPrint_Click();
  void cmdMesSave_Click();
  void cmdOpen_Click();
  void cmdClose_Click();

  // The row of OptViewMessages that is selected.
  int filter() const;
  MessengerWindow& window() { return m_window; }
  Timer& timer() { return *m_timer; }

 private:
  std::vector<std::string> Stored() const;
  std::string SelectedEntry() const;
  std::string MessagesFolder() const;
  void RefreshViews();

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  MessageSending& m_sending;
  MessengerWindow m_window;
  std::unique_ptr<Timer> m_timer;  // Timer1
};

}  // namespace tesk
