// The statistics window: the counts of the Monitor and the state of the console. The walks look
// at the plain text as it stood when counting began; between the big counts the event loop runs,
// so frames keep coming in and are counted the next time.
#include "alarms/statistics.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>
#include <unordered_set>

#include "base/text.h"
#include "core/digipeat.h"
#include "core/monitor_console.h"
#include "core/monitor_find.h"
#include "platform/rtf.h"

namespace tesk {

namespace {

constexpr std::array<const char*, 12> kCounterLabels = {
    "Header only:",  "Text/Data:",   "APRS Position:", "APRS Message:",
    "MHeard:",       "Beacon:",      "TX no Via:",     "Auto Answer Ack.:",
    "Ack. Message:", "Multi-Lines:", "Shadow Exp.:",   "Dama:"};
constexpr long kOwnWindow = 80;   // characters looked at behind an own call
constexpr long kHeardWidth = 11;  // characters taken for a heard station

// An empty text splits into no pieces at all; for a count that is none.
long Count(std::string_view text, std::string_view word) {
  return std::max(0L, InstrCount(text, word));
}

// Own frames: what follows each "Fm " + own call up to the line's end tells whether it came
// back through a digipeater ("* <") or is one sent.
void CountOwn(const std::string& text, const std::string& ownCall, MonitorCounts& c) {
  const std::string needle = "Fm " + ownCall;
  for (std::size_t p = text.find(needle); p != std::string::npos; p = text.find(needle, p + 1)) {
    // The hit's 0-based place is taken as a 1-based start, as the heard walk does.
    const long start = static_cast<long>(p) + Len(ownCall);
    if (start < 1) continue;
    std::string window = Mid(text, start, kOwnWindow);
    const long cr = InStr(window, CR);
    if (cr > 0) window = Left(window, cr - 1);
    if (InStr(window, "* <") > 0) {
      ++c.digi;
    } else {
      ++c.tx;
    }
  }
}

// Heard stations: the distinct texts at the hits of "Fm ", up to 256 of them.
long CountHeard(const std::string& text) {
  std::unordered_set<std::string> seen;
  for (std::size_t p = text.find("Fm "); p != std::string::npos; p = text.find("Fm ", p + 1)) {
    // Deliberate: a hit at the very start gives the start 0, which fails and is passed over.
    if (p == 0) continue;
    // Deliberate: the 0-based place read as a 1-based start cuts a call after 7 characters.
    seen.insert(Trim(Mid(text, static_cast<long>(p), kHeardWidth)));
    // The list holds 256; a further one stops it, and nothing after can change the count.
    if (seen.size() >= Statistics::kHeardCap) break;
  }
  return static_cast<long>(seen.size());
}

long CountLines(const std::string& text) {
  const long breaks = static_cast<long>(std::count(text.begin(), text.end(), '\n'));
  return breaks + (text.empty() || text.back() == '\n' ? 0 : 1);
}

std::string Percent(double value) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.1f%%", value);
  return buffer;
}

std::string Lines(const std::vector<std::string>& lines) {
  std::string out;
  for (std::size_t i = 0; i < lines.size(); ++i)
    out += (i == 0 ? "" : CRLF) + lines[i];
  return out;
}

std::vector<std::string> SplitLines(const std::string& text) {
  std::vector<std::string> out;
  if (text.empty()) return out;
  std::size_t from = 0;
  for (std::size_t at = text.find(CRLF); at != std::string::npos; at = text.find(CRLF, from)) {
    out.push_back(text.substr(from, at - from));
    from = at + 2;
  }
  out.push_back(text.substr(from));
  return out;
}

}  // namespace

MonitorCounts CountMonitor(const RichText& monitor, const std::string& fontName,
                           const std::string& ownCall, const std::function<void()>& between) {
  const auto pause = [&between] {
    if (between) between();
  };
  const std::string text = monitor.text();
  MonitorCounts c;
  c.total = Count(text, "Fm ");
  c.ui = Count(text, " <UI ");
  pause();
  // Calls are upper case on the air, "beacon" is not always.
  c.beacons = Count(UCase(text), " TO BEACON ");
  pause();
  CountOwn(text, ownCall, c);
  pause();
  c.heard = CountHeard(text);
  pause();
  // Each may come out negative on an edited Monitor; such a count shows as 0.
  c.dama = std::max(0L, c.total - c.ui);
  // Deliberate: the own digipeated frames are added to what was received, as always counted.
  c.rx = std::max(0L, c.total - c.tx + c.digi);
  // Without frames sent the division fails and the efficiency stays 0.
  if (c.tx != 0) c.efficiency = std::max(0.0, static_cast<double>(c.digi) / c.tx * 100);
  c.characters = Len(text);
  c.lines = CountLines(text);
  c.size = static_cast<long>(WriteRtf(monitor.runs(), fontName).size());
  return c;
}

std::string CountsText(const MonitorCounts& c, const std::string& own) {
  const auto n = [](long v) { return std::to_string(v); };
  const std::string size =
      c.size > 1024 ? "Kilo Bytes = " + n(c.size / 1024) : "Bytes = " + n(c.size);
  return Lines({size, "Total Packet frames = " + n(c.total), "UI frames = " + n(c.ui),
                "RX frames = " + n(c.rx), "DAMA frames = " + n(c.dama),
                "TX frames(" + own + ") = " + n(c.tx), "Digi frames(" + own + ") = " + n(c.digi),
                "Digi efficiency (" + own + ") = " + Percent(c.efficiency),
                "Heard stations = " + n(c.heard), "", "Beacon stations = " + n(c.beacons),
                "Characters = " + n(c.characters), "Lines = " + n(c.lines)});
}

Statistics::Statistics(Platform& platform, const StationConfig& config, const RunState& run,
                       MainWindow& main, Parts parts)
    : m_platform(platform), m_config(config), m_run(run), m_main(main), m_parts(parts) {
  m_main.cmdStatistics.toolTip = "Statistics and Properties";
}

void Statistics::refresh() {
  m_platform.views().refresh(kWindowKind);
}

void Statistics::Show() {
  // A press while counting would start a second walk inside the first.
  if (m_counting) return;
  if (!m_window.form.loaded) Form_Load();
  m_window.form.visible = true;
  m_platform.views().show(kWindowKind);
  Form_Activate();
}

void Statistics::Form_Load() {
  m_window.form.loaded = true;
  m_window.Label1.caption = kPleaseWait;
  FillCounters();
  FillFields();
  FillHeard();
  FillStatus();
}

void Statistics::Form_Activate() {
  m_counting = true;
  m_window.busy = true;
  m_window.Label1.caption = kPleaseWait;
  FillCounters();
  FillFields();
  FillHeard();
  FillStatus();
  refresh();
  RichText& monitor = m_main.txtMonitor;
  m_counts = CountMonitor(monitor, m_main.txtMonitorFontName, m_config.YourCallSign,
                          [this] { m_platform.loop().yield(); });
  // The walk leaves the caret where the next frame goes in.
  monitor.setSelection(monitor.length(), 0);
  m_window.Label1.caption = CountsText(m_counts, m_config.YourCallSign);
  m_window.busy = false;
  m_counting = false;
  refresh();
}

void Statistics::FillCounters() {
  std::vector<std::string> names, values;
  for (std::size_t i = 0; i < kCounterLabels.size(); ++i) {
    names.emplace_back(kCounterLabels[i]);
    values.push_back(std::to_string(m_run.TxCounters[i]));
  }
  m_window.lblTXbut.caption = Lines(names);
  m_window.lblTXbutRes.caption = Lines(values);
}

void Statistics::FillFields() {
  const MainWindow& m = m_main;
  const std::pair<const char*, const ComboBox*> fields[] = {
      {"To:", &m.cmbToCall},          {"Via:", &m.cmbViaCall},
      {"TX-Text:", &m.cmbDataText},   {"TX-APRS:", &m.cmbAPRSPos},
      {"TX-Message For:", &m.cmbFor}, {"TX-Message:", &m.cmbAPRSMessage}};
  std::vector<std::string> names, values;
  for (const auto& [name, box] : fields) {
    names.emplace_back(name);
    values.push_back(std::to_string(box->list.size()));
  }
  m_window.LblFields.caption = Lines(names);
  m_window.lblFieldsRes.caption = Lines(values);
}

void Statistics::FillHeard() {
  m_window.lblHeard.caption = Lines({"MHeard:", "Digipeated"});
  m_window.lblHeardres.caption = Lines({std::to_string(m_main.LstMHeardList.list.size()),
                                        Trim(Str(m_parts.digipeat.DigipeatedTotal))});
}

void Statistics::FillStatus() {
  const bool lan = m_run.LanMode != 0;
  std::string engine = "Other Engine    =";
  if (m_config.TypeOfModem == 1) engine = "UZ7HO Soundmodem=";
  if (m_config.TypeOfModem == 2 || m_config.TypeOfModem == 3)
    engine = lan ? "AGW Engine TCPIP=" : "AGW Engine DLL  =";
  const std::string rx =
      m_config.AGWPERXPort < 6 ? std::to_string(m_config.AGWPERXPort + 1) : std::string("All");
  m_window.lblStatus.caption =
      Lines({engine + (lan ? m_run.LinkStatus : m_run.EngineStatus),
             std::string("AGW Mode =") + (lan ? "LAN" : "Direct"), "RX RadioPort =" + rx,
             "TX RadioPort =" + std::to_string(m_config.AGWPERadioPort + 1)});
  const int16_t mode = m_run.ServerSwitch;
  if (mode == 0) {
    m_window.lblMode.caption = "TESK Mode Normal";
  } else if (mode == 3) {
    m_window.lblMode.caption = "TESK Mode:" + std::to_string(mode) + " Server ";
  } else {
    m_window.lblMode.caption = "TESK Module Mode " + std::to_string(mode);
  }
  const bool profile = !m_run.ProfileName.empty();
  m_window.lblProfile.caption = profile ? "Active Profile: " + m_run.ProfileName : "";
  m_window.lblProfile.visible = profile;
  // The Monitor's setup page comes with the setup window; until then the button shows grey.
  m_window.Command2.enabled = static_cast<bool>(m_parts.monitor.OpenMonitorSetup);
}

void Statistics::Command1_Click() {
  m_window.form.loaded = false;
  m_window.form.visible = false;
  m_platform.views().hide(kWindowKind);
}

void Statistics::Command2_Click() {
  if (m_parts.monitor.OpenMonitorSetup) m_parts.monitor.OpenMonitorSetup();
}

void Statistics::Command3_Click() {
  m_parts.find.menufindcount_Click();
}

std::vector<std::string> Statistics::ConsoleLines() const {
  const StatisticsWindow& w = m_window;
  std::vector<std::string> out = SplitLines(w.Label1.caption);
  const auto pairs = [&out](const Label& names, const Label& values) {
    const std::vector<std::string> n = SplitLines(names.caption);
    const std::vector<std::string> v = SplitLines(values.caption);
    for (std::size_t i = 0; i < n.size(); ++i)
      out.push_back(n[i] + " " + (i < v.size() ? v[i] : std::string()));
  };
  pairs(w.lblTXbut, w.lblTXbutRes);
  pairs(w.LblFields, w.lblFieldsRes);
  pairs(w.lblHeard, w.lblHeardres);
  for (const std::string& line : SplitLines(w.lblStatus.caption))
    out.push_back(line);
  out.push_back(w.lblMode.caption);
  if (w.lblProfile.visible) out.push_back(w.lblProfile.caption);
  return out;
}

void Statistics::RegisterCommands(CommandTable& commands) {
  commands.addClick(
      {Command::cmdStatistics}, [this] { Show(); }, WhileEnabled(m_main.cmdStatistics));
  CommandSpec console;
  console.key = {Command::ConsoleStats};
  console.console = "stats";
  console.usage = ":stats";
  console.handler = [this](const std::string&) {
    // A line read while counting waits for nothing: the count in hand prints its own lines.
    if (m_counting) return;
    Show();
    for (const std::string& line : ConsoleLines())
      m_platform.views().notice(line);
    // Nobody could close it without windows; the next :stats loads it afresh.
    Command1_Click();
  };
  commands.add(std::move(console));
}

}  // namespace tesk
