// Gives the controls of the editor, its choice and the repair of missing media their handlers.
#pragma once

namespace pawnfield {

struct Show;

void AttachEditorHandlers(Show& show);

}  // namespace pawnfield
