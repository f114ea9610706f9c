// Watches the console for what a slip may not do: end, reset or clear a game by anything but a hold or an answered
// question, and find the keyboard on a button that nobody went to.
#pragma once

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "desktop/desktop_program.h"

namespace pawnfield {

class Slips : public QObject {
 public:
  explicit Slips(DesktopProgram& program) : program_(program) {}
  // From now on, once the handlers are attached.
  void Watch();
  // What went wrong since it was asked last, empty for nothing.
  QString Seen();
  // How often a game was ended, reset or cleared as it may be.
  int Allowed() const { return allowed_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void WatchControl(Control& control, const char* name);
  bool MayAct() const;
  void NoteKey(const QKeyEvent& key, bool guarded);
  void NoteFocus(QWidget* now);
  void NoteAnswer(const QMessageBox& box);

  DesktopProgram& program_;
  // Since a hand began to hold a button; invalid while none does.
  QElapsedTimer held_;
  // Of keys and buttons, since a question was answered with Yes.
  int pressesSinceYes_ = 1000;
  // A key that moves the focus is being struck.
  bool focusKeyDown_ = false;
  // The button that was gone to last.
  QPointer<const QWidget> goneTo_;
  QString seen_;
  int allowed_ = 0;
};

}  // namespace pawnfield
