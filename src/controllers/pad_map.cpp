#include "controllers/pad_map.h"

#include <algorithm>

#include "forms/main_form.h"
#include "forms/press_forms.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::size_t kPadColumn = 1;

std::string MapPath(const Show& show) { return show.platform.folders.DataRoot + "\\MFMap.dat"; }

std::size_t Row(int row) { return static_cast<std::size_t>(row - 1); }

// The dialog as it comes up: the table, with the first row selected.
void FillRows(Show& show) {
  std::vector<ListView::Row> rows;
  for (int slot = 1; slot <= kPadSlots; ++slot) {
    const std::int32_t id = show.presses.MFMap[Row(slot)];
    rows.push_back({std::to_string(slot), id == 0 ? std::string() : std::to_string(id)});
  }
  show.frmMapMF.lstControllers.ListItems = rows;
  show.frmMapMF.lstControllers.SelectedItem = 0;
}

}  // namespace

void LoadMFMapFile(Show& show, const std::string& path) {
  if (show.platform.files.CanOpen(path)) show.presses.MFMap = ParsePadMap(show.platform.files.Read(path));
}

void SaveMFMapFile(Show& show, const std::string& path) {
  show.platform.files.Write(path, FormatPadMap(show.presses.MFMap));
}

void LoadMF(Show& show) {
  show.frmMain.mnuZR610.Visible = true;
  show.frmMain.mTestK7Controllers.Visible = false;
  LoadMFMapFile(show, MapPath(show));
}

int FindPadRow(Show& show, std::int32_t id) {
  const auto& rows = show.frmMapMF.lstControllers.ListItems.Get();
  const std::string text = std::to_string(id);
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&](const ListView::Row& row) { return row[kPadColumn] == text; });
  return found == rows.end() ? -1 : static_cast<int>(found - rows.begin()) + 1;
}

void MapID(Show& show, std::int32_t id) {
  ListView& list = show.frmMapMF.lstControllers;
  const int existing = FindPadRow(show, id);
  const int selected = list.SelectedItem + 1;
  if (selected < 1) return;
  auto rows = list.ListItems.Get();
  rows[Row(selected)][kPadColumn] = std::to_string(id);
  if (existing > 0 && existing != selected) rows[Row(existing)][kPadColumn].clear();
  list.ListItems = rows;
  if (selected < kPadSlots) list.SelectedItem = selected;
}

void mnuMapMF_Click(Show& show) {
  FillRows(show);
  show.platform.dialogs.ShowModal(show.frmMapMF);
}

// A row that was emptied leaves its slot as it was.
void cmdOK_Click(Show& show) {
  const auto& rows = show.frmMapMF.lstControllers.ListItems.Get();
  for (int slot = 1; slot <= kPadSlots; ++slot) {
    const std::string& text = rows[Row(slot)][kPadColumn];
    if (!text.empty()) show.presses.MFMap[Row(slot)] = static_cast<std::int32_t>(LeadingNumber(text));
  }
  SaveMFMapFile(show, MapPath(show));
  show.frmMapMF.Unload();
}

void cmdCancel_Click(Show& show) { show.frmMapMF.Unload(); }

}  // namespace pawnfield
