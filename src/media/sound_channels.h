// The five sound channels: effects, letter keys, sound clips, music and verdict stings. Each play cuts only its own.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// Each sets the channel's position to 0 and then its path. An empty path or no such file is silence.
void PlayKeyPress(Show& show, const std::string& path);
void PlayEvent(Show& show, const std::string& path);
void PlaySoundClip(Show& show, const std::string& path);
void PlayCorrectIncorrect(Show& show, const std::string& path);
void StopKeyPress(Show& show);
void StopEvent(Show& show);
void StopSoundClip(Show& show);
void RestartBackground(Show& show);
void StopBackground(Show& show);
void PauseBackground(Show& show);
// The sound of a question, or again on demand: the music pauses until the clip is over, by itself or by the end of its
// question.
void PlayQuestionClip(Show& show, const std::string& path);
void EndQuestionClip(Show& show);
// The music goes on where a clip paused it.
void ResumeBackground(Show& show);
// A piece is placed. While the verdict's effect may still sound on the event channel, on the other verdict channel.
void PlayPawn(Show& show);

// Reads the five volume settings (default 75, outside 0..100 becomes 75) into the state and the channels.
void LoadVolumes(Show& show);

// Gives btnPlay, btnStop, btnStopSounds and optSoundBank their handlers.
void BindSoundChannels(Show& show);

}  // namespace pawnfield
