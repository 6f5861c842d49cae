// QSettings INI files behind the registry stand-in and the per-application settings.
#include "qt/qt_store.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

#include "qt/qt_text.h"

namespace tesk {

namespace {

// Key paths come in the registry's spelling ("Software\TESK\Set"); QSettings nests on "/".
QString KeyPath(const std::string& key) {
  QString k = ToQString(key);
  k.replace(QLatin1Char('\\'), QLatin1Char('/'));
  while (k.startsWith(QLatin1Char('/')))
    k.remove(0, 1);
  while (k.endsWith(QLatin1Char('/')))
    k.chop(1);
  return k;
}

}  // namespace

QtStore::QtStore(const std::string& folder) {
  if (folder.empty()) {
    m_folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
               QStringLiteral("/tesk");
  } else {
    m_folder = QString::fromStdString(folder);
  }
  QDir().mkpath(m_folder);
}

QtStore::~QtStore() = default;

QSettings& QtStore::file(const QString& name) {
  auto it = m_files.find(name);
  if (it == m_files.end()) {
    auto settings =
        std::make_unique<QSettings>(m_folder + QLatin1Char('/') + name, QSettings::IniFormat);
    it = m_files.emplace(name, std::move(settings)).first;
  }
  return *it->second;
}

QString QtStore::regPath(Hive hive, const std::string& key, const std::string& name) {
  const QString prefix =
      hive == Hive::LocalMachine ? QStringLiteral("HKEY_LOCAL_MACHINE/") : QString();
  return prefix + KeyPath(key) + QLatin1Char('/') + ToQString(name);
}

std::optional<std::string> QtStore::regRead(Hive hive, const std::string& key,
                                            const std::string& name) {
  QSettings& s = file(QStringLiteral("registry.ini"));
  s.sync();
  const QString path = regPath(hive, key, name);
  if (!s.contains(path)) return std::nullopt;
  return FromQString(s.value(path).toString());
}

bool QtStore::regWrite(Hive hive, const std::string& key, const std::string& name,
                       const std::string& value) {
  QSettings& s = file(QStringLiteral("registry.ini"));
  s.setValue(regPath(hive, key, name), ToQString(value));
  s.sync();
  return s.status() == QSettings::NoError;
}

std::string QtStore::getSetting(const std::string& app, const std::string& section,
                                const std::string& key, const std::string& defaultValue) {
  QSettings& s =
      file(KeyPath(app).replace(QLatin1Char('/'), QLatin1Char('_')) + QStringLiteral(".ini"));
  s.sync();
  const QString path = KeyPath(section) + QLatin1Char('/') + ToQString(key);
  if (!s.contains(path)) return defaultValue;
  return FromQString(s.value(path).toString());
}

void QtStore::saveSetting(const std::string& app, const std::string& section,
                          const std::string& key, const std::string& value) {
  QSettings& s =
      file(KeyPath(app).replace(QLatin1Char('/'), QLatin1Char('_')) + QStringLiteral(".ini"));
  s.setValue(KeyPath(section) + QLatin1Char('/') + ToQString(key), ToQString(value));
  s.sync();
}

}  // namespace tesk
