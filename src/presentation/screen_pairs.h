// What the audience form takes from the console, said once: a row for each property of a control that both screens
// show alike. Following the console and bringing a new screen into step walk the same rows.
#pragma once

#include <functional>
#include <vector>

#include "platform/controls.h"

namespace pawnfield {

struct Show;

struct ScreenPair {
  Control* Console = nullptr;
  // What of the console's control is announced when it changes.
  PropertyId What = PropertyId::Visible;
  // Writes the console's value to the audience's control.
  std::function<void()> Copy;
  // False while the audience goes its own way; unset means always paired.
  std::function<bool()> Condition;
};

std::vector<ScreenPair> ScreenPairs(Show& show);
// From here on each change of the console's side is written to the audience's while DualScreen is True.
void FollowConsole(Show& show);
// Writes the audience's side of every pair; for the moment at which DualScreen becomes True.
void CopyPairs(Show& show);

}  // namespace pawnfield
