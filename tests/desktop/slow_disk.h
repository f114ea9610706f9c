// A disk that takes its time: what the C library is asked of a folder's files waits, and what the main thread asks is
// counted. Part of the test's own program, so that the toolkit's calls end here too.
#pragma once

#include <string>
#include <vector>

namespace pawnfield {

// From now on each access to what lies below one of the folders takes that long; 0 only counts.
void SlowDown(const std::vector<std::string>& folders, int milliseconds);
// The main thread's accesses since SlowDown, by path.
std::vector<std::string> MainThreadAccesses();

}  // namespace pawnfield
