// Digipeat tracking: whether a painted header is the station's own frame come back through a
// digipeater. A counted frame raises the total, flashes, plays the digi sound and may end the
// beacon once enough digipeats came back.
#pragma once

#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/command_table.h"
#include "state/main_window.h"

namespace tesk {

class BeaconScheduler;
class DigiFlash;
class SoundTable;

class Digipeat {
 public:
  Digipeat(Platform& platform, StationConfig& config, MainWindow& main, DigiFlash& flash,
           SoundTable& sounds, BeaconScheduler& beacon);

  // Registers the commands of this part once the station is complete.
  void RegisterCommands(CommandTable& commands);

  // True when the frame counted as an own digipeat; the header is then painted in [DigiColor].
  bool LogDigi(const std::string& header);
  // True when the header shows the own call digipeated, by [OptionalDigLogSSID]; counts nothing.
  bool IsOwnDigipeat(const std::string& header) const;
  // "Reset your digipeated total".
  void mnuShowDigiStatuss_Click();

  float DigipeatedTotal = 0;  // since start or reset; never saved

 private:
  Platform& m_platform;
  StationConfig& m_config;
  MainWindow& m_main;
  DigiFlash& m_flash;
  SoundTable& m_sounds;
  BeaconScheduler& m_beacon;
};

}  // namespace tesk
