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
    {"The status line is emptied when the player whose time was up is judged", "Trivia C, 3 s to answer",
     "player 1 rings in, wait 3, says Time is up: PLAYER 1, incorrect, lblStatusBar="},
    {"The status line is emptied of a turn whose game is over", "Trivia B, user advances",
     "next player, says Player 2 Selected!, correct, click A1, wait 0.9, reset, lblStatusBar="},
    {"Without keys only what can be clicked is asked for", "Trivia C, user advances",
     "skip, press chkExtKeyboardCtrl, line \"Press Continue\", continue, player 1 rings in, line \"PLAYER 1 answers: "
     "press "
     "Correct or Incorrect\", correct, line \"PLAYER 1 chooses a square: click it\""},
};

using LineStory = WordStoryTest;
TEST_P(LineStory, SaysWhatIsExpectedOfWhom) { Play(); }
INSTANTIATE_TEST_SUITE_P(ShowLine, LineStory, testing::ValuesIn(kLines), LineStory::Name);

// An operator who reads nothing but the line and does what it asks for. He remembers which square he names next, and
// judges his second answer wrong.
class LineReader {
 public:
  std::string ActFor(const std::string& line) {
    const auto asks = [&](const char* words) { return line.find(words) != std::string::npos; };
    if (asks("Choose a set")) return "choose the set";
    if (asks("Press Start")) return "start";
    if (asks("keys 1 to")) return "key 2";
    if (asks("judge with Y or N")) return ++verdicts_ == 2 ? "key n" : "key y";
    if (asks("press Next Player")) return "next player";
    if (asks("type letter and digit")) return std::string("key ") + static_cast<char>('a' + square_ % 3);
    if (asks("now the digit")) return std::string("key ") + static_cast<char>('1' + square_ / 3);
    if (asks("press Enter")) return ++square_, "key enter";
    return asks("or C") ? "key c" : "wait 1 s";
  }

 private:
  int square_ = 0;
  int verdicts_ = 0;
};

std::string LineIn(GamePlayer& game) {
  const std::string who = game.form().lblLineWho.Caption;
  return (who.empty() ? "" : who + " ") + game.form().lblLineExpected.Caption.Get();
}

// What he does by the line, and what it says then.
struct Read {
  const char* act;
  const char* line;
};

struct WholeGame {
  const char* setup;
  std::vector<Read> reads;
};

const WholeGame kWholeGames[] = {
    {"Challenge A, Finish Row, not started",
     {{"start", "PLAYER 1 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key a", "PLAYER 1 chooses a square: A typed, now the digit"},
      {"key 1", "PLAYER 1 chooses A1: press Enter to take it"},
      {"key enter", "PLAYER 1 takes A1, +50"},
      {"wait 1 s", "PLAYER 2 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key b", "PLAYER 2 chooses a square: B typed, now the digit"},
      {"key 1", "PLAYER 2 chooses B1: press Enter to take it"},
      {"key enter", "PLAYER 2 takes B1, +50"},
      {"wait 1 s", "PLAYER 3 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key c", "PLAYER 3 chooses a square: C typed, now the digit"},
      {"key 1", "PLAYER 3 chooses C1: press Enter to take it"},
      {"key enter", "PLAYER 3 takes C1, +50"},
      {"wait 1 s", "PLAYER 1 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key a", "PLAYER 1 chooses a square: A typed, now the digit"},
      {"key 2", "PLAYER 1 chooses A2: press Enter to take it"},
      {"key enter", "PLAYER 1 takes A2, +50"},
      {"wait 1 s", "PLAYER 2 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key b", "PLAYER 2 chooses a square: B typed, now the digit"},
      {"key 2", "PLAYER 2 chooses B2: press Enter to take it"},
      {"key enter", "PLAYER 2 takes B2, +50"},
      {"wait 1 s", "PLAYER 3 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key c", "PLAYER 3 chooses a square: C typed, now the digit"},
      {"key 2", "PLAYER 3 chooses C2: press Enter to take it"},
      {"key enter", "PLAYER 3 takes C2, +50"},
      {"wait 1 s", "PLAYER 1 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key a", "PLAYER 1 chooses a square: A typed, now the digit"},
      {"key 3", "PLAYER 1 chooses A3: press Enter to take it"},
      {"key enter", "PLAYER 1 takes A3, +100"},
      {"wait 1 s", "Game over: the winner stands for 5 s, then standby"}}},
    {"Challenge B, Finish Row, not started",
     {{"start", "PLAYER 1 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key a", "PLAYER 1 chooses a square: A typed, now the digit"},
      {"key 1", "PLAYER 1 chooses A1: press Enter to take it"},
      {"key enter", "PLAYER 1 takes A1, +50"},
      {"wait 1 s", "PLAYER 1 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key b", "PLAYER 1 chooses a square: B typed, now the digit"},
      {"key 1", "PLAYER 1 chooses B1: press Enter to take it"},
      {"key enter", "PLAYER 1 takes B1, +50"},
      {"wait 1 s", "PLAYER 1 chooses a square: click it, or type letter and digit; Next Player if wrong"},
      {"key c", "PLAYER 1 chooses a square: C typed, now the digit"},
      {"key 1", "PLAYER 1 chooses C1: press Enter to take it"},
      {"key enter", "PLAYER 1 takes C1, +100"},
      {"wait 1 s", "Game over: the winner stands for 5 s, then standby"}}},
    {"Trivia A, Finish Row, not started",
     {{"choose the set", "Press Start: the first question comes up"},
      {"start", "PLAYER 1 answers: judge with Y or N"},
      {"key y", "PLAYER 1 chooses a square: click it, or type letter and digit"},
      {"key a", "PLAYER 1 chooses a square: A typed, now the digit"},
      {"key 1", "PLAYER 1 chooses A1: press Enter to take it"},
      {"key enter", "PLAYER 1 takes A1, +50"},
      {"wait 1 s", "The next question comes by itself"},
      {"wait 1 s", "PLAYER 2 answers: judge with Y or N"},
      {"key n", "PLAYER 3 answers: judge with Y or N"},
      {"key y", "PLAYER 3 chooses a square: click it, or type letter and digit"},
      {"key b", "PLAYER 3 chooses a square: B typed, now the digit"},
      {"key 1", "PLAYER 3 chooses B1: press Enter to take it"},
      {"key enter", "PLAYER 3 takes B1, +50"},
      {"wait 1 s", "The next question comes by itself"},
      {"wait 1 s", "PLAYER 1 answers: judge with Y or N"},
      {"key y", "PLAYER 1 chooses a square: click it, or type letter and digit"},
      {"key c", "PLAYER 1 chooses a square: C typed, now the digit"},
      {"key 1", "PLAYER 1 chooses C1: press Enter to take it"},
      {"key enter", "PLAYER 1 takes C1, +50"},
      {"wait 1 s", "The next question comes by itself"},
      {"wait 1 s", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key a", "PLAYER 2 chooses a square: A typed, now the digit"},
      {"key 2", "PLAYER 2 chooses A2: press Enter to take it"},
      {"key enter", "PLAYER 2 takes A2, +50"},
      {"wait 1 s", "The next question comes by itself"},
      {"wait 1 s", "PLAYER 3 answers: judge with Y or N"},
      {"key y", "PLAYER 3 chooses a square: click it, or type letter and digit"},
      {"key b", "PLAYER 3 chooses a square: B typed, now the digit"},
      {"key 2", "PLAYER 3 chooses B2: press Enter to take it"},
      {"key enter", "PLAYER 3 takes B2, +50"},
      {"wait 1 s", "The next question comes by itself"},
      {"wait 1 s", "PLAYER 1 answers: judge with Y or N"},
      {"key y", "PLAYER 1 chooses a square: click it, or type letter and digit"},
      {"key c", "PLAYER 1 chooses a square: C typed, now the digit"},
      {"key 2", "PLAYER 1 chooses C2: press Enter to take it"},
      {"key enter", "PLAYER 1 takes C2, +50"},
      {"wait 1 s", "The next question comes by itself"},
      {"wait 1 s", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key a", "PLAYER 2 chooses a square: A typed, now the digit"},
      {"key 3", "PLAYER 2 chooses A3: press Enter to take it"},
      {"key enter", "PLAYER 2 takes A3, +50"},
      {"wait 1 s", "The next question comes by itself"},
      {"wait 1 s", "PLAYER 3 answers: judge with Y or N"},
      {"key y", "PLAYER 3 chooses a square: click it, or type letter and digit"},
      {"key b", "PLAYER 3 chooses a square: B typed, now the digit"},
      {"key 3", "PLAYER 3 chooses B3: press Enter to take it"},
      {"key enter", "PLAYER 3 takes B3, +100"},
      {"wait 1 s", "Game over: the winner stands for 5 s, then standby"}}},
    {"Trivia B, Finish Row, not started, user advances",
     {{"choose the set", "Press Start: the first question comes up"},
      {"start", "PLAYER 1 answers: judge with Y or N"},
      {"key y", "PLAYER 1 chooses a square: click it, or type letter and digit"},
      {"key a", "PLAYER 1 chooses a square: A typed, now the digit"},
      {"key 1", "PLAYER 1 chooses A1: press Enter to take it"},
      {"key enter", "PLAYER 1 takes A1, +50"},
      {"wait 1 s", "Press Continue, or C"},
      {"key c", "PLAYER 1 answers: judge with Y or N"},
      {"key n", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key b", "PLAYER 2 chooses a square: B typed, now the digit"},
      {"key 1", "PLAYER 2 chooses B1: press Enter to take it"},
      {"key enter", "PLAYER 2 takes B1, +50"},
      {"wait 1 s", "Press Continue, or C"},
      {"key c", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key c", "PLAYER 2 chooses a square: C typed, now the digit"},
      {"key 1", "PLAYER 2 chooses C1: press Enter to take it"},
      {"key enter", "PLAYER 2 takes C1, +50"},
      {"wait 1 s", "Press Continue, or C"},
      {"key c", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key a", "PLAYER 2 chooses a square: A typed, now the digit"},
      {"key 2", "PLAYER 2 chooses A2: press Enter to take it"},
      {"key enter", "PLAYER 2 takes A2, +50"},
      {"wait 1 s", "Press Continue, or C"},
      {"key c", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key b", "PLAYER 2 chooses a square: B typed, now the digit"},
      {"key 2", "PLAYER 2 chooses B2: press Enter to take it"},
      {"key enter", "PLAYER 2 takes B2, +50"},
      {"wait 1 s", "Press Continue, or C"},
      {"key c", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key c", "PLAYER 2 chooses a square: C typed, now the digit"},
      {"key 2", "PLAYER 2 chooses C2: press Enter to take it"},
      {"key enter", "PLAYER 2 takes C2, +100"},
      {"wait 1 s", "Game over: the winner stands for 5 s, then standby"}}},
    {"Trivia C, Finish Row, not started",
     {{"choose the set", "Press Start: the first question comes up"},
      {"start", "Players ring in: buzzers, keys 1 to 3, or by hand at the right"},
      {"key 2", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key a", "PLAYER 2 chooses a square: A typed, now the digit"},
      {"key 1", "PLAYER 2 chooses A1: press Enter to take it"},
      {"key enter", "PLAYER 2 takes A1, +50"},
      {"wait 1 s", "The next question comes by itself"},
      {"wait 1 s", "Players ring in: buzzers, keys 1 to 3, or by hand at the right"},
      {"key 2", "PLAYER 2 answers: judge with Y or N"},
      {"key n", "Players ring in: buzzers, keys 1 to 3, or by hand at the right"},
      {"key 2", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key b", "PLAYER 2 chooses a square: B typed, now the digit"},
      {"key 1", "PLAYER 2 chooses B1: press Enter to take it"},
      {"key enter", "PLAYER 2 takes B1, +50"},
      {"wait 1 s", "The next question comes by itself"},
      {"wait 1 s", "Players ring in: buzzers, keys 1 to 3, or by hand at the right"},
      {"key 2", "PLAYER 2 answers: judge with Y or N"},
      {"key y", "PLAYER 2 chooses a square: click it, or type letter and digit"},
      {"key c", "PLAYER 2 chooses a square: C typed, now the digit"},
      {"key 1", "PLAYER 2 chooses C1: press Enter to take it"},
      {"key enter", "PLAYER 2 takes C1, +100"},
      {"wait 1 s", "Game over: the winner stands for 5 s, then standby"}}},
};

TEST(LineReader, PlaysAWholeGameOfEachTypeFromTheLineAlone) {
  for (const WholeGame& whole : kWholeGames) {
    SCOPED_TRACE(whole.setup);
    GamePlayer game(whole.setup);
    LineReader reader;
    for (const Read& read : whole.reads) {
      const std::string before = LineIn(game);
      const std::string act = reader.ActFor(before);
      ASSERT_EQ(act, read.act) << before;
      game.Do(act);
      // He lets time pass until the line changes.
      for (int seconds = 1; seconds < 10 && act == "wait 1 s" && LineIn(game) == before; ++seconds) game.Do(act);
      ASSERT_EQ(LineIn(game), read.line) << act;
    }
    EXPECT_TRUE(game.form().lblWinner.Caption->starts_with("Game Over!")) << game.form().lblWinner.Caption.Get();
  }
}

TEST(ShowLine, SaysWhatAnUndoTakesBack) {
  GamePlayer game("Trivia B, user advances");
  game.Do("correct, claim B3");
  EXPECT_EQ(game.form().lblUndoNote.Caption.Get(), "PLAYER 1 takes B3, +50");
  game.Do("undo");
  EXPECT_EQ(game.form().lblUndoNote.Caption.Get().find("takes"), std::string::npos);
}

// The strips are lit longer than a press counts.
TEST(ShowLine, ALitStripOfTheRingInSaysWhyAPressDoesNotCount) {
  struct Case {
    const char* setup;
    const char* steps;
    const char* tip;
  };
  const Case cases[] = {
      {"Trivia C, user advances", "player 2 rings in, incorrect", ""},
      {"Trivia C, user advances", "hide", "Closed while the room sees standby"},
      {"Trivia C, user advances", "hide, show", ""},
      {"Trivia C, user advances", "skip", "Closed until the next question is up"},
      {"Trivia A, user advances", "incorrect", "Closed: PLAYER 2 answers"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.steps);
    GamePlayer game(c.setup);
    game.Do(c.steps);
    const Button& strip = game.form().btnBuzzer[0];
    EXPECT_TRUE(strip.Enabled);
    EXPECT_EQ(strip.ToolTipText.Get(), c.tip);
    game.Do("key 3");
    EXPECT_EQ(game.show().state.CurrentPlayer == 3, std::string(c.tip).empty());
  }
}

TEST(ShowLine, SaysSquaresAsTheyAreTyped) {
  EXPECT_EQ(SquareText(0, 0), "A1");
  EXPECT_EQ(SquareText(4, 2), "C5");
}

}  // namespace
}  // namespace pawnfield
