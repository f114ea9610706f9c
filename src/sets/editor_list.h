// What is done in the editor's list of all questions: going to one, moving, removing and copying it, finding words; and
// the steps that are taken back and brought again.
#pragma once

namespace pawnfield {

struct Show;

namespace editor {

void btnUndo_Click(Show& show);
void btnRedo_Click(Show& show);

// Brings the question of that row on screen. One that was left without a word is gone then.
void lstQuestions_Click(Show& show);
// Rows are counted from 0; what lies between moves up by one or down.
void MoveQuestion(Show& show, int from, int to);
// Removes the question without asking: Undo brings it back.
void RemoveQuestion(Show& show);
// A copy behind the question, while there is room.
void btnDuplicateQuestion_Click(Show& show);

// Goes to the first question from this one on that holds the words, in its wording or its answer; the case of letters
// doesn't count.
void txtFind_Change(Show& show);
// The next one behind this question, from the end on to the beginning.
void btnFindNext_Click(Show& show);
void mnuEditFind_Click(Show& show);

}  // namespace editor

}  // namespace pawnfield
