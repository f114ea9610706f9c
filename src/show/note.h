// What an event does, told to the record as it is done.
#pragma once

#include "show/show_record.h"

namespace pawnfield {

struct Show;

// The first that an event notes is its cause.
void Note(Show& show, EventKind kind, int player = 0);

}  // namespace pawnfield
