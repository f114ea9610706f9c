// A box for text that goes into a set file: wraps, keeps to a number of characters and takes none that the file can't
// hold, however it comes in.
#pragma once

#include <QPlainTextEdit>
#include <memory>

#include "platform/controls.h"

namespace pawnfield {

class SetTextEdit : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit SetTextEdit(QWidget* parent = nullptr);
  // In characters; 0 for no limit.
  void SetLimit(qsizetype limit) { limit_ = limit; }
  QString Content() const;
  // What was refused last, in the words that the operator was shown.
  QString Notice() const { return notice_; }
 signals:
  void FocusLeft();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Insert(const QString& text);
  void ShowNotice(const QString& notice);

  qsizetype limit_ = 0;
  QString notice_;
};

// Ties the box to its model.
std::unique_ptr<Observer> MakeSetTextBinding(TextBox& box, SetTextEdit& view);

}  // namespace pawnfield
