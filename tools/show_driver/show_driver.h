// Works the real program as an operator would: presses widgets and squares by name, waits on the clock, and takes
// pictures of both screens.
#pragma once

#include <QComboBox>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <functional>

#include "desktop/desktop_program.h"

namespace pawnfield {

class Canvas;

// All that the program writes, below one folder, with a copy of the assets of the source tree to work on.
DesktopPlaces PlacesBelow(const QString& folder);

class ShowDriver {
 public:
  // All that the program writes goes below the folder; the assets are the ones of the source tree.
  // The adapters of wired pads are the machine's, or those that the routine names.
  explicit ShowDriver(const QString& workFolder,
                      std::function<std::vector<SerialAdapter>()> adapters = FindSerialAdapters);

  // Runs the program's entry up to the console. False when the console did not come up.
  bool Start();
  // Presses a button, option, check box or label with the mouse as soon as it stands there and is enabled. False when
  // it still can't be pressed after a minute; so with the squares.
  bool Press(const QString& widget);
  bool PressSquare(int row, int column);
  bool PressAudienceSquare(int row, int column);
  // Opens the list and picks the item of that text with the mouse. False when it was not picked.
  bool Choose(const QString& combo, const QString& item);
  // Lets the program run until the condition holds, at most the given time.
  bool WaitFor(const std::function<bool()>& condition, int milliseconds = 60000);
  void Pause(int milliseconds);
  // Presses the display's own mouse at a place of the desktop, moves it to another and lets go. False when nothing can
  // move it.
  bool DragMouse(const QPoint& from, const QPoint& to);
  // Sends keys to whatever window is in front, as a keyboard would: names as in "c", "Return", "ctrl+n". False when
  // nothing can send them.
  bool Type(const QStringList& keys);
  // Answers each message box that comes up while the driver waits, and keeps its text.
  QStringList BoxTexts() const { return boxTexts_; }
  // From now on each box stands so long before it is answered, and is saved with the frame that it has on the display.
  void LetBoxesStand(int milliseconds) { boxStandsMs_ = milliseconds; }

  // Saves NN-name-console.png and NN-name-audience.png, and prints where they are.
  void TakePictures(const QString& name);

  // Saves the same pair once for each kind of colour-blind eye, as it sees them.
  void TakePicturesAsSeen(const QString& name);

  // The window of that form, null when there is none.
  FormWindow* Form(const QString& name);
  // Opens a form, saves NN-form.png of its window with the mouse away from it, and closes it. False when it did not
  // open.
  bool PictureOfForm(const QString& form, const std::function<void()>& open);

  // Saves NN-name.png of one window, and prints where it is.
  void TakePicture(QWidget& window, const QString& name);
  // Saves NN-name.png of the whole first display as it is seen, with windows of other programs.
  void TakeDisplay(const QString& name);
  // Where the program's own files are, with the sets.
  QString AppFolder() const { return folder_ + "/home" + "/app"; }

  Show& TheShow() { return program_.TheShow(); }
  DesktopProgram& Program() { return program_; }

 private:
  void AnswerBox();
  // True as soon as the widget is seen and enabled.
  bool BecomesPressable(QWidget& widget);
  // Opens the list and clicks on the item. False when the click didn't choose it.
  bool PickFrom(QComboBox& box, const QString& item);
  void SaveWindow(QWidget& window, const QString& name);
  void Save(const QPixmap& picture, const QString& name);
  bool ClickCanvas(Canvas& canvas, const Control* square);

  QString folder_;
  DesktopProgram program_;
  QStringList boxTexts_;
  QPointer<QMessageBox> box_;
  QElapsedTimer boxStands_;
  int boxStandsMs_ = 0;
  int pictureCount_ = 0;
};

}  // namespace pawnfield
