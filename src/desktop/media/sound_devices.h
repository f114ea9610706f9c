// What the machine has to play sound on.
#pragma once

#include <QByteArray>
#include <QStringList>

namespace pawnfield {

// The player's list of outputs to try, best first. Without a card the card library is left out: it would write to the
// terminal at every play.
QByteArray SoundOutputs();
// True when a sound server or a card is there. Takes a few milliseconds at most.
bool HasSoundDevice();
// What it comes out of, in the words of the sound server, or else of the cards. Takes up to a second.
QStringList SoundDeviceNames();

}  // namespace pawnfield
