#include "sets/sheet_names.h"

#include <algorithm>
#include <array>

#include "platform/text.h"

namespace pawnfield {

bool IsSheetName(const std::string& path) {
  constexpr std::array kEndings{".csv", ".tsv", ".ods", ".xlsx"};
  const std::string name = ToLower(path);
  return std::any_of(kEndings.begin(), kEndings.end(), [&](const char* ending) { return name.ends_with(ending); });
}

bool IsBundleName(const std::string& path) { return ToLower(path).ends_with(kBundleEnding); }

}  // namespace pawnfield
