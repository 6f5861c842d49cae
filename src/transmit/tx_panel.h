// The six transmit fields of the main window (To, Via, Text/data, APRS comment, Message for,
// Message): their typing limits, histories, length counters and colours, the one length rule
// every sender cuts by, the check of To and Via before each transmission, the double-press
// guard of the send buttons, and what the fields do with keys, list picks, focus and drops.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"
#include "transmit/edit_tx_data.h"

namespace tesk {

class Meld;
class Ports;

enum class TxField { ToCall, ViaCall, DataText, APRSPos, For, APRSMessage };

// The send buttons that carry the double-press guard.
enum class SendButton { DataText, APRS, APRSMessage, MHeard, MultiLine };

// Key codes as the fields' handlers take them (the classic virtual-key numbers).
constexpr int kKeyReturn = 13;
constexpr int kKeyDelete = 46;
constexpr int kKeyA = 65;
constexpr int kKeyZ = 90;

class TxPanel {
 public:
  // `restartBeaconCount` sets the one-second tick's beacon counter back to 0. A press of a send
  // button runs the button's command in `commands`, which the senders register.
  TxPanel(Platform& platform, StationConfig& config, RunState& run, MainWindow& main, Ports& ports,
          Meld& meld, CommandTable& commands, std::function<void()> restartBeaconCount);
  TxPanel(const TxPanel&) = delete;
  TxPanel& operator=(const TxPanel&) = delete;

  // Registers the list editor's buttons and the console's path lines.
  void RegisterCommands(CommandTable& commands);
  // The command a send button runs, and the send button of a command, if it is one.
  static Command SendCommand(SendButton which);
  static std::optional<SendButton> SendButtonOf(Command command);

  EditTXData& editor() { return m_editor; }

  // ---- the length rule and the checks of every transmission ----
  // The room for a frame's text: 80 minus reserved, or with n commas in Via 89 - 10 n minus
  // reserved. With mode 0 `text` is also cut to that room when it is longer.
  long CalcUI_TXlength(std::string& text, int16_t reserved, int16_t mode) const;
  void ValidateToViaBoxes();
  // ToVia, the call path of direct mode, from the To and Via fields as they stand.
  void RebuildToVia();
  static void LimitInputFields(ComboBox& field, long max);
  void SetCoherentTXBoxColors();
  // Counters LblMaxLengte 0 to 2, for the Text/data, APRS comment and Message fields.
  void UpdateCounter(int index);

  // ---- the histories ----
  void ADDTXData();
  void ADDToData();
  void ADDViaData();
  void AddAPRSData();
  void AddFor();
  void AddMessage();

  // ---- the send buttons ----
  // A press: ignored while the button's guard text is set, otherwise its sender runs.
  void Press(SendButton which);
  // The mouse button released on a send button: the guard goes up after the press has run.
  void SendButton_MouseUp(SendButton which);
  // Sets the guard text, waits 0.7 seconds with events running, clears it.
  void DisableDuringTX(Button& button);
  Button& button(SendButton which);

  // ---- the fields' events, as the view forwards them ----
  // Key down; true when the key is swallowed (Enter).
  bool KeyDown(TxField field, int keyCode);
  void KeyUp(TxField field, int keyCode);
  // The operator changed the text (typing, pasting, a drop of the toolkit's own).
  void Change(TxField field);
  // An entry picked from the drop-down list (listIndex and text are set).
  void ListPick(TxField field);
  void GotFocus(TxField field);
  void LostFocus(TxField field);
  // While dragging over To, Via or Message for: may this be dropped?
  bool DropAllowed(TxField field, const std::string& data, bool isText) const;
  void Drop(TxField field, const std::string& data);
  // What typing `text` into a field and pressing Enter do (the headless console's lines).
  void TypeAndEnter(TxField field, const std::string& text);
  // The three list edit buttons: 0 Text/data, 1 APRS, 2 Message.
  void cmdEditTXData_Click(int selector);

  ComboBox& box(TxField field);

 private:
  void enterToCall();
  void enterViaCall();
  void enterFor();
  void enterAndSend(TxField field);
  void askRemoveEntry(TxField field);
  void viaToolTip();
  void refresh();

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  Ports& m_ports;
  Meld& m_meld;
  CommandTable& m_commands;
  std::function<void()> m_restartBeaconCount;
  EditTXData m_editor;
};

}  // namespace tesk
