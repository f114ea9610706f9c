// The program's entry, which composes everything below it.
#pragma once

namespace pawnfield {

struct Show;

// The program's entry. Gives every control its handler, makes sure that the program runs alone, prepares the data
// folders and shows the loading form; from there the timers decide.
void Main(Show& show);

}  // namespace pawnfield
