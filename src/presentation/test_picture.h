// The test picture on the audience's screen: its edges, its monitor's name, and a line of sixty letters as small as the
// show has any. Lies over all else and touches nothing of the game.
#pragma once

namespace pawnfield {

struct Show;

// Of the test picture's line.
inline constexpr int kTestLineLetters = 60;

// The largest whole size in points at which a line of sixty letters has room across the audience's screen. Letters of
// this size are about a thirtieth of the picture high; smaller ones can't be read from the back of a room.
int SmallestLineSize(const Show& show);

// Shows the picture with its line of that size, or hides it.
void ShowTestPicture(Show& show, int lineSize);
void HideTestPicture(Show& show);

}  // namespace pawnfield
