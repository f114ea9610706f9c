// Plays a game on the console by an operator's words, and checks after every event that the audience sees the same.
#pragma once

#include <ostream>
#include <string>

#include "support/show_fixture.h"

namespace pawnfield {

class GamePlayer {
 public:
  // Brings the show up, sets the options by the console's controls and presses Start. The setup's words are listed in
  // operator_words.h.
  explicit GamePlayer(const std::string& setup, Screens monitors = Screens::Two);

  // What is done and what is to be seen after it, in the words of operator_words.h.
  void Do(const std::string& words);

  ShowFixture& fixture() { return fixture_; }
  MainForm& form() { return fixture_.form(); }
  Show& show() { return fixture_.show(); }

 private:
  void PrepareMachine(const std::string& options);
  // The steps that words stand for, as operator_words.cpp writes them, parted by blanks:
  //   12          claims row 1, column 2 and waits for its flash; 12! only claims, 12' by the audience's square
  //   3 #999 *2   the press of remote or pad 3, of the remote's code or the pad 999, of the host unit's key 2 arrives
  //   set         chooses the set in the list
  //   keys:b2^M   types these keys, a letter behind "^" with Ctrl; "^^" is the sign
  //   ?Not_found  a message that tells this comes up next, ?No:Sure is answered with No, and file:C:\a.txt that file
  //               is chosen next
  //   [ ... ]     a message box comes up, and that happens before its answer
  //   >899        so many milliseconds pass
  //   btnStop cboAutoContinue:3 txtPlayerName(0):Ann_B
  //               clicks any control, chooses that entry of a list, types "Ann B"
  //   mnuOpen@frmOpened { ... }
  //               opens a form, in which that happens, to its end
  //   turn=2 picBonus'=up
  //               is checked as ExpectSeen tells, and "event", "clip" and "verdict" for the last sound of each
  void Play(const std::string& script);
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
