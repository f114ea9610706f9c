// The load of frmMain, in its fixed order: settings into state and controls, pictures, lists, the idle board.
#pragma once

namespace pawnfield {

struct Show;

void LoadMainForm(Show& show);

}  // namespace pawnfield
