// The position encoders and the position send button. The plain and the compressed forms read
// the two "decimals" digits differently on purpose (see APRStoCompressed and Maiden2World):
// stations out there decode our reports that way, and a locator conversion depends on it.
#include "aprs/aprs_position.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "base/text.h"
#include "state/command_table.h"
#include "transmit/transmit_primitives.h"
#include "transmit/tx_panel.h"

namespace tesk {

namespace {

constexpr long long kBase91Cube = 753571;  // 91^3
constexpr long long kBase91Square = 8281;  // 91^2
constexpr long long kBase91 = 91;
constexpr int kFirstPrintable = 33;  // "!"

// Four base-91 characters of a non-negative whole number.
std::string Base91(long long value, long long first) {
  std::string out = Chr(static_cast<int>(first + kFirstPrintable));
  long long rest = value % kBase91Cube;
  out += Chr(static_cast<int>(rest / kBase91Square + kFirstPrintable));
  rest %= kBase91Square;
  out += Chr(static_cast<int>(rest / kBase91 + kFirstPrintable));
  out += Chr(static_cast<int>(rest % kBase91 + kFirstPrintable));
  return out;
}

struct DegreeParts {
  std::string degrees, minutes, decimals;
};

// Degrees, whole minutes and the rest of the minute as seconds, of the absolute value.
DegreeParts SplitDegrees(double value, int degreeWidth) {
  const double a = std::fabs(value);
  const double degrees = std::trunc(a);
  const double m = (a - degrees) * 60;
  const double minutes = std::floor(m);
  // Deliberate: seconds, not hundredths, go into the decimals box; APRStoCompressed reads them so.
  const double seconds = std::floor((m - minutes) * 60 + 0.5);
  return {FormatZeros(static_cast<long>(degrees), degreeWidth),
          Format00(static_cast<long>(minutes)), Format00(static_cast<long>(seconds))};
}

}  // namespace

AprsPosition::AprsPosition(Platform& platform, StationConfig& config, RunState& run,
                           AprsSendControls controls, TxPanel& panel, TransmitPrimitives& transmit)
    : m_platform(platform),
      m_config(config),
      m_run(run),
      m_controls(controls),
      m_panel(panel),
      m_transmit(transmit) {}

// ---- the encoders ---------------------------------------------------------------------------

std::string AprsPosition::PositionText(const PositionFields& f, const std::string& table,
                                       const std::string& code) {
  return "=" + f.latH + f.latM + "." + f.latS + f.latDirection + table + f.lonH + f.lonM + "." +
         f.lonS + f.lonDirection + code;
}

double AprsPosition::DegreesFromParts(const std::string& degrees, const std::string& minutes,
                                      const std::string& seconds) {
  return Val(degrees) + Val(minutes) / 60 + Val(seconds) / 3600;
}

std::string AprsPosition::APRStoCompressed(const std::string& aprs, const std::string& table,
                                           const std::string& code) {
  // Deliberate: the two digits after the point are read as seconds, as Maiden2World writes them.
  double latitude = DegreesFromParts(Mid(aprs, 2, 2), Mid(aprs, 4, 2), Mid(aprs, 7, 3));
  if (Mid(aprs, 9, 1) == "S") latitude = -latitude;
  double longitude = DegreesFromParts(Mid(aprs, 11, 3), Mid(aprs, 14, 2), Mid(aprs, 17, 3));
  if (Mid(aprs, 19, 1) == "W") longitude = -longitude;

  const auto x = static_cast<long long>(std::floor(190463 * (180 + longitude)));
  const double y = 380926 * (90 - latitude);
  // Y's first character comes from the real number, the rest from Y rounded (half to even).
  const auto yFirst = static_cast<long long>(std::trunc(y / kBase91Cube));
  const auto yWhole = static_cast<long long>(std::nearbyint(y));
  return "=" + table + Base91(yWhole, yFirst) + Base91(x, x / kBase91Cube) + code + "  B";
}

PositionFields AprsPosition::Maiden2World(const std::string& locator) {
  std::string loc = UCase(locator);
  // The centre of the square: a missing subsquare counts as "LL", a missing half as "L".
  if (Len(loc) == 4) loc += "LL";
  if (Len(loc) == 5) loc += "L";
  double c[7] = {};
  for (long i = 1; i <= 6; ++i)
    c[i] = Asc(Mid(loc, i, 1));
  const double longitude = -180 + (c[1] - 65) * 20 + (c[3] - 48) * 2 + (c[5] - 64.5) / 12;
  const double latitude = -90 + (c[2] - 65) * 10 + (c[4] - 48) + (c[6] - 64.5) / 24;

  const DegreeParts lon = SplitDegrees(longitude, 3);
  const DegreeParts lat = SplitDegrees(latitude, 2);
  PositionFields f;
  f.lonH = lon.degrees;
  f.lonM = lon.minutes;
  f.lonS = lon.decimals;
  f.lonDirection = longitude < 0 ? "W" : "E";
  f.latH = lat.degrees;
  f.latM = lat.minutes;
  f.latS = lat.decimals;
  f.latDirection = latitude < 0 ? "S" : "N";
  return f;
}

std::optional<DecodedPosition> AprsPosition::DecodeAPRS(const std::string& aprs) {
  const std::string lat = Mid(aprs, 2, 8);
  const std::string lon = Mid(aprs, 11, 9);
  if (lat.empty() || lon.empty()) return std::nullopt;
  DecodedPosition d;
  d.fields.latH = Mid(lat, 1, 2);
  d.fields.latM = Mid(lat, 3, 2);
  d.fields.latS = Mid(lat, 6, 2);
  d.fields.latDirection = UCase(Right(lat, 1));
  d.fields.lonH = Mid(lon, 1, 3);
  d.fields.lonM = Mid(lon, 4, 2);
  d.fields.lonS = Mid(lon, 7, 2);
  d.fields.lonDirection = UCase(Right(lon, 1));
  d.table = Mid(aprs, 10, 1);
  d.code = Mid(aprs, 20, 1);
  return d;
}

// ---- the send button --------------------------------------------------------------------------

void AprsPosition::cmdTXAPRS_Click() {
  if (m_config.APRSEnabled == 0) {
    m_platform.dialogs().msgBox(
        "Please enter your coordinates and enable APRS in the Setup before sending in APRS!",
        MsgButtons::Ok, MsgIcon::None, "TESK");
    return;
  }
  if (!m_controls.cmdTXAPRS.guard.empty()) return;
  const std::string_view stored(m_config.APRS);
  const std::string position =
      Trim(stored.substr(0, std::min<std::size_t>(stored.size(), kFixedLength)));
  const std::string noTag;
  const std::string& tag = m_config.TESKTag != 0 ? noTag : m_run.TagText;
  // Position and tag are reserved first, so with no commas in Via the frame is 80 characters.
  std::string comment = RTrim(m_controls.cmbAPRSPos.text);
  m_panel.CalcUI_TXlength(comment, static_cast<int16_t>(Len(position) + Len(tag)), 0);
  m_run.APRSWorkingText = comment;
  m_config.APRS.assign(position).append(comment).append(tag);

  m_panel.ValidateToViaBoxes();
  if (m_config.ToCall.empty()) return;
  // The compressed form is shorter, yet the comment keeps the cut made for the plain one.
  std::string frame;
  if (m_config.APRSCompressed.empty()) {
    frame = m_config.APRS;
  } else {
    frame.reserve(m_config.APRSCompressed.size() + comment.size() + tag.size());
    frame.append(m_config.APRSCompressed).append(comment).append(tag);
  }
  m_transmit.AGWPE_UI_Send(frame, TxAPRSPosition);
  m_panel.ADDToData();
  m_panel.ADDViaData();
  m_panel.AddAPRSData();
  m_platform.views().refresh(WindowKind::Main);
}

void AprsPosition::RegisterCommands(CommandTable& commands) {
  commands.addClick(
      {Command::cmdTXAPRS}, [this] { cmdTXAPRS_Click(); }, WhileEnabled(m_controls.cmdTXAPRS));
  CommandSpec console;
  console.key = {Command::ConsoleAprs};
  console.console = "aprs";
  console.usage = ":aprs [COMMENT]";
  console.handler = [this, &commands](const std::string& comment) {
    if (comment.empty()) {
      m_panel.Press(SendButton::APRS);
    } else {
      m_panel.TypeAndEnter(TxField::APRSPos, comment);
    }
    // Without a position the button is grey and the press did nothing; the console still
    // gets the box that says what is missing.
    if (m_config.APRSEnabled == 0 && !commands.enabled({Command::cmdTXAPRS})) cmdTXAPRS_Click();
  };
  commands.add(std::move(console));
}

}  // namespace tesk
