// The transmit part of the main window: the six fields, their send buttons, length counters and
// list edit buttons, the Send menu with Stop Pending, and the heard report's two menus. The
// transmit fields' rules and the senders fill it.
#pragma once

#include <array>
#include <string>

#include "platform/controls.h"
#include "state/menu_array.h"

namespace tesk {

struct TransmitPanel {
  ComboBox cmbToCall, cmbViaCall, cmbDataText, cmbAPRSPos, cmbFor, cmbAPRSMessage;
  Button cmdTXDataText, cmdTXAPRS, cmdTXAPRSMessage, cmdTXConnect, cmdTXMHeard;
  Button CmdTXMultiLineDirect;

  // LblMaxLengte 0 to 2 count the Text/data, APRS comment and Message fields, each in its own
  // colour below the limit and in red above it.
  std::array<Label, 3> LblMaxLengte = [] {
    std::array<Label, 3> counters;
    const Color under[3] = {RGB(0, 128, 0), RGB(0, 0, 255), RGB(128, 0, 128)};
    for (int i = 0; i < 3; ++i) {
      counters[i].caption = "0";
      counters[i].foreColor = under[i];
      counters[i].toolTip = "Number of characters";
    }
    return counters;
  }();
  // Open the list editor on the Text/data, APRS comment and Message histories.
  std::array<Button, 3> cmdEditTXData = [] {
    std::array<Button, 3> buttons;
    const char* tips[3] = {"Edit the Text/data list", "Edit the APRS position comment list",
                           "Edit the APRS message list"};
    for (int i = 0; i < 3; ++i)
      buttons[i].toolTip = tips[i];
    return buttons;
  }();
  // The transmit field that has the keyboard focus, by name; a handler that moves the focus
  // (Enter in cmbFor) sets it, and the view follows.
  std::string txFocus;

  MenuArray menusends, menuheardsend, menumheardsend;
  MenuItem mnuStopPending = [] {
    MenuItem m;
    m.caption = "Stop Pending";
    m.enabled = false;  // only while the message retry tick runs
    return m;
  }();
  // Set by a right press on cmdTXMHeard: the view pops up the heard report menu.
  bool menumheardsendPopup = false;
  // The Multi-Line rows of the send menu: pages 0 to 2, and row 3 opening the window. A right
  // press on CmdTXMultiLineDirect sets the flag: the view pops the rows up beside the button.
  MenuArray mnu_multiline;
  bool mnu_multilinePopup = false;
};

}  // namespace tesk
