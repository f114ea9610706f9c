// Brings up everything that the two screens can show, for looking at: boards, questions, verdicts, winners, long texts.
#pragma once

#include "show_driver.h"

namespace pawnfield {

// Takes a pair of pictures of each. False when a step did not work.
bool ShowGallery(ShowDriver& driver);

}  // namespace pawnfield
