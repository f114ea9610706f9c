// What a device shows for a letter that Windows-1252 doesn't have.
#pragma once

namespace pawnfield {

// The letter that people would write instead where there is only the Latin alphabet; a blank for a line break, "?" for
// what has none.
char NearestLetter(char32_t code);

}  // namespace pawnfield
