// What mends sound and buzzers, for the chips of the menu bar and the check before the show.
#pragma once

#include <array>

namespace pawnfield {

class MediaChannel;
struct Show;

// All that can be heard.
std::array<MediaChannel*, 6> Players(const Show& show);
// Looks whether there is something to play sound on.
void LookForSound(Show& show);
// The same, and opens volumes and letters where there is.
void OpenSound(Show& show);
// Opens what the players' buttons are chosen or mapped by.
void OpenBuzzers(Show& show);

}  // namespace pawnfield
