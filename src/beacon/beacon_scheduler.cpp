// One interval sends one item: the selected items go out in turn, in the fixed order text,
// position, message, file, MHeard list, and a new cycle starts when all have gone.
#include "beacon/beacon_scheduler.h"

#include "base/text.h"

namespace tesk {

namespace {

void Run(const std::function<void()>& f) {
  if (f) f();
}

}  // namespace

bool BeaconScheduler::SmartBeaconOn() const {
  return Val(Left(m_config.IntelligentBeacon, 1)) != 0;
}

std::string BeaconScheduler::SmartBeaconText() const {
  return Mid(m_config.IntelligentBeacon, 2);
}

bool BeaconScheduler::TimedBeacon() {
  if (SmartBeaconOn() && HeardTurn < 1) BeaconHalted = -1;
  if (BeaconSeconds < m_config.BeaconInterval || BeaconHalted != 0) return false;
  BeaconSeconds = 0;
  ++BeaconRound.position;
  if (BeaconRound.position > m_config.SelectedBeaconItems) {
    BeaconRound.position = 1;
    BeaconRound.flags.fill(0);
  }
  if (m_config.ShadowExperiment != 0) {
    Run(items.ExecuteShadowExp);
    return true;
  }
  if (SendNextItem()) return true;
  if (SmartBeaconOn() && HeardTurn < 2) {
    BeaconHalted = -1;
    HeardTurn = 0;
  }
  return false;
}

bool BeaconScheduler::SendNextItem() {
  const std::string selected = Trim(Str(m_config.SelectedBeacon));
  for (int place = 6; place >= 2; --place) {
    int16_t& flag = BeaconRound.flags[static_cast<std::size_t>(place - 2)];
    if (Val(Mid(selected, place, 1)) != 1 || flag != 0) continue;
    flag = -1;
    switch (place) {
      case 6:
        Run(items.cmdTXDataText_Click);
        break;
      case 5:
        Run(items.cmdTXAPRS_Click);
        break;
      case 4: {
        // The beacon's message goes out without an ack request.
        const int16_t kept = m_config.AckUIViewType;
        m_config.AckUIViewType = 0;
        Run(items.cmdTXAPRSMessage_Click);
        m_config.AckUIViewType = kept;
        break;
      }
      case 3:
        Run(items.TX_BeaconFile);
        break;
      default:
        if (items.SendMheardList) items.SendMheardList(m_config.TXMHeardType);
        break;
    }
    return true;
  }
  return false;
}

void BeaconScheduler::SmartBeaconRelease(const std::string& frameText) {
  if (!SmartBeaconOn() || m_config.Beacon == 0 || Left(frameText, 4) == "Port") return;
  if (BeaconHalted == 0 || InStr(UCase(frameText), SmartBeaconText()) > 0) {
    HeardTurn = static_cast<int16_t>((HeardTurn + 1) % 3);
    if (HeardTurn > 0) BeaconHalted = 0;
  }
}

}  // namespace tesk
