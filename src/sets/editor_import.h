// The editor's way from a sheet and to one: File, "Import questions..." with its preview, and "Export questions...".
#pragma once

#include <string>

namespace pawnfield {

struct Show;

namespace editor {

void mnuImport_Click(Show& show);
void mnuExport_Click(Show& show);
// Shows what of the sheet's file would come into the set, and takes it when the operator says so.
void ImportSheet(Show& show, const std::string& path);

void AttachImportHandlers(Show& show);

}  // namespace editor

}  // namespace pawnfield
