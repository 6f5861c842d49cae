// The positional read of tesk.ini from entry 4 on: one label line thrown away, then the value,
// entry after entry, until the version gate says the file has no more. The value rules that
// older files and hand edits need are applied as each value comes in.
#include <variant>

#include "base/text.h"
#include "settings/sequential_input.h"
#include "settings/settings_entries.h"
#include "settings/settings_file.h"

namespace tesk {

namespace {

// After an entry the reader goes on only while the file's version has the entries behind it.
// The tests are exact comparisons where older versions stopped, "above" from 5.0.1 on.
bool GoesOnAfter(int entry, int code) {
  switch (entry) {
    case 32:
      return code != 200;
    case 40:
      return code != 300;
    case 42:
      return code != 310;
    case 45:
      return code != 320;
    case 49:
      return code != 330;
    case 60:
      return code != 400;
    case 62:
      return code != 410;
    case 63:
      return code != 411;
    case 82:
      return code > 501;
    case 84:
      return code > 510;
    case 90:
      return code > 520;
    case 92:
      return code > 523;
    case 93:
      return code > 525;
    case 94:
      return code > 527;
    case 95:
      return code > 528;
    case 99:
      return code > 530;
    case 100:
      return code > 532;
    // Deliberate: only a header of exactly 5.4.1 gets 110-112 read back; a file of this version
    // (code 540) leaves them as they stand in memory, and they are written back as that.
    case 109:
      return code > 540;
    default:
      return true;
  }
}

bool StartsSection(const std::string& line) {
  return Left(line, 1) == ";" || Left(line, 1) == "[";
}

}  // namespace

void SettingsFile::readEntries(SequentialInput& in, int code) {
  for (int entry = kFirstEntry + 1; entry <= kLastEntry; ++entry) {
    readEntry(in, entry);
    if (!GoesOnAfter(entry, code)) return;
  }
}

void SettingsFile::readEntry(SequentialInput& in, int entry) {
  const std::string label = in.lineInput().value_or("");  // read and thrown away
  if (const SettingsList* list = SettingsListAt(entry)) {
    readList(in, m_config.*(list->history), list->readMax, label);
    return;
  }
  switch (SettingsEntryAt(entry).kind) {
    case EntryKind::Text:
    case EntryKind::InputText:
      readTextEntry(in, entry);
      break;
    case EntryKind::Special:
      readSpecialEntry(in, entry);
      break;
    default:
      readNumberEntry(in, entry);
      break;
  }
}

void SettingsFile::readTextEntry(SequentialInput& in, int entry) {
  const bool commaDelimited = SettingsEntryAt(entry).kind == EntryKind::InputText;
  const auto value = commaDelimited ? in.textField() : in.lineInput();
  if (value) applyTextValue(entry, *value);
}

void SettingsFile::applyTextValue(int entry, const std::string& value) {
  std::string& field =
      m_config.*std::get<std::string StationConfig::*>(SettingsEntryAt(entry).field);
  switch (entry) {
    case 38:
      if (!value.empty()) field = Left(value, 9);
      break;
    case 39:
    case 40:
      if (!value.empty()) field = value;
      break;
    case 41:
      if (!Trim(value).empty()) field = value;
      break;
    case 47:
      field = Left(value, 1) == ";" ? "" : value;
      break;
    case 52:
      field = Trim(value);
      break;
    default:
      field = value;
      break;
  }
}

void SettingsFile::readNumberEntry(SequentialInput& in, int entry) {
  const auto fields = in.numberFields(1);
  if (fields) {
    std::visit(
        [&](auto member) {
          if constexpr (!std::is_same_v<decltype(member), std::monostate> &&
                        !std::is_same_v<decltype(member), std::string StationConfig::*>) {
            in.assign((*fields)[0], m_config.*member);
          }
        },
        SettingsEntryAt(entry).field);
  }
  // The bounds run whether or not the value came in, as each rule is its own statement.
  applyNumberRules(entry);
}

void SettingsFile::applyNumberRules(int entry) {
  StationConfig& c = m_config;
  switch (entry) {
    case 48:
      if (c.TESKServer >= 1 && m_main.frmLogoTitle.caption != "+LAN") {
        m_main.frmLogoTitle.caption.assign(1, '+');
      }
      c.TESKServerInit = c.TESKServer;
      break;
    case 53:
      if (c.PicRefreshInterval < 0 || c.PicRefreshInterval > 64000) {
        c.PicRefreshInterval = c.PicRefreshInterval == -1 ? 0 : 20000;
      }
      break;
    case 54:
      if (c.AGWPERXPort < 0 || c.AGWPERXPort > 10) c.AGWPERXPort = 0;
      break;
    case 55:
      if (c.SlowPC != 0 && c.SlowPC != -1) c.SlowPC = 0;
      break;
    case 62:
      m_main.Lblmheardautoerase.visible = c.MHeard_AutoClear != 0;
      break;
    default:
      break;
  }
}

void SettingsFile::readSpecialEntry(SequentialInput& in, int entry) {
  StationConfig& c = m_config;
  switch (entry) {
    case 35:
      readBbsCommands(in);
      break;
    case 42:
      if (const auto f = in.numberFields(2)) {
        in.assign((*f)[0], c.BeaconFileType);
        in.assign((*f)[1], c.BeaconFileAddPosition);
      }
      break;
    case 44:
      readUtcOffset(in);
      break;
    case 46:
      if (const auto f = in.numberFields(3)) {
        in.assign((*f)[0], c.AutoDisconnect);
        in.assign((*f)[1], c.Filters);
        in.assign((*f)[2], c.RemoveSame);
      }
      break;
    case 50:
      readIntelligentBeacon(in);
      break;
    case 56:
      if (const auto f = in.numberFields(1)) in.assign((*f)[0], c.AutoBeacon);
      if (const auto start = in.textField()) c.AutoBeaconStart = *start;
      if (const auto stop = in.textField()) c.AutoBeaconStop = *stop;
      break;
    case 59:
      readConnectionCalls(in);
      break;
    case 83:
      readShadowIsoDigi(in);
      break;
    default:
      break;
  }
}

void SettingsFile::readBbsCommands(SequentialInput& in) {
  const auto line = in.lineInput();
  if (!line || Len(Trim(*line)) <= 2) return;
  m_config.BBSCommands = CInt(Val(Left(*line, 2)));
  // Everything behind the first "/" is the password, so a password may itself hold a "/".
  const long slash = InStr(*line, "/");
  m_config.BBSPassword = slash > 0 ? Trim(Mid(*line, slash + 1)) : "";
}

void SettingsFile::readUtcOffset(SequentialInput& in) {
  const auto line = in.lineInput();
  if (!line || Len(*line) <= 1) return;
  const long bar = InStr(*line, "_");
  if (bar > 0) {
    m_config.UTCTimeOffsetHours = CInt(Val(Left(*line, bar - 1)));
    m_config.UTCTimeOffsetMinutes = CInt(Val(Mid(*line, bar + 1)));
  } else {
    m_config.UTCTimeOffsetHours = CInt(Val(*line));
    m_config.UTCTimeOffsetMinutes = 0;
  }
}

void SettingsFile::readIntelligentBeacon(SequentialInput& in) {
  const auto line = in.lineInput();
  if (!line || Len(Trim(*line)) <= 1) return;
  const std::string text = LTrim(*line);
  const double digit = Val(Left(text, 1));
  std::string string = Mid(text, 2);
  if (string.empty()) string.assign(1, '*');
  // The writer's marker for an empty string turns back into the empty string here.
  if (string == "%none%") string.clear();
  m_config.IntelligentBeacon = (digit == 1 ? "1" : "0") + string;
}

void SettingsFile::readShadowIsoDigi(SequentialInput& in) {
  const auto line = in.lineInput();
  if (!line) return;
  const long bar = InStr(*line, "_");
  m_config.ShadowExperiment_ISO = bar > 0 ? Left(*line, bar - 1) : *line;
  m_config.ShadowExperiment_DIGI = bar > 0 ? Mid(*line, bar + 1) : "";
}

void SettingsFile::readList(SequentialInput& in, std::vector<std::string>& list, std::size_t max,
                            const std::string& labelLine) {
  list.clear();
  std::string last = labelLine;
  while (Trim(last) != kListEnd && !in.atEnd()) {
    const auto line = in.lineInput();
    if (!line) break;
    last = *line;
    // Entries beyond the table's size are passed over; the loop still runs to the end mark.
    if (Trim(last) != kListEnd && !last.empty() && list.size() < max) list.push_back(last);
  }
}

void SettingsFile::readConnectionCalls(SequentialInput& in) {
  const auto first = in.lineInput();
  if (!first) return;
  // A section mark here means an older file without this entry: that line was the next one.
  if (StartsSection(*first)) {
    m_config.ConnectionCall.clear();
    return;
  }
  m_config.ConnectionCall = *first;
  m_config.ConnectionCalls.clear();
  std::string last = *first;
  while (Trim(last) != kListEnd && !in.atEnd()) {
    const auto line = in.lineInput();
    if (!line) break;
    last = *line;
    if (Trim(last) == kListEnd || StartsSection(last)) break;
    if (!last.empty() && m_config.ConnectionCalls.size() < kConnectionCallsMax) {
      m_config.ConnectionCalls.push_back(last);
    }
  }
}

}  // namespace tesk
