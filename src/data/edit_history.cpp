#include "data/edit_history.h"

#include <algorithm>
#include <utility>

namespace pawnfield {

namespace {

// Some ten megabytes of the longest sets.
constexpr std::size_t kMostSteps = 300;

}  // namespace

void EditHistory::Begin(EditState state) {
  steps_.assign(1, {"", std::move(state)});
  at_ = 0;
  saved_ = 0;
  settled_ = true;
}

void EditHistory::Take(EditState state, const std::string& what) {
  if (state.HoldsSame(Present())) return;
  const bool goesOn = !settled_ && at_ + 1 == steps_.size() && steps_[at_].What == what;
  settled_ = false;
  if (goesOn) {
    steps_[at_].State = std::move(state);
    return;
  }
  steps_.resize(at_ + 1);
  // The file may hold what was undone and is now forgotten.
  if (saved_ > static_cast<long>(at_)) saved_ = -1;
  steps_.push_back({what, std::move(state)});
  if (steps_.size() > kMostSteps) {
    steps_.erase(steps_.begin());
    --saved_;
  }
  at_ = steps_.size() - 1;
}

void EditHistory::Absorb(EditState state) {
  const int number = steps_[at_].State.Number;
  steps_[at_].State = std::move(state);
  steps_[at_].State.Number = number;
}

void EditHistory::MarkSaved() {
  saved_ = static_cast<long>(at_);
  settled_ = true;
}

EditState EditHistory::Undo() {
  settled_ = true;
  const int number = steps_[at_].State.Number;
  EditState state = steps_[--at_].State;
  state.Number = number;
  return state;
}

EditState EditHistory::Redo() {
  settled_ = true;
  return steps_[++at_].State;
}

std::vector<std::string> EditHistory::Unsaved() const {
  std::vector<std::string> lines;
  const auto add = [&lines](const std::string& line) {
    if (std::find(lines.begin(), lines.end(), line) == lines.end()) lines.push_back(line);
  };
  const long at = static_cast<long>(at_);
  for (long step = std::max(saved_, 0L) + 1; step <= at; ++step) add(steps_[static_cast<std::size_t>(step)].What);
  for (long step = saved_; step > at; --step) add("Undone: " + steps_[static_cast<std::size_t>(step)].What);
  return lines;
}

}  // namespace pawnfield
