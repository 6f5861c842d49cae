// The three logs in one routine, and the automatic log's menu and label. Every file is opened
// and closed for each frame, so a crash loses nothing; a failing file operation drops the frame
// from the log silently and the program runs on.
#include "alarms/packet_log.h"

#include <filesystem>
#include <fstream>

#include "alarms/date_stamp.h"
#include "base/text.h"
#include "platform/platform_helpers.h"

namespace tesk {

namespace {

namespace fs = std::filesystem;

constexpr Color kSystemButtonFace = static_cast<Color>(0x8000000F);
constexpr Color kSystemButtonText = static_cast<Color>(0x80000012);

std::string DayOf(const DateTime& t) {
  return FormatZeros(t.year, 4) + Format00(t.month) + Format00(t.day);
}

}  // namespace

PacketLog::PacketLog(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                     std::function<void()> saveSettings)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_saveSettings(std::move(saveSettings)) {}

PacketLog::~PacketLog() = default;

// ---- paths ---------------------------------------------------------------------------------

std::string PacketLog::LogsFolder() const {
  return JoinPath(m_run.AppPath, "Logs");
}

std::string PacketLog::BaseCall() const {
  const std::string& call = m_config.YourCallSign;
  const long dash = InStr(call, "-");
  return dash > 0 ? Left(call, dash - 1) : call;
}

std::string PacketLog::AlarmLogPath() {
  return JoinPath(LogsFolder(), "AlarmLog" + DateStamp(m_config, m_platform.clock()) + ".log");
}

std::string PacketLog::AutoLogPath() {
  return JoinPath(LogsFolder(), "AutoLog" + DateStamp(m_config, m_platform.clock()) + ".log");
}

std::string PacketLog::DigiLogBookPath() const {
  return JoinPath(LogsFolder(), "DigiLogBook_" + BaseCall() + ".log");
}

// ---- LogPacketToDisk -----------------------------------------------------------------------

void PacketLog::LogPacketToDisk(int mode, const std::string& header, const std::string& data) {
  // Without a program folder there is nowhere to log to.
  if (mode < AlarmLog || mode > DigiLogBook || m_run.AppPath.empty()) return;
  Target target;
  if (!PickTarget(mode, header, target)) return;
  const DateTime now = m_platform.clock().localNow();
  {
    std::error_code ec;
    fs::create_directories(LogsFolder(), ec);
    std::ofstream out(target.path, std::ios::binary | std::ios::app);
    if (!out) return;
    // One head block per day and per run of the program, for each log on its own.
    if (m_headDates[mode] != DayOf(now)) {
      WriteHeadBlock(out, target.head, now);
      m_headDates[mode] = DayOf(now);
    }
    out << header << CRLF;
    WriteData(out, data);
  }
  if (mode == AutoLogMode && FileExists(target.path)) {
    m_main.mnuautolog[10].enabled = true;
    m_main.mnuOpenLog[10].enabled = true;
  }
}

bool PacketLog::PickTarget(int mode, const std::string& header, Target& target) {
  const DateTime now = m_platform.clock().localNow();
  const std::string stamp = DateStamp(m_config, m_platform.clock(), now);
  if (mode == AlarmLog) {
    target.path = JoinPath(LogsFolder(), "AlarmLog" + stamp + ".log");
    target.head = "[TESK Alarm-Log Date:";
    return true;
  }
  if (mode == DigiLogBook) {
    // Coarser than the digipeat count: the own base call anywhere and any mark will do.
    const std::string base = BaseCall();
    if (InStr(header, "*") == 0 || InStr(header, base) == 0) return false;
    target.path = DigiLogBookPath();
    target.head = "[TESK DigiLogBook data - Log of " + base + " Digipeated Packets - Date:";
    return true;
  }
  target.path = JoinPath(LogsFolder(), "AutoLog" + stamp + ".log");
  if (m_config.AutomaticLogging == 1) {
    // Any digipeat mark, not only the station's own.
    if (InStr(header, "*") == 0) return false;
    target.head = "[TESK Auto-Log data - Mode: Only Digipeated Packets - Date:";
  } else if (m_config.AutomaticLogging == 3) {
    const std::string call =
        m_config.CallDefinedLog.empty() ? m_config.YourCallSign : m_config.CallDefinedLog;
    if (InStr(header, call) == 0) return false;  // case-sensitive
    target.head = "[TESK Auto-Log data - Mode: Only " + call + " Packets - Date:";
  } else {
    target.head = "[TESK Auto-Log data - Mode: All Packets - Date:";
  }
  return true;
}

void PacketLog::WriteHeadBlock(std::ostream& out, const std::string& head, const DateTime& now) {
  const std::string line = head + DateStampForReading(m_config, m_platform.clock(), now) + "]";
  const std::string rule(line.size(), '-');
  out << rule << CRLF << line << CRLF << rule << CRLF;
}

void PacketLog::WriteData(std::ostream& out, const std::string& data) {
  if (Len(data) <= 1) return;
  std::string text;
  for (char c : data) {
    if (c != '\0') text += c;
  }
  const long p = InStr(text, LF);
  if (p >= 2 && InStr(p + 2, text, LF) > 0) {
    // Of a data of several lines only the first is logged; kept as designed.
    out << Left(text, p - 1) << LF << CRLF;
    return;
  }
  // The data's own CR CR LF ends the line; a data without one runs into the next header.
  out << RTrim(text);
}

// ---- the menu and the label ----------------------------------------------------------------

void PacketLog::AutoLog(int index) {
  MenuArray& menu = m_main.mnuautolog;
  const auto modeItem = [](int mode) { return mode >= 0 && mode <= 3; };
  if (modeItem(m_config.AutomaticLogging)) menu[m_config.AutomaticLogging].checked = false;
  SyncOpenEntries();
  switch (index) {
    case 0:
    case 1:
    case 2:
    case 3:
      SetMode(index);
      break;
    case 10:
      OpenInViewer(AutoLogPath());
      break;
    case 20:
      OpenAnyLog();
      break;
    case 40:
      menu[40].checked = !menu[40].checked;
      m_config.AutoDigiLogBook = menu[40].checked ? 1 : 0;
      break;
    case 50:
      OpenInViewer(DigiLogBookPath());
      break;
    default:
      break;
  }
  if (modeItem(m_config.AutomaticLogging)) menu[m_config.AutomaticLogging].checked = true;
  // The restore at start and the settings' own calls write nothing; an operator's choice is
  // saved at once.
  if (m_operatorAsked && m_saveSettings) m_saveSettings();
  m_operatorAsked = false;
  m_platform.views().refresh(WindowKind::Main);
}

void PacketLog::mnuautolog_Click(int index) {
  m_operatorAsked = true;
  AutoLog(index);
}

void PacketLog::AutoLogLabel_DblClick() {
  m_operatorAsked = true;
  AutoLog(m_config.AutomaticLogging == 0 ? 2 : 0);
}

void PacketLog::mnuOpenLog_Click(int index) {
  if (index == 10) OpenInViewer(AutoLogPath());
  if (index == 20) OpenAnyLog();
  if (index == 40) OpenInViewer(DigiLogBookPath());
}

void PacketLog::SyncOpenEntries() {
  MenuArray& menu = m_main.mnuautolog;
  const bool autoLog = FileExists(AutoLogPath());
  menu[10].enabled = autoLog;
  m_main.mnuOpenLog[10].enabled = autoLog;
  const bool digiLog = FileExists(DigiLogBookPath());
  menu[50].enabled = digiLog;
  m_main.mnuOpenLog[40].enabled = digiLog;
  menu[40].checked = m_config.AutoDigiLogBook != 0;
}

void PacketLog::SetMode(int index) {
  m_config.AutomaticLogging = static_cast<int16_t>(index);
  if (index == 0) {
    m_main.mnuautolog[10].enabled = false;
    m_main.mnuOpenLog[10].enabled = false;
  }
  if (index == 3) {
    if (m_config.CallDefinedLog.empty()) m_config.CallDefinedLog = "ISS";
    if (m_operatorAsked) AskForCall();
  }
  SetLabel(index);
}

void PacketLog::SetLabel(int mode) {
  Label& label = m_main.AutoLogLabel;
  static const char* const kCaptions[] = {"Log OFF", "Log ON*", "Log ON", "Log ON="};
  label.caption = kCaptions[mode];
  if (mode == 0) {
    label.backColor = kSystemButtonFace;
    label.foreColor = kSystemButtonText;
  } else {
    label.backColor = QBColor(10);
    label.foreColor = QBColor(1);
  }
}

void PacketLog::AskForCall() {
  const std::string answer = m_platform.dialogs().inputBox(
      "Enter the call (station) you want to log the packets from:",
      "Log Packets Only From A Specified Call ", m_config.CallDefinedLog);
  // A cancelled box or a single character keeps the old call.
  if (Len(answer) >= 2) m_config.CallDefinedLog = answer;
}

void PacketLog::OpenInViewer(const std::string& path) {
  m_platform.shell().openUrl(path);
}

void PacketLog::OpenAnyLog() {
  const std::string path = m_platform.dialogs().fileOpen(
      "Open Any Log...", "Log files (*.log)|*.log|All files (*.*)|*.*", LogsFolder());
  if (!path.empty()) OpenInViewer(path);
}

void PacketLog::RegisterCommands(CommandTable& commands) {
  const std::pair<int, const char*> modes[] = {{0, "Off"},
                                               {1, "Only Digipeated"},
                                               {2, "All"},
                                               {3, "Only of Call..."},
                                               {10, "Open current Log..."},
                                               {20, "Open Any Log..."},
                                               {40, "Digi LogBook"},
                                               {50, "Open Digi LogBook..."}};
  for (const auto& [index, caption] : modes)
    commands.addRow(Command::mnuautolog, m_main.mnuautolog, index, caption,
                    [this](int i) { mnuautolog_Click(i); });
  const std::pair<int, const char*> opens[] = {
      {10, "Current Auto-Log..."}, {20, "Any Log..."}, {40, "Digi LogBook..."}};
  for (const auto& [index, caption] : opens)
    commands.addRow(Command::mnuOpenLog, m_main.mnuOpenLog, index, caption,
                    [this](int i) { mnuOpenLog_Click(i); });
  commands.addClick({Command::AutoLogLabel_DblClick}, [this] { AutoLogLabel_DblClick(); });
  commands.addClick({Command::AutoLogLabel_RightPress}, [this] { AutoLogLabel_RightPress(); });
}

}  // namespace tesk
