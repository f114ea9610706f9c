// What both screens must agree on, read from the forms; and a form's whole appearance as text.
#pragma once

#include <string>
#include <vector>

#include "show/show.h"

namespace pawnfield {

// A control's text, or the path of its picture or film, whether it can be seen or not.
std::string Content(const Control& control);
// Names every control of the audience's that differs from the console's, with ".Visible" behind when that does, or that
// has no counterpart there and no reason for it; empty when both screens agree. Squares are left out while a piece
// turns, which each screen does by itself.
std::vector<std::string> UnlikePairs(Show& show);
// One line for each control of the form that can be seen: its place and what it shows.
std::vector<std::string> Appearance(const Form& form);

}  // namespace pawnfield
