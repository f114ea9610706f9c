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
// A console control's look by its name, the audience's with an apostrophe behind ("picBonus'"); or of the show: "turn"
// and "question" by their numbers, "scores" as "50/0/-100", "board" as rows of owners ("100/020/000"), "winner" the
// winner's text, "offers" and "options" what can be pressed, without "btn", "chk" and "cbo", parted by commas.
std::string Seen(Show& show, const std::string& name);
// Checks states such as "btnStart=on turn=2", parted by blanks.
void ExpectSeen(Show& show, const std::string& states, const std::string& when);

}  // namespace pawnfield
