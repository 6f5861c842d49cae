// The Monitor: the coloured text the operator watches during a pass. Owns the painting of a
// frame's header and data lines, the notes of NotaInMonitor, the "Remove double" memory, the
// caret kept still while scrolling is off, and the buffer limit of the slow-computer mode.
// The frame routine that calls these in order is the packet core's ShowFrame.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "main/main_window.h"
#include "platform/platform.h"
#include "settings/station_config.h"

namespace tesk {

class MonitorConsole {
 public:
  MonitorConsole(Platform& platform, StationConfig& config, MainWindow& main);

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

  // The text of the last shown frame (header joined with data).
  std::string lastShownFrame;
  // Set by message reception: the next data line is a message for this station.
  int16_t MessageFlagForMe = 0;

 private:
  TextStyle Style(Color color) const;
  void InsertAtEnd(const std::string& text, Color color);

  Platform& m_platform;
  StationConfig& m_config;
  MainWindow& m_main;
  std::size_t m_keptCaret = 0;
};

}  // namespace tesk
