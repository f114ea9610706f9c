// The line over the board after each event of all five types, and whole games by an operator who reads nothing else.
#include "engine/show_line.h"

#include "forms/main_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const WordStory kLines[] = {
    {"A challenge goes from square to square", "Challenge A, not started",
     "line \"Press Start\", start, line \"PLAYER 1 chooses a square: click it, or type letter and digit; Next Player "
     "if "
     "wrong\", next player, line \"PLAYER 2 chooses a square: click it, or type letter and digit; Next Player if "
     "wrong\", key b, line \"PLAYER 2 chooses a square: B typed, now the digit\", key 2, line \"PLAYER 2 chooses B2: "
     "press Enter to take it\", key enter, line \"PLAYER 2 takes B2, +50\", lblLineCount=, lblLineNext=, wait 0.9, "
     "line \"PLAYER 3 chooses a square: click it, or type letter and digit; Next Player if wrong\", end game, line "
     "\"Game over: the winner stands for 5 s, then standby\", wait 5, line \"Press Start\""},
    {"A challenge of one player's turns has a bonus", "Challenge B",
     "claim A1, claim C3, claim A3, claim C1, click B2, line \"PLAYER 1 takes B2, +300\", wait 0.9, line \"Bonus: the "
     "show goes on by itself\", wait 3, line \"PLAYER 1 chooses a square: click it, or type letter and digit; Next "
     "Player if wrong\""},
    {"Trivia A tells the set and the next question", "Trivia A, not started",
     "line \"Choose a set\", choose the set, line \"Press Start: the first question comes up\", lblLineSet=Long, "
     "lblLineCount=30_questions, lblLineNext=First:_Question_1?, start, lblLineCount=Question_1_of_30, "
     "lblLineNext=Next:_Question_2?, line \"PLAYER 1 answers: judge with Y or N\", incorrect, line \"PLAYER 2 answers: "
     "judge with Y or N\", hide, line \"The room sees standby: press Show to go on\", show, correct, line \"PLAYER 2 "
     "chooses a square: click it, or type letter and digit\", click A1, line \"PLAYER 2 takes A1, +50\", "
     "lblLineContinue=, wait 0.9, line \"The next question comes by itself\", lblLineContinue=Continue_in_3_s, wait "
     "1.2, lblLineContinue=Continue_in_2_s, wait 1.8, line \"PLAYER 3 answers: judge with Y or N\", lblLineContinue=, "
     "lblLineCount=Question_2_of_30"},
    {"Trivia B says how somebody gets the turn after a skip", "Trivia B, user advances",
     "skip, line \"Press Continue, or C\", continue, line \"Nobody has the turn: press Next Player, or let a player "
     "ring in\", next player, line \"PLAYER 2 answers: judge with Y or N\", correct, click B3, wait 0.9, line \"Press "
     "Continue, or C\", undo, line \"PLAYER 2 chooses a square: "
     "click "
     "it, or type letter and digit\""},
    {"Trivia C goes from ring-in to ring-in", "Trivia C, 2 players",
     "line \"Players ring in: buzzers, keys 1 to 2, or by hand at the right\", player 2 rings in, line \"PLAYER 2 "
     "answers: judge with Y or N\", incorrect, line \"Players ring in: buzzers, keys 1 to 2, or by hand at the "
     "right\", "
     "player 1 rings in, correct, line \"PLAYER 1 chooses a square: click it, or type letter and digit\", click C3, "
     "line \"PLAYER 1 takes C3, +50\", wait 0.9, line \"The next question comes by itself\", wait 3, line \"Players "
     "ring in: buzzers, keys 1 to 2, or by hand at the right\", end game, line \"Game over: the winner stands for 5 s, "
     "then standby\", wait 5, line \"Choose a set\", lblLineSet=, lblLineCount="},
    {"The seconds to answer run in the line", "Trivia C, 3 s to answer",
     "lblLineClock=, player 1 rings in, lblLineClock=0:03, wait 1, "
     "lblLineClock=0:02, "
     "wait 2, lblLineClock=TIME_IS_UP, incorrect, lblLineClock="},
    {"A picture and a sound are named ahead", "Trivia C, picture second, user advances",
     "lblLineNext=Next:_picture_photo.jpg, skip, continue, lblLineNext=Next:_sound_clip.WAV, skip, continue, "
     "lblLineNext=, skip, line \"No questions left: hold End Game for the winner, hold Reset or choose a set\""},
    {"The notice stands by itself", "Trivia C, 7 questions, user advances",
     "skip, continue, player 1 rings in, correct, claim A1, line \"5 questions left: the notice goes by itself\", wait "
     "3, line \"Press Continue, or C\""},
    {"Without keys only what can be clicked is asked for", "Trivia C, user advances",
     "skip, press chkExtKeyboardCtrl, line \"Press Continue\", continue, player 1 rings in, line \"PLAYER 1 answers: "
     "press "
     "Correct or Incorrect\", correct, line \"PLAYER 1 chooses a square: click it\""},
};

using LineStory = WordStoryTest;
TEST_P(LineStory, SaysWhatIsExpectedOfWhom) { Play(); }
INSTANTIATE_TEST_SUITE_P(ShowLine, LineStory, testing::ValuesIn(kLines), LineStory::Name);

// Plays from the line alone: does what it asks for, and where it asks for nothing lets a second pass. The operator
// remembers which squares were taken and sees nothing else.
class LineReader {
 public:
  explicit LineReader(GamePlayer& game) : game_(game) {}

  // What the line said last, once the game is over; empty when it never was.
  std::string PlayToTheEnd() {
    constexpr int kMostSteps = 400;
    for (int step = 0; step < kMostSteps; ++step) {
      const std::string expected = game_.form().lblLineExpected.Caption;
      if (expected.starts_with("Game over")) return game_.form().lblWinner.Caption;
      Do(expected);
    }
    return "";
  }

 private:
  void Do(const std::string& expected) {
    const auto asks = [&](const char* words) { return expected.find(words) != std::string::npos; };
    if (asks("Choose a set")) {
      game_.Do("choose the set");
    } else if (asks("Press Start")) {
      game_.Do("start");
    } else if (asks("press Show")) {
      game_.Do("show");
    } else if (asks("keys 1 to")) {
      game_.Do("key 2");
    } else if (asks("judge with Y or N")) {
      game_.Do(++verdicts_ % 5 == 0 ? "key n" : "key y");
    } else if (asks("press Next Player")) {
      game_.Do("next player");
    } else if (asks("type letter and digit")) {
      game_.Do(std::string("key ") + static_cast<char>('a' + square_ % 3));
    } else if (asks("now the digit")) {
      game_.Do(std::string("key ") + static_cast<char>('1' + square_ / 3));
    } else if (asks("press Enter")) {
      ++square_;
      game_.Do("key enter");
    } else if (asks("or C")) {
      game_.Do("key c");
    } else {
      game_.Do("wait 1 s");
    }
  }

  GamePlayer& game_;
  int square_ = 0;
  int verdicts_ = 0;
};

TEST(LineReader, PlaysAWholeGameOfEachTypeFromTheLineAlone) {
  for (const char* setup : {"Challenge A, not started", "Challenge B, not started", "Trivia A, not started",
                            "Trivia B, not started, user advances", "Trivia C, not started"}) {
    SCOPED_TRACE(setup);
    GamePlayer game(setup);
    const std::string winner = LineReader(game).PlayToTheEnd();
    EXPECT_TRUE(winner.starts_with("Game Over!"))
        << winner << ", at last: " << game.form().lblLineExpected.Caption.Get();
  }
}

TEST(ShowLine, SaysWhatAnUndoTakesBack) {
  GamePlayer game("Trivia B, user advances");
  game.Do("correct, claim B3");
  EXPECT_EQ(game.form().lblUndoNote.Caption.Get(), "PLAYER 1 takes B3, +50");
  game.Do("undo");
  EXPECT_EQ(game.form().lblUndoNote.Caption.Get().find("takes"), std::string::npos);
}

TEST(ShowLine, SaysSquaresAsTheyAreTyped) {
  EXPECT_EQ(SquareText(0, 0), "A1");
  EXPECT_EQ(SquareText(4, 2), "C5");
}

}  // namespace
}  // namespace pawnfield
