#include "desktop/windows/optional_headers_window.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/windows/model_widgets.h"
#include "forms/optional_headers_form.h"

namespace pawnfield {

namespace {

constexpr QSize kBoxSize(560, 56);
constexpr QSize kButtonSize(100, 34);

void AddLine(QGridLayout& lines, int index) {
  auto* box = new QLineEdit;
  box->setObjectName(QString("txtOptionalHeader_%1").arg(index));
  box->setMinimumSize(kBoxSize);
  box->setAlignment(Qt::AlignCenter);
  box->setAccessibleName(QString("Header %1").arg(index + 1));
  box->setProperty("showsLook", true);
  lines.addWidget(box, index, 0);
  int column = 1;
  for (const char* name : {"btnOpt1Font_%1", "btnOpt1Fg_%1", "btnOpt1Bg_%1"}) {
    lines.addWidget(MakeButton(QString(name).arg(index), kButtonSize), index, column++);
  }
}

}  // namespace

OptionalHeadersWindow::OptionalHeadersWindow(OptionalHeadersForm& form, FormWindows& windows)
    : FormWindow(form, windows, kDialog) {
  QVBoxLayout* column = MakeContent(*this, 16, 14);
  auto* lines = new QGridLayout;
  lines->setSpacing(10);
  lines->setColumnStretch(0, 1);
  for (int i = 0; i < 4; ++i) AddLine(*lines, i);
  column->addLayout(lines);
  auto* base = new QHBoxLayout;
  base->setSpacing(8);
  auto* check = new QCheckBox;
  check->setObjectName("chkBaseImage");
  check->setAccessibleName("Show base header");
  auto* label = new ModelLabel;
  label->setObjectName("lblBaseImage");
  label->setProperty("clicks", "chkBaseImage");
  base->addWidget(check);
  base->addWidget(label, 1);
  column->addLayout(base);
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  for (const char* name : {"btnOpen", "btnSave", "btnClearAll"}) row->addWidget(MakeButton(name, kButtonSize));
  row->addStretch(1);
  auto* ok = MakeButton("btnOk", kButtonSize);
  ok->setDefault(true);
  row->addWidget(ok);
  row->addWidget(MakeButton("btnCancel", kButtonSize));
  column->addLayout(row);
  menuBar()->setObjectName("pnlMenuBar");
  auto* file = menuBar()->addMenu("");
  file->setObjectName("mnuFile");
  for (const char* name : {"mnuFileOpen", "mnuFileSave", "mnuFileSaveAs"}) file->addAction("")->setObjectName(name);
  file->addSeparator();
  file->addAction("")->setObjectName("mnuFileExit");
  BindForm();
}

void OptionalHeadersWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    static_cast<OptionalHeadersForm&>(form_).btnCancel.Click();
  } else {
    FormWindow::keyPressEvent(event);
  }
}

}  // namespace pawnfield
