// Reports: the head with the stations heard, the Monitor's frames, the dated files and the mail
// hand-off. A file is written whole or not at all, so a failed write leaves no half report.
#include "alarms/reports.h"

#include <filesystem>

#include "alarms/date_stamp.h"
#include "aprs/aprs_position.h"
#include "base/text.h"
#include "platform/platform_helpers.h"
#include "settings/whole_file.h"

namespace tesk {

namespace {

constexpr const char* kTextFilter = "Text (*.txt)|*.txt|All files (*.*)|*.*";
constexpr const char* kReportUsage = ":report save|mail";

// Percent-encodes everything but the letters, digits, "-._~" and the path separator, so a path
// with blanks stays one argument and one field of the address.
std::string PercentEncoded(const std::string& text) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  for (const char c : text) {
    const auto b = static_cast<unsigned char>(c);
    const bool plain = (b >= 'A' && b <= 'Z') || (b >= 'a' && b <= 'z') || (b >= '0' && b <= '9') ||
                       b == '-' || b == '.' || b == '_' || b == '~' || b == '/';
    if (plain) {
      out += c;
      continue;
    }
    out += '%';
    out += kHex[b >> 4];
    out += kHex[b & 0x0F];
  }
  return out;
}

// The stations of the MHeard list, one trimmed row a line.
std::string StationRows(const ListBox& box, bool systemTime) {
  std::string rows;
  for (std::size_t i = 0; i < box.list.size(); ++i) {
    if (i > 0) rows += CRLF;
    rows += Trim(box.list[i]);
    // Without UTC the times are the computer's own, which the reader needs to know.
    if (i == 0 && systemTime) rows += " System time";
  }
  return rows;
}

}  // namespace

Reports::Reports(Platform& platform, StationConfig& config, const RunState& run, MainWindow& main,
                 Meld& meld)
    : m_platform(platform), m_config(config), m_run(run), m_main(main), m_meld(meld) {}

std::string Reports::ReportsFolder() const {
  const std::string folder = JoinPath(m_run.AppPath, "Reports");
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  return folder;
}

std::string Reports::PrepareReport() {
  const bool utc = m_config.ShowUTCInHeader == 1;
  const std::string stations = StationRows(m_main.LstMHeardList, !utc);
  std::string note;
  if (utc) note = m_config.AutoDetectUTC != 0 ? " *UTC timestamp log" : " *User timestamp log";
  const Clock& clock = m_platform.clock();
  const DateTime now = clock.localNow();
  const std::string title = "Report TESK v" + m_run.VersionText;

  std::string r;
  const auto line = [&r](const std::string& text) { r += text + CRLF; };
  line(title);
  line(String(Len(title), '-'));
  line("Report Save Date=" + clock.shortDate(now) + " * SystemTime=" + clock.longTime(now) +
       " UTC=" + Left(m_main.UTC_Klok.caption, 5) + note);
  line("");
  line("Callsign :" + m_config.YourCallSign);
  if (Len(m_config.APRS) >= AprsPosition::kFixedLength) {
    if (const auto decoded = AprsPosition::DecodeAPRS(m_config.APRS)) {
      const PositionFields& f = decoded->fields;
      line("Latitude :" + f.latH + "." + f.latM + "." + f.latS + f.latDirection);
      line("Longitude:" + f.lonH + "." + f.lonM + "." + f.lonS + f.lonDirection);
    }
  }
  if (!m_config.ExtraInfoReports.empty()) line(m_config.ExtraInfoReports);
  line("");
  line("Stations Heard");
  line("--------------");
  line(stations);
  line("Total Stations = " + std::to_string(m_main.LstMHeardList.list.size()));
  line("");
  line("Received Packet Frames");
  line("----------------------");
  return r;
}

Reports::Frames Reports::AskFrames(const std::string& question) {
  if (m_main.txtMonitor.selLength() == 0) return Frames::Whole;
  const MsgResult answer =
      m_platform.dialogs().msgBox(question, MsgButtons::YesNoCancel, MsgIcon::Question, "Save");
  if (answer == MsgResult::Cancel) return Frames::Cancel;
  return answer == MsgResult::Yes ? Frames::Selection : Frames::Whole;
}

std::string Reports::ReportText(Frames frames, const std::string& selection) {
  const std::string body = frames == Frames::Selection ? selection : m_main.txtMonitor.text();
  return PrepareReport() + body + kEnd + CRLF;
}

bool Reports::Write(const std::string& path, const std::string& text) {
  if (WriteWholeFile(path, text)) return true;
  m_meld.ShowMeld("The report could not be written to " + path, 0);
  return false;
}

std::string Reports::SaveReport() {
  // Taken now: a frame that comes in while a box is open moves the caret to the end.
  const std::string selection = m_main.txtMonitor.selectedText();
  const Frames frames = AskFrames(kSaveQuestion);
  if (frames == Frames::Cancel) return "";
  const std::string name = "TESKReport" + DateStamp(m_config, m_platform.clock()) + ".txt";
  const std::string path =
      m_platform.dialogs().fileSave("Save As Report", kTextFilter, ReportsFolder(), name);
  if (path.empty()) return "";
  return Write(path, ReportText(frames, selection)) ? path : "";
}

std::string Reports::MailReport() {
  const std::string selection = m_main.txtMonitor.selectedText();
  // Two underscores, so a mailed report never takes the name of a saved one.
  const std::string path =
      JoinPath(ReportsFolder(), "TESKReport" + DateStamp(m_config, m_platform.clock()) + "__.txt");
  const Frames frames = AskFrames(kMailQuestion);
  if (frames == Frames::Cancel) return "";
  if (!Write(path, ReportText(frames, selection))) return "";
  if (m_platform.shell().openMail(MailtoUrl(path)) != 0) {
    m_meld.ShowMeld("The mail program could not be started. The report stays in " + path, 0);
  }
  return path;
}

std::string Reports::MailtoUrl(const std::string& path) {
  // No recipient: the operator fills it in, and attaches the file by hand.
  return "mailto:?subject=" + PercentEncoded(path + " ") +
         "&body=" + PercentEncoded(path + " Attached");
}

void Reports::ConsoleReport(const std::string& argument) {
  Views& views = m_platform.views();
  const std::string what = LCase(Trim(argument));
  if (what == "save") {
    const std::string path = SaveReport();
    if (!path.empty()) views.notice("Report saved: " + path);
  } else if (what == "mail") {
    const std::string path = MailReport();
    if (!path.empty()) views.notice("Report written: " + path);
  } else {
    views.notice(std::string("Usage: ") + kReportUsage);
  }
}

void Reports::RegisterCommands(CommandTable& commands) {
  commands.addRow(Command::menufiles, m_main.menufiles, 40, "Save As &Report...",
                  [this](int) { SaveReport(); });
  commands.addRow(Command::menufiles, m_main.menufiles, 50, "&Mail Report...",
                  [this](int) { MailReport(); });
  CommandSpec console;
  console.key = {Command::ConsoleReport};
  console.console = "report";
  console.usage = kReportUsage;
  console.handler = [this](const std::string& argument) { ConsoleReport(argument); };
  commands.add(std::move(console));
}

}  // namespace tesk
