// What frmSoundEffects does: files chosen, dropped, tried out and cleared in the grid, tables imported and exported.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// Row 1..34 of the sound table that a row 1..33 of the grid shows; row 8 of the table has none.
int SoundRowOfGrid(int gridRow);

// Fills the grid from the table and shows the form until it is closed.
void btnSounds_Click(Show& show);
// Asks for a file for the selected cell.
void Grid1_DblClick(Show& show);
// Gives the selected cell that file; what is no file is reported and changes nothing.
void Grid1_DropFile(Show& show, const std::string& path);
// Plays the selected cell's entry while the preview is on.
void Grid1_Click(Show& show);
void btnExport_Click(Show& show);
void btnImport_Click(Show& show);
// The form closes: what was cleared is taken over, the table is saved, a preview ends.
void SoundEffects_Unload(Show& show);

void AttachSoundEffectsHandlers(Show& show);

}  // namespace pawnfield
