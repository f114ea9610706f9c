// Hands the keys typed at the console to its form, wherever in the window the focus is.
#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace pawnfield {

class MainForm;

// Typing in a text box that takes text stays typing; a list keeps its arrow keys. Modal dialogs keep all theirs.
class KeyBridge : public QObject {
 public:
  // Listens for as long as the console's window lives.
  KeyBridge(MainForm& form, QWidget& console);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool Hand(QWidget* focus, const QKeyEvent& key);

  MainForm& form_;
  QWidget& console_;
};

}  // namespace pawnfield
