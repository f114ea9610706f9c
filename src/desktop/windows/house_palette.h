// The house's colours as a palette. What a style sheet doesn't paint, such as the views of the file, font and colour
// dialogs, takes its ground from it, with a desktop's own theme and without one.
#pragma once

#include <QPalette>

namespace pawnfield {

QPalette HousePalette();

}  // namespace pawnfield
