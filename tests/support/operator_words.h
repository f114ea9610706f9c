// Stories told in an operator's words. The phrases are parted by commas; one in quotation marks may hold commas.
//   The setup: "Challenge A", "Trivia C"; "2 players"; "4x4"; "Finish Row" or "Full Board"; and as they are wanted
//   "penalty", "user advances", "worthless squares", "animated", "7 questions", "remotes", "pads", "not started",
//   "5 s to answer", and
//   "picture second" for a set whose second question is a picture and whose third is a sound.
//   The steps: "correct", "incorrect", "skip", "continue", "undo", "next player", "choose the set",
//   "start", "reset", "end game", "hide", "show", "start the clock", "clear all scores", "two players", "pause of 5 s";
//   "player 2 rings in" by the operator's button, "remote 2", "pad 2"; "key n", "key ctrl n", "keys b2"; "claim A1" and
//   the time its piece takes, "click A1" without; "wait 2.5 s". What is seen then: "turn 2" or "turn nobody", "nobody
//   lit", "player 2 lit", "question 3" counted from 1, "phase pause", "scores 50/0/0", "board 100/000/000", "says
//   "text"" in the status line. Everything that holds a "=" is a check of GamePlayer's own.
#pragma once

#include <ostream>
#include <string>

#include "support/game_player.h"

namespace pawnfield {

std::string SetupOfWords(const std::string& words);
std::string StepsOfWords(const std::string& words);

struct WordStory {
  // The one claim of the story.
  const char* claim;
  const char* setup;
  const char* steps;
  friend void PrintTo(const WordStory& story, std::ostream* out) { *out << story.claim; }
};

class WordStoryTest : public testing::TestWithParam<WordStory> {
 public:
  static void Play() {
    SCOPED_TRACE(GetParam().claim);
    GamePlayer(SetupOfWords(GetParam().setup)).Play(StepsOfWords(GetParam().steps));
  }
  // The claim without blanks, as the test's name.
  static std::string Name(const testing::TestParamInfo<WordStory>& story);
};

}  // namespace pawnfield
