// Verdicts, points, skip and undo, by presses on the console.
#include "forms/main_form.h"
#include "presentation/both_screens.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

TEST(Judging, ScoreButtonsRefuseWhatLeavesTheLimitsAsAWhole) {
  struct Case {
    const char* start;
    const char* step;
    const char* after;
  };
  const Case cases[] = {
      {"0", "gains 100000", "100000"},
      {"0", "loses 100000", "-100000"},
      {"999999", "gains 1", "999999"},
      {"999998", "gains 1", "999999"},
      {"-999999", "loses 1", "-999999"},
      {"-999998", "loses 1", "-999999"},
      {"950000", "gains 100000", "950000"},
      {"950000", "gains 10000", "960000"},
      {"-950000", "loses 100000", "-950000"},
      {"40", "loses 100", "-60"},
      {"7", "gains 10", "17"},
      {"no number", "gains 1000", "1000"},
      {"1000001", "loses 1", "1000000"},
  };
  GamePlayer player("Challenge A, 2 players, Finish Row");
  for (const Case& c : cases) {
    SetScore(player.show(), 2, c.start);
    player.Do(std::string("player 2 ") + c.step + ", scores 0/" + c.after + "/0");
  }
}

const WordStory kJudging[] = {
    {"Skip keeps the turn in Trivia A", "Trivia A, Finish Row",
     "correct, claim A1, wait 3 s, incorrect, turn 3, skip, turn 3, question 2, wait 3 s, question 3, question panel "
     "is shown"},
    {"Skip takes the turn in Trivia B", "Trivia B, Finish Row",
     "correct, claim A1, wait 3 s, incorrect, turn 2, skip, turn nobody, question 2, wait 3 s, question 3, question "
     "panel is shown"},
    {"Skip lifts the cover in Trivia C", "Trivia C, Finish Row",
     "player 2 rings in, turn 2, room cover is shown, skip, turn nobody, room cover is hidden, wait 3 s, question 2, "
     "question panel is shown"},
    {"Undo takes back the bonus of a line", "Challenge A, 2 players",
     "claim A1, claim A2, claim B1, claim B2, claim C1, undo, scores 100/100/0, turn 1"},
    {"Undo gives the turn back to player 1", "Challenge A", "claim A1, undo, scores 0/0/0, turn 1"},
    {"Undo gives the turn back to player 3", "Challenge A",
     "claim A1, claim B1, claim C1, undo, scores 50/50/0, turn 3"},
    {"Undo leaves the turn in Challenge B", "Challenge B",
     "claim A1, next player, claim B1, undo, scores 50/0/0, turn 2"},
    {"Undo gives the turn back in Trivia A", "Trivia A, 2 players",
     "correct, claim A1, wait 3 s, correct, claim B1, undo, scores 50/0/0, turn 2"},
    {"Undo leaves the turn in Trivia B", "Trivia B, 2 players", "correct, claim A1, undo, scores 0/0/0, turn 1"},
    {"Undo takes the score back in Trivia C", "Trivia C, 2 players",
     "player 2 rings in, correct, claim A1, undo, scores 0/0/0, turn 2"},
    {"A claim of no points is undone too", "Challenge A, 2 players, worthless squares",
     "claim B2, undo, scores 0/0/0, turn 1, board 000/000/000"},
    {"A verdict sounds", "Trivia A, 2 players", "incorrect, event sound is Incorrect.mp3, verdict is hidden"},
    {"An animated verdict stands four and a half seconds", "Trivia A, 2 players, animated",
     "correct, verdict sound is Correct4swf.mp3, verdict is shown, room verdict text is Correct!, wait 200 ms, room "
     "verdict text is hidden, wait 4299 ms, verdict is shown, verdict text is Correct!, wait 1 ms, room verdict is "
     "hidden"},
    {"A verdict shows its picture to the room", "Trivia A, 2 players, animated",
     "correct, room verdict picture is Correct.jpg"},
    {"A wrong verdict shows its own picture to the room", "Trivia A, 2 players, animated",
     "incorrect, room verdict picture is Incorrect.jpg"},
    {"The room reads Correct in green", "Trivia A, 2 players, animated", "correct, room verdict text ink is 65280"},
    {"The room reads Incorrect in red", "Trivia A, 2 players, animated", "incorrect, room verdict text ink is 255"},
    {"A second verdict picture stands its whole time too", "Trivia A, 2 players, animated",
     "incorrect, wait 3 s, incorrect, wait 4499 ms, verdict is shown, room verdict is shown, wait 1 ms, verdict is "
     "hidden, room verdict is hidden"},
    {"Undo takes the score back on every display", "Challenge A, 2 players",
     "claim A1, undo, lblP1Score is 0, lblPlayer1Score is 0, room score 1 is 0"},
    {"A pawn lets the verdict sound on", "Trivia A, 2 players",
     "correct, event sound is Correct.mp3, wait 450 ms, click A1, event sound is Correct.mp3, verdict sound is "
     "Pawn.Wav"},
    {"A pawn lets the animated verdict sound on", "Trivia A, 2 players, animated",
     "correct, verdict sound is Correct4swf.mp3, wait 450 ms, click A1, verdict sound is Correct4swf.mp3, event sound "
     "is Pawn.Wav"},
    {"The value of a square and a line changes at once", "Challenge B, 2 players",
     "claim A1, squares worth 100, lines worth 20, claim B1, claim C1, scores 270/0/0"},
};

using JudgingStory = WordStoryTest;
TEST_P(JudgingStory, GivesAndTakesBack) { Play(); }
INSTANTIATE_TEST_SUITE_P(Judging, JudgingStory, testing::ValuesIn(kJudging), WordStoryTest::Name);

TEST(Judging, AnIncorrectVerdictCostsOnlyWhoHoldsTheQuestion) {
  GamePlayer player("Trivia C, penalty");
  player.Do("player 2 rings in, room cover is shown, room answering player is PLAYER 2, buzzer 1 is disabled");
  player.form().lblP2Score.Caption = "-999950";
  player.Do(
      "incorrect, scores 0/-1000050/0, turn nobody, room cover is hidden, Correct is hidden, question panel is shown");
  player.Do("buzzer 1 is enabled, buzzer 2 is enabled, buzzer 3 is enabled");
}

}  // namespace
}  // namespace pawnfield
