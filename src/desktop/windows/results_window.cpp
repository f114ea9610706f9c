#include "desktop/windows/results_window.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <initializer_list>

#include "desktop/windows/model_widgets.h"
#include "desktop/windows/text_rows.h"

namespace pawnfield {

namespace {

constexpr QSize kButtonSize(92, 32);

ModelLabel* MakeLabel(const QString& name, const char* role = nullptr) {
  auto* label = new ModelLabel;
  label->setObjectName(name);
  if (role != nullptr) label->setProperty("role", role);
  return label;
}

QTreeWidget* MakeList(const QString& name, const QString& accessibleName) {
  auto* list = new QTreeWidget;
  list->setObjectName(name);
  list->setAccessibleName(accessibleName);
  list->setAlternatingRowColors(true);
  ShowTextsWhole(*list);
  return list;
}

void SetWidths(QTreeWidget& list, std::initializer_list<int> widths) {
  int column = 0;
  for (const int width : widths) list.header()->resizeSection(column++, width);
}

}  // namespace

ResultsWindow::ResultsWindow(ResultsForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  QVBoxLayout* column = MakeContent(*this, 18, 12);
  auto* halves = new QHBoxLayout;
  halves->setSpacing(14);
  auto* left = new QVBoxLayout;
  left->addWidget(MakeLabel("lblShows", "title"));
  QTreeWidget* shows = MakeList("lstShows", "Shows on record");
  shows->setHeaderHidden(true);
  shows->setFixedWidth(220);
  left->addWidget(shows, 1);
  halves->addLayout(left);
  auto* right = new QVBoxLayout;
  right->addWidget(MakeLabel("lblShown", "title"));
  QTreeWidget* questions = MakeList("lstQuestions", "Questions");
  questions->setMinimumSize(1000, 366);
  right->addWidget(questions, 1);
  right->addSpacing(6);
  right->addWidget(MakeLabel("lblTotals", "title"));
  QTreeWidget* totals = MakeList("lstTotals", "Players");
  totals->setFixedHeight(124);
  right->addWidget(totals);
  halves->addLayout(right, 1);
  column->addLayout(halves, 1);
  auto* row = new QHBoxLayout;
  row->addWidget(MakeLabel("lblResultsStatus", "note"));
  row->addStretch(1);
  row->addWidget(MakeButton("btnSaveTable", {130, kButtonSize.height()}));
  row->addWidget(MakeButton("btnPrint", kButtonSize));
  row->addWidget(MakeButton("btnClose", kButtonSize));
  column->addLayout(row);
  BindForm();
  SetWidths(*questions, {78, 40, 230, 120, 180, 150, 190});
  SetWidths(*totals, {200, 80, 80, 100, 120, 90});
}

}  // namespace pawnfield
