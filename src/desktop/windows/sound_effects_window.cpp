#include "desktop/windows/sound_effects_window.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/windows/grid_view.h"
#include "desktop/windows/sound_cells.h"
#include "forms/sound_effects_form.h"

namespace pawnfield {

namespace {

constexpr QSize kGridSize(860, 512);
constexpr QSize kButtonSize(140, 34);

}  // namespace

SoundEffectsWindow::SoundEffectsWindow(SoundEffectsForm& form, FormWindows& windows)
    : FormWindow(form, windows, kDialog) {
  QVBoxLayout* column = MakeContent(*this, 16);
  auto* note = new QLabel("Double-click a cell, or drop a file on it. Delete empties it, the triangle plays it.");
  note->setObjectName("pnlNote");
  note->setProperty("role", "note");
  column->addWidget(note);
  auto* grid = new GridView(this);
  grid->setAccessibleName("Sounds");
  grid->setObjectName("Grid1");
  grid->setMinimumSize(kGridSize);
  grid->setItemDelegate(new SoundCells(form, *grid));
  column->addWidget(grid, 1);
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  auto* preview = new QCheckBox("&Preview Sound Effects");
  preview->setObjectName("bPreview");
  row->addWidget(preview);
  row->addStretch(1);
  for (const char* name : {"btnImport", "btnExport", "btnCancel", "btnSaveExit"}) {
    QPushButton* button = MakeButton(name, kButtonSize);
    button->setAutoDefault(false);
    row->addWidget(button);
  }
  column->addLayout(row);
  menuBar()->setObjectName("pnlMenuBar");
  auto* file = menuBar()->addMenu("&File");
  file->setObjectName("pnlFile");
  file->addAction("")->setObjectName("mnuSave");
  grid->setFocus();
  BindForm();
}

}  // namespace pawnfield
