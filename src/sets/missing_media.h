// Media that a loaded set names and that are not there: found after the load, and repaired one after the other.
#pragma once

namespace pawnfield {

struct Show;

// Looks at the first 100 pictures and sounds of GameSet and writes the whole path where one starts with ".". Shows
// frmDialog2 while any is missing, from the first one on.
void ScanSetForMissingMedia(Show& show);

// Gives frmDialog2 its handlers.
void AttachRepairHandlers(Show& show);

// Shows the next missing file behind MissingQuestion, which takes its number; behind the last one the first. True when
// none is missing.
bool FindNextMissing(Show& show);
// Writes GameSet up to its last question over the file that it was loaded from, which is kept beside it.
void SaveRepairedSet(Show& show);

}  // namespace pawnfield
