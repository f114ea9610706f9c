// The check before the show, File, "Show check...": opens and closes frmShowCheck, keeps its rows in step with the
// show, and does what its buttons say. It ends by itself when a game starts.
#pragma once

#include "forms/show_check_form.h"

namespace pawnfield {

struct Show;

// False from Start to the game's end, when nothing may be tried.
bool MayCheck(const Show& show);
// Opens the check, or brings it to the front. In a game it says in the status bar that it can't be done now.
void mnuFileShowCheck_Click(Show& show);
// The same with the keyboard at that row.
void OpenShowCheckAt(Show& show, CheckRow row);
// Brings the rows in step with the show, and ends the check when a game has started; called after each event.
void FollowShowCheck(Show& show);
// Gives frmShowCheck and the menu's entry their handlers.
void AttachShowCheck(Show& show);

}  // namespace pawnfield
