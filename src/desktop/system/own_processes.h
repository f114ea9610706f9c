// The processes of this machine that are this user's.
#pragma once

#include <vector>

#include "platform/ports.h"

namespace pawnfield {

// By their numbers, each with the file name of its program. Empty where the system doesn't tell.
std::vector<ProcessInfo> OwnProcesses();

}  // namespace pawnfield
