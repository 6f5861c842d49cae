// A transmit panel on the sim platform with its own settings, run state and main window, and
// senders that count their presses: enough to drive the fields as an operator does.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "alarms/meld.h"
#include "core/ports.h"
#include "platform/sim/sim_platform.h"
#include "transmit/tx_panel.h"

namespace tesk::testing {

class TxPanelTest : public ::testing::Test {
 protected:
  TxPanelTest() {
    sender(Command::cmdTXDataText, [this] { sent.push_back("text:" + main.cmbDataText.text); });
    sender(Command::cmdTXAPRS, [this] { sent.push_back("aprs:" + main.cmbAPRSPos.text); });
    sender(Command::cmdTXAPRSMessage,
           [this] { sent.push_back("msg:" + main.cmbAPRSMessage.text); });
  }

  // Registers what a send button's command runs.
  void sender(Command command, std::function<void()> run) {
    commands.addClick({command}, std::move(run));
  }

  // Numbered entries "<prefix>1" ... "<prefix>n".
  static std::vector<std::string> Entries(const std::string& prefix, int n) {
    std::vector<std::string> out;
    for (int i = 1; i <= n; ++i)
      out.push_back(prefix + std::to_string(i));
    return out;
  }
  // Types `text` into a field as the view reports it: the text, the caret at its end, no pick.
  void type(TxField field, const std::string& text) {
    ComboBox& box = panel.box(field);
    box.text = text;
    box.selStart = static_cast<long>(text.size());
    box.selLength = 0;
    box.listIndex = -1;
    panel.Change(field);
  }
  std::vector<ShownBox>& boxes() { return platform.simDialogs.shown; }

  SimPlatform platform;
  StationConfig config;
  RunState run;
  MainWindow main;
  Meld meld{platform, main};
  Ports ports{platform, config, run, main, meld};
  int beaconRestarts = 0;
  CommandTable commands;
  TxPanel panel{platform, config, run, main, ports, meld, commands, [this] { ++beaconRestarts; }};
  std::vector<std::string> sent;
};

}  // namespace tesk::testing
