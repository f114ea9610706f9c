// What Undo will take back, in words.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// "Ben takes B2, +50" of the last claim; empty where there is nothing to take back.
std::string UndoText(const Show& show);
// Behind every event: the button's tip says its key and that.
void UpdateUndoTip(Show& show);

}  // namespace pawnfield
