// Phones and pages on the local network: who may join, whose seat is whose, and the press that ends in AcceptRingIn
// like every other.
#pragma once

#include <string>

namespace pawnfield {

struct PageEvent;
struct Show;

// From the event loop: a page came, says something or is gone, or a control device asks for something.
void PagesChanged(Show& show, const PageEvent& event);
// Tells each page what has changed for it; after each event of the program.
void TellPages(Show& show);

void tmrPing_Timer(Show& show);

// Takes the seat from its phone, which has to choose anew; by index 0..2.
void btnEmptySeat_Click(Show& show, int index);
// Nobody sits down there, and who sits there doesn't ring in; or the same undone.
void btnLockSeat_Click(Show& show, int index);

}  // namespace pawnfield
