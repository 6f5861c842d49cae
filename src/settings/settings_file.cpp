// The two entry points of tesk.ini, LoadSettings and SaveSettings, in their fixed order of
// steps, and the version code of a file's header. The positional read, the apply steps, the
// writer and the factory defaults live in their own files of this folder.
#include "settings/settings_file.h"

#include <array>
#include <utility>

#include "base/text.h"
#include "settings/sequential_input.h"
#include "settings/whole_file.h"

namespace tesk {

namespace {

struct VersionTest {
  long length;
  const char* text;
  int code;
};

// Tested in this order, the last match winning. The comparison is exact, so a version that is
// not listed matches its nearest shorter prefix, if any: "5.4.4" gives 540.
constexpr std::array<VersionTest, 22> kVersionTests = {{
    {9, ";TESK v.2", 200},      {11, ";TESK v.3.0", 300},
    {11, ";TESK v.3.1", 310},   {11, ";TESK v.3.2", 320},
    {11, ";TESK v.3.3", 330},   {11, ";TESK v.4.0", 400},
    {11, ";TESK v.4.1", 410},   {13, ";TESK v.4.1.1", 411},
    {11, ";TESK v.5.0", 500},   {13, ";TESK v.5.0.1", 501},
    {13, ";TESK v.5.1.0", 510}, {11, ";TESK v.5.2", 520},
    {13, ";TESK v.5.2.3", 523}, {13, ";TESK v.5.2.5", 525},
    {13, ";TESK v.5.2.6", 526}, {13, ";TESK v.5.2.7", 527},
    {13, ";TESK v.5.2.8", 528}, {11, ";TESK v.5.3", 530},
    {13, ";TESK v.5.3.2", 532}, {11, ";TESK v.5.4", 540},
    {13, ";TESK v.5.4.1", 541}, {0, "", 0},
}};

}  // namespace

int SettingsVersionCode(std::string_view headerLine) {
  int code = 0;
  for (const VersionTest& t : kVersionTests) {
    if (t.length > 0 && Left(headerLine, t.length) == t.text) code = t.code;
  }
  return code;
}

SettingsFile::SettingsFile(StationConfig& config, RunState& run, MainWindow& main,
                           Platform& platform, SettingsHooks hooks)
    : m_config(config), m_run(run), m_main(main), m_platform(platform), m_hooks(std::move(hooks)) {}

std::string SettingsFile::version() const {
  return m_run.VersionText.empty() ? kSettingsProgramVersion : m_run.VersionText;
}

std::string SettingsFile::settingsPath() const {
  return m_run.SettingsPath.empty() ? m_run.AppPath + "/tesk.ini" : m_run.SettingsPath;
}

void SettingsFile::SaveSettings() {
  // The text is built first, so the side effects on memory happen whether or not the disk
  // takes the file; a failure is told once and the values stay as they are.
  const std::string text = settingsText();
  if (!WriteWholeFile(settingsPath(), text)) {
    m_platform.dialogs().msgBox(kWriteFailureText, MsgButtons::Ok, MsgIcon::None, "TESK");
  }
}

void SettingsFile::LoadSettings() {
  m_lastReadError = 0;
  m_lastVersionCode = 0;
  std::string content;
  if (!ReadWholeFile(settingsPath(), content)) {
    // "MYCALL" is what the start-up takes as the sign that no settings exist yet.
    m_config.YourCallSign = "MYCALL";
    SetFactoryDefaults();
    return;
  }
  SequentialInput in(std::move(content));
  const int code = SettingsVersionCode(in.lineInput().value_or(""));
  m_lastVersionCode = code;
  in.lineInput();  // the comment line
  in.lineInput();  // the call sign's label
  if (const auto call = in.lineInput()) m_config.YourCallSign = *call;
  const std::string call = UCase(Trim(m_config.YourCallSign));
  if (call == "MYCALL" || Left(call, 1) == "[") {
    SetFactoryDefaults();
    m_config.YourCallSign.clear();
    return;
  }
  readEntries(in, code);
  // A read error is not told where it happens: every read runs on past it, and only here does
  // a pending one (the file ended early, a number that is no number or does not fit) count.
  m_lastReadError = in.pendingError();
  if (m_config.ShowPortInHeader < 0 || m_config.ShowPortInHeader > 3) {
    m_config.ShowPortInHeader = 0;
  }
  if (Len(m_config.YourCallSign) < 2) {
    m_platform.dialogs().msgBox("No valid call entered.", MsgButtons::Ok, MsgIcon::None,
                                "No valid Callsign");
    return;
  }
  if (m_config.ShExpPauseTX < 0) m_config.ShExpPauseTX = 60;
  if (m_config.MaxPacketLength < 0 || m_config.MaxPacketLength > 6) m_config.MaxPacketLength = 0;
  m_main.lblCallSign.caption = UCase(m_config.YourCallSign);
  m_main.lblMHeardCall.caption = UCase(m_config.YourCallSign);
  if (m_lastReadError != 0) {
    SetFactoryDefaults();
    return;
  }
  runUpgrades(code);
  applyAfterReading();
}

}  // namespace tesk
