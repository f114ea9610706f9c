// The per-user settings: one ini file for each application in the user's configuration folder, parsed once. What is
// saved without waiting is written by a thread of its own, at most once a second.
#pragma once

#include <QObject>
#include <QString>
#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

#include "desktop/files/ini_text.h"
#include "platform/ports.h"

namespace pawnfield {

class QtSettingsStore : public SettingsStore {
 public:
  // The folder need not exist yet.
  explicit QtSettingsStore(QString folder) : folder_(std::move(folder)) {}
  // Brings what waits to the disk.
  ~QtSettingsStore() override;
  QtSettingsStore(const QtSettingsStore&) = delete;
  QtSettingsStore& operator=(const QtSettingsStore&) = delete;

  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& fallback) const override;
  std::string Problem(const std::string& application) const override;
  // On the disk when it returns, as a whole; a RuntimeError when that can't be.
  void SaveSettings(const std::string& application, const std::string& section,
                    const std::vector<Setting>& settings) override;
  void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                   const std::string& value) override {
    SaveSettings(application, section, {{key, value}});
  }
  void SaveSettingsAsync(const std::string& application, const std::string& section,
                         const std::vector<Setting>& settings) override;
  void Flush() override;

 private:
  struct Entry {
    std::string Section;
    Setting Value;
  };
  // By application, in the order in which they came.
  using Entries = std::map<std::string, std::vector<Entry>>;
  // What was read of an application's file, and why it couldn't be.
  struct Parsed {
    IniValues Values;
    std::string Problem;
  };

  QString FileOf(const std::string& application) const;
  Parsed& ParsedOf(const std::string& application) const;
  static void Put(IniValues& values, const std::vector<Entry>& entries);
  // Adds the settings to what waits and to what GetSetting finds.
  void Take(const std::string& application, const std::string& section, const std::vector<Setting>& settings);
  // Needs the disk's lock. The file is read anew, for another program may have written it.
  void Write(const Entries& entries) const;
  void WriteWaiting();

  QString folder_;
  // Home of the failures that the thread sends to the main one.
  QObject home_;
  // Guards what follows it; the disk's is taken after it, if both are.
  mutable std::mutex mutex_;
  mutable std::map<std::string, Parsed> parsed_;
  Entries waiting_;
  bool ends_ = false;
  std::condition_variable wake_;
  std::mutex disk_;
  std::thread writer_;
};

}  // namespace pawnfield
