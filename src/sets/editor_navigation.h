// Moving through the editor's set, and making and closing gaps in it.
#pragma once

namespace pawnfield {

struct Show;

namespace editor {

// The last question that can be gone to and added.
inline constexpr int kLastNumber = 100;

// Each ends with the question it leads to on screen; what a press does at the ends of the set stands at its routine.
void btnBack_Click(Show& show);
void btnBack10_Click(Show& show);
void btnForward_Click(Show& show);
void btnForward10_Click(Show& show);
// The only way to a longer set.
void btnNext_Click(Show& show);
void btnInsertQuestion_Click(Show& show);
void btnDeleteQuestion_Click(Show& show);

// Makes room at question n, or closes it.
void ShiftUp(Show& show, int n);
void ShiftDown(Show& show, int n);

}  // namespace editor

}  // namespace pawnfield
