// Media that a loaded set names and that are not there: found after the load, and repaired one at a time.
#pragma once

namespace pawnfield {

struct Show;

// Looks at the pictures and sounds of GameSet and writes the whole path where one starts with ".". A file that is
// missing sends the scan on to the sixth record, and it ends where it would look at a record again. Shows frmDialog2
// for the last one found.
void ScanSetForMissingMedia(Show& show);

// Gives frmDialog2 its handlers.
void AttachRepairHandlers(Show& show);

// Shows the last missing file behind MissingQuestion, which then goes back to 1. Always true.
bool FindNextMissing(Show& show);
// Writes GameSet up to its last question over the file that it was loaded from.
void SaveRepairedSet(Show& show);

}  // namespace pawnfield
