#include "desktop/files/qt_settings_store.h"

#include <QDir>
#include <QFile>

#include "desktop/files/ini_text.h"
#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"

namespace pawnfield {

namespace {

// The stored name that differs from the wanted one in case only, or the wanted one.
template <typename Value>
QString StoredName(const QMap<QString, Value>& values, const std::string& name) {
  const QString wanted = FromWindows1252(name);
  if (values.contains(wanted)) return wanted;
  for (const QString& stored : values.keys()) {
    if (stored.compare(wanted, Qt::CaseInsensitive) == 0) return stored;
  }
  return wanted;
}

// Nothing where there is no such file; an error where there is one that can't be read.
IniValues ReadIni(const QString& path) { return QFile::exists(path) ? ParseIni(ReadFile(path)) : IniValues(); }

}  // namespace

QString QtSettingsStore::FileOf(const std::string& application) const {
  return folder_ + '/' + FromWindows1252(application).toLower() + ".ini";
}

std::string QtSettingsStore::GetSetting(const std::string& application, const std::string& section,
                                        const std::string& key, const std::string& fallback) const {
  try {
    const IniValues values = ReadIni(FileOf(application));
    const auto entries = values.value(StoredName(values, section));
    const QString stored = StoredName(entries, key);
    return entries.contains(stored) ? ToWindows1252(entries[stored]).value_or(fallback) : fallback;
  } catch (const RuntimeError&) {
    return fallback;
  }
}

void QtSettingsStore::SaveSettings(const std::string& application, const std::string& section,
                                   const std::vector<Setting>& settings) {
  QDir().mkpath(folder_);
  IniValues values = ReadIni(FileOf(application));
  auto& entries = values[StoredName(values, section)];
  for (const auto& [key, value] : settings) entries[StoredName(entries, key)] = FromWindows1252(value);
  ReplaceFile(FileOf(application), FormatIni(values).toStdString());
}

}  // namespace pawnfield
