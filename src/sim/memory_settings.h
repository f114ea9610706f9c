// A settings store in memory. Application, section and key are compared without regard to case.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/ports.h"

namespace pawnfield {

class MemorySettings : public SettingsStore {
 public:
  std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                         const std::string& fallback) const override;
  void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                   const std::string& value) override;

  std::string Problem(const std::string&) const override { return Unreadable; }
  void Flush() override { ++Flushes; }

  // Puts a value there as an earlier run would have left it, without logging it.
  void Preset(const std::string& application, const std::string& section, const std::string& key,
              const std::string& value);

  // Key and value of every save, in order.
  std::vector<std::pair<std::string, std::string>> Writes;
  // That many of the next saves write nothing and throw error 61.
  int FailSaves = 0;
  // Why nothing can be read, as a store on a disk would say it.
  std::string Unreadable;
  // How often a value was asked for, and the end of all writing.
  mutable int Reads = 0;
  int Flushes = 0;

 private:
  std::map<std::string, std::string> values_;
};

}  // namespace pawnfield
