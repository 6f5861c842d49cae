// The sound table: the seven event sounds (alarms, bell, connection up and down, own digipeat)
// with their files under Sounds, and PlaySoundSlot, the one way any part of the program plays
// a sound. Playing never waits, and [UseAlarmSound] = -1 silences everything here.
#pragma once

#include <array>
#include <string>

#include "platform/platform.h"
#include "settings/station_config.h"
#include "state/run_state.h"

namespace tesk {

class SoundTable {
 public:
  static constexpr int kSlots = 7;
  // The fixed slots of the table.
  enum Slot {
    AlarmHeader = 0,
    AlarmData = 1,
    AlarmSpare = 2,
    Bell = 3,
    Connection = 4,
    Disconnected = 5,
    Digi = 6
  };
  // The default file of each slot, in the folder Sounds.
  static constexpr std::array<const char*, kSlots> kDefaultFiles = {
      "_Alarm.wav",      "_Alarm1.wav",       "_Alarm2.wav", "_Bell.wav",
      "_Connection.wav", "_Disconnected.wav", "_Digi.wav"};

  SoundTable(Platform& platform, const StationConfig& config, const RunState& run)
      : m_platform(platform), m_config(config), m_run(run) {}

  // Puts every slot back to its default file under AppPath/Sounds.
  void Restore();
  // The path of a slot; a table never restored takes the defaults first. Empty for a slot
  // outside the table.
  std::string path(int slot);
  void setPath(int slot, const std::string& path);

  // Starts the file without waiting; an empty path stops what plays. Nothing at all happens
  // while [UseAlarmSound] is -1. A missing file goes unnoticed.
  void PlaySoundSlot(const std::string& path);
  // PlaySoundSlot with the path of a slot.
  void PlaySlot(int slot) { PlaySoundSlot(path(slot)); }

 private:
  Platform& m_platform;
  const StationConfig& m_config;
  const RunState& m_run;
  std::array<std::string, kSlots> m_paths;
  bool m_restored = false;
};

}  // namespace tesk
