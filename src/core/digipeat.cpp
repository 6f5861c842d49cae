// The own-digipeat test, the total and what a counted frame sets off. The test is loose on
// purpose: a "*" anywhere and the call anywhere in the header will do.
#include "core/digipeat.h"

#include "alarms/sound_table.h"
#include "base/text.h"
#include "beacon/beacon_scheduler.h"
#include "core/digi_flash.h"

namespace tesk {

Digipeat::Digipeat(Platform& platform, StationConfig& config, MainWindow& main, DigiFlash& flash,
                   SoundTable& sounds, BeaconScheduler& beacon)
    : m_platform(platform),
      m_config(config),
      m_main(main),
      m_flash(flash),
      m_sounds(sounds),
      m_beacon(beacon) {}

bool Digipeat::IsOwnDigipeat(const std::string& header) const {
  if (Len(header) < 7 || InStr(header, "*") == 0) return false;
  const std::string& own = m_config.YourCallSign;
  const long dash = InStr(own, "-");
  const std::string base = dash > 0 ? Left(own, dash - 1) : own;
  // A frame to itself, or with the call both in the path and as source, never counts.
  if (InstrCount(header, base) > 1) return false;
  if (InstrCount(header, "To " + base) > 1) return false;
  // The "*" and the call need not be the same path entry; the call may be the sender. Loose on
  // purpose.
  switch (m_config.OptionalDigLogSSID) {
    case 1:
      return InStr(header, base) > 0;
    case 2: {
      const std::string ssid = Trim(Str(static_cast<long>(m_config.UserSSID)));
      const std::string call = (dash > 0 ? base : own) + "-" + ssid;
      return InStr(header, call) > 0;
    }
    default:
      return InStr(header, own) > 0;
  }
}

bool Digipeat::LogDigi(const std::string& header) {
  if (!IsOwnDigipeat(header)) return false;
  DigipeatedTotal += 1;
  m_main.LblDigipeatedTot.caption = Trim(Str(DigipeatedTotal));
  m_flash.DigiFlashStart();
  m_sounds.PlaySlot(SoundTable::Digi);
  const bool beaconing = m_config.AutoBeacon != 0 || m_config.Beacon != 0;
  // The limit is a list index, so index 2 (shown "3") stops at the third digipeat.
  if (beaconing && m_config.AutoStopBeacon != 0 &&
      DigipeatedTotal > static_cast<float>(m_config.StopBeaconMaxDigi))
    m_beacon.StopOnDigipeats();
  // The headless console's view of the flash.
  m_platform.views().notice("Digipeated: " + m_main.LblDigipeatedTot.caption);
  m_platform.views().refresh(WindowKind::Main);
  return true;
}

void Digipeat::mnuShowDigiStatuss_Click() {
  m_main.LblDigipeatedTot.caption = "0";
  DigipeatedTotal = 0;
  m_platform.views().refresh(WindowKind::Main);
}

void Digipeat::RegisterCommands(CommandTable& commands) {
  CommandSpec desc;
  desc.key = {Command::mnuShowDigiStatuss};
  desc.item = &m_main.mnuShowDigiStatuss;
  desc.caption = m_main.mnuShowDigiStatuss.caption;
  desc.handler = [this](const std::string&) { mnuShowDigiStatuss_Click(); };
  commands.add(std::move(desc));
}

}  // namespace tesk
