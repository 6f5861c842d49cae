// The Monitor filter: one text that a frame's header must hold to be shown, listed, counted
// and logged. Owns the filter menu (menufilters), the label that shows the filter in force
// (lblMonitorFilter), the match rule the frame routine asks, and the filter's restore at
// start-up and its save. Only one filter exists at a time; the menu offers ways to set it.
#pragma once

#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"

namespace tesk {

class MonitorFilters {
 public:
  static constexpr long kMaxFilterLength = 40;
  static constexpr const char* kToolTip = "Selected Filter (show only data from specified Filter)";
  static constexpr const char* kInputTitle = "Filter Callsign/String";
  static constexpr const char* kInputPrompt =
      "Type the call or any header string that you\rwant to monitor the traffic from.\rThis can "
      "be one word or a piece of a word in the header! Note: multiple call signs can not be "
      "used.\rExamples:\rRS0ISS*, CQ, GATE, XX9TK, APRS, ID, BEACON...\r\rEnter the callsign or "
      "string:";

  MonitorFilters(Platform& platform, StationConfig& config, MainWindow& main);
  ~MonitorFilters();
  MonitorFilters(const MonitorFilters&) = delete;
  MonitorFilters& operator=(const MonitorFilters&) = delete;

  // Registers the commands of this part once the station is complete.
  void RegisterCommands(CommandTable& commands);

  // The filter menu: 0 none, 1 the To call, 2 the Via call, 3 digipeated frames only, 5 a
  // typed text, 15 save the filter into the settings.
  void menufilters_Click(int index);
  // The start-up restore of a saved typed filter: the text as it was saved, item 5 checked
  // in place of "No Filters".
  void SetFilterText(const std::string& text);

  // The match rule, at each frame: the header as received, case-sensitive.
  bool FilterPasses(const std::string& header) const;

  const std::string& filterText() const { return m_filterText; }
  int filterIndex() const { return m_filterIndex; }

 private:
  // Shows `caption` on the label in the colours of a filter in force.
  void ShowFilter(const std::string& caption);
  void ShowNoFilter();
  // The typed filter; false when it was refused and the routine must end at once.
  bool AskFilterText();

  Platform& m_platform;
  StationConfig& m_config;
  MainWindow& m_main;
  std::string m_filterText;  // upper-cased and trimmed when set
  int m_filterIndex = 0;     // the menu index last chosen
};

}  // namespace tesk
