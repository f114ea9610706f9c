// Modal questions to the operator: message boxes, file dialogs and modal forms.
#pragma once

#include <QString>

#include "desktop/system/form_windows.h"
#include "platform/ports.h"

namespace pawnfield {

class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(const FormWindows& windows) : windows_(windows) {}
  BoxAnswer MessageBox(const std::string& text, const std::string& title, BoxKind kind) override;
  BoxAnswer Ask(const BoxQuestion& question, const std::string& title) override;
  std::string ChooseFile(const FileDialogRequest& request) override;
  std::optional<Font> ChooseFont(const Font& start) override;
  std::optional<Color> ChooseColor(Color start) override;
  void ShowModal(Form& form) override;
  ModalKind Modal() const override;

 private:
  const FormWindows& windows_;
};

// The window over which a question stands: the one that is worked with, or else the console. Never the room's, also
// where the desktop has given that the keyboard; null before there is a console.
QWidget* OperatorsWindow();

// "Game Sets(*.txt)|*.txt|All|*.*" as the toolkit's list of filters.
QString FilterList(const std::string& filter);

}  // namespace pawnfield
