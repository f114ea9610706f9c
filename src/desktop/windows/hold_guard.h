// Ties what wipes a game on the console to the show: a hand's hold acts, a hand's click says that it wants a hold, and
// whatever else presses it is asked first.
#pragma once

class QWidget;

namespace pawnfield {

struct Show;

// For the console's window once its controls are bound; the show outlives it.
void GuardConsole(Show& show, QWidget& console);

}  // namespace pawnfield
