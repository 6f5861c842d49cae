// The station's position as it goes on the air: the 20-character text built from the entry
// fields, its 14-character compressed form, the conversion of a Maidenhead locator into entry
// fields and back from a stored text, and the press of the position send button, which cuts
// the comment so that position, comment and tag fit one frame.
#pragma once

#include <optional>
#include <string>

#include "platform/controls.h"
#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/run_state.h"

namespace tesk {

class CommandTable;
class TransmitPrimitives;
class TxPanel;

// The eight entry fields of a position, as the operator types them.
struct PositionFields {
  std::string latH, latM, latS, latDirection;  // degrees, minutes, decimals, "N" or "S"
  std::string lonH, lonM, lonS, lonDirection;  // degrees, minutes, decimals, "E" or "W"
  bool operator==(const PositionFields&) const = default;
};

// A stored position text taken apart: the fields and the two symbol characters.
struct DecodedPosition {
  PositionFields fields;
  std::string table, code;
};

// The main window's controls that depend on a position being set up.
struct AprsSendControls {
  Button& cmdTXAPRS;
  ComboBox& cmbAPRSPos;
  MenuItem& menusendsRow2;  // "APRS position" in the send menu
};

class AprsPosition {
 public:
  static constexpr long kFixedLength = 20;

  AprsPosition(Platform& platform, StationConfig& config, RunState& run, AprsSendControls controls,
               TxPanel& panel, TransmitPrimitives& transmit);
  AprsPosition(const AprsPosition&) = delete;
  AprsPosition& operator=(const AprsPosition&) = delete;

  // ---- the encoders ----
  // "=" lat "." decimals N/S, table, lon "." decimals E/W, code: the fixed part of [APRS].
  static std::string PositionText(const PositionFields& fields, const std::string& table,
                                  const std::string& code);
  // Degrees plus minutes / 60 plus seconds / 3600, each read as its leading number ("34N" is 34).
  static double DegreesFromParts(const std::string& degrees, const std::string& minutes,
                                 const std::string& seconds);
  // The compressed form of the fixed part of `aprs` with the given symbol: 14 characters.
  static std::string APRStoCompressed(const std::string& aprs, const std::string& table,
                                      const std::string& code);
  // The entry fields of the centre of a locator of 4 to 6 characters (a shorter one is the
  // caller's to refuse); wrong characters give whatever the arithmetic gives.
  static PositionFields Maiden2World(const std::string& locator);
  // The fields and symbol of the fixed part of `aprs`; nothing when either coordinate is empty.
  static std::optional<DecodedPosition> DecodeAPRS(const std::string& aprs);

  // ---- the send button ----
  // The press of cmdTXAPRS (the send menu row and the beacon's item run the same).
  void cmdTXAPRS_Click();
  // The send button's command and the console's :aprs.
  void RegisterCommands(CommandTable& commands);

 private:
  Platform& m_platform;
  StationConfig& m_config;
  RunState& m_run;
  AprsSendControls m_controls;
  TxPanel& m_panel;
  TransmitPrimitives& m_transmit;
};

}  // namespace tesk
