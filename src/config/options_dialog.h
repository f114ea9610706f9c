// What frmOptions does: volumes act at once, the rest on Apply or OK. Each option is saved when it changes.
#pragma once

namespace pawnfield {

struct Show;

// Fills the dialog from the running options and opens it.
void mnuFileOptions_Click(Show& show);
void LoadOptionsDialog(Show& show);
void btnApply_Click(Show& show);

void AttachOptionsDialogHandlers(Show& show);

}  // namespace pawnfield
