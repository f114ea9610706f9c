// Judging: the verdicts, the manual score buttons and skip.
#pragma once

namespace pawnfield {

struct Show;

void HandleCorrect(Show& show);
void HandleIncorrect(Show& show);

enum class ScoreChange { Up, Down };
// The manual button of the player 1..3 with the amount 100000 down to 1 by index 0..5. A result past 999999 or -999999
// is refused as a whole.
void ChangeScore(Show& show, int player, ScoreChange change, int index);

void btnSkipQuestion_Click(Show& show);

}  // namespace pawnfield
