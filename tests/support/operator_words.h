// An operator's words as the steps of GamePlayer. The phrases are parted by commas; a text in quotation marks may hold
// commas. A test fails on words that are not known.
//   The setup: "Challenge A", "Trivia C"; "2 players" (else 3); "4x4" (else 3x3); "Finish Row" or "Full Board"; and as
//   they are wanted "penalty", "user advances", "worthless squares", "animated", "7 questions", "remotes", "long
//   remotes" with the long report, "pads", "not started", "5 s to answer", and "picture second" for a set whose second
//   question is a picture and whose third is a sound. "TSSupport=True" is a stored setting. The game: "correct",
//   "incorrect", "skip", "continue", "undo", "next player", "choose the set", "start", "reset", "end game", "hide",
//   "show", "start the clock", "clear all scores", "choose Trivia B", "choose Trivia B and cancel", "2 players", "pause
//   of 5 s", "squares worth 100"; "claim A1" and the second that its piece takes, "click A1" without, "click room A1"
//   on the audience's board; "wait 2.5 s", "wait 30 ms". Presses: "player 2 rings in" by the operator's button, "player
//   2 gains 100" by the score's; "remote 2" up to the poll that takes it, "queue remote 2" before, "pad 2", "pad code
//   999", "host key 5"; "key n", "key ctrl n", "keys b2". Controls: "press Undo", "name 1 typed Ann", "choose entry 3
//   of cboList". "at the names dialog: press OK; name 1 is empty" opens it, "at a message box: remote 1" happens before
//   its answer, "expect Not found" and "answer No to Sure" say which message comes next, "file C:\a.txt" which file is
//   chosen. What is seen: "turn 2", "turn nobody", "player 2 lit", "question 3" counted from 1, "phase pause", "scores
//   50/0/0", "board 100/000/000", "says "text"" in the status line, "line "text"" in the
//   line over the board, "offers Start and Undo"; "bonus is shown", "room
//   bonus is hidden", "Continue is off", "A1 shows X-100a", "room A1 is empty", "A1 height is 900", "buzzer 2 is
//   disabled". A control without words of its own goes by its name, and a check with "=" is one of ExpectSeen's.
#pragma once

#include <string>

namespace pawnfield {

// The setup and the steps of GamePlayer that an operator's words stand for.
std::string SetupOfWords(const std::string& words);
std::string StepsOfWords(const std::string& words);

}  // namespace pawnfield
