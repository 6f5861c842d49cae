// PlayAlarm: sound, note and alarm log, in the precedence the setup window tells the operator.
#include "alarms/alarms.h"

#include "alarms/meld.h"
#include "alarms/packet_log.h"
#include "alarms/sound_table.h"
#include "base/text.h"

namespace tesk {

void Alarms::PlayAlarm(int mode, const std::string& header, const std::string& data) {
  const bool logged = m_config.LogAlarmToDisk != 0;
  // Deliberate: the note shows only where the sound is off and no alarm log is kept. With the
  // alarm sound disabled and the log on, the empty path stops a sound in progress.
  if (m_config.UseAlarmSound == 0 || logged) {
    std::string path;
    if (m_config.UseAlarmSound == 0) {
      path = m_sounds.path(mode == 1 ? SoundTable::AlarmHeader : SoundTable::AlarmData);
    }
    m_sounds.PlaySoundSlot(path);
  } else if (m_config.MessageboxAlarm == 0) {
    const std::string& text = mode == 1 ? m_config.AlarmSetHeaderText : m_config.AlarmSetDataText;
    m_meld.ShowMeld(std::string("TESK Alarm is ON") + CR + "Text >" + text +
                        (mode == 1 ? "< found in header!" : "< found in data!"),
                    0);
  }
  if (logged) m_log.LogPacketToDisk(PacketLog::AlarmLog, header, data);
}

}  // namespace tesk
