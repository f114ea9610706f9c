// The console's hand on the sound: what plays, the music's volume, mute, a stop of everything, and on demand all five
// volumes and the list of the letters that bring something up.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// "1:05"; an hour is 60 minutes.
std::string TimeText(double seconds);
// What of the operator's sounds is heard now and how long it has to go: "NOW: march.mp3 1:05"; empty in silence.
std::string NowPlaying(const Show& show);

// Brings the panel in step with the state and the players; called after each event.
void ShowSoundPanel(Show& show);
// Gives the panel's controls their routines.
void AttachSoundPanel(Show& show);

}  // namespace pawnfield
