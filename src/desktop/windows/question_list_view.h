// The editor's list of all questions: a row is dragged to its new place, and Delete and Ctrl+D work on the one that is
// selected.
#pragma once

#include <QTreeWidget>

namespace pawnfield {

class QuestionListView : public QTreeWidget {
  Q_OBJECT
 public:
  explicit QuestionListView(QWidget* parent = nullptr);
  QSize sizeHint() const override;
 signals:
  // Rows are counted from 0.
  void Moved(int from, int to);
  void DeletePressed();
  void DuplicatePressed();

 protected:
  void dropEvent(QDropEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace pawnfield
