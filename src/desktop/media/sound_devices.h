// What the machine has to play sound on.
#pragma once

#include <QByteArray>

namespace pawnfield {

// The player's list of outputs to try, best first. Without a card the card library is left out: it would write to the
// terminal at every play.
QByteArray SoundOutputs();
// True when a sound server or a card is there. Takes a few milliseconds at most.
bool HasSoundDevice();

}  // namespace pawnfield
