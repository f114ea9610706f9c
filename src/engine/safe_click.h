// What wipes a running game wants more than a slip. At the console a hand holds the button; whatever comes by another
// way, such as an assistive device, a menu entry or a program that controls the show, asks here.
#pragma once

namespace pawnfield {

class Control;
struct Show;

// Clicks the control as its button does. Reset and End Game, and in a running game Clear All Scores, are asked for
// first, with the answer that keeps the game as the safe one; while another question stands they are dropped. The
// question holds the caller until it is answered, so a caller that must go on calls from an event of its own. True when
// the click has gone to the control.
bool ClickSafely(Show& show, Control& control);
// What tells an operator who let go too early, "Hold to end the game"; empty for a control that needs no hold.
const char* HoldHint(const Show& show, const Control& control);

}  // namespace pawnfield
