// Writing tesk.ini: every entry in table order with its label line, numbers in the print form
// (" 0 ", "-1 "), CR LF line ends, then the reserved line and the diagnostic lines. The text is
// built in memory and handed to the file in one piece.
#include <string>
#include <variant>

#include "base/text.h"
#include "settings/settings_entries.h"
#include "settings/settings_file.h"

namespace tesk {

class SettingsWriter {
 public:
  void line(std::string_view text) {
    m_text.append(text);
    m_text.append(CRLF);
  }
  std::string& text() { return m_text; }

 private:
  std::string m_text;
};

namespace {

constexpr const char* kNoneMarker = "%none%";

std::string Num(long long n) {
  return PrintNumber(n);
}

std::string BoolText(bool on) {
  return on ? "True" : "False";
}

}  // namespace

std::string SettingsFile::settingsText() {
  rememberWindowGeometry();
  SettingsWriter out;
  writeEntries(out);
  return std::move(out.text());
}

void SettingsFile::rememberWindowGeometry() {
  // A minimised window has no useful size: the values remembered before stay.
  const Window& form = m_main.form;
  if (form.windowState == 1) return;
  m_config.hsize = static_cast<int32_t>(form.width);
  m_config.vsize = static_cast<int32_t>(form.height);
  m_config.leftpos = static_cast<int32_t>(form.left);
  m_config.toppos = static_cast<int32_t>(form.top);
}

void SettingsFile::writeEntries(SettingsWriter& out) {
  out.line(";TESK v." + version() + " station settings. Values stand by position, not by label.");
  out.line(";Keep the order of the lines when editing this file by hand.");
  for (int entry = kFirstEntry; entry <= kLastEntry; ++entry) {
    writeEntry(out, entry);
  }
  out.line("[Reserved]");
  out.line("");
  out.line("[Debugset]");
  writeDebugLines(out);
}

void SettingsFile::writeEntry(SettingsWriter& out, int entry) {
  const SettingsEntry& e = SettingsEntryAt(entry);
  out.line(e.label);
  if (const SettingsList* list = SettingsListAt(entry)) {
    writeList(out, (m_main.*(list->box)).list, list->writeMax);
    return;
  }
  if (entry == 9 && m_config.BeaconInterval < 10) m_config.BeaconInterval = 10;
  if (entry >= 25 && entry <= 28 && m_main.form.windowState != 1) {
    // The live size of a window that is not minimised goes out as a single.
    out.line(
        PrintSingle(static_cast<float>(m_config.*std::get<int32_t StationConfig::*>(e.field))));
    return;
  }
  if (e.liveText != nullptr) {
    out.line((m_main.*(e.liveText)).text);
    return;
  }
  std::visit(
      [&](auto member) {
        using M = decltype(member);
        if constexpr (std::is_same_v<M, std::string StationConfig::*>) {
          out.line(m_config.*member);
        } else if constexpr (std::is_same_v<M, float StationConfig::*>) {
          out.line(PrintSingle(m_config.*member));
        } else if constexpr (!std::is_same_v<M, std::monostate>) {
          out.line(PrintNumber(static_cast<long long>(m_config.*member)));
        }
      },
      e.field);
  if (e.kind == EntryKind::Special) writeSpecialEntry(out, entry);
}

void SettingsFile::writeSpecialEntry(SettingsWriter& out, int entry) {
  StationConfig& c = m_config;
  switch (entry) {
    case 35:
      out.line(Str(static_cast<long long>(c.BBSCommands)) + " /" + c.BBSPassword);
      break;
    case 42:
      out.line(Num(c.BeaconFileType) + Num(c.BeaconFileAddPosition));
      break;
    case 44:
      out.line(Trim(Str(static_cast<long long>(c.UTCTimeOffsetHours))) + "_" +
               Trim(Str(static_cast<long long>(c.UTCTimeOffsetMinutes))));
      break;
    case 46:
      out.line(Num(c.AutoDisconnect) + Num(c.Filters) + Num(c.RemoveSame));
      break;
    case 50: {
      std::string digit = Left(c.IntelligentBeacon, 1);
      if (digit.empty()) digit.assign(1, '0');
      // Deliberate: an empty string is replaced in memory too, and survives as the marker
      // until the next load turns it back into the empty string.
      if (Mid(c.IntelligentBeacon, 2).empty()) c.IntelligentBeacon = digit + kNoneMarker;
      out.line(c.IntelligentBeacon);
      break;
    }
    case 56:
      out.line(Num(c.AutoBeacon));
      out.line(c.AutoBeaconStart);
      out.line(c.AutoBeaconStop);
      break;
    case 59:
      out.line(c.ConnectionCall);
      writeList(out, c.ConnectionCalls, kConnectionCallsMax);
      break;
    case 83:
      out.line(c.ShadowExperiment_ISO + "_" + c.ShadowExperiment_DIGI);
      break;
    default:
      break;
  }
}

void SettingsFile::writeList(SettingsWriter& out, const std::vector<std::string>& list,
                             std::size_t max) {
  // The first `max` entries are looked at; blank ones are left out and later ones are lost.
  for (std::size_t i = 0; i < list.size() && i < max; ++i) {
    if (!Trim(list[i]).empty()) out.line(list[i]);
  }
  out.line(kListEnd);
}

void SettingsFile::writeDebugLines(SettingsWriter& out) {
  const SystemInfo& sys = m_platform.system();
  const Clock& clock = m_platform.clock();
  const DateTime now = clock.localNow();
  const std::string module = m_hooks.moduleName ? m_hooks.moduleName() : "";
  const std::string txModule = m_hooks.transmittingModule ? m_hooks.transmittingModule() : "";
  out.line(";winddir " + sys.windowsDir);
  out.line(";apppath " + m_run.AppPath);
  out.line(";timeset " + clock.longTime(now));
  out.line(";dateset " + clock.shortDate(now));
  out.line(";windver " + sys.osName);
  out.line(";agwinit " + m_run.EngineStatus);
  out.line(";server  " + std::to_string(m_run.ServerSwitch) + " init " +
           std::to_string(m_config.TESKServerInit));
  out.line(";module  " + BoolText(m_main.menuextra.visible) + " - " + module);
  out.line(";TxModul " + txModule);
  out.line(";LANMode " + std::to_string(m_run.LanMode));
  out.line(";LANIP   " + m_config.HostName_IP_Default);
  out.line(";LANPort " + std::to_string(m_config.LanPort));
  out.line(";LANSlow " + std::to_string(m_config.Emulate_TXFrames_On_SlowNetPC));
}

}  // namespace tesk
