// Locks and frees the options of the console while a question is up.
#pragma once

namespace pawnfield {

struct Show;

void EnableOptions(Show& show);
void DisableOptions(Show& show);

}  // namespace pawnfield
