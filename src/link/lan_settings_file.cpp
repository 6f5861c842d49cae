// Reading and writing TESKLanMode.ini by line position, with the same line primitives as the
// settings file: whole lines for texts, free-format numbers for the port and the flags.
#include "link/lan_settings_file.h"

#include <string>

#include "base/text.h"
#include "settings/sequential_input.h"
#include "settings/whole_file.h"

namespace tesk {

namespace {

std::string LanSettingsPath(const std::string& appPath) {
  return appPath + "/" + kLanSettingsFileName;
}

void SetLanDefaults(StationConfig& c, RunState& run) {
  c.HostName_IP_Default = kLanDefaultHost;
  c.HostName_IP.fill("");
  c.LanPort = kLanDefaultPort;
  c.RegisterCall = 0;
  c.Emulate_TXFrames_On_SlowNetPC = 0;
  c.Lan_Password.clear();
  run.LanMode = 0;
}

void ReadNumber(SequentialInput& in, int16_t& out) {
  in.lineInput();  // the tag
  if (const auto f = in.numberFields(1)) in.assign((*f)[0], out);
}

void ReadText(SequentialInput& in, std::string& out) {
  if (const auto line = in.lineInput()) out = *line;
}

}  // namespace

void LoadLANINI(StationConfig& c, RunState& run, const std::string& appPath) {
  SetLanDefaults(c, run);
  std::string content;
  if (!ReadWholeFile(LanSettingsPath(appPath), content)) return;  // a missing file is no error
  SequentialInput in(std::move(content));
  in.lineInput();  // ";TESK Lan Mode Settings"
  in.lineInput();  // ";FreeWare"
  in.lineInput();  // "[HostName_IP_Default]"
  ReadText(in, c.HostName_IP_Default);
  if (Trim(c.HostName_IP_Default).empty()) c.HostName_IP_Default = kLanDefaultHost;
  in.lineInput();  // "[HostName_IP]"
  for (std::string& host : c.HostName_IP) {
    ReadText(in, host);
  }
  in.lineInput();  // "[LanPort]"
  if (const auto f = in.numberFields(1)) in.assign((*f)[0], c.LanPort);
  if (c.LanPort < 1) c.LanPort = kLanDefaultPort;
  ReadNumber(in, run.LanMode);
  ReadNumber(in, c.RegisterCall);
  ReadNumber(in, c.Emulate_TXFrames_On_SlowNetPC);
  in.lineInput();  // "[Lan_Password]"
  ReadText(in, c.Lan_Password);
  // Lines 21 to 30 are reserved pairs, never read.
}

void SaveLANINI(const StationConfig& c, const RunState& run, const std::string& appPath) {
  std::string text;
  auto line = [&text](std::string_view s) {
    text.append(s);
    text.append(CRLF);
  };
  line(";TESK Lan Mode Settings");
  line(";FreeWare");
  line("[HostName_IP_Default]");
  line(c.HostName_IP_Default);
  line("[HostName_IP]");
  for (const std::string& host : c.HostName_IP) {
    line(host);
  }
  line("[LanPort]");
  line(PrintNumber(static_cast<long long>(c.LanPort)));
  line("[TESKLanMode]");
  line(PrintNumber(static_cast<long long>(run.LanMode)));
  line("[RegisterCall]");
  line(PrintNumber(static_cast<long long>(c.RegisterCall)));
  line("[Emulate_TXFrames_On_SlowNetPC]");
  line(PrintNumber(static_cast<long long>(c.Emulate_TXFrames_On_SlowNetPC)));
  line("[Lan_Password]");
  line(c.Lan_Password);
  for (int i = 0; i < 5; ++i) {
    line("[reserved]");
    line("");
  }
  WriteWholeFile(LanSettingsPath(appPath), text);
}

}  // namespace tesk
