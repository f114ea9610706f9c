#include "show/note.h"

#include "show/show.h"

namespace pawnfield {

void Note(Show& show, EventKind kind, int player) { show.record->Noted.push_back({kind, player}); }

}  // namespace pawnfield
