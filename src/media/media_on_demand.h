// Media on demand: a letter key plays or shows the sound, video or picture that the sound table binds to it. Pictures
// and video stand over the question area of the console and fill the audience's screen.
#pragma once

#include <string>

#include "platform/ports.h"

namespace pawnfield {

struct Show;

// The file of a row of the sound table, in the bank in use; 9 is the key A and 34 the key Z. An empty entry, a file
// that isn't there and an unknown extension do nothing.
void PlayKeyMedia(Show& show, int row);

// Shows the picture on both screens for MODPictureTimer seconds, as soon as it has been read; a film ends with that.
// One that can't be shown is reported in the status bar.
void ShowMODPic(Show& show, const std::string& path);
// Fits a picture of that size into picMODPicture.
void MODImageResize(Show& show, PixelSize size);

// Fits the picture that is up into an audience screen that comes up in the middle; without the file the board stays.
void FitMedia(Show& show);

void tmrMODPicture_Timer(Show& show);
void tmrVideoDelay_Timer(Show& show);
// The operator's player has stopped, paused or gone on: the audience's copy follows, and a stop takes the film away.
void MediaPlayer1_PlayStateChange(Show& show, PlayState state);

// Gives the timers and the player their handlers.
void AttachMediaOnDemandHandlers(Show& show);

}  // namespace pawnfield
