// What control devices hear of the game: numbers and states, never a wording or an answer.
#pragma once

namespace pawnfield {

struct Show;

// Tells of each ring-in, verdict, claim, score, question and of the game's end since the last call. After each event.
void TellControlDevices(Show& show);

}  // namespace pawnfield
