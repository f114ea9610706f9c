// Which slot each pad of the ZR-610 is: the file MFMap.dat and the dialog frmMapMF.
#pragma once

#include <cstdint>
#include <string>

namespace pawnfield {

struct Show;

// A file that is not there leaves the table as it is.
void LoadMFMapFile(Show& show, const std::string& path);
void SaveMFMapFile(Show& show, const std::string& path);
// Makes the menu of the system visible and reads the table.
void LoadMF(Show& show);

// A pad that rang in while the dialog is shown: takes the selected row, and the next row is selected.
void MapID(Show& show, std::int32_t id);
// The first row 1..20 of the dialog that shows the pad, -1 when none does.
int FindPadRow(Show& show, std::int32_t id);
void mnuMapMF_Click(Show& show);
void cmdOK_Click(Show& show);
void cmdCancel_Click(Show& show);

}  // namespace pawnfield
