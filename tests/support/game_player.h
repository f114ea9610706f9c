// Plays a game on the console from a short script, and checks after every event that the audience sees the same.
#pragma once

#include <ostream>
#include <string>

#include "support/show_fixture.h"

namespace pawnfield {

// The setup and the steps that an operator's words stand for; operator_words.h lists them.
std::string SetupOfWords(const std::string& words);
std::string StepsOfWords(const std::string& words);

class GamePlayer {
 public:
  // Brings the show up, sets the options by the console's controls and presses Start. The setup is the game's
  // type 1..5, the players, the grid, "row" or "full" for the ending, and letters: "p" penalty on, "m" the user
  // advances, "0" squares worth nothing, "a" animation on, "7" a set of seven questions, "k" one whose second is a
  // picture and whose third is a sound, "w" wireless remotes, "W" of the long form, "l" wired pads, "i" not started.
  // Behind them stand settings that the store holds before, as in "TSSupport=True".
  explicit GamePlayer(const std::string& setup, Screens monitors = Screens::Two);

  // Steps and what is to be seen after them, parted by blanks:
  //   12          claims row 1, column 2 and waits for its flash; 12! only claims, 12' by the audience's square
  //   + - N S C U E H V R
  //               judge, next player, skip, continue, undo, end game, hide and show the board, reset
  //   r1 u23 d23  rings player 1 in by hand; presses the score button 3 of player 2
  //   3 #999 *2   the press of remote or pad 3, of the remote's code or the pad 999, of the host unit's key 2 arrives
  //   set         chooses the set in the list
  //   keys:b2^M   types these keys, a letter behind "^" with Ctrl; "^^" is the sign
  //   ?Not_found  a message that tells this comes up next, ?No:Sure is answered with No, and file:C:\a.txt that file
  //               is chosen next
  //   [ ... ]     a message box comes up, and that happens before its answer
  //   > >899      3 seconds pass, or so many milliseconds
  //   btnStop cboAutoContinue:3 txtPlayerName(0):Ann_B
  //               clicks any control, chooses that entry of a list, types "Ann B"
  //   mnuOpen@frmOpened { ... }
  //               opens a form, in which that happens, to its end
  //   turn=2 picBonus'=up
  //               is checked as ExpectSeen tells, and "event", "clip" and "verdict" for the last sound of each
  void Play(const std::string& script);
  // The same in the words of operator_words.h.
  void Do(const std::string& words) { Play(StepsOfWords(words)); }

  ShowFixture& fixture() { return fixture_; }
  MainForm& form() { return fixture_.form(); }
  Show& show() { return fixture_.show(); }

 private:
  void PrepareMachine(const std::string& options);
  void PlayInForm(const std::string& opener, const std::string& name, const std::string& script);
  void Step(const std::string& step);
  void Claim(const std::string& step);
  void RingIn(int code);
  void Type(const std::string& keys);
  void Press(const std::string& name);
  void CheckEveryEvent();
  void ExpectBothScreensAlike(const std::string& event);

  ShowFixture fixture_;
  // The form that steps go to.
  Form* shown_;
  bool wired_ = false;
  std::string played_;
};

// A game or a part of one, with what is seen on its way.
struct Story {
  const char* name;
  const char* setup;
  const char* script;
  friend void PrintTo(const Story& story, std::ostream* out) { *out << story.name; }
};

class StoryTest : public testing::TestWithParam<Story> {
 public:
  static void Play() { GamePlayer(GetParam().setup).Play(GetParam().script); }
  static std::string Name(const testing::TestParamInfo<Story>& story) { return story.param.name; }
};

// A part of a game in the words of operator_words.h, with one claim.
struct WordStory {
  const char* claim;
  const char* setup;
  const char* steps;
  friend void PrintTo(const WordStory& story, std::ostream* out) { *out << story.claim; }
};

class WordStoryTest : public testing::TestWithParam<WordStory> {
 public:
  static void Play() {
    SCOPED_TRACE(GetParam().claim);
    GamePlayer(GetParam().setup).Do(GetParam().steps);
  }
  // The claim without blanks, as the test's name.
  static std::string Name(const testing::TestParamInfo<WordStory>& story);
};

}  // namespace pawnfield
