#include "sim/memory_settings.h"

#include "platform/text.h"

namespace pawnfield {

namespace {
std::string FullKey(const std::string& application, const std::string& section, const std::string& key) {
  return ToLower(application + "\\" + section + "\\" + key);
}
}  // namespace

std::string MemorySettings::GetSetting(const std::string& application, const std::string& section,
                                       const std::string& key, const std::string& fallback) const {
  ++Reads;
  const auto found = values_.find(FullKey(application, section, key));
  return found == values_.end() ? fallback : found->second;
}

void MemorySettings::SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                                 const std::string& value) {
  if (FailSaves > 0 && FailSaves-- > 0) throw RuntimeError(kErrorDiskFull, "Disk full");
  Writes.emplace_back(key, value);
  Preset(application, section, key, value);
}

void MemorySettings::Preset(const std::string& application, const std::string& section, const std::string& key,
                            const std::string& value) {
  values_[FullKey(application, section, key)] = value;
}

}  // namespace pawnfield
