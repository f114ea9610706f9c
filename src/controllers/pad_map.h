// Which slot each pad of the ZR-610 is: the table, its file MFMap.dat and the dialog frmMapMF.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace pawnfield {

struct Show;

inline constexpr int kPadSlots = 20;
// Pad identities by slot, slot 1 first; 0 is an empty slot.
using PadMap = std::array<std::int32_t, kPadSlots>;

// The file's 80 bytes and back. Slots that the bytes don't reach are empty.
PadMap ParsePadMap(const std::string& bytes);
std::string FormatPadMap(const PadMap& map);

// A file that is not there leaves the table as it is.
void LoadMFMapFile(Show& show, const std::string& path);
void SaveMFMapFile(Show& show, const std::string& path);
// Makes the menu of the system visible and reads the table.
void LoadMF(Show& show);
// The first slot 1..20 of the pad, 0 when it has none.
int LookupPad(const PadMap& map, std::int32_t id);
// True when a form of that name is shown.
bool IsFormVisible(Show& show, const std::string& name);

// A pad that rang in while the dialog is shown: takes the selected row, and the next row is selected.
void MapID(Show& show, std::int32_t id);
// The first row 1..20 of the dialog that shows the pad, -1 when none does.
int FindPadRow(Show& show, std::int32_t id);
void mnuMapMF_Click(Show& show);
void cmdOK_Click(Show& show);
void cmdCancel_Click(Show& show);

}  // namespace pawnfield
