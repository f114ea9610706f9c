// Why a control of the console can't be pressed now, in an operator's words.
#pragma once

#include <string>

#include "platform/controls.h"

namespace pawnfield {

struct Show;

// Empty for a control that can be pressed, and for one of which there is nothing to tell.
std::string WhyNot(const Show& show, const Control& control);

}  // namespace pawnfield
