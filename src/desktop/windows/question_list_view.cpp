#include "desktop/windows/question_list_view.h"

#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>

#include "desktop/windows/text_rows.h"

namespace pawnfield {

QuestionListView::QuestionListView(QWidget* parent) : QTreeWidget(parent) {
  setDragDropMode(QAbstractItemView::InternalMove);
  setDropIndicatorShown(true);
  setAlternatingRowColors(true);
  setTextElideMode(Qt::ElideRight);
  ShowTextsWhole(*this);
  header()->setMinimumSectionSize(28);
}

QSize QuestionListView::sizeHint() const { return {430, 400}; }

// The model moves the question and brings the rows in step; the toolkit would move the row alone.
void QuestionListView::dropEvent(QDropEvent* event) {
  const int from = indexOfTopLevelItem(currentItem());
  const QTreeWidgetItem* over = itemAt(event->position().toPoint());
  int to = over == nullptr ? topLevelItemCount() - 1 : indexOfTopLevelItem(const_cast<QTreeWidgetItem*>(over));
  if (over != nullptr && dropIndicatorPosition() == BelowItem) ++to;
  // Between two rows the question stands before the lower one, and its own row is gone from above.
  if (over != nullptr && dropIndicatorPosition() != OnItem && from < to) --to;
  event->setDropAction(Qt::IgnoreAction);
  event->accept();
  if (from >= 0 && event->source() == this) emit Moved(from, to);
}

void QuestionListView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete) {
    emit DeletePressed();
  } else if (event->key() == Qt::Key_D && event->modifiers() == Qt::ControlModifier) {
    emit DuplicatePressed();
  } else {
    QTreeWidget::keyPressEvent(event);
  }
}

}  // namespace pawnfield
