// What all players of the program have in common: nothing but the file that they are given, from this machine's disks.
#pragma once

#include <mpv/client.h>

namespace pawnfield {

// For a player that is not initialised yet.
void SetPlayerOptions(mpv_handle* player);

}  // namespace pawnfield
