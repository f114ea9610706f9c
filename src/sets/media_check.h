// A look at every picture and sound of a set that has just been loaded, beside the program: what can't be shown is
// named before the show and not in it.
#pragma once

#include <functional>
#include <string>

namespace pawnfield {

struct Show;

// Starts the look at GameSet's files; one that runs for an earlier set ends unheard. A bar shows how far it is when it
// takes over half a second. At its end it reports which questions' files can't be shown and why: in a box
// until the game is started, and in the status bar.
void CheckSetMedia(Show& show);

// Looks at one picture or sound beside the program, and says between events, or at once, what is wrong with it, as in
// "no such file"; empty when it can be shown. The kind is that of the path, which is a whole one.
void CheckMedium(Show& show, const std::string& path, std::function<void(const std::string& error)> then);

// Gives the bar's timer its handler.
void AttachMediaCheckHandlers(Show& show);

}  // namespace pawnfield
