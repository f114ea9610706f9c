// The picture of a question in the editor's frame.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

namespace editor {

// Loads the picture and fits it into its frame. False, after a message, when it can't; the frame is then empty.
bool DisplayPicture(Show& show, const std::string& path);

}  // namespace editor

}  // namespace pawnfield
