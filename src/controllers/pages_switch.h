// Switching phones and pages on and off, what of them is kept from one start to the next, and their window.
#pragma once

namespace pawnfield {

struct Show;

// File, "Phones and pages...": opens the window, beside which the show goes on.
void mnuFilePages_Click(Show& show);
void btnSwitch_Click(Show& show);
void chkKeepOn_Click(Show& show);
void chkControl_Click(Show& show);
// By index: by time pressed, by arrival.
void optWeighing_Click(Show& show, int index);
void txtControlAddresses_Change(Show& show);

// Listens with the address, port, PINs and seats that are kept; those that are missing are made. A port that can't be
// had is told in the window and the status line.
void SwitchPagesOn(Show& show);
void SwitchPagesOff(Show& show);
// At the console's load: takes what is kept, and switches on where the operator keeps it on.
void LoadPages(Show& show);
// For a show that is brought back: on again with its port, PINs and seats, if it was on when it ended unasked.
void BringPagesBack(Show& show);
// Nothing listens any more, and the next start begins as the operator left it.
void EndPages(Show& show);
// Saves what is to be found again.
void SavePages(Show& show);

// The window's and the console's word of who is connected. After each event.
void ShowWhoIsConnected(Show& show);

}  // namespace pawnfield
