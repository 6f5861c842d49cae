// The timed beacon's decision, taken at the start of every packet-core tick, and the Smart
// Beacon release that each received frame may give. The counting (one-second clock), the time
// windows and the beacon window arrive with the beacon; so do the item senders, which the
// station hands in as hooks (an empty hook sends nothing).
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "settings/station_config.h"

namespace tesk {

// The five beacon items and the Shadow Experiment, in the subsystems that send them.
struct BeaconItemSenders {
  std::function<void()> cmdTXDataText_Click;     // character 6: text/data
  std::function<void()> cmdTXAPRS_Click;         // 5: APRS position
  std::function<void()> cmdTXAPRSMessage_Click;  // 4: APRS message
  std::function<void()> TX_BeaconFile;           // 3: the beacon file
  std::function<void(int)> SendMheardList;       // 2: the MHeard list, as [TXMHeardType]
  std::function<void()> ExecuteShadowExp;        // replaces all five in Shadow Experiment mode
};

struct BeaconRoundState {
  int16_t position = 0;            // cycle position
  std::array<int16_t, 5> flags{};  // item sent in this cycle; [0] is character 2
};

class BeaconScheduler {
 public:
  explicit BeaconScheduler(StationConfig& config) : m_config(config) {}

  // The decision of one core tick, while [Beacon] is on. True when the tick ends here: a
  // beacon item went out, or the Shadow Experiment ran.
  bool TimedBeacon();
  // A received frame that passed the gate may release a held Smart Beacon.
  void SmartBeaconRelease(const std::string& frameText);

  // The automatic stop on enough own digipeats: clears [Beacon] and nothing else (the caption
  // of lblBeacon stays until the operator's next action).
  void StopOnDigipeats() { m_config.Beacon = 0; }

  bool SmartBeaconOn() const;
  std::string SmartBeaconText() const;

  BeaconItemSenders items;
  int16_t BeaconSeconds = 0;  // counted by the one-second clock while [Beacon] is on
  int16_t BeaconHalted = 0;   // the Smart Beacon hold
  BeaconRoundState BeaconRound;
  int16_t HeardTurn = 0;  // Smart Beacon counter, 0 to 2

 private:
  bool SendNextItem();

  StationConfig& m_config;
};

}  // namespace tesk
