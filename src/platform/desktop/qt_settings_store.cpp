#include "platform/desktop/qt_settings_store.h"

#include <QDir>
#include <QSettings>

#include "platform/desktop/windows_1252.h"

namespace pawnfield {

namespace {

// The stored key that differs from the wanted one in case only, or the wanted one.
QString StoredKey(const QSettings& settings, const QString& wanted) {
  if (settings.contains(wanted)) return wanted;
  for (const QString& key : settings.allKeys()) {
    if (key.compare(wanted, Qt::CaseInsensitive) == 0) return key;
  }
  return wanted;
}

QString KeyPath(const std::string& section, const std::string& key) {
  return FromWindows1252(section) + '/' + FromWindows1252(key);
}

}  // namespace

QString QtSettingsStore::FileOf(const std::string& application) const {
  return folder_ + '/' + FromWindows1252(application).toLower() + ".ini";
}

std::string QtSettingsStore::GetSetting(const std::string& application, const std::string& section,
                                        const std::string& key, const std::string& fallback) const {
  const QSettings settings(FileOf(application), QSettings::IniFormat);
  const QString stored = StoredKey(settings, KeyPath(section, key));
  if (!settings.contains(stored)) return fallback;
  return ToWindows1252(settings.value(stored).toString()).value_or(fallback);
}

void QtSettingsStore::SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                                  const std::string& value) {
  QDir().mkpath(folder_);
  QSettings settings(FileOf(application), QSettings::IniFormat);
  settings.setValue(StoredKey(settings, KeyPath(section, key)), FromWindows1252(value));
  settings.sync();
  if (settings.status() != QSettings::NoError) throw RuntimeError(kErrorPathAccess, "Path/File access error");
}

}  // namespace pawnfield
