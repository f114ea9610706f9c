// The answer clock: the seconds in which a player is to answer, where the operator has chosen a number of them. It runs
// from a ring-in, or from the operator's key, and judges nobody: at its end it sounds and says so. Asked of elsewhere
// by RunningAnswerClock.
#pragma once

namespace pawnfield {

struct Show;

// Begins the whole time anew for the player who answers; nothing while nobody does, or with no time chosen.
void StartAnswerClock(Show& show);
// Behind every event: seconds that belong to nobody who answers now are taken down, and the button follows.
void UpdateAnswerClock(Show& show);

void btnAnswerClock_Click(Show& show);
void tmrAnswerClock_Timer(Show& show);

}  // namespace pawnfield
