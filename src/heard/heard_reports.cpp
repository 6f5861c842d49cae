// The heard report. The walk tests the length only after a call was added, so a frame can
// overrun its room by one call; the text sender then cuts it at 80. Kept on purpose: the
// receiving stations know these frames as they are.
#include "heard/heard_reports.h"

#include <vector>

#include "alarms/meld.h"
#include "base/text.h"
#include "heard/mheard_list.h"
#include "transmit/tx_panel.h"
#include "transmit/ui_text_sender.h"

namespace tesk {

namespace {

constexpr long kOverheadWithTag = 19;
constexpr long kOverheadNoTag = 13;
constexpr long kFullRoom = 79;
constexpr int kLastHeardWithVia = 6;
// A longer total can only add frames, so the count settles once the total keeps its number of
// digits, within a few rounds; the limit only guards the loop.
constexpr int kCountRounds = 8;

// Sample frames of the setup's example; made-up calls.
constexpr const char* kSampleFirst = "PA3ABC,DL1XYZ-7,OK1ABC,";
constexpr const char* kSampleSecond = "G4XYZ,F5ABC";

}  // namespace

HeardReports::HeardReports(Platform& platform, StationConfig& config, RunState& run,
                           MainWindow& main, Parts parts)
    : m_platform(platform), m_config(config), m_run(run), m_main(main), m_parts(parts) {
  m_main.cmdTXMHeard.caption = "M&Heard";
  m_main.cmdTXMHeard.toolTip = "Send MHeard List (F8)";
  for (int i = 0; i < kTypes; ++i) {
    m_main.menumheardsend[i].caption = TypeCaption(i);
    m_main.menuheardsend[i].caption = TypeCaption(i);
  }
  m_main.menumheardsend[kTypes].caption = "MHeard Setup...";
  m_main.menuheardsend[kTypes].caption = "MHeard Setup...";
}

std::string HeardReports::TypeCaption(int type) {
  switch (type) {
    case 0:
      return "Stations as 'Heard'";
    case 1:
      return "Stations as TESK 'BLNQSLx/x'";
    case 2:
      return "Stations as APRS Bulletin 'BLN0QSLs'";
    case 3:
      return "Last Heard Stations (max 7)";
    default:
      return "";
  }
}

std::string HeardReports::Prefix(int type, int part, int total) {
  switch (type) {
    case 0:
      return ":Heard    :";
    case 1:
      return ":BLNQSL" + std::to_string(part) + "/" + std::to_string(total) + ":";
    case 2:
      return ":BLN0QSLs :";
    case 3:
      return ":HEARDlast:";
    default:
      return "";
  }
}

bool HeardReports::Ignored(const std::string& call) const {
  // A substring test: a short call is skipped where only a longer call holding it is listed.
  // Kept on purpose, as the list has always been read this way.
  const std::string ignore = UCase(m_config.IgnoreMheardCalls + m_config.YourCallSign);
  return InStr(ignore, call) > 0;
}

void HeardReports::Send(const std::string& text) {
  m_run.MonitorSendText = text;
  m_parts.sender.StuurMonitorTekst();
}

void HeardReports::SendMheardList(int16_t type) {
  const std::vector<std::string>& rows = m_main.LstMHeardList.list;
  if (rows.empty()) {
    m_parts.meld.ShowMeld("No stations heard, so nothing to send.", 0);
    return;
  }
  if (rows.size() == 1 && MHeardList::CallOf(rows[0]) == m_main.lblCallSign.caption) {
    m_parts.meld.ShowMeld("You can't send your own station as a heard station.", 0);
    return;
  }
  m_run.MonitorSendText.clear();
  const bool tagOn = m_config.TESKTag == 0;
  const long overhead = tagOn ? kOverheadWithTag : kOverheadNoTag;
  const std::string tag = tagOn ? Trim(m_run.TagText) : std::string();
  if (type == 3) {
    SendLastHeard(Prefix(type, 0, 0), tag);
    return;
  }
  // The rows as they stand now: frames coming in while the pieces go out must not shift them.
  const std::vector<std::string> snapshot = rows;
  const int total = type == 1 ? CountParts(snapshot, overhead, tag) : 0;
  WalkRows(snapshot, type, overhead, tag, total, true);
}

int HeardReports::CountParts(const std::vector<std::string>& rows, long overhead,
                             const std::string& tag) {
  // The count walks with the prefixes the frames will carry. From 10 on, a part or a total
  // takes two digits, the room shrinks and more frames may follow, so the count is taken again
  // with the new total until it holds: a report never says more parts than it announced.
  // Lists below 10 parts are counted the same as always.
  int total = 0;
  for (int round = 0; round < kCountRounds; ++round) {
    const int counted = 1 + WalkRows(rows, 1, overhead, tag, total, false);
    if (counted == total) break;
    total = counted;
  }
  return total;
}

int HeardReports::WalkRows(const std::vector<std::string>& rows, int16_t type, long overhead,
                           const std::string& tag, int total, bool send) {
  int part = 0;
  int flushes = 0;
  std::string prefix = Prefix(type, part, total);
  std::string list;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::string call = MHeardList::CallOf(rows[i]);
    if (Ignored(call)) continue;
    list += call + ",";
    std::string unused;
    const long room =
        m_parts.panel.CalcUI_TXlength(unused, static_cast<int16_t>(overhead + Len(prefix)), 1);
    if (Len(list) < room || i + 1 == rows.size()) continue;
    ++flushes;
    if (type == 1) prefix = Prefix(type, ++part, total);
    // No tag on these: it marks the last frame, and the comma says more follows.
    if (send) Send(prefix + list);
    list.clear();
  }
  if (send && !list.empty()) {
    if (Right(list, 1) == ",") list = Left(list, Len(list) - 1);
    if (type == 1) prefix = Prefix(type, ++part, total);
    Send(prefix + list + tag);
  }
  return flushes;
}

void HeardReports::SendLastHeard(const std::string& prefix, const std::string& tag) {
  MHeardList& heard = m_parts.heardList;
  heard.AddToLastMheard("", true);
  std::string unused;
  // Less room than a plain frame has means digipeaters in Via: one entry fewer then.
  const long room = m_parts.panel.CalcUI_TXlength(unused, 0, 1);
  const int take = room < kFullRoom ? kLastHeardWithVia : MHeardList::kLastHeard;
  std::string list;
  for (int i = 0; i < take; ++i) {
    const std::string& entry = heard.LastMHeard[static_cast<std::size_t>(i)];
    if (!entry.empty()) list += MHeardList::CallOf(entry) + ",";
  }
  // On an empty list the cut of the last comma fails and is passed over: the prefix goes alone.
  if (!list.empty()) list.pop_back();
  Send(prefix + list + tag);
}

void HeardReports::cmdTXMHeard_Click() {
  m_parts.panel.ValidateToViaBoxes();
  if (!m_config.ToCall.empty()) SendMheardList(m_config.TXMHeardType);
}

void HeardReports::cmdTXMHeard_RightPress() {
  m_main.menumheardsendPopup = true;
  m_platform.views().refresh(WindowKind::Main);
}

void HeardReports::CheckType(int type) {
  for (MenuArray* menu : {&m_main.menumheardsend, &m_main.menuheardsend}) {
    for (auto& [index, item] : *menu)
      item.checked = false;
    (*menu)[type].checked = true;
  }
}

void HeardReports::menumheardsend_Click(int index) {
  m_main.menumheardsendPopup = false;
  if (index < 0) return;
  if (index >= kTypes) {
    if (m_parts.heardList.openSetupMHeard) m_parts.heardList.openSetupMHeard();
    return;
  }
  // The check follows the choice; [TXMHeardType] stays as the setup left it, as it always has.
  CheckType(index);
  SendMheardList(static_cast<int16_t>(index));
  m_platform.views().refresh(WindowKind::Main);
}

void HeardReports::menuheardsend_Click(int index) {
  menumheardsend_Click(index);
}

void HeardReports::EditMheardIgnore() {
  const std::string prompt =
      std::string("These are the stations to ignore when sending the MHeard list.") + "\r" +
      "Enter the callsign(s) separated with a space." + "\r" +
      "example: RS0ISS PCSAT PCSAT-1 WD3ADO" + "\r\r" + "Enter the callsign(s) to ignore:";
  const std::string answer = m_platform.dialogs().inputBox(prompt, "Ignore Mheard TX List",
                                                           UCase(Trim(m_config.IgnoreMheardCalls)));
  if (Len(answer) > kIgnoreMax) {
    m_platform.dialogs().msgBox("to many callsigns added", MsgButtons::Ok, MsgIcon::Exclamation,
                                "To many calls in the ignore list");
    return;
  }
  // An empty answer is also what cancel gives: the list stays, it cannot be emptied here.
  if (!answer.empty()) m_config.IgnoreMheardCalls = UCase(answer);
}

void HeardReports::SetTXMHeardType(int16_t type) {
  const std::string tag = m_config.TESKTag == 0 ? Trim(m_run.TagText) : std::string();
  const auto sample = [type](int part) { return Mid(Prefix(type, part, 2), 2); };
  std::string text = std::string("Fm XX9TK To ARISS...") + CRLF;
  if (type == 3) {
    text += sample(0) + "PA3ABC,DL1XYZ-7,OK1ABC,G4XYZ,F5ABC" + tag;
  } else {
    text += sample(1) + kSampleFirst + CRLF + sample(2) + kSampleSecond + tag;
  }
  m_example = text;
}

void HeardReports::RegisterCommands(CommandTable& commands) {
  CommandSpec send;
  send.key = {Command::cmdTXMHeard};
  send.shortcut = "F8";  // wherever the keyboard is in the window
  send.enabled = WhileEnabled(m_main.cmdTXMHeard);
  send.handler = [this](const std::string&) { cmdTXMHeard_Click(); };
  commands.add(std::move(send));
  commands.addClick({Command::cmdTXMHeard_RightPress}, [this] { cmdTXMHeard_RightPress(); });
  // The last entry opens the setup's MHeard page, so it works only once that page is there.
  const auto setupThere = [this] { return static_cast<bool>(m_parts.heardList.openSetupMHeard); };
  for (int i = 0; i <= kTypes; ++i) {
    const auto also = i == kTypes ? std::function<bool()>(setupThere) : std::function<bool()>();
    commands.addRow(
        Command::menumheardsend, m_main.menumheardsend, i, {},
        [this](int index) { menumheardsend_Click(index); }, also);
    commands.addRow(
        Command::menuheardsend, m_main.menuheardsend, i, {},
        [this](int index) { menuheardsend_Click(index); }, also);
  }
  CommandSpec console;
  console.key = {Command::ConsoleHeard};
  console.console = "heard";
  console.usage = ":heard [0-3]";
  // The console's report is the button's, and its popup's when a type is given.
  console.enabled = WhileEnabled(m_main.cmdTXMHeard);
  console.handler = [this](const std::string& a) {
    if (a.empty()) {
      m_parts.panel.Press(SendButton::MHeard);
    } else if (a.size() == 1 && a[0] >= '0' && a[0] <= '3') {
      menumheardsend_Click(a[0] - '0');
    } else {
      m_platform.views().notice("The heard report type is 0 to 3, not: " + a);
    }
  };
  commands.add(std::move(console));
}

}  // namespace tesk
