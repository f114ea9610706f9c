// Plays a game on the console from a short script, and checks after every event that the audience sees the same.
#pragma once

#include <string>

#include "support/show_fixture.h"

namespace pawnfield {

enum class Ending { FinishRow, FullBoard };

struct GameSetup {
  int GameType = 1;
  int Players = 2;
  int Grid = 3;
  Ending End = Ending::FinishRow;
  // Further options: "p" penalty on, "m" the user advances, "0" squares worth nothing, "a" animation on.
  std::string Options;
  Screens Monitors = Screens::Two;
};

class GamePlayer {
 public:
  // Brings the show up, sets the options by the console's controls and presses Start.
  explicit GamePlayer(const GameSetup& setup);

  // Steps, parted by blanks: "rc" claims a square and waits for its flash; "+" and "-" judge; "r1".."r3" ring in;
  // N next player, S skip, C continue, U undo, E end game, H hide, V show; "u23" and "d23" press a score button of
  // player 2, by its index; ">" lets 3 seconds pass.
  void Play(const std::string& script);

  ShowFixture& fixture() { return fixture_; }
  // The winner's text with "/" for each line break.
  std::string Winner();
  // Rows of owners, "102/..." with 0 for a free square.
  std::string Board();

 private:
  void SetOptions(const GameSetup& setup);
  void Step(const std::string& step);
  Button& ButtonOf(char letter);
  Button& ScoreButton(const std::string& step);
  void Press(Control& control, const std::string& step);
  void CheckEveryEvent();
  void ExpectBothScreensAlike(const std::string& event);

  ShowFixture fixture_;
  int gameType_;
  bool scoresAlike_ = true;
  std::string step_ = "start";
};

}  // namespace pawnfield
