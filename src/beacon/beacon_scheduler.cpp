// One interval sends one item: the selected items go out in turn, in the fixed order text,
// position, message, file, MHeard list, and a new cycle starts when all have gone. The clock
// counts the seconds, opens and closes the time windows and ends a beacon left running.
#include "beacon/beacon_scheduler.h"

#include "base/text.h"
#include "state/beacon_label.h"

namespace tesk {

namespace {

constexpr int kCounterWrap = 10000;
constexpr int32_t kAutoStopSeconds = 1800;
constexpr int kWindows = 4;
constexpr int kTimeLength = 5;  // "hh:mm"

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

// ---- the one-second clock ---------------------------------------------------------------------

void BeaconScheduler::CountSeconds() {
  if (m_config.Beacon != 0)
    BeaconSeconds = static_cast<int16_t>((BeaconSeconds + 1) % kCounterWrap);
  if (m_config.AutoStopBeacon == 0) return;
  if (m_config.AutoBeacon == 0 && m_config.Beacon == 0) return;
  if (++AutoStopSeconds < kAutoStopSeconds) return;
  AutoStopSeconds = 0;
  // Only [Beacon] is cleared: the caption stays, so the time windows can't restart it. Kept on
  // purpose, as the digipeat stop does.
  m_config.Beacon = 0;
}

bool BeaconScheduler::InsideWindow(const std::string& start, const std::string& stop,
                                   const std::string& now) const {
  // Compared as texts "hh:mm"; a start later than the stop is a window across midnight.
  if (start > stop) return (now < stop && now < start) || (now >= start && now > stop);
  return now >= start && now < stop;
}

void BeaconScheduler::Klok_Change() {
  if (m_config.AutoBeacon == 0) return;
  const std::string now = Left(m_main.Klok.caption, kTimeLength);
  for (int i = 0; i < kWindows; ++i) {
    const long at = 1 + static_cast<long>(i) * kTimeLength;
    const std::string start = Mid(m_config.AutoBeaconStart, at, kTimeLength);
    const std::string stop = Mid(m_config.AutoBeaconStop, at, kTimeLength);
    if (m_main.lblBeacon.caption == kAutoBeacon && Len(start) == kTimeLength &&
        Len(stop) == kTimeLength && InsideWindow(start, stop, now)) {
      m_config.Beacon = -1;
      AutoStopSeconds = 0;
      // The first transmission of a window goes out at once.
      if (BeaconSeconds == 0) BeaconSeconds = m_config.BeaconInterval;
      ShowCaption(kBeaconOn);
      if (m_config.ShadowExperiment != 0) ShadowMinute = 0;
    }
    // A stop acts only in its very minute: a program started later runs on to the next stop.
    if (m_main.lblBeacon.caption == kBeaconOn && now == stop) {
      m_config.Beacon = 0;
      ShowCaption(kAutoBeacon);
    }
  }
}

// ---- the operator's switch -----------------------------------------------------------------

void BeaconScheduler::ShowCaption(const std::string& caption) {
  ShowBeaconCaption(m_main, m_platform.views(), caption,
                    SmartBeaconDigit(m_config.IntelligentBeacon));
}

void BeaconScheduler::lblBeacon_DblClick() {
  BeaconSeconds = 0;
  ShadowMinute = 0;
  const bool off = m_main.lblBeacon.caption == kBeaconOff;
  const bool shadow = m_config.ShadowExperiment != 0;
  Views& views = m_platform.views();
  if (off) {
    if (m_config.AutoBeacon != 0) {
      ShowCaption(kAutoBeacon);
    } else {
      m_config.Beacon = -1;
      ShowCaption(kBeaconOn);
    }
    if (shadow) ShowShadowMark(m_main, views, true);
  } else {
    m_config.Beacon = 0;
    ShowCaption(kBeaconOff);
    if (shadow) ShowShadowMark(m_main, views, false);
  }
  views.refresh(WindowKind::Main);
}

void BeaconScheduler::ResetIfChanged(const Watched& before) {
  const Watched now = watched();
  if (now.beacon == before.beacon && now.intelligent == before.intelligent &&
      now.interval == before.interval)
    return;
  BeaconSeconds = 0;
  BeaconHalted = 0;
  ShadowMinute = 0;
}

std::string BeaconScheduler::PlanLine() const {
  static constexpr const char* kItems[] = {"MHeard", "file", "message", "position", "text"};
  const std::string selected = Trim(Str(m_config.SelectedBeacon));
  std::string items;
  for (int place = 6; place >= 2; --place) {
    if (Val(Mid(selected, place, 1)) != 1) continue;
    items += (items.empty() ? "" : "+") + std::string(kItems[place - 2]);
  }
  if (m_config.ShadowExperiment != 0) items = "Shadow Experiment";
  std::string windows;
  for (int i = 0; i < kWindows; ++i) {
    const long at = 1 + static_cast<long>(i) * kTimeLength;
    const std::string start = Mid(m_config.AutoBeaconStart, at, kTimeLength);
    const std::string stop = Mid(m_config.AutoBeaconStop, at, kTimeLength);
    if (start.empty() && stop.empty()) continue;
    windows += (windows.empty() ? "" : " ") + start + "-" + stop;
  }
  std::string line = "Beacon plan: " + m_main.lblBeacon.caption + ", every " +
                     std::to_string(m_config.BeaconInterval) + " s, items " +
                     (items.empty() ? "none" : items) + ", windows ";
  line += m_config.AutoBeacon != 0 ? (windows.empty() ? "none" : windows) : "off";
  line += ", Smart Beacon ";
  line += SmartBeaconOn() ? "on \"" + SmartBeaconText() + "\"" : "off";
  return line;
}

}  // namespace tesk
