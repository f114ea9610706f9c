// Ties the media room's controls to their routines.
#pragma once

namespace pawnfield {

struct Show;

void AttachMediaHandlers(Show& show);

}  // namespace pawnfield
