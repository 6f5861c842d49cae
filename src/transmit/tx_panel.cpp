// The transmit fields' rules. The fields are the main window's combo boxes; this class keeps
// their histories, counters and colours, and is what every sender asks for the room of a frame
// and for the check of To and Via.
#include "transmit/tx_panel.h"

#include <string_view>

#include "alarms/meld.h"
#include "base/text.h"
#include "core/ports.h"
#include "transmit/tx_histories.h"

namespace tesk {

namespace {

constexpr Color kOverLimit = RGB(255, 0, 0);

// Limits while typing and the caps of the histories.
constexpr long kToMax = 10;
constexpr long kViaMax = 50;
constexpr long kDataMax = 250;
constexpr long kDataMaxWithVia = 80;
constexpr long kAPRSMax = 60;
constexpr long kForMax = 9;
constexpr long kMessageMax = 69;
// One more than while typing: the odd pair stays as it always was.
constexpr long kMessageHistoryMax = 70;

constexpr HistoryRule kToRule{15, HistoryCompare::UpperRightTrimmed, HistoryOverflow::RemoveFirst};
constexpr HistoryRule kViaRule{15, HistoryCompare::UpperTrimmed,
                               HistoryOverflow::RemoveFirstKeepEmpty};
constexpr HistoryRule kDataRule{25, HistoryCompare::LowerRightTrimmed,
                                HistoryOverflow::AddThenRemoveAtCap};
constexpr HistoryRule kAPRSRule{25, HistoryCompare::LowerTrimmed,
                                HistoryOverflow::AddThenRemoveAtCap};
constexpr HistoryRule kForRule{15, HistoryCompare::UpperRightTrimmed, HistoryOverflow::RemoveFirst};
constexpr HistoryRule kMessageRule{25, HistoryCompare::RightTrimmed, HistoryOverflow::RemoveFirst};

struct CounterRule {
  TxField field;
  long deducted;  // taken off the room: the position text, the message header
  Color underLimit;
};

constexpr CounterRule kCounters[3] = {
    {TxField::DataText, 0, RGB(0, 128, 0)},
    {TxField::APRSPos, 20, RGB(0, 0, 255)},
    {TxField::APRSMessage, 11, RGB(128, 0, 128)},
};

bool IsLetterKey(int keyCode) {
  return keyCode >= kKeyA && keyCode <= kKeyZ;
}

}  // namespace

TxPanel::TxPanel(Platform& platform, StationConfig& config, RunState& run, MainWindow& main,
                 Ports& ports, Meld& meld, CommandTable& commands,
                 std::function<void()> restartBeaconCount)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_main(main),
      m_ports(ports),
      m_meld(meld),
      m_commands(commands),
      m_restartBeaconCount(std::move(restartBeaconCount)),
      m_editor(platform, main) {}

ComboBox& TxPanel::box(TxField field) {
  switch (field) {
    case TxField::ToCall:
      return m_main.cmbToCall;
    case TxField::ViaCall:
      return m_main.cmbViaCall;
    case TxField::DataText:
      return m_main.cmbDataText;
    case TxField::APRSPos:
      return m_main.cmbAPRSPos;
    case TxField::For:
      return m_main.cmbFor;
    case TxField::APRSMessage:
      break;
  }
  return m_main.cmbAPRSMessage;
}

Button& TxPanel::button(SendButton which) {
  switch (which) {
    case SendButton::DataText:
      return m_main.cmdTXDataText;
    case SendButton::APRS:
      return m_main.cmdTXAPRS;
    case SendButton::APRSMessage:
      return m_main.cmdTXAPRSMessage;
    case SendButton::MHeard:
      return m_main.cmdTXMHeard;
    case SendButton::MultiLine:
      break;
  }
  return m_main.CmdTXMultiLineDirect;
}

void TxPanel::refresh() {
  m_platform.views().refresh(WindowKind::Main);
}

// ---- the length rule and the checks -------------------------------------------------------

long TxPanel::CalcUI_TXlength(std::string& text, int16_t reserved, int16_t mode) const {
  const long commas = InstrCount(m_main.cmbViaCall.text, ",");
  const long room = commas > 0 ? 89 - 10 * commas - reserved : 80 - reserved;
  // Cut in place: every send passes here.
  if (mode == 0 && Len(text) > room) text.resize(room > 0 ? static_cast<std::size_t>(room) : 0);
  return room;
}

void TxPanel::LimitInputFields(ComboBox& field, long max) {
  if (Len(field.text) <= max) return;
  field.text = Left(field.text, max);
  field.selStart = max;
  field.selLength = 0;
}

void TxPanel::ValidateToViaBoxes() {
  ComboBox& to = m_main.cmbToCall;
  ComboBox& via = m_main.cmbViaCall;
  m_ports.ToonAktievePoort();
  RebuildToVia();
  if (m_config.ToCall.empty() || to.text.empty()) {
    // An emptied To field leaves no To call behind, so the caller's test of ToCall stops the
    // send; a To call that is already empty stays so until To is entered again.
    if (to.text.empty()) m_config.ToCall.clear();
    m_meld.ShowMeld(
        std::string("No Call Sign entered!") + CRLF + "Please enter the station Call Sign (To:)",
        0);
    return;
  }
  to.text = UCase(to.text);
  m_config.ToCall = to.text;
  via.text = UCase(via.text);
  m_config.Digistation = via.text;
  viaToolTip();
  // A frame sent by hand puts the next beacon a full interval away.
  if (m_config.Beacon != 0 && m_restartBeaconCount) m_restartBeaconCount();
  refresh();
}

void TxPanel::RebuildToVia() {
  m_run.ToVia = UCase(Trim(m_main.cmbToCall.text + " " + m_main.cmbViaCall.text));
}

void TxPanel::UpdateCounter(int index) {
  if (index < 0 || index > 2) return;
  const CounterRule& rule = kCounters[index];
  const ComboBox& field = box(rule.field);
  // The position report carries the program's 9-character tag unless [TESK Tag] leaves it off.
  const int16_t reserved = rule.field == TxField::APRSPos && m_config.TESKTag == 0 ? 9 : 0;
  std::string text = field.text;
  const long limit = CalcUI_TXlength(text, reserved, 1) - rule.deducted;
  Label& counter = m_main.LblMaxLengte[static_cast<std::size_t>(index)];
  counter.caption = std::to_string(Len(field.text));
  counter.foreColor = Len(field.text) > limit ? kOverLimit : rule.underLimit;
}

void TxPanel::SetCoherentTXBoxColors() {
  if (m_config.TXBoxCoherentColors == 0) return;
  m_main.cmbDataText.backColor = RGB(130, 255, 180);
  m_main.cmbAPRSPos.backColor = RGB(0, 240, 255);
  m_main.cmbFor.backColor = RGB(255, 185, 255);
  m_main.cmbAPRSMessage.backColor = RGB(255, 185, 255);
  m_main.LstMHeardList.backColor = RGB(255, 210, 120);
  refresh();
}

// ---- the histories ------------------------------------------------------------------------

void TxPanel::ADDTXData() {
  ComboBox& f = m_main.cmbDataText;
  const long max = m_main.cmbViaCall.text.empty() ? kDataMax : kDataMaxWithVia;
  AddHistoryEntry(f.list, Left(f.text, max), kDataRule);
  f.selStart = 0;
}

void TxPanel::ADDToData() {
  ComboBox& f = m_main.cmbToCall;
  const std::string text = Left(UCase(Trim(f.text)), kToMax);
  AddHistoryEntry(f.list, text, kToRule);
  f.selStart = 0;
  f.text = text;
  m_config.ToCall = text;
}

void TxPanel::ADDViaData() {
  ComboBox& f = m_main.cmbViaCall;
  const std::string text = Left(UCase(Trim(f.text)), kViaMax);
  AddHistoryEntry(f.list, text, kViaRule);
  f.selStart = 0;
  f.text = text;
  m_config.Digistation = text;
  viaToolTip();
}

void TxPanel::AddAPRSData() {
  ComboBox& f = m_main.cmbAPRSPos;
  AddHistoryEntry(f.list, Left(f.text, kAPRSMax), kAPRSRule);
  f.selStart = 0;
}

void TxPanel::AddFor() {
  ComboBox& f = m_main.cmbFor;
  // Trimmed, cut and upper-cased in one pass: it runs at each message sent.
  const std::string_view all = f.text;
  const std::size_t first = all.find_first_not_of(' ');
  std::string text;
  if (first != std::string_view::npos) {
    const std::string_view kept = all.substr(first, all.find_last_not_of(' ') - first + 1);
    text.assign(kept.substr(0, static_cast<std::size_t>(kForMax)));
    for (char& c : text)
      c = UCaseChar(c);
  }
  AddHistoryEntry(f.list, text, kForRule);
  f.selStart = 0;
  f.text = text;
}

void TxPanel::AddMessage() {
  ComboBox& f = m_main.cmbAPRSMessage;
  // Braces would read as a message number on the air; only the remembered copy loses them,
  // what is sent keeps them. Trimmed, the braces turned and cut in one pass: it runs at each send.
  const std::string_view all = f.text;
  const std::size_t first = all.find_first_not_of(' ');
  std::string text;
  if (first != std::string_view::npos) {
    const std::string_view kept = all.substr(first, all.find_last_not_of(' ') - first + 1);
    text.assign(kept.substr(0, static_cast<std::size_t>(kMessageHistoryMax)));
    // Most messages hold no brace, so the turn looks for them instead of visiting every
    // character.
    for (std::size_t i = text.find('{'); i != std::string::npos; i = text.find('{', i + 1))
      text[i] = '(';
    for (std::size_t i = text.find('}'); i != std::string::npos; i = text.find('}', i + 1))
      text[i] = ')';
  }
  AddHistoryEntry(f.list, text, kMessageRule);
  f.selStart = 0;
}

// ---- the send buttons ---------------------------------------------------------------------

namespace {

// The one map between the send buttons and their commands.
constexpr std::pair<SendButton, Command> kSendCommands[] = {
    {SendButton::DataText, Command::cmdTXDataText},
    {SendButton::APRS, Command::cmdTXAPRS},
    {SendButton::APRSMessage, Command::cmdTXAPRSMessage},
    {SendButton::MHeard, Command::cmdTXMHeard},
    {SendButton::MultiLine, Command::CmdTXMultiLineDirect},
};

}  // namespace

Command TxPanel::SendCommand(SendButton which) {
  for (const auto& [button, command] : kSendCommands) {
    if (button == which) return command;
  }
  return Command::cmdTXDataText;
}

std::optional<SendButton> TxPanel::SendButtonOf(Command command) {
  for (const auto& [button, c] : kSendCommands) {
    if (c == command) return button;
  }
  return std::nullopt;
}

void TxPanel::Press(SendButton which) {
  if (!button(which).guard.empty()) return;
  m_commands.run({SendCommand(which)});
}

void TxPanel::SendButton_MouseUp(SendButton which) {
  // Posted, so the press that the same release completes runs first, unguarded.
  m_platform.loop().post([this, which] { DisableDuringTX(button(which)); });
}

void TxPanel::DisableDuringTX(Button& button) {
  button.guard = "tx";
  m_platform.loop().waitUntil(0.7, {});
  button.guard.clear();
}

// ---- the fields' events -------------------------------------------------------------------

bool TxPanel::KeyDown(TxField field, int keyCode) {
  if (keyCode == kKeyDelete &&
      (field == TxField::ToCall || field == TxField::ViaCall || field == TxField::For)) {
    const ComboBox& f = box(field);
    if (f.listIndex >= 0 && f.selLength == Len(f.text)) askRemoveEntry(field);
    return false;  // the key still deletes the selected text
  }
  if (keyCode != kKeyReturn) return false;
  switch (field) {
    case TxField::ToCall:
      enterToCall();
      break;
    case TxField::ViaCall:
      enterViaCall();
      break;
    case TxField::For:
      enterFor();
      break;
    default:
      enterAndSend(field);
      break;
  }
  refresh();
  return true;
}

void TxPanel::enterToCall() {
  ComboBox& f = m_main.cmbToCall;
  if (Len(f.text) >= kToMax + 1) f.text = Left(f.text, kToMax);
  ADDToData();
}

void TxPanel::enterViaCall() {
  ComboBox& f = m_main.cmbViaCall;
  if (Len(f.text) > kViaMax) f.text = Left(f.text, kViaMax);
  ADDViaData();
}

void TxPanel::enterFor() {
  ComboBox& f = m_main.cmbFor;
  if (Len(f.text) > kForMax) f.text = UCase(Left(f.text, kForMax));
  AddFor();
  m_main.cmbAPRSMessage.toolTip = "Message contents to transmit For:" + f.text;
  m_main.txFocus = "cmbAPRSMessage";
}

void TxPanel::enterAndSend(TxField field) {
  if (field == TxField::DataText) {
    ADDTXData();
    Press(SendButton::DataText);
  } else if (field == TxField::APRSPos) {
    AddAPRSData();
    Press(SendButton::APRS);
  } else {
    AddMessage();
    Press(SendButton::APRSMessage);
  }
  ComboBox& f = box(field);
  f.selStart = Len(f.text);
  f.selLength = 0;
}

void TxPanel::askRemoveEntry(TxField field) {
  ComboBox& f = box(field);
  if (f.listIndex >= static_cast<long>(f.list.size())) return;
  const std::string entry = f.list[static_cast<std::size_t>(f.listIndex)];
  MsgResult answer;
  if (field == TxField::ToCall) {
    answer = m_platform.dialogs().msgBox(
        "Do you want to remove the callsign " + UCase(entry) + " from the list?", MsgButtons::YesNo,
        MsgIcon::Question, "Remove callsign from list");
  } else {
    answer =
        m_platform.dialogs().msgBox("Do you want to remove the item " + entry + " from the list?",
                                    MsgButtons::YesNo, MsgIcon::Question, "Remove item from list");
  }
  if (answer != MsgResult::Yes) return;
  f.list.erase(f.list.begin() + f.listIndex);
  f.listIndex = -1;
  refresh();
}

void TxPanel::KeyUp(TxField field, int keyCode) {
  ComboBox& f = box(field);
  if (field == TxField::ToCall) {
    if (Len(f.text) > kToMax) LimitInputFields(f, kToMax);
    if (IsLetterKey(keyCode)) f.text = UCase(f.text);
  } else if (field == TxField::ViaCall) {
    if (!IsLetterKey(keyCode)) return;
    f.text = UCase(f.text);
    viaToolTip();
  } else if (field == TxField::For) {
    LimitInputFields(f, kForMax);
  } else {
    return;
  }
  refresh();
}

void TxPanel::Change(TxField field) {
  switch (field) {
    case TxField::DataText:
      LimitInputFields(box(field), m_main.cmbViaCall.text.empty() ? kDataMax : kDataMaxWithVia);
      UpdateCounter(0);
      break;
    case TxField::APRSPos:
      LimitInputFields(box(field), kAPRSMax);
      UpdateCounter(1);
      break;
    case TxField::APRSMessage:
      LimitInputFields(box(field), kMessageMax);
      UpdateCounter(2);
      break;
    case TxField::ViaCall:
      viaToolTip();
      break;
    default:
      return;
  }
  refresh();
}

void TxPanel::ListPick(TxField field) {
  switch (field) {
    case TxField::DataText:
      UpdateCounter(0);
      break;
    case TxField::APRSPos:
      UpdateCounter(1);
      break;
    case TxField::APRSMessage:
      UpdateCounter(2);
      break;
    case TxField::ViaCall:
      viaToolTip();
      break;
    default:
      return;
  }
  refresh();
}

void TxPanel::GotFocus(TxField field) {
  m_main.txFocus = field == TxField::ToCall     ? "cmbToCall"
                   : field == TxField::ViaCall  ? "cmbViaCall"
                   : field == TxField::DataText ? "cmbDataText"
                   : field == TxField::APRSPos  ? "cmbAPRSPos"
                   : field == TxField::For      ? "cmbFor"
                                                : "cmbAPRSMessage";
  if (field != TxField::ViaCall) return;
  viaToolTip();
  refresh();
}

void TxPanel::LostFocus(TxField field) {
  if (field != TxField::For) return;
  m_main.cmbFor.text = UCase(m_main.cmbFor.text);
  refresh();
}

bool TxPanel::DropAllowed(TxField field, const std::string& data, bool isText) const {
  switch (field) {
    case TxField::ToCall:
    case TxField::For:
      return isText && Len(data) <= 10;
    case TxField::ViaCall:
      return isText && Len(data) <= 20;
    default:
      return isText;
  }
}

void TxPanel::Drop(TxField field, const std::string& data) {
  ComboBox& f = box(field);
  f.text = data;
  f.listIndex = -1;
  f.selStart = Len(data);
  f.selLength = 0;
  Change(field);
  refresh();
}

void TxPanel::viaToolTip() {
  m_main.cmbViaCall.toolTip = "Path = " + m_main.cmbViaCall.text;
}

void TxPanel::cmdEditTXData_Click(int selector) {
  m_editor.Open(selector);
}

void TxPanel::TypeAndEnter(TxField field, const std::string& text) {
  box(field).text = text;
  Change(field);
  KeyDown(field, kKeyReturn);
}

// ---- the commands ----------------------------------------------------------------------------

void TxPanel::RegisterCommands(CommandTable& commands) {
  for (int i = 0; i < 3; ++i)
    commands.addClick(
        {Command::cmdEditTXData, i}, [this, i] { cmdEditTXData_Click(i); },
        WhileEnabled(m_main.cmdEditTXData[i]));
  // The console's path lines do what typing into the field and Enter do in the window, and
  // then say the path that is in force.
  const auto enterPath = [this](TxField field, const std::string& text) {
    TypeAndEnter(field, text);
    m_platform.views().notice(
        "Path: To " + m_main.cmbToCall.text +
        (Trim(m_main.cmbViaCall.text).empty() ? std::string() : " Via " + m_main.cmbViaCall.text));
  };
  CommandSpec to;
  to.key = {Command::ConsoleTo};
  to.console = "to";
  to.usage = ":to CALL";
  to.handler = [enterPath](const std::string& a) { enterPath(TxField::ToCall, a); };
  commands.add(std::move(to));
  CommandSpec via;
  via.key = {Command::ConsoleVia};
  via.console = "via";
  via.usage = ":via PATH";
  via.handler = [enterPath](const std::string& a) { enterPath(TxField::ViaCall, a); };
  commands.add(std::move(via));
}

}  // namespace tesk
