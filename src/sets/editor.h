// The set editor's own set, what it shows of it, and typing. The editor works on EditSet; the game's set is its copy
// only when the operator says so.
#pragma once

#include <functional>
#include <string>

#include "data/trivia_set.h"

namespace pawnfield {

struct Show;

namespace editor {

// The console's Edit: asks for the current set or a new one while the list of sets shows a text, and opens the editor.
void btnStartGame_Click(Show& show);
void EditChoice_Click(Show& show, bool current);
// Shows the editor and returns when it has been closed. What is to be done first finds the set open in it.
void ShowEditor(Show& show, const std::function<void()>& first = {});

// All 101 records to their reset values.
void ResetEditSet(Show& show);
// Records up to the one after the last question, and the count.
void CopyGameSetToEdit(Show& show);
// The first 100 records but for FontSize. The game goes on behind the question that it stands at, and the count of
// questions that are left stays.
void CopyEditSetToGame(Show& show);

// The record that the editor shows. RuntimeError 9 when the number is outside the set.
TriviaQuestion& ShownRecord(Show& show);
// Brings the record of EditQuestionNumber on screen. A number outside the set leaves the editor at question 1 and ends
// in RuntimeError 9.
void DisplayEditQuestion(Show& show);
// Empties the preview, the entries and the labels.
void ClearEditorDisplay(Show& show);
void EnableEditorControls(Show& show, bool enabled);
// Enables the controls that a question with neither text nor answer keeps off.
void UpdateEditorControls(Show& show);
// The next letters typed are a wording and press no button.
void FocusWording(Show& show);
void SetNumEditQuestions(Show& show, int count);

void txtEnterQuestion_Change(Show& show);
void txtEnterQuestion_LostFocus(Show& show);
void txtAnswer_Change(Show& show);
// Remembered for the next time.
void chkSpellChecker_Click(Show& show);
void txtDisplayQuestion_Click(Show& show);

}  // namespace editor

}  // namespace pawnfield
