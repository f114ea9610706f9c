#include "desktop/files/qt_settings_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

#include "desktop/files/whole_file.h"
#include "desktop/files/windows_1252.h"

namespace pawnfield {

namespace {

constexpr qint64 kLargestFile = 1024 * 1024;
constexpr std::chrono::seconds kBetweenWrites{1};

// The stored name that differs from the wanted one in case only, or the wanted one.
template <typename Value>
QString StoredName(const QMap<QString, Value>& values, const std::string& name) {
  QString wanted = Unescape(name);
  if (values.contains(wanted)) return wanted;
  for (const QString& stored : values.keys()) {
    if (stored.compare(wanted, Qt::CaseInsensitive) == 0) return stored;
  }
  return wanted;
}

// Nothing where there is no such file; an error where there is one that can't be read. A pipe or a device would never
// come to an end, and no settings are that large.
IniValues ReadIni(const QString& path) {
  const QFileInfo file(path);
  if (!file.exists()) return {};
  const std::string name = path.toStdString();
  if (!file.isFile()) throw RuntimeError(kErrorPathAccess, name + " is no plain file.");
  if (file.size() > kLargestFile) throw RuntimeError(kErrorPathAccess, name + " is larger than 1 MB.");
  return ParseIni(ReadFile(path));
}

}  // namespace

QtSettingsStore::~QtSettingsStore() {
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  wake_.notify_all();
  if (writer_.joinable()) writer_.join();
}

QString QtSettingsStore::FileOf(const std::string& application) const {
  return folder_ + '/' + Unescape(application).toLower() + ".ini";
}

QtSettingsStore::Parsed& QtSettingsStore::ParsedOf(const std::string& application) const {
  const auto [entry, isNew] = parsed_.try_emplace(application);
  if (isNew) {
    try {
      entry->second.Values = ReadIni(FileOf(application));
    } catch (const RuntimeError& error) {
      entry->second.Problem = error.what();
    }
  }
  return entry->second;
}

std::string QtSettingsStore::GetSetting(const std::string& application, const std::string& section,
                                        const std::string& key, const std::string& fallback) const {
  const std::lock_guard lock(mutex_);
  const IniValues& values = ParsedOf(application).Values;
  const auto entries = values.value(StoredName(values, section));
  const QString stored = StoredName(entries, key);
  return entries.contains(stored) ? Escape(entries[stored]) : fallback;
}

std::string QtSettingsStore::Problem(const std::string& application) const {
  const std::lock_guard lock(mutex_);
  return ParsedOf(application).Problem;
}

void QtSettingsStore::Put(IniValues& values, const std::vector<Entry>& entries) {
  for (const auto& [section, setting] : entries) {
    auto& stored = values[StoredName(values, section)];
    stored[StoredName(stored, setting.Key)] = Unescape(setting.Value);
  }
}

void QtSettingsStore::Take(const std::string& application, const std::string& section,
                           const std::vector<Setting>& settings) {
  std::vector<Entry> entries;
  entries.reserve(settings.size());
  for (const Setting& setting : settings) entries.push_back({section, setting});
  Put(ParsedOf(application).Values, entries);
  auto& waiting = waiting_[application];
  waiting.insert(waiting.end(), entries.begin(), entries.end());
}

void QtSettingsStore::Write(const Entries& entries) const {
  for (const auto& [application, settings] : entries) {
    QDir().mkpath(folder_);
    IniValues values = ReadIni(FileOf(application));
    Put(values, settings);
    ReplaceFile(FileOf(application), FormatIni(values).toStdString());
  }
}

void QtSettingsStore::SaveSettings(const std::string& application, const std::string& section,
                                   const std::vector<Setting>& settings) {
  Entries entries;
  {
    const std::lock_guard lock(mutex_);
    Take(application, section, settings);
    entries.insert(waiting_.extract(application));
  }
  const std::lock_guard lock(disk_);
  Write(entries);
}

void QtSettingsStore::SaveSettingsAsync(const std::string& application, const std::string& section,
                                        const std::vector<Setting>& settings) {
  const std::lock_guard lock(mutex_);
  Take(application, section, settings);
  if (!writer_.joinable()) writer_ = std::thread([this] { WriteWaiting(); });
  wake_.notify_all();
}

void QtSettingsStore::Flush() {
  Entries entries;
  {
    const std::lock_guard lock(mutex_);
    entries.swap(waiting_);
  }
  const std::lock_guard lock(disk_);
  Write(entries);
}

void QtSettingsStore::WriteWaiting() {
  std::unique_lock lock(mutex_);
  auto next = std::chrono::steady_clock::now();
  while (true) {
    wake_.wait(lock, [this] { return ends_ || !waiting_.empty(); });
    wake_.wait_until(lock, next, [this] { return ends_; });
    if (waiting_.empty() && ends_) return;
    const Entries entries = std::exchange(waiting_, {});
    // Taken before the other is let go, so that a flush waits for these as well.
    std::unique_lock disk(disk_);
    lock.unlock();
    try {
      Write(entries);
    } catch (const RuntimeError& error) {
      QMetaObject::invokeMethod(
          &home_,
          [this, error] {
            if (OnSaveFailed) OnSaveFailed(error);
          },
          Qt::QueuedConnection);
    }
    disk.unlock();
    next = std::chrono::steady_clock::now() + kBetweenWrites;
    lock.lock();
  }
}

}  // namespace pawnfield
