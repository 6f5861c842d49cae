// Starting and closing the modem program, and preparing the outside terminal for LAN mode.
// A program is looked for under its Windows file name and under this platform's name (no
// ".exe"), so the same program folder works with native and emulated engines alike.
#include "link/modem_program.h"

#include "base/text.h"
#include "link/link_events.h"
#include "platform/platform_helpers.h"
#include "settings/sequential_input.h"
#include "settings/whole_file.h"

namespace tesk {

namespace {

struct ModemFile {
  const char* name;
  int16_t value;
};

// In the order they are tested; a later find overrides an earlier one.
constexpr ModemFile kModemFiles[] = {
    {"soundmodem.exe", 1},        {"soundmodem", 1}, {"QtSoundModem", 1},
    {"direwolf.exe", 3},          {"direwolf", 3},   {"AGW Packet Engine.exe", 2},
    {"Packet Engine Pro.exe", 3},
};

constexpr const char* kSoundModemFiles[] = {"soundmodem.exe", "soundmodem", "QtSoundModem"};

constexpr size_t kTermIniLines = 61;  // the table the terminal's file is read into

bool On(int v) {
  return v != 0;
}

}  // namespace

void CheckForSoundModem(const std::string& appPath, int16_t& result) {
  result = 0;
  for (const ModemFile& f : kModemFiles) {
    if (FileExists(JoinPath(appPath, f.name))) result = f.value;
  }
}

std::string SoundModemInFolder(const std::string& appPath) {
  for (const char* name : kSoundModemFiles) {
    const std::string path = JoinPath(appPath, name);
    if (FileExists(path)) return path;
  }
  return {};
}

std::vector<std::string> ModemProgramNames(const std::string& title) {
  if (LCase(title) == "soundmodem") return {"soundmodem", "QtSoundModem"};
  if (title == "Packet Engine") return {"AGW Packet Engine", "Packet Engine Pro", "direwolf"};
  return {title};
}

long FindModemWindow(Shell& shell, const std::string& title) {
  for (const std::string& name : ModemProgramNames(title)) {
    const long handle = FindTopWindow(shell, name);
    if (handle != 0) return handle;
  }
  return 0;
}

void RewriteTermIni(const std::string& path, const std::string& call, const std::string& host,
                    long port) {
  std::string content;
  if (!ReadWholeFile(path, content)) return;
  SequentialInput in(std::move(content));
  std::vector<std::string> lines;
  while (!in.atEnd() && lines.size() < kTermIniLines) {
    const auto line = in.lineInput();
    if (!line) break;
    lines.push_back(*line);
  }
  std::string out;
  for (std::string& line : lines) {
    if (InStr(line, "IncomingCall=NOCALL") > 0) {
      line = "IncomingCall=" + call;
    } else if (Left(line, 5) == "Host=") {
      line = "Host=" + host;
    } else if (Left(line, 5) == "Port=") {
      line = "Port=" + std::to_string(port);
    }
    out += line + CRLF;
  }
  WriteWholeFile(path, out);
}

void ModemProgram::StartModemProgram() {
  if (m_config.AutoRunModemProgram == 0) return;
  Shell& shell = m_platform.shell();
  long window = 0;
  if (m_config.TypeOfModem == 1) {
    if (m_config.ModemProgramPath.empty()) {
      // This platform's own SoundModem when the folder has one, else the Windows file name.
      const std::string found = SoundModemInFolder(m_run.AppPath);
      m_config.ModemProgramPath = found.empty() ? JoinPath(m_run.AppPath, "soundmodem.exe") : found;
    }
    window = FindModemWindow(shell, "soundmodem");
  }
  if (window == 0) window = FindModemWindow(shell, "Packet Engine");
  if (window != 0) return;
  m_events.RunProgram("/RUN" + m_config.ModemProgramPath);
  m_run.ModemStartNote = m_platform.clock().localNow().secondsSinceMidnight();
  m_main.form.visible = true;
  m_platform.views().show(WindowKind::Main);
  m_platform.views().refresh(WindowKind::Main);
  m_platform.loop().waitUntil(2.0, {});
}

void ModemProgram::DetectProgWindow() {
  std::string title;
  switch (m_config.TypeOfModem) {
    case 0:
      if (Len(m_config.OtherTypeModemCaption) >= 3) title = m_config.OtherTypeModemCaption;
      break;
    case 1:
      title = "Soundmodem";
      break;
    case 2:
    case 3:
      title = "Packet Engine";
      break;
    default:
      break;
  }
  if (title.empty()) return;
  Shell& shell = m_platform.shell();
  if (FindModemWindow(shell, title) == 0) return;
  // Found again for the close, as the window may have gone in between.
  const long handle = FindModemWindow(shell, title);
  if (handle != 0) shell.closeProgramWindow(handle);
}

void ModemProgram::CheckForTerminal() {
  if (!On(m_run.LanMode)) return;
  if (!FileExists(JoinPath(m_run.AppPath, "term.exe"))) return;
  m_main.cmdTXConnect.enabled = true;
  m_main.cmdTXConnect.visible = true;
  m_main.menusends[9].enabled = true;
  m_main.cmdTXConnect.toolTip = "Connect Station (UZ7HO EasyTerm)";
  const std::string ini = JoinPath(m_run.AppPath, "term.ini");
  if (FileExists(ini))
    RewriteTermIni(ini, m_config.YourCallSign, m_config.HostName_IP_Default, m_config.LanPort);
  m_platform.views().refresh(WindowKind::Main);
}

}  // namespace tesk
