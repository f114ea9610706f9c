// What a test sees of a running show, as text without blanks, so that a state can be told and compared in one line.
#pragma once

#include <string>

#include "engine/show.h"

namespace pawnfield {

// What a control shows: "-" when hidden, otherwise its text, its picture's file name, or "up" ("off" when disabled). A
// check and an option are "1" or "0", a timer "on" or "off", a button "off" when it can be seen and not pressed. Blanks
// become "_", ends of lines
// "/".
std::string Look(const Control& control);
// A control's look by its name on the form, on the audience's with an apostrophe behind ("picBonus'"); or of the show:
// "turn" and "question" by their numbers, "scores" as "50/0/-100", "board" as rows of owners ("100/020/000"), "winner"
// the winner's text, "offers" and "options" what can be pressed, without "btn", "chk" and "cbo", parted by commas,
// "names" of all players, and "penalties" as the players who pay and the points ("1-3/20"). A dot asks for a property:
// "img12.Height" and ".Top" in twips, ".Enabled" for "yes" or "no", a text's ".Font" by its size or its ".BackColor" by
// its number.
std::string Seen(Show& show, const std::string& name, const Form& form);
// Checks states such as "btnStart=on turn=2", parted by blanks, on that form or the console.
void ExpectSeen(Show& show, const std::string& states, const std::string& when, const Form& form);
void ExpectSeen(Show& show, const std::string& states, const std::string& when);

}  // namespace pawnfield
