// File, "Results": the shows on record, and of the chosen one its questions and totals.
#pragma once

namespace pawnfield {

struct Show;

// Ties the window's controls and the menu's entry to what they do.
void AttachResults(Show& show);

// Lists the shows, the newest first, and shows that one. It stands beside the console and holds nothing up; the record
// is read beside the main thread.
void mnuFileResults_Click(Show& show);
void lstShows_Click(Show& show);
void btnSaveTable_Click(Show& show);
void btnPrintResults_Click(Show& show);

}  // namespace pawnfield
