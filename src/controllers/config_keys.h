// frmConfigKeys' handlers: two different letters, saved for the next start and shown here. The judging keys themselves
// are fixed.
#pragma once

namespace pawnfield {

struct Show;

// Shows the dialog with the letters in use.
void btnEditKeyboardCtrl_Click(Show& show);
// Takes back what is no letter, and a letter that the other box holds. By index 0..1.
void txtKey_Change(Show& show, int index);

void AttachConfigKeysHandlers(Show& show);

}  // namespace pawnfield
