// Writes to the audience form at once all that the changes of a show would have written one by one: for an audience
// screen that comes up in the middle of it.
#pragma once

namespace pawnfield {

struct Show;

// Every pair of the screens, what each fits for itself, the cursor and the cover.
void BringAudienceInStep(Show& show);
// The cover over the audience's question is up while a player answers it and the option says so, and else down.
void CoverAnsweredQuestion(Show& show);

}  // namespace pawnfield
