// The picture of a question in the editor's frame.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

namespace editor {

// Empties the frame and fits the picture into it as soon as it has been read beside the program. A message where it
// can't be shown. What comes after the editor has gone on to something else is dropped.
void DisplayPicture(Show& show, const std::string& path);

}  // namespace editor

}  // namespace pawnfield
