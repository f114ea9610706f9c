#include "desktop/windows/import_window.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/windows/model_widgets.h"
#include "desktop/windows/text_rows.h"
#include "forms/import_form.h"

namespace pawnfield {

namespace {

constexpr QSize kButtonSize(120, 40);
constexpr int kProblemColumn = 4;

QLabel* MakeLabel(const char* name, const char* role = "") {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setProperty("role", role);
  return label;
}

ModelComboBox* MakeChoice(const char* name, const char* spokenName) {
  auto* box = new ModelComboBox;
  box->setObjectName(name);
  box->setMinimumSize(190, 32);
  box->setAccessibleName(spokenName);
  return box;
}

template <typename Widget>
Widget* Named(const char* name) {
  auto* widget = new Widget;
  widget->setObjectName(name);
  return widget;
}

}  // namespace

ImportWindow::ImportWindow(ImportForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  QVBoxLayout& column = *MakeContent(*this, 20);
  column.addWidget(MakeLabel("lblFile", "number"));
  auto* choices = new QHBoxLayout;
  choices->setSpacing(10);
  choices->addWidget(MakeLabel("lblQuestionColumn"));
  choices->addWidget(MakeChoice("cboQuestion", "Column of the questions"));
  choices->addSpacing(12);
  choices->addWidget(MakeLabel("lblAnswerColumn"));
  choices->addWidget(MakeChoice("cboAnswer", "Column of the answers"));
  choices->addSpacing(12);
  choices->addWidget(Named<QCheckBox>("chkHeading"));
  choices->addStretch(1);
  column.addLayout(choices);
  auto* list = Named<QTreeWidget>("lstRows");
  list->setMinimumSize(900, 380);
  list->setAlternatingRowColors(true);
  ShowTextsWhole(*list);
  list->setAccessibleName("Rows of the sheet");
  column.addWidget(list, 1);
  column.addWidget(MakeLabel("lblSummary", "warning"));
  auto* row = new QHBoxLayout;
  row->setSpacing(16);
  row->addWidget(Named<QRadioButton>("optAdd"));
  row->addWidget(Named<QRadioButton>("optReplace"));
  row->addStretch(1);
  row->addWidget(MakeButton("btnCancel", kButtonSize));
  QPushButton* take = MakeButton("btnTake", {190, kButtonSize.height()});
  take->setDefault(true);
  row->addWidget(take);
  column.addLayout(row);
  BindForm();
  const int widths[] = {56, 76, 380, 200, 250};
  for (int i = 0; i < list->columnCount(); ++i) list->header()->resizeSection(i, widths[i]);
  list->header()->setStretchLastSection(false);
  list->header()->setSectionResizeMode(2, QHeaderView::Stretch);
  connect(list, &QTreeWidget::itemChanged, this, &ImportWindow::Mark);
}

void ImportWindow::Mark(QTreeWidgetItem* item, int column) {
  if (column != kProblemColumn) return;
  const QSignalBlocker quiet(item->treeWidget());
  const bool isOut = !item->text(kProblemColumn).isEmpty();
  for (int i = 0; i < item->columnCount(); ++i) {
    item->setForeground(i, isOut ? QBrush(QColor(0xF2, 0xB8, 0x4B)) : QBrush());
  }
}

}  // namespace pawnfield
