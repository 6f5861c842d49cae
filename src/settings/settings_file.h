// tesk.ini: the positional settings file. Owns reading it into StationConfig (with the version
// gates and upgrades of older files), writing it back byte-exact, and the factory defaults, and
// fills the main window's transmit fields, colours, font, geometry and labels from it.
// Routines of later subsystems that reading or the defaults run are handed in as hooks.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/main_window.h"
#include "state/run_state.h"

namespace tesk {

class SequentialInput;
class SettingsWriter;

// Each hook may be left empty; an empty hook is simply not run.
struct SettingsHooks {
  std::function<void(int)> menufilters_Click;  // the Monitor filter menu's handler, by index
  std::function<void(const std::string&)> setFilterText;  // the filter text of row 5, restored
  std::function<void(int)> AutoLog;            // the automatic log menu, by [AutomaticLogging]
  std::function<void()> CalcUTC;               // [UTC Time Offset] from the system clock
  std::function<void()> erasePendingMessages;  // the tables of messages awaiting an ack
  // Texts for the diagnostic lines: the add-on module's name and the transmitting module.
  std::function<std::string()> moduleName;
  std::function<std::string()> transmittingModule;
};

// This program's version, written into the header of every file it saves.
inline constexpr const char* kSettingsProgramVersion = "5.4.4";

// The version code of a header line: ";TESK v.5.2.6" gives 526, an unknown header 0.
int SettingsVersionCode(std::string_view headerLine);

class SettingsFile {
 public:
  static constexpr std::size_t kConnectionCallsMax = 15;
  static constexpr const char* kWriteFailureText =
      "Could not write to disk. Is the disk write-protected (CD-ROM)? If so, then please install "
      "this program to your HD first or make sure the Setup software has access to your HD.";

  SettingsFile(StationConfig& config, RunState& run, MainWindow& main, Platform& platform,
               SettingsHooks hooks = {});

  void SaveSettings();
  void LoadSettings();
  void SetFactoryDefaults();

  // The file's text as SaveSettings writes it (with the same side effects on memory).
  std::string settingsText();
  // The read error that was pending at the end of the last LoadSettings, 0 for none.
  int lastReadError() const { return m_lastReadError; }
  // The version code of the file the last LoadSettings read.
  int lastVersionCode() const { return m_lastVersionCode; }

  SettingsHooks& hooks() { return m_hooks; }

 private:
  // Reading (settings_reader.cpp).
  void readEntries(SequentialInput& in, int code);
  void readEntry(SequentialInput& in, int entry);
  void readTextEntry(SequentialInput& in, int entry);
  void readNumberEntry(SequentialInput& in, int entry);
  void readSpecialEntry(SequentialInput& in, int entry);
  void readBbsCommands(SequentialInput& in);
  void readUtcOffset(SequentialInput& in);
  void readIntelligentBeacon(SequentialInput& in);
  void readShadowIsoDigi(SequentialInput& in);
  void readList(SequentialInput& in, std::vector<std::string>& list, std::size_t max,
                const std::string& labelLine);
  void readConnectionCalls(SequentialInput& in);
  void applyTextValue(int entry, const std::string& value);
  void applyNumberRules(int entry);
  // After reading (settings_apply.cpp).
  void runUpgrades(int code);
  void upgradeBelow500();
  void applyAfterReading();
  void applyTransmitFields();
  void applySelectedBeacon();
  void applyColorsAndFont();
  void applyWindowPlacement();
  void applyFiltersAndBeaconLabel();
  // Writing (settings_writer.cpp).
  void writeEntries(SettingsWriter& out);
  void writeEntry(SettingsWriter& out, int entry);
  void writeSpecialEntry(SettingsWriter& out, int entry);
  void writeList(SettingsWriter& out, const std::vector<std::string>& list, std::size_t max);
  void writeDebugLines(SettingsWriter& out);
  void rememberWindowGeometry();
  // Factory defaults (factory_defaults.cpp).
  void setDefaultValues();
  void refillHistories();

  std::string version() const;
  std::string settingsPath() const;

  StationConfig& m_config;
  RunState& m_run;
  MainWindow& m_main;
  Platform& m_platform;
  SettingsHooks m_hooks;
  int m_lastReadError = 0;
  int m_lastVersionCode = 0;
};

}  // namespace tesk
