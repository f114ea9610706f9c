// Whether two shows look alike on both screens, control by control: the one that was played and the one that was
// restored from its record.
#pragma once

#include <string>

#include "data/snapshot.h"
#include "show/show.h"

namespace pawnfield {

// What is unlike first, empty when all is the same. Left out is what is told to move, and what is none of the game's:
// the headers, media on demand, the status line, the cover's buttons and what runs through a flash, a bonus, the
// notice, the pause or the winner.
// The members in which two snapshots differ, with both values.
std::string UnlikeSnapshots(const Snapshot& wanted, const Snapshot& found);
std::string UnlikeShows(Show& played, Show& restored);

}  // namespace pawnfield
