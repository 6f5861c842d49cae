// The beacon plan at run time: the decision taken at the start of every packet-core tick, the
// Smart Beacon release that received frames give, the counting and the time windows of the
// one-second clock, the double click on lblBeacon and the automatic stops. The item senders
// live in other subsystems; the station hands them in as hooks (an empty hook sends nothing).
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/main_window.h"

namespace tesk {

// The five beacon items and the Shadow Experiment, in the subsystems that send them.
struct BeaconItemSenders {
  std::function<void()> cmdTXDataText_Click;     // character 6: text/data
  std::function<void()> cmdTXAPRS_Click;         // 5: APRS position
  std::function<void()> cmdTXAPRSMessage_Click;  // 4: APRS message
  std::function<void()> TX_BeaconFile;           // 3: the beacon file
  std::function<void(int)> SendMheardList;       // 2: the MHeard list, as [TXMHeardType]
  std::function<void()> ExecuteShadowExp;        // replaces all five in Shadow Experiment mode
  // The Shadow Experiment's timing, once a second after the UTC clock was set.
  std::function<void()> UTC_Klok_Change;
};

struct BeaconRoundState {
  int16_t position = 0;            // cycle position
  std::array<int16_t, 5> flags{};  // item sent in this cycle; [0] is character 2
};

class BeaconScheduler {
 public:
  BeaconScheduler(Platform& platform, StationConfig& config, MainWindow& main)
      : m_platform(platform), m_config(config), m_main(main) {}

  // The decision of one core tick, while [Beacon] is on. True when the tick ends here: a
  // beacon item went out, or the Shadow Experiment ran.
  bool TimedBeacon();
  // A received frame that passed the gate may release a held Smart Beacon.
  void SmartBeaconRelease(const std::string& frameText);

  // The one-second clock's part: the beacon counter and the thirty-minute stop.
  void CountSeconds();
  // The change of the local clock label Klok: the time windows, read from its caption.
  void Klok_Change();
  // The operator's switch on the main window (and the mailbox's /BEACON/).
  void lblBeacon_DblClick();

  // The automatic stop on enough own digipeats: clears [Beacon] and nothing else (the caption
  // of lblBeacon stays until the operator's next action).
  void StopOnDigipeats() { m_config.Beacon = 0; }

  // lblBeacon with one of its three captions and the colours that go with it.
  void ShowCaption(const std::string& caption);
  // After the beacon window closed: a changed [Beacon], [IntelligentBeacon] or [Beacon Interval]
  // starts the counting afresh.
  struct Watched {
    int16_t beacon = 0;
    std::string intelligent;
    int16_t interval = 0;
  };
  Watched watched() const {
    return {m_config.Beacon, m_config.IntelligentBeacon, m_config.BeaconInterval};
  }
  void ResetIfChanged(const Watched& before);

  bool SmartBeaconOn() const;
  std::string SmartBeaconText() const;
  // The plan on one line, for the console.
  std::string PlanLine() const;

  BeaconItemSenders items;
  int16_t BeaconSeconds = 0;  // counted by the one-second clock while [Beacon] is on
  int16_t BeaconHalted = 0;   // the Smart Beacon hold
  BeaconRoundState BeaconRound;
  int16_t HeardTurn = 0;        // Smart Beacon counter, 0 to 2
  int32_t AutoStopSeconds = 0;  // the thirty-minute stop
  int16_t ShadowMinute = 0;     // the Shadow Experiment's minute counter (its pause count)

 private:
  bool SendNextItem();
  bool InsideWindow(const std::string& start, const std::string& stop,
                    const std::string& now) const;

  Platform& m_platform;
  StationConfig& m_config;
  MainWindow& m_main;
};

}  // namespace tesk
