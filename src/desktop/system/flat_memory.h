// The process's memory over a long show.
#pragma once

namespace pawnfield {

// Pictures of a whole screen and the players' short-lived threads would leave the C library's heap full of holes, which
// the process kept for good. From now on it keeps none. To be called before the first thread begins.
void KeepMemoryFlat();

}  // namespace pawnfield
