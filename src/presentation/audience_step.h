// Writes to the audience form at once all that the paired changes would have written one by one: for an audience
// screen that comes up in the middle of a show.
#pragma once

namespace pawnfield {

struct Show;

// The pictures that the audience form is made with, from the console's.
void CopyDesignPictures(Show& show);
void CopyScreenPictures(Show& show);
// Board, names, scores, cursor, heading and every panel with what it shows.
void BringAudienceInStep(Show& show);

}  // namespace pawnfield
