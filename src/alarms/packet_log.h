// Packet logs: received frames written to text files in the folder Logs, in three logs kept by
// one routine: the alarm log and the automatic log (one file a day each) and the Digi LogBook,
// the lasting record of the station's own frames digipeated (one file for ever). Also the
// automatic log's menu (mnuautolog), its label AutoLogLabel and the "Open" entries.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class PacketLog {
 public:
  enum Mode { AlarmLog = 0, AutoLogMode = 1, DigiLogBook = 2 };

  // saveSettings writes the whole settings file (a mode the operator chose is kept at once).
  PacketLog(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
            std::function<void()> saveSettings);
  ~PacketLog();
  PacketLog(const PacketLog&) = delete;
  PacketLog& operator=(const PacketLog&) = delete;

  // Registers the commands of this part once the station is complete.
  void RegisterCommands(CommandTable& commands);

  // mode 0: the alarm log; 1: the automatic log; 2: the Digi LogBook. A frame the mode does not
  // take, or a file that cannot be written, leaves no trace.
  void LogPacketToDisk(int mode, const std::string& header, const std::string& data);

  // The menu operation mnuautolog by index (0-3 the mode, 10 and 20 open logs, 40 the Digi
  // LogBook switch, 50 open it). Start-up and the settings call it to show the mode.
  void AutoLog(int index);
  // The operator's ways into it: the menu, a double click and a right press on the label. Only
  // these may ask for a call, and only these save the settings.
  void mnuautolog_Click(int index);
  void AutoLogLabel_DblClick();
  // Marks the operator's request; the view pops up the log menu.
  void AutoLogLabel_RightPress() { m_operatorAsked = true; }
  // The "Open" entries of the file menu: 10 today's automatic log, 20 any log, 40 the Digi
  // LogBook.
  void mnuOpenLog_Click(int index);

  std::string LogsFolder() const;
  // The own call without SSID.
  std::string BaseCall() const;
  std::string AlarmLogPath();
  std::string AutoLogPath();
  std::string DigiLogBookPath() const;

 private:
  struct Target {
    std::string path;
    std::string head;
  };
  // False when the frame is not for this mode's log.
  bool PickTarget(int mode, const std::string& header, Target& target);
  void WriteHeadBlock(std::ostream& out, const std::string& head, const DateTime& now);
  static void WriteData(std::ostream& out, const std::string& data);
  // The Open entries follow the files, item 40 follows [AutoDigiLogBook].
  void SyncOpenEntries();
  void SetMode(int index);
  void SetLabel(int mode);
  void AskForCall();
  void OpenInViewer(const std::string& path);
  void OpenAnyLog();

  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  std::function<void()> m_saveSettings;
  // The date of the last head block written, per mode; empty at start, so each log gets a head
  // block at its first frame of a run.
  std::array<std::string, 3> m_headDates;
  bool m_operatorAsked = false;
};

}  // namespace tesk
