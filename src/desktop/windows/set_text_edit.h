// A box for text that goes into a set file: wraps, keeps to the bytes that the file has room for, however they come in,
// and marks words that are misspelt.
#pragma once

#include <QPlainTextEdit>
#include <memory>

#include "platform/controls.h"

namespace pawnfield {

class Speller;
class SpellingMarks;

class SetTextEdit : public QPlainTextEdit {
  Q_OBJECT
 public:
  explicit SetTextEdit(QWidget* parent = nullptr);
  ~SetTextEdit() override;
  // In bytes of the file, one for each Western European letter; 0 for no limit.
  void SetLimit(qsizetype limit) { limit_ = limit; }
  QString Content() const;
  // What was refused last, in the words that the operator was shown.
  QString Notice() const { return notice_; }
  // Null marks nothing.
  void SetSpeller(Speller* speller);
 signals:
  void FocusLeft();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void Insert(const QString& text);
  QString NoticeOf(const QString& line) const;
  void ShowNotice(const QString& notice);

  qsizetype limit_ = 0;
  QString notice_;
  std::unique_ptr<SpellingMarks> marks_;
};

// Ties the box to its model.
std::unique_ptr<Observer> MakeSetTextBinding(TextBox& box, SetTextEdit& view);

}  // namespace pawnfield
