// What the console offers and locks in each game type and phase.
#include "support/game_player.h"

namespace pawnfield {
namespace {

const WordStory kStates[] = {
    {"After reset of Challenge A", "Challenge A",
     "claim A1, reset, standby is shown, offers Start and PlayMode, options GameType(0)"},
    {"After reset of Challenge B", "Challenge B",
     "claim A1, reset, standby is shown, offers Start and PlayMode, options GameType(0)"},
    {"After reset of Trivia A", "Trivia A, user advances",
     "correct, claim A1, reset, standby is shown, offers SelectGame and PlayMode, options Animation and "
     "IncorrectPenalty and TimedResponse and AutoContinue and List and SelectPlayer(0) and SelectPlayer(2) and "
     "GameType(0)"},
    {"After reset of Trivia B", "Trivia B, user advances",
     "correct, claim A1, reset, standby is shown, offers SelectGame and PlayMode, options Animation and "
     "IncorrectPenalty and TimedResponse and AutoContinue and List and SelectPlayer(0) and SelectPlayer(2) and "
     "GameType(0)"},
    {"After reset of Trivia C", "Trivia C, 2 players, user advances",
     "player 1 rings in, correct, claim A1, reset, standby is shown, offers SelectGame and PlayMode, options Animation "
     "and HideQuestion and IncorrectPenalty and TimedResponse and AutoContinue and List and SelectPlayer(0) and "
     "GameType(0)"},
    {"The options are free again behind the winner", "Challenge B, 2 players, Finish Row",
     "claim A1, grid choice is off, claim B1, claim C1, wait 6 s, standby is shown, grid choice is shown, offers Start "
     "and PlayMode, options GameType(0)"},
    {"A change of type while idle offers the options of the new one", "Challenge A, 2 players, not started",
     "offers Start and PlayMode, choose Trivia A, offers SelectGame and PlayMode, choose entry 0 of cboList, pause of "
     "3 s, choose Challenge B, offers Start and PlayMode"},
    {"Trivia C offers the list again after a challenge", "Challenge A, not started",
     "cboList is disabled, choose Trivia C, cboList is enabled"},
    {"The hand has a piece after standby in a pause that ends by itself", "Trivia A",
     "correct, claim A1, hide, show, cursor is CursorO.png"},
    {"The hand has no piece after standby while the operator may continue", "Trivia A, user advances",
     "correct, claim A1, hide, show, cursor is CursorNeutral.png"},
    {"A challenge begins with the next player alone", "Challenge A, 2 players",
     "offers StandbyMode and NextPlayer and Undo"},
    {"The first claim of a challenge offers undo and the end", "Challenge A, 2 players",
     "claim A1, offers StandbyMode and NextPlayer and Undo and Reset and EndGame"},
    {"Standby offers to go on", "Challenge A, 2 players",
     "claim A1, hide, offers PlayMode and NextPlayer and Undo and Reset and EndGame"},
    {"No game ends in standby", "Challenge A, 2 players",
     "claim A1, hide, end game, winner is hidden, show, end game, winner is shown"},
    {"The winner leaves standby alone", "Challenge A, 2 players", "claim A1, end game, offers StandbyMode and Undo"},
    {"A question offers its verdicts", "Trivia A, 2 players, user advances",
     "offers SelectGame and StandbyMode and NextPlayer and SkipQuestion and Undo and QuestionCorrect"},
    {"A right answer has no second verdict", "Trivia A, 2 players, user advances",
     "correct, offers SelectGame and StandbyMode and NextPlayer and SkipQuestion and Undo"},
    {"A claim offers to continue and to undo", "Trivia A, 2 players, user advances",
     "correct, claim A1, offers SelectGame and StandbyMode and NextPlayer and Continue and SkipQuestion and Undo and "
     "Reset and EndGame"},
    {"The next question offers the end too", "Trivia A, 2 players, user advances",
     "correct, claim A1, continue, offers SelectGame and StandbyMode and NextPlayer and SkipQuestion and Undo and "
     "Reset "
     "and EndGame and QuestionCorrect"},
    {"A turn that goes on by itself offers no Continue", "Trivia A, 2 players",
     "correct, claim A1, offers SelectGame and StandbyMode and NextPlayer and SkipQuestion and Undo and Reset and "
     "EndGame"},
    {"No verdict is offered before a ring-in", "Trivia C, 2 players, user advances",
     "offers SelectGame and StandbyMode and SkipQuestion and Undo"},
    {"A ring-in offers the verdicts", "Trivia C, 2 players, user advances",
     "player 1 rings in, offers SelectGame and StandbyMode and SkipQuestion and Undo and QuestionCorrect"},
    {"A wrong answer waits for the next ring-in", "Trivia C, 2 players, user advances",
     "player 1 rings in, incorrect, offers SelectGame and StandbyMode and SkipQuestion and Undo"},
    {"The options are locked before the first claim", "Trivia C, 2 players, user advances",
     "options List and SelectPlayer(0)"},
    {"A right answer opens the options", "Trivia C, 2 players, user advances",
     "player 1 rings in, incorrect, player 1 rings in, correct, options Animation and HideQuestion and "
     "IncorrectPenalty and TimedResponse and AutoContinue and List and SelectPlayer(0) and GameType(0)"},
    {"A third player who leaves is gone at once", "Challenge A, 5x5",
     "claim A1, claim E5, hide, show, turn 3, 2 players, turn 1, third score panel is hidden, room score box 3 is "
     "hidden"},
    {"A smaller grid is seen at once", "Challenge A, 5x5",
     "claim A1, reset, choose Challenge A, wait 2 s, 3x3 board, board 000/000/000, D1 is hidden, room imgD is hidden, "
     "img4 is hidden, turn 1"},
    {"A running type that is chosen again asks nothing", "Challenge B, 2 players",
     "claim A1, choose Challenge B, board 100/000/000"},
    {"A change of type that is cancelled changes nothing", "Challenge B, 2 players",
     "claim A1, choose Trivia B and cancel, choice of Challenge B is 1, choice of Trivia B is 0, board 100/000/000, "
     "scores 50/0/0"},
    {"A change of type that is confirmed ends the game", "Challenge B, 2 players",
     "claim A1, choose Trivia B and reset, choice of Trivia B is 1, board 000/000/000, standby is shown, Start is off"},
    {"The grid stays locked in a running game whatever was clicked", "Challenge B, 2 players",
     "grid choice is off, claim A1, choose Challenge B, wait 4 s, grid choice is off, choose Trivia B and cancel, wait "
     "4 s, grid choice is off, tmrArrowsTimer is off, reset, wait 2 s, grid choice is shown"},
    {"A game started while the winner stands is kept", "Challenge B, 2 players",
     "claim A1, end game, room winner is shown, choose Challenge B, room winner is hidden, standby is shown, start, "
     "claim B2, wait 8 s, scores 50/0/0, board 000/010/000, standby is hidden"},
    {"The turn has its colour", "Challenge B",
     "next player, next player, lblP3Score colour is 255, lblP1Score colour is 65535, entry colour is 65280"},
    {"The status text skips the step from three to one", "Challenge B",
     "next player, next player, says Player 3 Selected!, next player, turn 1, says Player 3 Selected!"},
    {"The status text names the step from two to one", "Challenge B, 2 players",
     "next player, next player, turn 1, says Player 1 Selected!"},
};

using ConsoleStates = WordStoryTest;
TEST_P(ConsoleStates, OfferWhatCounts) { Play(); }
INSTANTIATE_TEST_SUITE_P(Stories, ConsoleStates, testing::ValuesIn(kStates), WordStoryTest::Name);

TEST(Console, ALoadThatIsCancelledOrRefusedLeavesTheGameAndItsQuestionAsTheyWere) {
  GamePlayer player("Trivia A, 2 players, user advances");
  ScriptedDialogs& dialogs = player.fixture().sim.dialogs;
  const std::string before =
      ", scores 50/0/0, board 100/000/000, question 2, room question panel is shown, question text is Question 2?, "
      "Correct is on, choice of Challenge A is disabled, room standby is hidden";
  dialogs.ExpectFile("");
  player.Do("correct, claim A1, continue, press Select Game" + before);
  EXPECT_EQ(dialogs.FileRequests().back().Filter, "Game Sets(*.txt)|*.txt");
  EXPECT_EQ(dialogs.FileRequests().back().InitialFolder, "C:\\Pawnfield\\Trivia Sets");
  dialogs.ExpectFile("C:\\Pawnfield\\Trivia Sets\\Gone.txt");
  player.Do("expect Procedure: LoadGameSet, press Select Game" + before);
  player.fixture().sim.files.Remove("C:\\Pawnfield\\Trivia Sets\\Long.txt");
  player.Do("expect Procedure: LoadGameSet, choose the set from the list" + before +
            ", correct, choice of Challenge A is enabled, claim B2, scores 50/50/0");
  player.fixture().WriteNumberedSet("Long", 30);
  dialogs.ExpectFile("C:\\Pawnfield\\Trivia Sets\\Long.txt");
  player.Do("press Select Game, Start is on, room standby is hidden");
  EXPECT_EQ(player.show().NumGameQuestions, 30);
}

}  // namespace
}  // namespace pawnfield
