// The editor's files: new, open, save, print, import and the close that asks first.
#pragma once

#include <string>

namespace pawnfield {

struct Show;

namespace editor {

void mnuFileNew_Click(Show& show);
void mnuFileOpen_Click(Show& show);
void mnuFileSave_Click(Show& show);
void mnuSaveAs_Click(Show& show);
void mnuFilePrint_Click(Show& show);
// Brings the set of that file into the editor, after the question about changes.
void OpenSet(Show& show, const std::string& path);
void btnImport_Click(Show& show);
// True when the editor may close: nothing is unsaved, or the operator has decided. The set is then gone from it.
bool Editor_QueryUnload(Show& show);

// Fills EditSet from the file. False when it can't be read, which is reported.
bool OpenFile(Show& show, const std::string& path);

}  // namespace editor

}  // namespace pawnfield
