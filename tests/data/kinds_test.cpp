// What holds for every player and every game type, and for a number that is neither.
#include <gtest/gtest.h>

#include "data/game_types.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "forms/player_names_form.h"

namespace pawnfield {
namespace {

int ErrorOf(const std::function<void()>& ask) {
  try {
    ask();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Players, AFourthGetsNobodysBoxes) {
  MainForm console;
  FSMainForm audience;
  PlayerNamesForm names;
  for (const int player : {0, 1, 3, 4, -1}) {
    const int expected = player == 1 || player == 3 ? 0 : kErrorSubscript;
    EXPECT_EQ(ErrorOf([&] { console.Score(player); }), expected) << player;
    EXPECT_EQ(ErrorOf([&] { console.ScoreCopy(player); }), expected) << player;
    EXPECT_EQ(ErrorOf([&] { console.ScoreBox(player); }), expected) << player;
    EXPECT_EQ(ErrorOf([&] { console.PlayerBox(player); }), expected) << player;
    EXPECT_EQ(ErrorOf([&] { console.FaceA(player); }), expected) << player;
    EXPECT_EQ(ErrorOf([&] { console.FaceB(player); }), expected) << player;
    EXPECT_EQ(ErrorOf([&] { audience.ScoreBox(player); }), expected) << player;
    EXPECT_EQ(ErrorOf([&] { names.PenaltyBox(player); }), expected) << player;
  }
}

TEST(GameTypes, EachHasTheRowOfItsValueAndWhatIsNoneIsAnError) {
  int value = 0;
  for (const GameNature& type : kGameTypes) {
    EXPECT_EQ(static_cast<int>(type.Mode), ++value) << type.Caption;
    EXPECT_EQ(&NatureOf(type.Mode), &type);
  }
  for (const int none : {0, -1, value + 1}) {
    EXPECT_EQ(ErrorOf([&] { NatureOf(static_cast<GameMode>(none)); }), kErrorSubscript) << none;
  }
}

}  // namespace
}  // namespace pawnfield
