// Gives every control of every form its handler, and every form its guard and its clock. The one place where controls
// and rooms meet.
#pragma once

namespace pawnfield {

struct Show;

void AttachHandlers(Show& show);

}  // namespace pawnfield
