// Puts a snapshot back on the show: state, both screens, what the companion and the external keyboard program know. No
// sound plays, and nothing that moves is begun.
#pragma once

#include "show/show_record.h"

namespace pawnfield {

struct Show;

// The cover over the room's screen stays as it is. The options of the game are left alone.
void Restore(const Snapshot& snapshot, Show& show);
// Gives the options their values, and the console's controls of them.
void RestoreOptions(const GameOptions& options, Show& show);
// Loads the set as it was played; no file is asked.
void RestoreSet(const RecordedSet& set, Show& show);

}  // namespace pawnfield
