// Who has the turn and what it is worth, where play leaves the trodden path: verdicts and claims without a player,
// undo, the pause, the end, players who leave, keys and presses at the wrong moment.
#include "support/game_player.h"

namespace pawnfield {
namespace {

const WordStory kNobody[] = {
    {"A verdict without a player is refused", "Trivia B, Finish Row",
     "skip, wait 3, phase open, correct, phase open, question panel is shown, Correct is on, incorrect, phase open, "
     "says \"Nobody has the turn: press Next Player, or let a player ring in.\", next player, correct, claim A1, board "
     "200/000/000, scores 0/50/0"},
    {"A claim without a player is refused", "Trivia C, user advances",
     "player 1 rings in, correct, skip, click A1, board 000/000/000, says \"Nobody has the turn: let a player ring "
     "in.\", continue, question 2, phase open"},
    {"After a skip nobody is lit", "Trivia B",
     "player 1 lit, skip, nobody lit, wait 3, nobody lit, next player, player 2 lit"},
    {"Nobody is lit before the first ring-in", "Trivia C, not started",
     "choose the set, nobody lit, start, nobody lit, hide, show, nobody lit, player 3 rings in, player 3 lit"},
    {"After standby the player whose turn comes is lit", "Trivia A, user advances",
     "correct, claim A1, hide, show, player 2 lit"},
    {"After standby in a flash nobody is lit where players ring in", "Trivia C, user advances",
     "player 2 rings in, correct, click A1, hide, show, nobody lit"},
    {"Who rang in stays lit until his square is taken", "Trivia C, remotes",
     "remote 2, correct, player 2 lit, corner piece is O-100a.bmp, click A1, nobody lit, corner piece is Neutral.bmp"},
    {"Each question begins with nobody", "Trivia C, 7 questions",
     "skip, wait 3, player 1 rings in, correct, claim A1, phase notice, key 2, turn nobody, player 3 rings in, turn "
     "nobody, wait 3, phase open, buzzer 2 is enabled, key 2, turn 2"},
    {"No key passes the turn where players ring in", "Trivia C, user advances",
     "key ctrl n, turn nobody, key enter, turn nobody, key 2, correct, key ctrl n, key enter, turn 2, claim A1, key "
     "ctrl n, turn nobody, continue, key 3, turn 3"},
    {"Scores cleared between two questions leave the buzzers open", "Trivia C, remotes",
     "player 1 rings in, correct, claim A1, clear all scores, nobody lit, wait 3, remote 2, turn 2"},
    {"Scores cleared before a claim leave it to the player", "Trivia C",
     "player 2 rings in, correct, clear all scores, player 2 lit, claim A1, board 200/000/000"},
};

const WordStory kUndo[] = {
    {"The turn goes back in Trivia C", "Trivia C, remotes",
     "remote 2, correct, claim A1, undo, phase player 2 claims, player 2 lit, corner piece is O-100a.bmp, Continue is "
     "on, claim B1, board 020/000/000, scores 0/50/0"},
    {"The turn goes back in Trivia A", "Trivia A, 2 players",
     "correct, claim A1, next player, undo, undo, phase player 1 claims, player 1 lit, Continue is on"},
    {"The turn goes back in Trivia B", "Trivia B",
     "correct, claim A1, next player, undo, undo, phase player 1 claims, player 1 lit, Continue is on"},
    {"The turn goes back in Challenge A", "Challenge A",
     "claim A1, next player, undo, undo, phase player 1 claims, player 1 lit"},
    {"The turn goes back in Challenge B", "Challenge B",
     "claim A1, next player, undo, undo, phase player 1 claims, player 1 lit"},
    {"The pause goes back too", "Trivia A",
     "correct, claim A1, wait 2, undo, wait 60, question 1, phase player 1 claims, click B1, wait 3.8, question 1, "
     "wait 0.2, question 2, wait 60, question 2"},
    {"The operator may continue instead of a new claim", "Trivia C, remotes",
     "remote 2, correct, claim A1, undo, continue, question 2, phase open, remote 3, turn 3, click A1, board "
     "000/000/000"},
    {"The flash goes back too", "Challenge B",
     "claim A1, click B1, wait 0.4, undo, phase player 1 claims, wait 2, phase player 1 claims, board 100/000/000"},
    {"The bonus goes back too", "Challenge B",
     "claim A1, claim C3, claim A3, claim C1, click B2, wait 1, room bonus is shown, undo, room bonus is hidden, phase "
     "player 1 claims"},
    {"The next question goes back and leaves the pause", "Trivia A",
     "correct, claim A1, wait 3, question 2, undo, question 1, phase pause, wait 60, question 1, Continue is on"},
    {"A cleared board comes back", "Trivia A",
     "correct, claim A1, clear all scores, board 000/000/000, undo, board 100/000/000, scores 50/0/0"},
    {"Who has left is back first", "Challenge A",
     "claim A1, claim B1, claim C1, 2 players, undo, board 123/000/000, undo, turn 3, board 120/000/000"},
};

const WordStory kPause[] = {
    {"A claim after a skip has its whole pause", "Trivia A",
     "correct, skip, wait 2.5, click A1, wait 3.8, question 1, wait 0.2, question 2, wait 2.8, question 2"},
    {"The timer and Continue exclude each other after the notice", "Trivia A, 7 questions",
     "skip, wait 3, correct, pause of 5 s, claim A1, wait 3, phase pause, Continue is off, wait 2, question 3, wait "
     "20, question 3"},
    {"A skip at the notice passes nothing over", "Trivia A, 7 questions, user advances",
     "skip, continue, correct, claim A1, skip, phase notice, Continue is off, wait 3, continue, question 3"},
    {"The end of a game stops the pause", "Trivia C, remotes",
     "remote 1, correct, claim A1, end game, remote 2, key 2, turn nobody, wait 4, question 1, phase winner, room "
     "question panel is hidden, Continue is off, Skip is off, key ctrl s, key y, wait 20, phase idle, "
     "question panel is hidden"},
    {"A line that ends the game brings no question", "Trivia B, Finish Row, remotes",
     "correct, claim A1, wait 3, correct, claim A2, wait 3, correct, click A3, wait 4.5, question 3, phase winner, "
     "room question panel is hidden, Continue is off, Correct is hidden"},
    {"No square is taken after the winner", "Trivia B, user advances",
     "correct, claim A1, continue, correct, keys b2, end game, key enter, click C3, board 100/000/000, scores 50/0/0"},
};

const WordStory kPlayers[] = {
    {"The third is shut out of a game of two", "Trivia C, remotes, not started",
     "choose the set, 2 players, start, key 3, turn nobody, says Player 3 isn't in this game of 2 players., remote 3, "
     "turn nobody, btnSelectPlayer(2) is off, key 7, turn nobody, says Player 7 isn't in this game of 2 players., key "
     "3, says Player 7 isn't in this game of 2 players., key 0, key ^^, turn nobody, buzzer 3 is disabled, key 2, turn "
     "2"},
    {"The pad of the third is shut out too", "Trivia C, pads, not started",
     "choose the set, 2 players, start, pad 3, turn nobody, says Player 3 isn't in this game of 2 players., pad 2, "
     "turn 2"},
    {"The third who leaves passes the turn on", "Trivia A",
     "incorrect, incorrect, turn 3, 2 players, phase player 1 answers"},
    {"The third who leaves opens his question again", "Trivia C, remotes",
     "player 3 rings in, room cover is shown, 2 players, phase open, nobody lit, room cover is hidden, Correct is "
     "hidden, remote 1, turn 1"},
    {"The third who leaves takes no square", "Trivia C",
     "player 3 rings in, correct, 2 players, phase pause, wait 3, question 2, phase open"},
};

const WordStory kKeys[] = {
    {"A square typed at the first question takes nothing", "Trivia C",
     "keys b2, key enter, entry is empty, turn 2, board 000/000/000, question panel is shown, room question panel is "
     "shown"},
    {"A click at the first question takes nothing", "Trivia A",
     "click A1, board 000/000/000, question panel is shown, room question panel is shown"},
    {"A skipped first question opens no square", "Trivia A, user advances", "skip, click A1, board 000/000/000"},
    {"The letter of an open square does not continue", "Trivia A, user advances",
     "correct, claim A1, undo, key c, entry is C, question 1"},
    {"A sound question is open to remotes", "Trivia C, picture second, remotes, user advances",
     "skip, continue, skip, continue, sound panel is shown, remote 2, turn 2"},
    {"A sound question is open to digit keys", "Trivia C, picture second, user advances",
     "skip, continue, skip, continue, sound panel is shown, key 2, turn 2"},
    {"A sound question is open to pads", "Trivia C, picture second, pads, user advances",
     "skip, continue, skip, continue, sound panel is shown, pad 2, turn 2"},
    {"A question that nobody holds is open to every way in Trivia B", "Trivia B, user advances",
     "skip, continue, phase open, player 3 rings in, phase player 3 answers, incorrect, turn 1"},
};

using Nobody = WordStoryTest;
using Undo = WordStoryTest;
using Pause = WordStoryTest;
using Players = WordStoryTest;
using WrongMoment = WordStoryTest;
TEST_P(Nobody, HasTheTurn) { Play(); }
TEST_P(Undo, TakesAClaimBack) { Play(); }
TEST_P(Pause, PassesNoQuestionOver) { Play(); }
TEST_P(Players, BeyondTheGameStayOut) { Play(); }
TEST_P(WrongMoment, ChangesNothing) { Play(); }
INSTANTIATE_TEST_SUITE_P(Turns, Nobody, testing::ValuesIn(kNobody), WordStoryTest::Name);
INSTANTIATE_TEST_SUITE_P(Turns, Undo, testing::ValuesIn(kUndo), WordStoryTest::Name);
INSTANTIATE_TEST_SUITE_P(Turns, Pause, testing::ValuesIn(kPause), WordStoryTest::Name);
INSTANTIATE_TEST_SUITE_P(Turns, Players, testing::ValuesIn(kPlayers), WordStoryTest::Name);
INSTANTIATE_TEST_SUITE_P(Turns, WrongMoment, testing::ValuesIn(kKeys), WordStoryTest::Name);

}  // namespace
}  // namespace pawnfield
