// The load of frmMain, in its fixed order: settings into state and controls, pictures, lists, the idle board.
#pragma once

namespace pawnfield {

struct Show;

void LoadMainForm(Show& show);
// The audience's screen with the standby picture, ahead of that load; nothing where it is up or has no monitor.
void ShowStandbyFirst(Show& show);

}  // namespace pawnfield
