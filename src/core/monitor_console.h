// The Monitor: the coloured text the operator watches during a pass. Owns the painting of a
// frame's header and data lines, the notes of NotaInMonitor, the "Remove double" memory, the
// caret kept still while scrolling is off, the buffer limit of the slow-computer mode, and the
// operator's operations on the text (edit menu, clipboard, save, open, print). The frame
// routine that calls the painting in order is the packet core's ShowFrame.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class TxPanel;

class MonitorConsole {
 public:
  // The run state gives the program folder, under which the saves go.
  // `txPanel`, when given, hears of a date and time written into a transmit field, as typing
  // would tell it.
  MonitorConsole(Platform& platform, StationConfig& config, MainWindow& main, const RunState& run,
                 TxPanel* txPanel = nullptr);
  ~MonitorConsole();
  MonitorConsole(const MonitorConsole&) = delete;
  MonitorConsole& operator=(const MonitorConsole&) = delete;

  // Registers the commands of this part once the station is complete.
  void RegisterCommands(CommandTable& commands);

  // Appends one line in [Data color] (flag non-zero) or [Header color], ignoring every filter.
  void NotaInMonitor(const std::string& text, int flag);
  // Fills [UTC Time Offset] from the system clock.
  void CalcUTC();
  // UTC as "hh:mm:ss".
  std::string BerekenUTC() const;

  // ---- the stretches of ShowFrame ----
  // The header with its bracketed time replaced by UTC.
  std::string HeaderWithUTC(const std::string& header) const;
  // "Remove double": empties header and data when they repeat the last shown frame, then
  // remembers them. True when they were emptied.
  bool RemoveDouble(std::string& header, std::string& data);
  // Remembers the caret while "Scroll" is off, and puts it back after the frame.
  void KeepCaret();
  void RestoreCaret();
  // The header line, in [DigiColor] for an own digipeat, else [Header color].
  void PaintHeader(const std::string& header, bool digipeated);
  // The data line, in [MessageColor] once after a message for this station, else [Data color].
  void PaintData(const std::string& data);
  // The buffer limit of the slow-computer mode; runs after every frame, shown or not.
  void BufferLimit();
  // "Scroll" clicked: going off with the caret at the end, the caret goes to the start, so
  // the view stops following.
  void chkScroll_Click();

  // ---- the operator's operations ----
  void cmdMonitorClear_Click();
  void cmdMonitorCut_Click();
  void cmdMonitorCopy_Click();
  void cmdMonitorPaste_Click();
  // The edit menu by index: 0 undo, 50 delete, 70 select all, 80 clear all, 92 date and time,
  // 100 freeze, 110 unlock for editing, 120 data only, 130 statistics, 140 Monitor setup.
  void menuedits_Click(int index);
  // The options menu's copies of freeze (130) and unlock (140).
  void menuoptions_Click(int index);
  // A right press in the Monitor shows items 100 to 140 for the pop-up menu; once it has
  // closed, all but 110 are hidden again.
  void txtMonitor_RightPress();
  void txtMonitor_PopupClosed();
  // A key typed in the unlocked Monitor: the typing style takes [Data color].
  void txtMonitor_KeyPress();
  // The operator's typing replaced `removed` characters at `at` (0-based) by `text`.
  void txtMonitor_Change(std::size_t at, std::size_t removed, const std::string& text);

  // ---- files and printer ----
  void cmdMonitorSave_Click();
  void ExportToASCII_Click();
  void cmdMonitorOpen_Click();
  void cmdMonitorPrint_Click();

  // The text of the last shown frame (header joined with data).
  std::string lastShownFrame;
  // Set by message reception: the next data line is a message for this station.
  int16_t MessageFlagForMe = 0;
  // Windows of other subsystems opened from the edit menu (130, 140); unset, the entry does
  // nothing.
  std::function<void()> OpenStatistics, OpenMonitorSetup;

  static constexpr const char* kLockedCut =
      "Monitor is locked.\r\nPlease enable the Monitor for Editing (Edit Menu).";
  static constexpr const char* kLockedPaste =
      "Monitor is locked.\r\nPlease enable the Monitor for Editing (Edit Menu)\r\nor right-click "
      "your mouse button in the Monitor window.";
  static constexpr const char* kClipboardBusy =
      "Clipboard is open and in use by another application. Please try again later or use the "
      "'Save As' function.";

 private:
  // One step of undo: the runs an edit removed at `at` and the text it put in their place.
  struct UndoStep {
    bool valid = false;
    std::size_t at = 0;
    std::vector<TextRun> removed;
    std::string inserted;
  };

  TextStyle Style(Color color) const;
  void InsertAtEnd(const std::string& text, Color color);
  // Replaces `count` characters at `at` and remembers how to undo it.
  void Edit(std::size_t at, std::size_t count, const std::vector<TextRun>& runs);
  void Undo();
  void DeleteSelection();
  void InsertDateAndTime();
  void ToggleFreeze();
  void ToggleEditMonitor();
  void ToggleViewDataOnly();
  // The folder Monitor under the program folder, made when missing.
  std::string MonitorFolder() const;
  std::string FileName(const std::string& extension);

  Platform& m_platform;
  StationConfig& m_config;
  MainWindow& m_main;
  const RunState& m_run;
  TxPanel* m_txPanel;
  std::size_t m_keptCaret = 0;
  UndoStep m_undo;
  bool m_openConfirmed = false;  // the question before opening a file is asked once a run
};

}  // namespace tesk
