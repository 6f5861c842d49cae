// Sending APRS messages. Nothing here waits for the engine: a message goes out at once, its
// retries come from the tick, and the ack that ends them is booked by the message reception.
#include "aprs/message_sending.h"

#include <string_view>
#include <utility>

#include "base/text.h"
#include "transmit/transmit_primitives.h"
#include "transmit/tx_panel.h"

namespace tesk {

namespace {
constexpr long kAddressLength = 9;
// Room for the longest ack tag, " [TESK]{" and three digits.
constexpr std::size_t kTagRoom = 11;
constexpr int kUsedRowsWrap = 40;
constexpr int16_t kTriesBeforeGiveUp = 4;
constexpr int16_t kGivenUp = -1;
constexpr const char* kNoAckPrefixes = "BLN NWS SAT ALL";
constexpr const char* kNoAckWords = "BLN NWS SAT ALL EMAIL HEARD";

// UCase(Trim(row)) == want, without building the two texts: the search runs at each press.
bool SameAddressee(std::string_view row, std::string_view want) {
  const std::size_t a = row.find_first_not_of(' ');
  if (a == std::string_view::npos) return want.empty();
  row = row.substr(a, row.find_last_not_of(' ') - a + 1);
  if (row.size() != want.size()) return false;
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (UCaseChar(row[i]) != want[i]) return false;
  }
  return true;
}
}  // namespace

MessageSending::MessageSending(Platform& platform, StationConfig& config, RunState& run,
                               MainWindow& main, TxPanel& panel, TransmitPrimitives& transmit)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_panel(panel),
      m_transmit(transmit),
      m_tmrSendAckMes(platform.loop().createTimer()) {
  m_tmrSendAckMes->setInterval(m_config.AckRetryIntervalMs);
  m_tmrSendAckMes->setHandler([this] { SendAckMesTick(); });
}

void MessageSending::cmdTXAPRSMessage_Click() {
  if (!m_main.cmdTXAPRSMessage.guard.empty()) return;
  if (m_main.cmbFor.text.find_first_not_of(' ') == std::string::npos) {
    m_platform.dialogs().msgBox(std::string("Empty 'For:' designation") + CRLF +
                                    "You need to enter a callsign or topic in the 'For:' field.",
                                MsgButtons::Ok, MsgIcon::Exclamation, "TESK");
    m_main.txFocus = "cmbFor";
    m_platform.views().refresh(WindowKind::Main);
    return;
  }
  m_panel.ValidateToViaBoxes();
  if (m_config.ToCall.empty()) return;
  const std::string& forText = m_main.cmbFor.text;
  // ":" + the address block of 9 + ":" + the message, built in one string: a For text of
  // another length is trimmed and padded with blanks to 9.
  const std::string& message = m_main.cmbAPRSMessage.text;
  std::string text;
  text.reserve(static_cast<std::size_t>(kAddressLength) + 2 + message.size() + kTagRoom);
  text += ':';
  if (Len(forText) == kAddressLength) {
    text += forText;
  } else {
    std::string_view cut = std::string_view(forText).substr(0, kAddressLength);
    const std::size_t a = cut.find_first_not_of(' ');
    cut = a == std::string_view::npos ? std::string_view()
                                      : cut.substr(a, cut.find_last_not_of(' ') - a + 1);
    text += cut;
    text.append(static_cast<std::size_t>(kAddressLength) - cut.size(), ' ');
  }
  text += ':';
  text += message;
  if (m_config.AckUIViewType == 2) {
    // The whole For field goes on; only the address block was cut to 9. The frame's room is cut
    // there, where a tag may take part of it.
    std::string forCall = Trim(forText);
    TXUIviewAck(forCall, text);
  } else {
    m_panel.CalcUI_TXlength(text, 0, 0);
    m_transmit.AGWPE_UI_Send(text, TxAPRSMessage);
  }
  m_panel.AddMessage();
  m_panel.AddFor();
  m_panel.ADDToData();
  m_panel.ADDViaData();
  m_platform.views().refresh(WindowKind::Main);
}

bool MessageSending::AsksAck(const std::string& forCall) {
  const std::string upper = UCase(forCall);
  const std::string_view prefixes = kNoAckPrefixes;
  const std::string_view words = kNoAckWords;
  // Bulletins, weather, satellite gateways and words answer nothing; a call holds a digit. The
  // tests are those of a text search, so an empty For or a part of a word ("N N") matches too.
  if (prefixes.find(std::string_view(upper).substr(0, 3)) != std::string_view::npos) return false;
  if (words.find(upper) != std::string_view::npos) return false;
  for (const char c : upper)
    if (c >= '0' && c <= '9') return true;
  return false;
}

void MessageSending::TXUIviewAck(std::string& forCall, std::string& text) {
  if (!AsksAck(forCall)) {
    m_panel.CalcUI_TXlength(text, 0, 0);
    m_transmit.AGWPE_UI_Send(text, TxAPRSMessage);
    return;
  }
  auto& rows = m_run.PendingMessages;
  // The count of rows in use runs without a branch; the addressee's search stops at its first row.
  int used = 0;
  for (const PendingMessage& r : rows)
    used += r.PendingFor.size() >= 2 ? 1 : 0;
  PendingMessage* addressee = nullptr;
  for (PendingMessage& r : rows) {
    if (r.PendingFor.size() >= forCall.size() && SameAddressee(r.PendingFor, forCall)) {
      addressee = &r;
      break;
    }
  }
  // Freed rows are counted out, so the table fills from the bottom and at 40 wraps to row 0,
  // overwriting it.
  const int row = used % kUsedRowsWrap;
  // The addressee's count lives in its first row, which is raised in place.
  const int16_t seq = addressee == nullptr ? int16_t{0} : ++addressee->PendingSeq;
  // The reserved room is that of a two-digit number; a third digit makes the frame longer.
  const bool shortTag = m_config.NoAckTag != 0;
  m_panel.CalcUI_TXlength(text, shortTag ? 3 : 10, 0);
  PendingMessage& r = rows[static_cast<std::size_t>(row)];
  // The cut text moves into its row: the caller has no use for it after the send.
  r.PendingText = std::move(text);
  r.PendingText += shortTag ? "{" : " [TESK]{";
  if (seq < 10) r.PendingText += '0';
  r.PendingText += std::to_string(seq);
  r.PendingFor = forCall;
  r.PendingSeq = seq;
  r.PendingDone = 0;
  if (m_tmrSendAckMes->interval() != m_config.AckRetryIntervalMs)
    m_tmrSendAckMes->setInterval(m_config.AckRetryIntervalMs);
  // Restarts the count of a running tick: the retries run from the latest message.
  m_tmrSendAckMes->setEnabled(true);
  m_transmit.AGWPE_UI_Send(r.PendingText, TxAPRSMessageAck);
}

void MessageSending::SendAckMesTick() {
  auto& rows = m_run.PendingMessages;
  int found = -1;
  for (int i = 0; i < kPendingRows; ++i) {
    const PendingMessage& r = rows[static_cast<std::size_t>(i)];
    if (!r.PendingFor.empty() && r.PendingDone == 0) {
      found = i;
      break;
    }
    m_platform.loop().yield();
    if (m_platform.loop().ended()) return;
  }
  if (found < 0) {
    m_tmrSendAckMes->setEnabled(false);
    return;
  }
  PendingMessage& r = rows[static_cast<std::size_t>(found)];
  if (found >= kPendingTriesRows) {
    // A row without a retry count is given up at once, as a stopped row is.
    r.PendingDone = kGivenUp;
    return;
  }
  int16_t& tries = m_main.PendingTries[static_cast<std::size_t>(found)];
  ++tries;
  if (tries < kTriesBeforeGiveUp) {
    // A retry follows the path as the fields stand now, not that of the first send.
    m_panel.RebuildToVia();
    m_transmit.AGWPE_UI_Send(r.PendingText, TxAPRSMessageAck);
  } else {
    r.PendingDone = kGivenUp;
    tries = 0;
  }
}

void MessageSending::mnuStopPending_Click() {
  if (!retryTickRunning()) return;
  for (int i = 0; i < kPendingRows; ++i) {
    PendingMessage& r = m_run.PendingMessages[static_cast<std::size_t>(i)];
    if (r.PendingFor.empty() || r.PendingDone != 0) continue;
    r.PendingDone = kGivenUp;
    if (i < kPendingTriesRows) m_main.PendingTries[static_cast<std::size_t>(i)] = 0;
  }
  m_tmrSendAckMes->setEnabled(false);
}

void MessageSending::ClearSent() {
  for (PendingMessage& r : m_run.PendingMessages) {
    r.PendingText.clear();
    r.PendingFor.clear();
    r.PendingDone = 0;
  }
  m_tmrSendAckMes->setEnabled(false);
}

void MessageSending::EraseAll() {
  m_run.PendingMessages = {};
  m_main.PendingTries = {};
  m_tmrSendAckMes->setEnabled(false);
}

bool MessageSending::retryTickRunning() const {
  return m_tmrSendAckMes->enabled();
}

std::vector<std::string> MessageSending::SentLines() const {
  std::vector<std::string> lines;
  for (const PendingMessage& r : m_run.PendingMessages) {
    if (r.PendingText.empty()) continue;
    const std::string text = Left(r.PendingText, Len(r.PendingText) - 3);
    lines.push_back(text + Space(80 - Len(text)) + " | " + Right(r.PendingText, 2) +
                    (r.PendingDone >= 1 ? "Y" : "N"));
  }
  return lines;
}

void MessageSending::RegisterCommands(CommandTable& commands) {
  commands.addClick(
      {Command::cmdTXAPRSMessage}, [this] { cmdTXAPRSMessage_Click(); },
      WhileEnabled(m_main.cmdTXAPRSMessage));
  CommandSpec stop;
  stop.key = {Command::mnuStopPending};
  stop.caption = "Stop &Pending";
  stop.item = &m_main.mnuStopPending;
  stop.handler = [this](const std::string&) { mnuStopPending_Click(); };
  stop.enabled = [this] { return retryTickRunning(); };
  commands.add(std::move(stop));

  CommandSpec forLine;
  forLine.key = {Command::ConsoleFor};
  forLine.console = "for";
  forLine.usage = ":for CALL";
  forLine.handler = [this](const std::string& a) { m_panel.TypeAndEnter(TxField::For, a); };
  commands.add(std::move(forLine));
  CommandSpec msg;
  msg.key = {Command::ConsoleMsg};
  msg.console = "msg";
  msg.usage = ":msg [TEXT]";
  msg.handler = [this](const std::string& a) {
    if (a.empty())
      m_panel.Press(SendButton::APRSMessage);
    else
      m_panel.TypeAndEnter(TxField::APRSMessage, a);
  };
  commands.add(std::move(msg));
  CommandSpec sent;
  sent.key = {Command::ConsoleSent};
  sent.console = "sent";
  sent.usage = ":sent";
  sent.handler = [this](const std::string&) {
    const std::vector<std::string> lines = SentLines();
    if (lines.empty()) m_platform.views().notice("No messages sent with an ack request");
    for (const std::string& line : lines)
      m_platform.views().notice(line);
  };
  commands.add(std::move(sent));
  CommandSpec stopLine;
  stopLine.key = {Command::ConsoleStopPending};
  stopLine.console = "stoppending";
  stopLine.usage = ":stoppending";
  stopLine.handler = [this](const std::string&) {
    if (!retryTickRunning()) {
      m_platform.views().notice("No messages pending");
      return;
    }
    mnuStopPending_Click();
  };
  commands.add(std::move(stopLine));
}

}  // namespace tesk
