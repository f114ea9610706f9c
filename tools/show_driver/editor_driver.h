// Works the set editor's windows as an operator would: opens them from the console, types, presses and answers file
// dialogs.
#pragma once

#include <QString>
#include <functional>

#include "show_driver.h"

namespace pawnfield {

class EditorDriver {
 public:
  explicit EditorDriver(ShowDriver& driver) : driver_(driver) {}

  // Presses Edit on the console and New in the choice, runs the work while the editor is open, and returns when both
  // are closed. False when a window did not come up.
  bool WithNewSet(const std::function<void()>& work);
  bool Press(const QString& widget) { return Press("frmEditor", widget); }
  bool Press(const QString& form, const QString& widget);
  bool Type(const QString& widget, const QString& text);
  // Presses the button that brings a file dialog up, and gives that dialog the file.
  bool PressAndChoose(const QString& form, const QString& widget, const QString& file);
  // Chooses the editor's menu entry and gives the file dialog that comes up the file.
  bool ChooseEntry(const QString& entry, const QString& file);
  // A text question where there is no file, otherwise a picture or a sound by the button of that name.
  bool Write(const QString& question, const QString& answer, const QString& button = {}, const QString& file = {});
  QWidget* Window(const QString& form) const;
  // Saves NN-name.png and prints where it is.
  void TakePicture(const QString& form, const QString& name);
  // Runs the work once the form's window is up, from within whatever loop runs then.
  void WhenShown(const QString& form, const std::function<void()>& work);

 private:
  // Gives the file dialog that the step brings up the file.
  bool GiveFile(const QString& file, const std::function<bool()>& step);

  ShowDriver& driver_;
};

}  // namespace pawnfield
