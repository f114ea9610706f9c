// The paths of a set's pictures and sounds: whole while the program runs, and relative in the file where they lie below
// the folder of sets, so that a set goes to another computer with its media.
#pragma once

#include <string>

#include "data/trivia_set.h"

namespace pawnfield {

struct Show;

// By the type alone, whatever the text ends in.
bool IsMedium(const TriviaQuestion& question);
// A path that starts with "." stands for one below the folder of sets; any other is returned as it is.
std::string WholePath(const Show& show, const std::string& path);
// Gives the media of the set their whole paths.
void TakeWholePaths(const Show& show, TriviaSet& set);
// The set as its file holds it: with ".\" for the folder of sets.
TriviaSet WithStoredPaths(const Show& show, const TriviaSet& set);
// True when both are spellings of one path: blind to case and to the kind of separator.
bool IsSamePath(const std::string& a, const std::string& b);

}  // namespace pawnfield
