// "Play each": the five sound channels one after another, each at its volume with as many pips as it has its place, so
// that one hears which is which. A track of music that runs is taken up again where it was.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

// Plays the first channel's; each further Step the next one's, until none is left.
void BeginSounds(Show& show);
void StepSounds(Show& show);
void EndSounds(Show& show);
// "keys, two pips" for 2; channels are counted from 1.
std::string ChannelText(int channel);
// Those whose volume is 0, and music that is muted; empty when all can be heard.
std::string SilentChannels(const Show& show);

}  // namespace pawnfield
