// The chips in the console's menu bar: what is connected, what was lost, and the way to what mends it.
#pragma once

namespace pawnfield {

struct Show;

// Brings the chips in step with the show; called after each event.
void ShowChips(Show& show);
// Gives the chips their clicks, and follows the sound devices.
void AttachChips(Show& show);

}  // namespace pawnfield
