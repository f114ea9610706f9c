// A picture question on both screens, and what stands in its place when its picture can't be shown.
#pragma once

namespace pawnfield {

struct Show;

inline constexpr const char* kPictureMissing = "Picture missing: read the question, or Skip";

// Shows the picture whose path stands in lblQuestion(0) as soon as it has been read; the panel is up at once. Without a
// picture the console's question says so, and the room sees a card with the question's number.
void ShowPic(Show& show);
bool IsPictureMissing(const Show& show);
// Writes the room's card.
void WriteMissingPictureCard(Show& show);
// Gives a screen that comes up in the middle of a question its picture.
void BringQuestionPictureInStep(Show& show);

}  // namespace pawnfield
