// What a test sees of a running show, as text without blanks, so that a state can be told and compared in one line.
#pragma once

#include <string>

#include "show/show.h"

namespace pawnfield {

// Checks states such as "btnStart=on turn=2", parted by blanks, after what was done. On the left stands
//   a control by its name on the form (null for the console), with an apostrophe behind on the audience's
//   ("picBonus'"); its property behind a dot: ".Height" and ".Top" in twips, ".Enabled" with "yes" or "no", its ".Tip",
//   a text's size with ".Font" or its ".BackColor" as a number; "turn" and "question" by their numbers, "phase" as in
//   "player_2_answers", "lit" for the players whose score boxes are red, "scores" ("50/0/-100"), "names", "board" as
//   rows of owners ("100/020/000"), "cursor" by its file's name, "line" for who is
//   meant and what is expected, "winner" for the winner's text, "offers" and "options"
//   for what can be pressed, without "btn", "chk" and "cbo", parted by commas, "penalties" for the players who pay and
//   the points ("1-3/20").
// A control shows "-" when hidden, otherwise its text, its picture's file name, or "up" ("off" when disabled); a check
// and an option "1" or "0", a timer "on" or "off", a button "off" when it can be seen and not pressed. Blanks are "_",
// ends of lines "/".
void ExpectSeen(Show& show, const std::string& states, const std::string& when, const Form* form = nullptr);

}  // namespace pawnfield
