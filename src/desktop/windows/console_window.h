// frmMain's window: the operator's console with the board and its panels on a canvas in the middle.
#pragma once

#include <QTimer>

#include "desktop/painting/canvas.h"
#include "desktop/system/screens.h"
#include "desktop/windows/console_arrangement.h"
#include "desktop/windows/form_window.h"

class QMenuBar;

namespace pawnfield {

class FocusRules;
class MainForm;
class MpvVideo;

class ConsoleWindow : public FormWindow {
 public:
  ConsoleWindow(MainForm& form, FormWindows& windows, PictureCache& pictures, Screens& screens, MpvVideo& video);
  Canvas& Board() { return *board_; }
  Canvas& Answer() { return *answer_; }
  // Comes to the front, as asked by a second start of the program.
  void ComeForward();

 protected:
  void Changed(Control& control, PropertyId id) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void ShowForm() override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  // What greys or goes hands the focus on by this.
  bool focusNextPrevChild(bool next) override;

 private:
  void MakeMenus();
  void FillMenus(QMenuBar& bar);
  void MakeColumns();
  Canvas* AddCanvas(PictureCache& pictures, const QString& name);
  void KeepLineWhole();
  // Those that say nothing at times.
  std::array<Label*, 6> LineParts() const;
  // What the window itself draws of its models.
  void FollowModels(MainForm& form);
  void FillBoard(MainForm& form);
  void FillAnswer(MainForm& form, PictureCache& pictures);
  void HoldUnseen();
  // Where windows have no places: waits until the console is seen somewhere.
  void AwaitScreen();
  void ReturnByScreen();
  // Takes the monitor that the operator has put the console on for the console's own.
  void NoteHome();
  // Back to its own monitor, when a change of the monitors has left it on another one.
  void ReturnHome();

  MainForm& main_;
  Screens& screens_;
  // Show the turn and the number of players where no model tells a widget of them.
  std::vector<std::unique_ptr<Observer>> dress_;
  std::unique_ptr<ConsoleArrangement> arrangement_;
  Canvas* board_ = nullptr;
  Canvas* answer_ = nullptr;
  FocusRules* focus_ = nullptr;
  // Of monitors, when the console was last sent home.
  qsizetype sentHomeAt_ = 0;
  // Runs while a window manager may still move the console.
  QTimer late_;
};

}  // namespace pawnfield
