// APRS messages in. The ack of a message goes out a second after it was heard, the auto-reply
// a second later; both waits let the other ticks run. The list keeps each message once, however
// many digipeaters bring it, and holds at 200 entries.
#include "aprs/message_reception.h"

#include <string_view>

#include "alarms/sound_table.h"
#include "base/text.h"
#include "core/monitor_console.h"
#include "transmit/transmit_primitives.h"
#include "transmit/tx_panel.h"

namespace tesk {

namespace {
constexpr long kAddressLength = 9;
constexpr const char* kAutoReplyMark = "[AA] ";
constexpr int16_t kAckedBase = 100;
constexpr double kAnswerWaitSeconds = 1.0;
constexpr Color kMessageWaiting = RGB(255, 0, 0);

// The two characters behind a mark, as a number text: trimmed, a single digit with a "0".
std::string NumberText(const std::string& data, long after) {
  std::string number = Trim(Str(Val(Mid(data, after, 2))));
  if (Len(number) == 1) number = "0" + number;
  return number;
}

// ":" + the sender in nine places + ":", the address block of an answer.
std::string AddressBlock(const std::string& sender) {
  if (Len(sender) == kAddressLength) return ":" + sender + ":";
  const std::string call = RTrim(sender);
  return ":" + call + Space(kAddressLength - Len(call)) + ":";
}

std::string_view TrimBlanks(std::string_view s) {
  const std::size_t a = s.find_first_not_of(' ');
  if (a == std::string_view::npos) return {};
  return s.substr(a, s.find_last_not_of(' ') - a + 1);
}

// UCase(Trim(Mid(entry, InStr(entry, " | From") + 8))) == upperKey, without building the texts:
// the walk runs over every stored entry for each message heard.
bool SameMessage(std::string_view entry, std::string_view upperKey) {
  const std::size_t from = entry.find(" | From");
  // Without the mark the position is 0 and the text taken starts at place 8.
  const std::size_t start = from == std::string_view::npos ? 7 : from + 8;
  const std::string_view rest = TrimBlanks(start < entry.size() ? entry.substr(start) : "");
  if (rest.size() != upperKey.size()) return false;
  for (std::size_t i = 0; i < rest.size(); ++i)
    if (UCaseChar(rest[i]) != upperKey[i]) return false;
  return true;
}
}  // namespace

MessageReception::MessageReception(Platform& platform, StationConfig& config, RunState& run,
                                   MainWindow& main, Parts parts)
    : m_platform(platform), m_config(config), m_run(run), m_main(main), m_parts(parts) {}

std::string MessageReception::SenderOf(const std::string& header, int showPortInHeader) {
  const long start = showPortInHeader + 3;
  const long to = InStr(header, "To");
  // A header without "To" names no sender: the caller does nothing with it.
  if (to <= start) return "";
  return Trim(Mid(header, start, to - start));
}

std::string MessageReception::CutMessage(const std::string& data) {
  // The four places before the NUL were meant for the echo's four blanks; the engines' line
  // ends are longer or shorter, so the cut is at the NUL and the line end and blanks go.
  std::string text = CutAtNul(data);
  const std::size_t keep = text.find_last_not_of(" \r\n");
  text.resize(keep == std::string::npos ? 0 : keep + 1);
  return Trim(text);
}

void MessageReception::AutoAckCall(std::string& header, std::string& data) {
  if (InStr(Left(data, 10), m_config.YourCallSign) == 0 || m_config.AckUIViewType == 0) return;
  const long brace = InStr(data, "{");
  if (brace > 0) {
    const std::string sender = SenderOf(header, m_config.ShowPortInHeader);
    if (sender.empty()) return;
    header = sender;  // the packet log writes the call where the header stood; kept on purpose
    AnswerAckRequest(sender, data, brace);
    return;
  }
  const long ack = InStr(data, ":ack");
  if (ack == 0) return;
  const std::string number = NumberText(data, ack + 4);
  const std::string sender = SenderOf(header, m_config.ShowPortInHeader);
  if (sender.empty()) return;
  header = sender;  // as above
  BookAck(sender, number);
}

void MessageReception::AnswerAckRequest(const std::string& sender, const std::string& data,
                                        long brace) {
  const std::string number = NumberText(data, brace + 1);
  const std::string block = AddressBlock(sender);
  m_parts.txPanel.ValidateToViaBoxes();
  SendAfterASecond(block + "ack" + number);
  if (m_config.AutoAnswer == 0) return;
  // The mark keeps two stations from answering each other's auto-replies for ever.
  if (InStr(data, kAutoReplyMark) > 0) return;
  SendAfterASecond(block + kAutoReplyMark + m_config.AutoAnswerText + "{" + number);
}

void MessageReception::SendAfterASecond(std::string text) {
  m_platform.loop().waitUntil(kAnswerWaitSeconds, {});
  if (m_platform.loop().ended()) return;
  m_parts.transmit.AGWPE_UI_Send(text, TxAck);
}

void MessageReception::BookAck(const std::string& sender, const std::string& number) {
  const double value = Val(number);
  for (PendingMessage& r : m_run.PendingMessages) {
    // Only the last two digits are compared, and the call exactly as heard: a row sent to
    // another case or SSID stays unanswered. Both kept on purpose.
    if (r.PendingFor == sender && Val(Trim(Right(r.PendingText, 2))) == value) {
      r.PendingDone = static_cast<int16_t>(static_cast<int16_t>(value) + kAckedBase);
      return;
    }
  }
}

void MessageReception::LogAPRSMessages(std::string& header, std::string& data) {
  if (Len(header) < 7 || Len(data) < 4 || data.find('\0') == std::string::npos) return;
  if (InStr(header, "*") == 0 && m_config.LogDigipeatedMessages == 1) return;
  data = CutMessage(data);
  const std::string sender = SenderOf(header, m_config.ShowPortInHeader);
  if (sender.empty()) return;
  const std::string from = sender + Space(kAddressLength - Len(sender));
  const std::string to = Mid(data, 2, kAddressLength);
  const std::string addressee = Trim(UCase(to));
  // The addressee is looked for inside the own call, so the call with an SSID added is not
  // taken for this station.
  if (InStr(m_config.YourCallSign, addressee) > 0) SignalMessageForMe(sender);
  m_main.LastMessageKey = from + " | To:" + to + " | Message:" + Mid(data, 12);
  const std::string key = UCase(Trim(m_main.LastMessageKey));
  for (int i = 0; i < m_run.MessageLogCount; ++i)
    if (SameMessage(m_run.MessageLog[static_cast<std::size_t>(i)], key)) return;
  const Clock& clock = m_platform.clock();
  const DateTime now = clock.localNow();
  const std::string time =
      m_config.ShowUTCInHeader != 0 ? m_main.UTC_Klok.caption : clock.longTime(now);
  Store(clock.shortDate(now) + " | " + time + " | From:" + m_main.LastMessageKey);
}

void MessageReception::SignalMessageForMe(const std::string& sender) {
  m_parts.monitor.MessageFlagForMe = -1;
  m_main.cmdLoadMessenger.backColor = kMessageWaiting;
  if (m_config.AutoPasteCallInFor != 0) m_main.cmbFor.text = Trim(sender);
  if (m_config.UseAlarmSound >= 0) m_parts.sounds.PlaySlot(SoundTable::AlarmSpare);
  m_platform.views().refresh(WindowKind::Main);
}

void MessageReception::Store(const std::string& entry) {
  // At the cap each new message takes the last place shown, so the list never shows more than
  // the count and the newest message is always in it.
  const int16_t at =
      m_run.MessageLogCount < kMessageLogCap ? m_run.MessageLogCount : kMessageLogCap - 1;
  m_run.MessageLog[static_cast<std::size_t>(at)] = entry;
  if (m_run.MessageLogCount < kMessageLogCap) ++m_run.MessageLogCount;
}

}  // namespace tesk
