// A show with the set editor open on a set of its own, worked by its controls.
#pragma once

#include <string>
#include <vector>

#include "forms/editor_form.h"
#include "program/handlers.h"
#include "sets/editor.h"
#include "support/show_fixture.h"

namespace pawnfield {

class EditorFixture : public ShowFixture {
 public:
  EditorFixture() : ShowFixture(Screens::One) {
    AttachHandlers(show());
    OpenEditor();
  }

  // As it is behind the console's Edit, without the modal loop. Leave blanks in the letters: "ab d" has four records.
  void OpenEditor(const std::string& letters = "") {
    sim.dialogs.ExpectForm("frmEditor", [this] { editor().Visible = false; });
    editor::ShowEditor(show());
    for (std::size_t i = 0; i < letters.size(); ++i) {
      record(i).QuestionText = letters.substr(i, 1) == " " ? "" : letters.substr(i, 1);
    }
    if (letters.empty()) return;
    editor::SetNumEditQuestions(show(), static_cast<int>(letters.size()));
    GoTo(1);
  }
  void GoTo(int number) {
    editor().EditQuestionNumber = number;
    editor::DisplayEditQuestion(show());
    editor::EnableEditorControls(show(), true);
  }
  // Number on screen, count and wording, as in "2/5 b".
  std::string Shown() {
    return std::to_string(editor().EditQuestionNumber) + "/" + editor().lblNumQuestions.Caption.Get() + " " +
           editor().txtEnterQuestion.Text.Get();
  }
  // The letters of the first records, up to the count.
  std::string Letters() {
    std::string letters;
    for (int i = 0; i < show().NumEditQuestions; ++i) {
      const std::string text = record(static_cast<std::size_t>(i)).QuestionText;
      letters += text.empty() ? " " : text;
    }
    return letters;
  }

  EditorForm& editor() { return show().frmEditor; }
  TriviaQuestion& record(std::size_t index) { return show().EditSet.at(index); }
};

}  // namespace pawnfield
