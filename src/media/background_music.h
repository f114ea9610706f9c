// Music under the game on the background channel: the tracks of the music folder in turn, or one file over and over.
// The timer tmrBGMusic sees once a second whether a track has ended, or a question's clip for which the music waits.
#pragma once

namespace pawnfield {

struct Show;

inline constexpr int kMusicFolderMode = 1;
inline constexpr int kMusicFileMode = 2;

// Lists the folder's .wav and .mp3 files; true when there is at least one. Of more than 100 the first 100 are kept and
// the rest is reported once.
bool LoadMusicList(Show& show);
// By the mode that the settings name; a mode with nothing to play becomes 0.
void DecideOnMusic(Show& show);
// When a set has been chosen: the music begins, or its track begins anew.
void StartMusic(Show& show);
// When a game starts: music that a game's end stopped, or a clip paused, goes on; what plays is left alone.
void BringMusicBack(Show& show);
// When a game ends.
void EndMusic(Show& show);
void tmrBGMusic_Timer(Show& show);

}  // namespace pawnfield
