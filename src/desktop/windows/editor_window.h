// The windows of the set editor: the editor itself, the choice before it, and the repair of a missing medium.
#pragma once

#include "desktop/painting/canvas.h"
#include "desktop/windows/form_window.h"

class QHBoxLayout;
class QVBoxLayout;

namespace pawnfield {

struct EditChoiceForm;
class EditorForm;
struct MissingMediaForm;

class EditorWindow : public FormWindow {
 public:
  EditorWindow(EditorForm& form, FormWindows& windows, PictureCache& pictures);
  Canvas& Preview() { return *preview_; }
  void Changed(Control& control, PropertyId id) override;

 private:
  void AddMenu();
  void AddTools(QVBoxLayout& column);
  void AddQuestion(QVBoxLayout& column, PictureCache& pictures);
  void AddNavigation(QVBoxLayout& column);
  void FillPreview(EditorForm& form);
  // The form's caption, the file, and a mark while something is unsaved.
  void ShowTitle();

  EditorForm& editor_;
  Canvas* preview_ = nullptr;
};

class EditChoiceWindow : public FormWindow {
 public:
  EditChoiceWindow(EditChoiceForm& form, FormWindows& windows);
};

class MissingMediaWindow : public FormWindow {
 public:
  MissingMediaWindow(MissingMediaForm& form, FormWindows& windows);
};

}  // namespace pawnfield
