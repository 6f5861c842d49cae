// The layout of tesk.ini as data: every entry's place, label line, kind and StationConfig field,
// shared by the reader and the writer so that both walk the same order. The order of this
// table is the file format: a reader takes values by position, never by label.
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "settings/station_config.h"
#include "state/main_window.h"

namespace tesk {

enum class EntryKind {
  Text,       // one whole line
  InputText,  // one comma-delimited field, as Input # reads a text
  Int,        // 16-bit number
  Long,       // 32-bit number (colours too)
  Single,     // 32-bit float
  Special,    // lists and entries of several values: handled by number
};

using ConfigField =
    std::variant<std::monostate, std::string StationConfig::*, int16_t StationConfig::*,
                 int32_t StationConfig::*, float StationConfig::*>;

struct SettingsEntry {
  int number = 0;
  const char* label = "";
  EntryKind kind = EntryKind::Special;
  ConfigField field;
  // Set for the texts that are written from a transmit field as it stands at saving.
  ComboBox MainWindow::*liveText = nullptr;
};

// A history list: its field, the drop-down it is written from, and its caps.
struct SettingsList {
  int number = 0;
  std::vector<std::string> StationConfig::*history = nullptr;
  ComboBox MainWindow::*box = nullptr;
  std::size_t writeMax = 0;
  std::size_t readMax = 0;
};

inline constexpr int kFirstEntry = 3;   // the call sign; lines 1 and 2 are the header
inline constexpr int kLastEntry = 112;  // [EditMonitor]; [Reserved] and [Debugset] follow
inline constexpr const char* kListEnd = "[**end**]";

// The entry with this number, kFirstEntry to kLastEntry.
const SettingsEntry& SettingsEntryAt(int number);
// The history list of this entry, or nullptr when the entry is not one.
const SettingsList* SettingsListAt(int number);

}  // namespace tesk
