// What the set editor takes back and brings again: the set as it was after each change, and what is saved of it.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "data/trivia_set.h"

namespace pawnfield {

// The set that is open, as far as a change can touch it, and the question that it was made at.
struct EditState {
  // The records up to the last one that holds anything.
  std::vector<TriviaQuestion> Records;
  int Count = 0;
  std::string File;
  int Number = 1;

  bool HoldsSame(const EditState& other) const {
    return Records == other.Records && Count == other.Count && File == other.File;
  }
};

class EditHistory {
 public:
  // Forgets what was; nothing is unsaved.
  void Begin(EditState state);
  // A change in the operator's words, "Delete question 3". Where it is the same as the last one and nothing came
  // between, the two are one step: a wording is taken back as a whole and not letter by letter.
  void Take(EditState state, const std::string& what);
  // What the program itself brings about belongs to the last change.
  void Absorb(EditState state);
  // The next change is a step of its own.
  void Settle() { settled_ = true; }
  void MarkSaved();

  bool CanUndo() const { return at_ > 0; }
  bool CanRedo() const { return at_ + 1 < steps_.size(); }
  // What would be taken back or brought again; empty for nothing.
  std::string UndoText() const { return CanUndo() ? steps_[at_].What : std::string(); }
  std::string RedoText() const { return CanRedo() ? steps_[at_ + 1].What : std::string(); }
  // The state that is to stand then, at the question where the change was. Only where it can.
  EditState Undo();
  EditState Redo();

  bool IsSaved() const { return saved_ == static_cast<long>(at_); }
  // What a close would lose, the oldest first and each once.
  std::vector<std::string> Unsaved() const;
  const EditState& Present() const { return steps_[at_].State; }

 private:
  struct Step {
    std::string What;
    EditState State;
  };
  std::vector<Step> steps_{Step{}};
  std::size_t at_ = 0;
  // The step that the file holds; negative for one that is forgotten.
  long saved_ = 0;
  bool settled_ = true;
};

}  // namespace pawnfield
