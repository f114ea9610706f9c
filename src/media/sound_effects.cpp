#include "media/sound_effects.h"

#include <utility>

#include "forms/main_form.h"
#include "forms/sound_effects_form.h"
#include "media/media_kinds.h"
#include "media/sound_channels.h"
#include "media/sound_table.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kDeleteKey = 46;
constexpr int kEnter = 13;
constexpr int kErrorPastEnd = 62;
// The game's own sounds stand first.
constexpr int kFirstKeyGridRow = static_cast<int>(kGameSounds.size()) + 1;
constexpr const char* kDataFilter = "Data(*.dat)|*.dat";

Grid& TheGrid(Show& show) { return show.frmSoundEffects.Grid1; }

// The table's entry that a cell of the grid's body shows.
std::string& EntryOf(Show& show, int gridRow, int column) {
  return show.soundBanks.at(static_cast<std::size_t>(column)).at(static_cast<std::size_t>(SoundRowOfGrid(gridRow)));
}

template <typename Visit>
void ForEachCell(Visit visit) {
  for (int column = 1; column < kSoundGridColumns; ++column) {
    for (int row = 1; row < kSoundGridRows; ++row) visit(row, column);
  }
}

void LabelGrid(Grid& grid) {
  for (int column = 1; column < kSoundGridColumns; ++column) {
    grid.SetCell(0, column, "Media Set " + std::to_string(column));
  }
  for (int row = 1; row < kSoundGridRows; ++row) {
    const bool key = row >= kFirstKeyGridRow;
    grid.SetCell(row, 0,
                 key ? static_cast<char>('A' + row - kFirstKeyGridRow) + std::string(" Key")
                     : kGameSounds[static_cast<std::size_t>(row - 1)].Label);
  }
}

void FillGrid(Show& show) {
  ForEachCell(
      [&](int row, int column) { TheGrid(show).SetCell(row, column, ExtractFileName(EntryOf(show, row, column))); });
  TheGrid(show).SelectCell(1, 1);
}

void SoundEffects_Load(Show& show) {
  show.frmSoundEffects.Loaded = true;
  show.SoundBanksBefore = show.soundBanks;
  LabelGrid(TheGrid(show));
  FillGrid(show);
  ForEachCell([&](int row, int column) {
    if (EntryOf(show, row, column).empty()) TheGrid(show).SetCell(row, column, TheGrid(show).Placeholder);
  });
}

void SetEntry(Show& show, const std::string& path) {
  if (path.find_first_of("\r\n") != std::string::npos) {
    show.platform.dialogs.MessageBox("A file whose name holds a line break can't be kept. Please rename it.", kAppTitle,
                                     BoxKind::Plain);
    return;
  }
  Grid& grid = TheGrid(show);
  EntryOf(show, grid.Row, grid.Col) = path;
  grid.SetCell(grid.Row, grid.Col, ExtractFileName(path));
}

void ReportTableError(Show& show, const RuntimeError& error, const std::string& procedure, const std::string& path) {
  show.platform.dialogs.MessageBox(NotedErrorText(error, show.frmSoundEffects.Name(), procedure, path), kAppTitle,
                                   BoxKind::Critical);
}

void ImportTable(Show& show, const std::string& path) {
  std::string bytes;
  try {
    bytes = show.platform.files.Read(path);
  } catch (const RuntimeError&) {
    show.platform.dialogs.MessageBox("File not found: " + path, kAppTitle, BoxKind::Critical);
    return;
  }
  if (!ReadSoundTable(bytes, show.soundBanks)) {
    ReportTableError(show, RuntimeError(kErrorPastEnd, "Input past end of file"), "btnImportSoundFiles", path);
  }
}

void Grid1_KeyDown(Show& show, int keyCode) {
  if (keyCode == kDeleteKey) TheGrid(show).SetCell(TheGrid(show).Row, TheGrid(show).Col, "");
}

}  // namespace

int SoundRowOfGrid(int gridRow) {
  return gridRow < kFirstKeyGridRow ? gridRow : gridRow - kFirstKeyGridRow + kSoundFirstKey;
}

void btnSounds_Click(Show& show) {
  SoundEffects_Load(show);
  show.platform.dialogs.ShowModal(show.frmSoundEffects);
}

void Grid1_DblClick(Show& show) {
  SoundEffectsForm& form = show.frmSoundEffects;
  FileDialogRequest request;
  request.Title = "Open";
  request.Filter = AllMediaFilter();
  request.InitialFolder = form.LastFolder.empty() ? show.AppPath("\\Sound Effects") : form.LastFolder;
  const std::string path = show.platform.dialogs.ChooseFile(request);
  if (Trim(path).empty()) return;
  form.LastFolder = ExtractFolder(path);
  SetEntry(show, path);
}

void Grid1_DropFile(Show& show, const std::string& path) {
  if (!show.platform.files.CanOpen(path)) {
    show.platform.dialogs.MessageBox("File not found: " + path, kAppTitle, BoxKind::Critical);
    return;
  }
  if (MediaKind(path) == Medium::None) {
    show.platform.dialogs.MessageBox(ExtractFileName(path) + " can't be played and was not taken.", kAppTitle,
                                     BoxKind::Exclamation);
    return;
  }
  SetEntry(show, path);
}

void Grid1_Click(Show& show) {
  if (show.frmSoundEffects.bPreview.Value == 0) return;
  PlayEvent(show, EntryOf(show, TheGrid(show).Row, TheGrid(show).Col));
}

void btnExport_Click(Show& show) {
  FileDialogRequest request;
  request.Title = "Save";
  request.Filter = kDataFilter;
  request.Save = true;
  request.DefaultExtension = "dat";
  const std::string path = show.platform.dialogs.ChooseFile(request);
  if (path.empty()) return;
  try {
    show.platform.files.Write(path, FormatSoundTable(show.soundBanks));
  } catch (const RuntimeError& error) {
    ReportTableError(show, error, "btnExportSoundFiles", path);
  }
}

void btnImport_Click(Show& show) {
  FileDialogRequest request;
  request.Title = "Open";
  request.Filter = kDataFilter;
  request.InitialFolder = show.platform.folders.App;
  const std::string path = show.platform.dialogs.ChooseFile(request);
  if (!path.empty()) ImportTable(show, path);
  FillGrid(show);
}

void SoundEffects_Unload(Show& show) {
  // The program's end unloads every form, and the grid of one that was never opened says nothing of the table.
  if (!std::exchange(show.frmSoundEffects.Loaded, false)) return;
  ForEachCell([&](int row, int column) {
    if (Trim(TheGrid(show).Cell(row, column)).empty()) EntryOf(show, row, column).clear();
  });
  // A disk that is full must not leave the preview playing.
  RunGuarded(
      show.platform.dialogs, [&] { SaveSoundTable(show); }, show.frmSoundEffects.Name(), "Form_Unload");
  StopEvent(show);
}

// Nothing of what was changed since the table was opened stays.
void btnCancel_Click(Show& show) {
  show.soundBanks = show.SoundBanksBefore;
  show.frmSoundEffects.Loaded = false;
  StopEvent(show);
  show.frmSoundEffects.Unload();
}

void AttachSoundEffectsHandlers(Show& show) {
  SoundEffectsForm& form = show.frmSoundEffects;
  show.frmMain.btnSounds.OnClick = [&show] { btnSounds_Click(show); };
  form.Grid1.OnClick = [&show] { Grid1_Click(show); };
  form.Grid1.OnDblClick = [&show] { Grid1_DblClick(show); };
  form.Grid1.OnDropFile = [&show](const std::string& path) { Grid1_DropFile(show, path); };
  form.Grid1.OnKeyDown = [&show](int keyCode) { Grid1_KeyDown(show, keyCode); };
  form.Grid1.OnKeyPress = [&show](int keyAscii) {
    if (keyAscii == kEnter) Grid1_Click(show);
  };
  form.btnExport.OnClick = [&show] { btnExport_Click(show); };
  form.btnImport.OnClick = [&show] { btnImport_Click(show); };
  form.FileOf = [&show](int row, int column) { return EntryOf(show, row, column); };
  form.OnPlayCell = [&show](int row, int column) { PlayEvent(show, EntryOf(show, row, column)); };
  form.btnCancel.OnClick = [&show] { btnCancel_Click(show); };
  form.btnSaveExit.OnClick = [&show] { show.frmSoundEffects.Unload(); };
  form.mnuSave.OnClick = form.btnSaveExit.OnClick;
  form.OnUnload = [&show] { SoundEffects_Unload(show); };
}

}  // namespace pawnfield
