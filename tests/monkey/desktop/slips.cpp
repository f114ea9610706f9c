#include "monkey/desktop/slips.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <utility>

#include "desktop/windows/console_window.h"
#include "forms/main_form.h"

namespace pawnfield {

namespace {

// A little less than the button asks for: the clocks differ.
constexpr int kHeldMs = 750;
// What hangs on an answer may be done a press or two later: the loop that waited for it ends behind what is due
// already. A press comes to several that it may be for.
constexpr int kForgotten = 20;

bool MovesFocus(int key) {
  return key == Qt::Key_Tab || key == Qt::Key_Backtab || (key >= Qt::Key_Left && key <= Qt::Key_Down);
}

}  // namespace

void Slips::Watch() {
  MainForm& form = program_.TheShow().frmMain;
  WatchControl(form.btnReset, "reset");
  WatchControl(form.btnEndGame, "ended");
  WatchControl(form.fileClearAllScores, "cleared");
  qApp->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { NoteFocus(now); });
}

void Slips::WatchControl(Control& control, const char* name) {
  const auto handler = control.OnClick;
  control.OnClick = [this, handler, name] {
    const bool running = program_.TheShow().state.GameInProgress;
    if (running && !MayAct()) seen_ = QString("the game was %1 by a slip").arg(name);
    if (running && MayAct()) ++allowed_;
    pressesSinceYes_ = kForgotten;
    handler();
  };
}

bool Slips::MayAct() const { return pressesSinceYes_ < kForgotten || (held_.isValid() && held_.elapsed() >= kHeldMs); }

bool Slips::eventFilter(QObject* watched, QEvent* event) {
  const QString name = watched->objectName();
  const bool guarded = name == "btnReset" || name == "btnEndGame";
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      focusKeyDown_ = false;
      ++pressesSinceYes_;
      if (guarded) held_.start();
      break;
    case QEvent::MouseButtonRelease:
      if (guarded) held_.invalidate();
      break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      NoteKey(*static_cast<const QKeyEvent*>(event), guarded);
      break;
    case QEvent::Hide:
      if (const auto* box = qobject_cast<QMessageBox*>(watched)) NoteAnswer(*box);
      break;
    default:
      break;
  }
  return false;
}

void Slips::NoteKey(const QKeyEvent& key, bool guarded) {
  if (key.type() == QEvent::KeyPress) ++pressesSinceYes_;
  // Between its press and its release, however long the machine takes for them.
  focusKeyDown_ = MovesFocus(key.key()) && key.type() == QEvent::KeyPress;
  // A window behind another one is told of no focus before it comes back to the front.
  if (MovesFocus(key.key()) && key.type() == QEvent::KeyRelease) goneTo_ = program_.Console().focusWidget();
  if (!guarded || key.key() != Qt::Key_Space || key.isAutoRepeat()) return;
  if (key.type() == QEvent::KeyPress) {
    held_.start();
  } else {
    held_.invalidate();
  }
}

void Slips::NoteAnswer(const QMessageBox& box) {
  const bool yes = box.clickedButton() != nullptr && box.standardButton(box.clickedButton()) == QMessageBox::Yes;
  pressesSinceYes_ = yes ? 0 : kForgotten;
}

void Slips::NoteFocus(QWidget* now) {
  const auto* button = qobject_cast<const QPushButton*>(now);
  if (button == nullptr || button->window() != &program_.Console()) return;
  // A window that comes back to the front has the focus where it was.
  if (focusKeyDown_) goneTo_ = button;
  if (button == goneTo_) return;
  seen_ = "the focus came to " + button->objectName() + " by itself";
}

QString Slips::Seen() { return std::exchange(seen_, {}); }

}  // namespace pawnfield
