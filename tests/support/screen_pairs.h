// What both screens must agree on, read from the forms; and a form's whole appearance as text.
#pragma once

#include <string>
#include <vector>

#include "show/show.h"

namespace pawnfield {

// A control's text or its picture's path, whether it can be seen or not.
std::string Content(const Control& control);
// Names the audience's controls that differ from the console's, with ".Visible" behind when that does; empty when both
// screens agree. Squares are left out while a piece turns, which each screen does by itself.
std::vector<std::string> UnlikePairs(Show& show);
// One line for each control of the form that can be seen: its place and what it shows.
std::vector<std::string> Appearance(const Form& form);

}  // namespace pawnfield
