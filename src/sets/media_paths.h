// Media paths of a loaded set: a path that starts with "." stands for the folder of the sets.
#pragma once

namespace pawnfield {

struct Show;

// Writes the whole path into each picture and sound question of GameSet whose path starts with ".", cut to 256.
void ExpandMediaPaths(Show& show);

}  // namespace pawnfield
