// Ties phones and pages to their routines: the port's events, the window's controls and the two timers.
#pragma once

namespace pawnfield {

struct Show;

void AttachPages(Show& show);

}  // namespace pawnfield
