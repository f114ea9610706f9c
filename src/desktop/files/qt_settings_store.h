// The per-user settings: one ini file for each application in the user's configuration folder.
#pragma once

#include <QString>

#include "platform/ports.h"

namespace pawnfield {

class QtSettingsStore : public SettingsStore {
 public:
  // The folder need not exist yet.
  explicit QtSettingsStore(QString folder) : folder_(std::move(folder)) {}

  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& fallback) const override;
  // On the disk when it returns, as a whole; a RuntimeError when that can't be.
  void SaveSettings(const std::string& application, const std::string& section,
                    const std::vector<Setting>& settings) override;
  void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                   const std::string& value) override {
    SaveSettings(application, section, {{key, value}});
  }

 private:
  QString FileOf(const std::string& application) const;
  QString folder_;
};

}  // namespace pawnfield
