// Reports of a pass: the stations heard and the frames received, as one text file in the folder
// Reports, saved where the operator chooses or handed to the mail program. The head of the
// report is built here; the frames that follow it are the Monitor's, whole or the selection.
#pragma once

#include <string>

#include "alarms/meld.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class Reports {
 public:
  static constexpr const char* kSaveQuestion =
      "Do you want to save the selected text in this report only?";
  static constexpr const char* kMailQuestion =
      "Do you want to mail the selected text in this report only?";
  static constexpr const char* kEnd = "*** End of TESK Report ***";

  Reports(Platform& platform, StationConfig& config, const RunState& run, MainWindow& main,
          Meld& meld);

  // The File menu's "Save As Report..." and "Mail Report...", and the console's :report.
  void RegisterCommands(CommandTable& commands);

  // The head of a report: the title, the save time, the own call and position, the extra line,
  // the stations heard with their total, and the title of the frames that the callers add.
  std::string PrepareReport();
  // Asks about a selection, then for the file; writes the head, the frames and the end line.
  // Returns the path written, or "" when cancelled or not written.
  std::string SaveReport();
  // Writes the report to its dated file and hands a mail with its path to the mail program.
  // Returns the path written, or "" when cancelled or not written.
  std::string MailReport();

  // The folder Reports under the program folder, made when missing.
  std::string ReportsFolder() const;
  // The mailto: address of a report file: no recipient, subject and body naming the file.
  static std::string MailtoUrl(const std::string& path);

 private:
  enum class Frames { Cancel, Selection, Whole };
  // The question about a selection, when there is one.
  Frames AskFrames(const std::string& question);
  // Head, frames and the end line; the selection is the one taken before any box was open.
  std::string ReportText(Frames frames, const std::string& selection);
  // Writes the file whole; a failure is one note naming the file.
  bool Write(const std::string& path, const std::string& text);
  void ConsoleReport(const std::string& argument);

  Platform& m_platform;
  StationConfig& m_config;
  const RunState& m_run;
  MainWindow& m_main;
  Meld& m_meld;
};

}  // namespace tesk
