// The sound table's paths and the asynchronous player hand-off.
#include "alarms/sound_table.h"

#include "platform/platform_helpers.h"

namespace tesk {

void SoundTable::Restore() {
  for (int i = 0; i < kSlots; ++i)
    m_paths[i] = JoinPath(JoinPath(m_run.AppPath, "Sounds"), kDefaultFiles[i]);
  m_restored = true;
}

std::string SoundTable::path(int slot) {
  if (slot < 0 || slot >= kSlots) return "";
  if (!m_restored) Restore();
  return m_paths[slot];
}

void SoundTable::setPath(int slot, const std::string& path) {
  if (slot < 0 || slot >= kSlots) return;
  if (!m_restored) Restore();
  m_paths[slot] = path;
}

void SoundTable::PlaySoundSlot(const std::string& path) {
  if (m_config.UseAlarmSound == -1) return;
  // The player starts and returns at once; the empty path is its "stop".
  m_platform.sound().play(path);
}

}  // namespace tesk
