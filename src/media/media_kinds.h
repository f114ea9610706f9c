// The kinds of media files that the show plays, by the endings of their names, and the filters by which dialogs offer
// them. A new kind is one row of the table behind this.
#pragma once

#include <string>

namespace pawnfield {

enum class Medium { None, Picture, Sound, Video };

// What a file of that name holds, in whatever case its ending is written.
Medium MediaKind(const std::string& path);
// True for a file that plays as a track of the background music.
bool IsMusicTrack(const std::string& path);

// The filter of a dialog that offers files of one kind under a title: "Title|*.a; *.b".
std::string MediaFilter(const std::string& title, Medium kind, const std::string& separator);
// All kinds together, then each by itself, then all files.
std::string AllMediaFilter();

}  // namespace pawnfield
