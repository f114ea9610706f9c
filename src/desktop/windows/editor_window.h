// The windows of the set editor: the editor itself, the choice before it, and the repair of a missing medium.
#pragma once

#include <QKeySequence>
#include <QList>
#include <initializer_list>

#include "desktop/painting/canvas.h"
#include "desktop/windows/form_window.h"

class QHBoxLayout;
class QVBoxLayout;

namespace pawnfield {

struct EditChoiceForm;
class EditorForm;
class Speller;
struct MissingMediaForm;

class EditorWindow : public FormWindow {
 public:
  EditorWindow(EditorForm& form, FormWindows& windows, PictureCache& pictures, Speller& speller);
  ~EditorWindow() override;
  Canvas& Preview() { return *preview_; }
  void Changed(Control& control, PropertyId id) override;

 private:
  struct Entry {
    const char* name;
    QList<QKeySequence> keys;
  };
  void AddEntries(const char* menuName, std::initializer_list<Entry> entries);
  void AddMenu();
  void AddTools(QVBoxLayout& column);
  void AddList(QHBoxLayout& halves);
  void FitColumns();
  void AddQuestion(QVBoxLayout& column, PictureCache& pictures);
  void AddNavigation(QVBoxLayout& column);
  void FillPreview(EditorForm& form);
  // The form's caption, the file, and a mark while something is unsaved.
  void ShowTitle();

  EditorForm& editor_;
  Canvas* preview_ = nullptr;
  // Turns the spelling of the boxes on and off with the check box.
  std::unique_ptr<Observer> spelling_;
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
