// Sending UI text. Every path validates To and Via first and stops when no To call is left;
// an engine that is not connected is the primitives' matter, so the histories still grow.
#include "transmit/ui_text_sender.h"

#include <tuple>

#include "base/text.h"
#include "heard/mheard_list.h"
#include "transmit/transmit_primitives.h"
#include "transmit/tx_panel.h"

namespace tesk {

namespace {
constexpr long kDataMax = 250;
constexpr long kDropMax = 90;
constexpr long kPiece = 80;
constexpr int kTwiceGapMs = 200;
}  // namespace

UiTextSender::UiTextSender(Platform& platform, StationConfig& config, RunState& run,
                           MainWindow& main, TxPanel& panel, TransmitPrimitives& transmit,
                           const MHeardList& heardList, CommandTable& commands)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_panel(panel),
      m_transmit(transmit),
      m_heardList(heardList),
      m_commands(commands) {}

void UiTextSender::cmdTXDataText_Click() {
  if (!m_main.cmdTXDataText.guard.empty()) return;
  m_panel.ValidateToViaBoxes();
  if (m_config.ToCall.empty()) return;
  const std::string& via = m_main.cmbViaCall.text;
  std::string text = m_main.cmbDataText.text;
  if (Trim(via).empty()) {
    // A Via of blanks alone counts as empty, yet its length still comes off the 250.
    const long max = kDataMax - Len(via);
    if (Len(text) > max) text = Left(text, max);
  } else {
    m_panel.CalcUI_TXlength(text, 0, 0);
  }
  m_transmit.AGWPE_UI_Send(text, TxDataText);
  m_panel.ADDTXData();
  m_panel.ADDToData();
  m_panel.ADDViaData();
  m_platform.views().refresh(WindowKind::Main);
}

void UiTextSender::SendHeaderOnly() {
  m_panel.ValidateToViaBoxes();
  if (m_config.ToCall.empty()) return;
  std::string empty;
  m_transmit.AGWPE_UI_Send(empty, TxHeaderOnly);
  m_panel.ADDToData();
  m_panel.ADDViaData();
  m_platform.views().refresh(WindowKind::Main);
}

void UiTextSender::menusends_Click(int row) {
  const auto run = [this](Command command) { m_commands.run({command}); };
  switch (row) {
    case 0:
      SendHeaderOnly();
      break;
    case 1:
      cmdTXDataText_Click();
      break;
    case 2:
      run(Command::cmdTXAPRS);
      break;
    case 3:
      run(Command::cmdTXAPRSMessage);
      break;
    case 9:
      run(Command::Connecting);
      break;
    case 10:
      run(Command::DisConnecting);
      break;
    case 11:
      // Some engines miss the first disconnect of a link that is still busy.
      run(Command::DisConnecting);
      m_platform.loop().sleepMs(kTwiceGapMs);
      m_platform.loop().yield();
      run(Command::DisConnecting);
      break;
    default:
      break;
  }
}

void UiTextSender::menusend_Click() {
  m_main.mnuStopPending.enabled = m_commands.enabled({Command::mnuStopPending});
}

bool UiTextSender::DropAllowed(const std::string& data, bool isText) const {
  if (!isText || Len(data) > kDropMax) return false;
  if (data == m_main.cmbToCall.text || data == m_main.cmbViaCall.text) return false;
  // Only the whole selected row is refused; the call the list's drag offers goes out.
  const std::string row = m_heardList.SelectedRow();
  return row.empty() || data != row;
}

int UiTextSender::Drop(const std::string& data, bool isText) {
  m_panel.ValidateToViaBoxes();
  if (m_config.ToCall.empty() || !isText) return 0;
  // A dropped text goes out as it is: no length rule, no history.
  std::string text = data;
  m_transmit.AGWPE_UI_Send(text, TxDataText);
  m_platform.views().refresh(WindowKind::Main);
  return 1;
}

void UiTextSender::StuurMonitorTekst() {
  m_panel.ValidateToViaBoxes();
  if (m_config.ToCall.empty()) return;
  const std::string whole = m_run.MonitorSendText;
  if (Len(whole) > kPiece) {
    for (long at = 1; at <= Len(whole); at += kPiece) {
      std::string piece = Mid(whole, at, kPiece);
      if (piece.empty()) continue;
      m_transmit.AGWPE_UI_Send(piece, TxMonitorText);
      if (m_platform.loop().ended()) return;
      // The fields may change during the pauses between pieces; the next piece follows them.
      m_panel.RebuildToVia();
    }
  } else {
    std::string text = whole;
    m_transmit.AGWPE_UI_Send(text, TxMonitorText);
  }
  m_platform.views().refresh(WindowKind::Main);
}

void UiTextSender::RegisterCommands(CommandTable& commands) {
  commands.addClick(
      {Command::cmdTXDataText}, [this] { cmdTXDataText_Click(); },
      WhileEnabled(m_main.cmdTXDataText));
  const auto rows = [this](int row) { menusends_Click(row); };
  commands.addRow(Command::menusends, m_main.menusends, 0, "&Header only", rows);
  commands.addRow(Command::menusends, m_main.menusends, 1, "&Text/data", rows);
  // The rows of other senders show grey until their commands are there.
  const std::tuple<int, const char*, Command> others[] = {
      {2, "&APRS position", Command::cmdTXAPRS},
      {3, "APRS &message", Command::cmdTXAPRSMessage},
      {9, "&Connect", Command::Connecting},
      {10, "&Disconnect", Command::DisConnecting},
      {11, "Disconnect t&wice", Command::DisConnecting}};
  for (const auto& [row, caption, command] : others)
    commands.addRow(Command::menusends, m_main.menusends, row, caption, rows,
                    [this, command = command] { return m_commands.enabled({command}); });
  commands.addClick({Command::menusend}, [this] { menusend_Click(); });
  CommandSpec header;
  header.key = {Command::ConsoleHeader};
  header.console = "header";
  header.usage = ":header";
  header.handler = [this](const std::string&) { menusends_Click(0); };
  commands.add(std::move(header));
}

}  // namespace tesk
