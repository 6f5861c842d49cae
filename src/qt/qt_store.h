// The registry stand-in and the per-application settings on QSettings INI files in the user's
// config folder (registry.ini and <app>.ini under $XDG_CONFIG_HOME/tesk). Add-on programs read
// and write the same files, so every read syncs first and every write is synced at once.
#pragma once

#include <QString>
#include <map>
#include <memory>

#include "platform/platform.h"

class QSettings;

namespace tesk {

class QtStore : public Store {
 public:
  // `folder` empty: $XDG_CONFIG_HOME/tesk (the system's user config folder).
  explicit QtStore(const std::string& folder = "");
  ~QtStore() override;
  std::optional<std::string> regRead(Hive hive, const std::string& key,
                                     const std::string& name) override;
  bool regWrite(Hive hive, const std::string& key, const std::string& name,
                const std::string& value) override;
  std::string getSetting(const std::string& app, const std::string& section, const std::string& key,
                         const std::string& defaultValue) override;
  void saveSetting(const std::string& app, const std::string& section, const std::string& key,
                   const std::string& value) override;

  const QString& folder() const { return m_folder; }

 private:
  QSettings& file(const QString& name);
  static QString regPath(Hive hive, const std::string& key, const std::string& name);

  QString m_folder;
  std::map<QString, std::unique_ptr<QSettings>> m_files;
};

}  // namespace tesk
