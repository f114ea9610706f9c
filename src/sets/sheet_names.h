// What a file is by its name, for what is dropped or handed over.
#pragma once

#include <string>

namespace pawnfield {

inline constexpr const char* kBundleEnding = ".pawnset";

// In any case of letters.
bool IsSheetName(const std::string& path);
bool IsBundleName(const std::string& path);

}  // namespace pawnfield
