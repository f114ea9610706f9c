// What the check before the show says of each thing that a show needs: a light, a sentence, and the words of the
// buttons that mend and try it. Works nothing, asks nothing of the machine.
#pragma once

#include <string>

#include "forms/show_check_form.h"

namespace pawnfield {

struct Show;

struct RowFacts {
  // None while that isn't known yet.
  ChipState Light = ChipState::None;
  std::string Sentence;
  // Empty for a button that isn't offered.
  std::string Mend{}, Try{};
};

RowFacts FactsOf(const Show& show, CheckRow row);
// "READY", "LOOK", "NOT READY", and "..." while that isn't known.
std::string WordOf(ChipState light);
// The same as a sign: a check, an exclamation mark, a cross.
std::string SignOf(ChipState light);
// "5 of 7 ready.", over the rows that can be ready or not.
std::string ReadyText(const ControlArray<Chip, kCheckRows>& lights);

}  // namespace pawnfield
