// An event of the game in words, from the snapshots before and after it.
#pragma once

#include <string>

#include "show/show_record.h"

namespace pawnfield {

// As in "Incorrect for BEN, -100", "ANNA takes B2, +50", "Question 17".
std::string WordsOf(const Happening& happening, const Snapshot& before, const Snapshot& after,
                    const std::string& setName);

}  // namespace pawnfield
