// A set with its media as one file: packed by the editor, and opened into the folder of sets, where nothing that is
// there already is touched.
#pragma once

#include <optional>
#include <string>

namespace pawnfield {

struct Show;

namespace editor {

// Packs the set that is open in the editor.
void mnuPackSet_Click(Show& show);

}  // namespace editor

// Asks whether the bundle's set is to come to the sets of this computer, and unpacks it. The path of its file; nothing
// when the operator doesn't want it, or it was refused, which he is told.
std::optional<std::string> OfferBundle(Show& show, const std::string& path);

}  // namespace pawnfield
