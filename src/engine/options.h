// Locks and frees the options of the console while a question is up.
#pragma once

namespace pawnfield {

struct GameNature;
struct Show;

// The type whose button is selected on the console, which a running game need not have taken yet.
const GameNature& SelectedType(const Show& show);
void EnableOptions(Show& show);
void DisableOptions(Show& show);

}  // namespace pawnfield
