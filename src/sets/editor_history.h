// The editor's changes as steps that can be taken back, and what of the set the form shows beside the question: the
// list of all questions, and what Undo and Redo would do.
#pragma once

#include <functional>
#include <string>

namespace pawnfield {

struct Show;

namespace editor {

// A set that was opened or begun: nothing of the one before can be brought back.
void BeginHistory(Show& show);
// Runs a routine of the editor; what it changes of the set is one step of that name. Without a name it is no change of
// the operator's. The list and the buttons follow, also behind a fault.
void RunEdit(Show& show, const std::string& what, const std::function<void()>& routine);
// The same for a letter that is typed: what the check says of the set waits until the box is left.
void RunTyping(Show& show, const std::string& what, const std::function<void()>& routine);
// What isn't saved, a line for each change and at most so many; empty when nothing is known of.
std::string UnsavedLines(Show& show, std::size_t most);

// Brings lstQuestions, with what the check finds, and the buttons of Undo and Redo in step with the set.
void ShowEditorLists(Show& show);

}  // namespace editor

}  // namespace pawnfield
