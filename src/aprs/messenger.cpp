// The messenger's handlers. The 30-second refresh runs only while the window is loaded; the
// console's message lines run the same handlers without a window.
#include "aprs/messenger.h"

#include <filesystem>
#include <fstream>

#include "alarms/date_stamp.h"
#include "aprs/message_sending.h"
#include "base/text.h"
#include "platform/platform_helpers.h"

namespace tesk {

namespace {
constexpr const char* kFilterMarks[Messenger::kFilters] = {"",       "",       "TO:BLN",
                                                           "TO:NWS", "TO:SAT", "TO:EMAIL"};
constexpr const char* kFilterUsage = "The filter is 0 to 5: All, Mine, BLN, NWS, SAT, EMAIL";
constexpr const char* kTitle = "APRS Messenger";
}  // namespace

Messenger::Messenger(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                     MessageSending& sending)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_sending(sending),
      m_timer(platform.loop().createTimer()) {
  MessengerWindow& w = m_window;
  w.Command2.caption = "Refresh Now";
  // The tip speaks of 15 seconds while the timer runs every 30; the text is kept as it stands.
  w.Command2.toolTip = "Refresh now manual (automatic refresh every 15 seconds)";
  w.cmdMesClear.caption = "Clear All";
  w.CmdSentOpt.caption = "Clear Sent";
  w.CmdStopPend.caption = "Stop Pending";
  w.cmdMesCopySel.caption = "Copy";
  w.cmdMesCopy.caption = "Copy All";
  w.cmdMesPrint.caption = "Print...";
  w.cmdMesSave.caption = "Save...";
  w.cmdOpen.caption = "Open...";
  w.cmdClose.caption = "Close";
  w.FrameSent.caption = "Sent with acknowledgement requests: 0";
  w.LlbTotMes.caption = "Received Messages: 0/0";
  m_timer->setInterval(kRefreshMs);
  m_timer->setHandler([this] { Command2_Click(); });
}

int Messenger::filter() const {
  for (int i = 0; i < kFilters; ++i)
    if (m_window.OptViewMessages[static_cast<std::size_t>(i)].value) return i;
  return 0;
}

void Messenger::RefreshViews() {
  m_platform.views().refresh(kWindowKind);
}

void Messenger::cmdLoadMessenger_Click() {
  m_window.form.loaded = true;
  m_window.form.visible = true;
  const int logType = m_config.LogDigipeatedMessages == 1 ? 1 : 0;
  m_window.OptLogTypeMessages[0].value = logType == 0;
  m_window.OptLogTypeMessages[1].value = logType == 1;
  ToonMyMes(filter());
  ToonMySent();
  m_timer->setEnabled(true);
  m_platform.views().show(kWindowKind);
}

std::vector<std::string> Messenger::Stored() const {
  const int count = m_run.MessageLogCount;
  return {m_run.MessageLog.begin(), m_run.MessageLog.begin() + count};
}

void Messenger::ToonMyMes(int filter) {
  ListBox& list = m_window.List1;
  list.list.clear();
  list.listIndex = -1;
  m_window.lblAPRSMessangerViewer.caption.clear();
  std::string want;
  if (filter == 1) {
    const std::string call = UCase(m_config.YourCallSign);
    const long dash = InStr(call, "-");
    want = "TO:" + (dash > 0 ? Left(call, dash - 1) : call);
  } else if (filter >= 2 && filter < kFilters) {
    want = kFilterMarks[filter];
  }
  for (const std::string& entry : Stored()) {
    if (entry.empty()) continue;
    if (filter < 0 || filter >= kFilters) continue;
    if (filter == 0 || InStr(UCase(entry), want) > 0) list.list.push_back(entry);
  }
  m_window.LlbTotMes.caption =
      "Received Messages: " + Trim(Str(static_cast<long>(list.list.size()))) + "/" +
      Trim(Str(static_cast<long>(m_run.MessageLogCount)));
  RefreshViews();
}

void Messenger::ToonMySent() {
  ListBox& list = m_window.List2;
  list.list.clear();
  list.listIndex = -1;
  // Counted right after the clear, so it always ends in 0; kept on purpose.
  m_window.FrameSent.caption =
      "Sent with acknowledgement requests: " + Trim(Str(static_cast<long>(list.list.size())));
  list.list = m_sending.SentLines();
  RefreshViews();
}

void Messenger::OptViewMessages_Click(int index) {
  if (index < 0 || index >= kFilters) return;
  for (int i = 0; i < kFilters; ++i)
    m_window.OptViewMessages[static_cast<std::size_t>(i)].value = i == index;
  ToonMyMes(index);
}

void Messenger::OptLogTypeMessages_Click(int index) {
  if (index < 0 || index > 1) return;
  m_window.OptLogTypeMessages[0].value = index == 0;
  m_window.OptLogTypeMessages[1].value = index == 1;
  m_config.LogDigipeatedMessages = static_cast<int16_t>(index);
  RefreshViews();
}

void Messenger::Command2_Click() {
  ToonMyMes(filter());
  ToonMySent();
}

std::string Messenger::SelectedEntry() const {
  const ListBox& list = m_window.List1;
  if (list.listIndex < 0 || list.listIndex >= static_cast<long>(list.list.size())) return "";
  return list.list[static_cast<std::size_t>(list.listIndex)];
}

void Messenger::List1_Click() {
  const std::string entry = SelectedEntry();
  if (entry.empty()) return;
  const long at = InStr(entry, "| Message:");
  m_window.lblAPRSMessangerViewer.caption =
      at > 0 ? Left(entry, at - 1) + CR + Mid(entry, at + 1) : entry;
  m_main.cmdLoadMessenger.backColor = kButtonFace;
  RefreshViews();
  m_platform.views().refresh(WindowKind::Main);
}

void Messenger::List1_DblClick() {
  const std::string entry = SelectedEntry();
  if (entry.empty()) return;
  const long at = InStr(entry, "| From:");
  if (at == 0) return;
  m_main.cmbFor.text = Trim(Mid(entry, at + 7, 9));
  m_main.txFocus = "cmbAPRSMessage";
  m_platform.views().refresh(WindowKind::Main);
}

void Messenger::List1_RightPress() {
  m_window.menueditasPopup = true;
  RefreshViews();
}

void Messenger::menueditas_Click(int index) {
  m_window.menueditasPopup = false;
  switch (index) {
    case 0:
      cmdMesCopySel_Click();
      break;
    case 1: {
      const std::string entry = SelectedEntry();
      if (entry.empty()) return;
      m_platform.dialogs().msgBox(entry, MsgButtons::Ok, MsgIcon::Information, kTitle);
      break;
    }
    case 2:
      List1_DblClick();
      break;
    default:
      break;
  }
}

void Messenger::cmdMesClear_Click() {
  if (m_run.MessageLogCount == 0) {
    m_platform.dialogs().msgBox("Nothing to clear", MsgButtons::Ok, MsgIcon::Information, kTitle);
    return;
  }
  if (m_platform.dialogs().msgBox("Do you want remove all the received APRS messages?",
                                  MsgButtons::YesNo, MsgIcon::Question,
                                  "Clear All") != MsgResult::Yes)
    return;
  m_run.MessageLog = {};
  m_run.MessageLogCount = 0;
  ToonMyMes(filter());
}

void Messenger::CmdSentOpt_Click() {
  if (m_sending.SentLines().empty()) {
    m_platform.dialogs().msgBox("Nothing to clear", MsgButtons::Ok, MsgIcon::Information, kTitle);
    return;
  }
  if (m_platform.dialogs().msgBox("Do you want remove all your sent APRS messages?",
                                  MsgButtons::YesNo, MsgIcon::Question,
                                  "Clear All") != MsgResult::Yes)
    return;
  m_sending.ClearSent();
  ToonMySent();
  m_platform.views().refresh(WindowKind::Main);
}

void Messenger::CmdStopPend_Click() {
  m_sending.mnuStopPending_Click();
  ToonMySent();
  m_platform.views().refresh(WindowKind::Main);
}

void Messenger::cmdMesCopySel_Click() {
  const std::string entry = SelectedEntry();
  if (entry.empty()) {
    m_platform.dialogs().msgBox("Please select a message first", MsgButtons::Ok,
                                MsgIcon::Information, kTitle);
    return;
  }
  m_platform.clipboard().setText(entry);
  m_platform.dialogs().msgBox("Message copied to clipboard", MsgButtons::Ok, MsgIcon::Information,
                              kTitle);
}

void Messenger::cmdMesCopy_Click() {
  std::string all;
  for (const std::string& entry : m_window.List1.list)
    all += entry + CRLF;
  m_platform.clipboard().setText(all);
}

void Messenger::cmdMesPrint_Click() {
  const std::vector<std::string>& list = m_window.List1.list;
  if (list.empty()) {
    m_platform.dialogs().msgBox("Nothing to print", MsgButtons::Ok, MsgIcon::Information, kTitle);
    return;
  }
  if (m_platform.dialogs().msgBox("Do you want to print the received APRS messages?",
                                  MsgButtons::YesNo, MsgIcon::Question, kTitle) != MsgResult::Yes)
    return;
  std::string all;
  for (const std::string& entry : list)
    all += entry + CRLF;
  m_platform.printer().printText(all);
}

std::string Messenger::MessagesFolder() const {
  return JoinPath(m_run.AppPath, "Messages");
}

void Messenger::cmdMesSave_Click() {
  const std::vector<std::string>& list = m_window.List1.list;
  if (list.empty()) {
    m_platform.dialogs().msgBox("Nothing to save", MsgButtons::Ok, MsgIcon::Information, kTitle);
    return;
  }
  std::error_code ec;
  std::filesystem::create_directories(MessagesFolder(), ec);
  const std::string name = "APRSMessages" + DateStamp(m_config, m_platform.clock()) + ".log";
  const std::string path = m_platform.dialogs().fileSave(
      "Save APRS Messages", "Log files (*.log)|*.log", MessagesFolder(), name);
  if (path.empty()) return;
  std::string text;
  for (const std::string& entry : list)
    text += entry + CRLF;
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << text;
  out.close();
  if (!out) {
    m_platform.dialogs().msgBox("Could not save " + path, MsgButtons::Ok, MsgIcon::Exclamation,
                                kTitle);
  }
}

void Messenger::cmdOpen_Click() {
  std::error_code ec;
  std::filesystem::create_directories(MessagesFolder(), ec);
  m_platform.shell().openUrl(MessagesFolder());
}

void Messenger::cmdClose_Click() {
  m_timer->setEnabled(false);
  m_window.form.visible = false;
  m_window.form.loaded = false;
  m_platform.views().hide(kWindowKind);
}

void Messenger::RegisterCommands(CommandTable& commands) {
  commands.addClick(
      {Command::cmdLoadMessenger}, [this] { cmdLoadMessenger_Click(); },
      WhileEnabled(m_main.cmdLoadMessenger));
  const auto line = [&commands](Command key, const char* name, const char* usage,
                                std::function<void(const std::string&)> handler) {
    CommandSpec entry;
    entry.key = {key};
    entry.console = name;
    entry.usage = usage;
    entry.handler = std::move(handler);
    commands.add(std::move(entry));
  };
  line(Command::ConsoleMessages, "messages", ":messages [0-5]", [this](const std::string& a) {
    const std::string arg = Trim(a);
    int row = filter();
    if (!arg.empty()) {
      if (arg.size() != 1 || arg[0] < '0' || arg[0] >= '0' + kFilters) {
        m_platform.views().notice(kFilterUsage);
        return;
      }
      row = arg[0] - '0';
    }
    OptViewMessages_Click(row);
    for (const std::string& entry : m_window.List1.list)
      m_platform.views().notice(entry);
    m_platform.views().notice(m_window.LlbTotMes.caption);
  });
  line(Command::ConsoleSaveMessages, "savemessages", ":savemessages", [this](const std::string&) {
    // The window's list as it would be shown, then its Save button.
    ToonMyMes(filter());
    cmdMesSave_Click();
  });
  line(Command::ConsoleClearMessages, "clearmessages", ":clearmessages",
       [this](const std::string&) { cmdMesClear_Click(); });
  line(Command::ConsoleClearSent, "clearsent", ":clearsent",
       [this](const std::string&) { CmdSentOpt_Click(); });
}

}  // namespace tesk
