// The Interface Wizard: the operator's own choice of what the show is played with, for keypads, which the program can't
// find by itself.
#pragma once

namespace pawnfield {

struct Show;

// Offers the interfaces that the program knows, beginning with the keypads that the keyboard program types for.
void frmSetInterface_Load(Show& show);
// Takes the choice up at once and saves it.
void frmSetInterface_btnOK_Click(Show& show);
// Leaves everything as it was.
void frmSetInterface_btnCancel_Click(Show& show);
// Opens the wizard.
void mnuFileInterface_Click(Show& show);

// Ties the wizard and its entry of the File menu to their routines.
void AttachInterfaceWizard(Show& show);

}  // namespace pawnfield
