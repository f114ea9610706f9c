// The players' names and the stored penalties, as frmPlayerNames edits them.
#pragma once

namespace pawnfield {

struct Show;

// Opens the dialog for all names, with the first box active.
void mnuFileAddPlayerNames_Click(Show& show);
// Opens it for the name that was double-clicked; index 0..2.
void lblPlayer1_DblClick(Show& show, int index);

void AttachPlayerNamesHandlers(Show& show);

}  // namespace pawnfield
