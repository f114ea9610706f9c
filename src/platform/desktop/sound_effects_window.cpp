#include "platform/desktop/sound_effects_window.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "media/sound_effects_form.h"
#include "platform/desktop/grid_view.h"

namespace pawnfield {

namespace {

constexpr QSize kGridSize(860, 520);
constexpr int kButtonHeight = 34;

QPushButton* MakeButton(const char* name, QWidget* parent, QBoxLayout& row) {
  auto* button = new QPushButton(parent);
  button->setObjectName(name);
  button->setMinimumSize(140, kButtonHeight);
  button->setAutoDefault(false);
  row.addWidget(button);
  return button;
}

}  // namespace

SoundEffectsWindow::SoundEffectsWindow(SoundEffectsForm& form, FormWindows& windows)
    : FormWindow(form, windows, kDialog) {
  auto* content = new QWidget(this);
  content->setObjectName("pnlContent");
  setCentralWidget(content);
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(18, 14, 18, 18);
  column->setSpacing(12);
  auto* note = new QLabel("Double-click a cell, or drop a file on it. Delete empties it, Enter plays it.", content);
  note->setObjectName("pnlNote");
  note->setProperty("role", "note");
  column->addWidget(note);
  auto* grid = new GridView(content);
  grid->setObjectName("Grid1");
  grid->setMinimumSize(kGridSize);
  column->addWidget(grid, 1);
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  auto* preview = new QCheckBox("&Preview Sound Effects", content);
  preview->setObjectName("bPreview");
  row->addWidget(preview);
  row->addStretch(1);
  MakeButton("btnImport", content, *row);
  MakeButton("btnExport", content, *row);
  MakeButton("btnSaveExit", content, *row);
  column->addLayout(row);
  menuBar()->setObjectName("pnlMenuBar");
  auto* file = menuBar()->addMenu("&File");
  file->setObjectName("pnlFile");
  file->addAction("")->setObjectName("mnuSave");
  grid->setFocus();
  BindForm();
}

}  // namespace pawnfield
