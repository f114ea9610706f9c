// frmSoundEffects: the sound table's grid, with a file for each effect and letter key in three media sets.
#pragma once

#include <functional>
#include <string>

#include "platform/controls.h"

namespace pawnfield {

inline constexpr int kSoundGridRows = 34;
inline constexpr int kSoundGridColumns = 4;

struct SoundEffectsForm : Form {
  SoundEffectsForm();
  Menu mnuSave{*this, "mnuSave"};
  Grid Grid1{*this, "Grid1", kSoundGridRows, kSoundGridColumns};
  CheckBox bPreview{*this, "bPreview"};
  Button btnImport{*this, "btnImport"};
  Button btnExport{*this, "btnExport"};
  Button btnCancel{*this, "btnCancel"};
  Button btnSaveExit{*this, "btnSaveExit"};

  bool Loaded = false;
  // Where the last file was found, while the program runs.
  std::string LastFolder;
  // The file that a cell of the body stands for, and what plays it, whether or not the preview is on.
  std::function<std::string(int row, int column)> FileOf;
  std::function<void(int row, int column)> OnPlayCell;
};

}  // namespace pawnfield
