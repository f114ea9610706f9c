// Presses that are tried before the show: they are told to whoever tries them, and ring in nobody.
#pragma once

#include "data/press.h"

namespace pawnfield {

struct Show;

// True when presses are tried now: the press has been taken, and must not be served. The number is that of the remote,
// the pad, the key or the seat.
bool TakesForTrial(Show& show, const Press& press, int number);

}  // namespace pawnfield
