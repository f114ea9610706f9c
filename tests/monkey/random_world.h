// What both random operators know of the world that they play in.
#pragma once

#include <array>
#include <string>

#include "monkey/chance.h"

namespace pawnfield {

// Texts to type, as Windows-1252.
inline constexpr std::array kWords = {"Ann",
                                      "",
                                      "PLAYER 2",
                                      "A very long name of a team that nobody could ever read aloud",
                                      "C2",
                                      "0",
                                      "100",
                                      "\xe4\xf6\xfc",
                                      "\"quoted\", ^ and ~",
                                      "12345678901234567890"};

// Errors that a changed world brings and the program is to report; the editor's when its only question goes; and those
// of a remote beyond the tables, a broken frame, a transceiver that takes no text, and a sound table that is none.
bool IsExpectedError(const std::string& text);

// Whether the control of that name moves a show on; a hand that only strays would seldom finish a game.
bool MovesOn(const std::string& name);

// A set's bytes, now and then cut in the middle. Its media are "there.jpg", "there.wav" and some that are missing.
std::string RandomSet(Chance& chance);

}  // namespace pawnfield
