// The show that was interrupted comes back where it was.
#pragma once

#include <string>

#include "show/show_record.h"

namespace pawnfield {

struct Show;

// "A show was interrupted at 20:14: General Knowledge 1, question 17 of 30, ANNA 300, BEN 250."
std::string Describe(const InterruptedShow& interrupted);
// Asks the operator about the show that was found at the start, and brings it back or leaves it behind. True when it
// is back.
bool AskForInterruptedShow(Show& show);

}  // namespace pawnfield
