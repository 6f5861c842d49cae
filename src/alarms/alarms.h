// The alarm on a chosen text in received frames (AlarmRule: [AlarmSet] with its header or data
// text). The packet core tests every frame that passed its gate, shown or filtered, and calls
// PlayAlarm on a hit; the alarm sounds, shows a note or writes the alarm log as the settings say.
#pragma once

#include <string>

#include "settings/station_config.h"

namespace tesk {

class Meld;
class PacketLog;
class SoundTable;

class Alarms {
 public:
  Alarms(const StationConfig& config, SoundTable& sounds, Meld& meld, PacketLog& log)
      : m_config(config), m_sounds(sounds), m_meld(meld), m_log(log) {}

  // mode 1: the text was found in the header; 2: in the data.
  void PlayAlarm(int mode, const std::string& header, const std::string& data);

 private:
  const StationConfig& m_config;
  SoundTable& m_sounds;
  Meld& m_meld;
  PacketLog& m_log;
};

}  // namespace tesk
