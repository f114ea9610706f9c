// The phase after each step of a game of every type, and that standby is none.
#include "show/phase.h"

#include "support/game_player.h"

namespace pawnfield {
namespace {

const WordStory kPhases[] = {
    {"A challenge goes from claim to claim", "Challenge A, not started",
     "phase idle, start, phase player 1 claims, click A1, phase player 1 flashes, wait 0.9, phase player 2 claims, "
     "hide, phase player 2 claims, show, phase player 2 claims, undo, phase player 1 claims, claim A1, end game, phase "
     "winner, wait 5, phase idle"},
    {"A bonus stands before the next claim of a challenge", "Challenge B, Full Board",
     "claim A1, claim C3, claim A3, claim C1, click B2, phase player 1 flashes, wait 0.9, phase bonus, wait 3, phase "
     "player 1 claims"},
    {"Trivia A goes from player to player", "Trivia A, not started",
     "phase idle, choose the set, phase ready, start, phase player 1 answers, incorrect, phase player 2 answers, "
     "correct, phase player 2 claims, click A1, phase player 2 flashes, wait 0.9, phase pause, wait 3, phase player 3 "
     "answers, hide, phase player 3 answers, show, skip, phase pause, wait 3, phase player 3 answers, reset, phase "
     "idle"},
    {"A skip in Trivia B leaves a question that is open", "Trivia B",
     "phase player 1 answers, skip, phase pause, wait 3, phase open, next player, phase player 2 answers, correct, "
     "phase player 2 claims, claim A1, phase pause, end game, phase winner"},
    {"Trivia C goes from ring-in to ring-in", "Trivia C, user advances",
     "phase open, player 2 rings in, phase player 2 answers, incorrect, phase open, player 3 rings in, correct, phase "
     "player 3 claims, click A1, phase player 3 flashes, wait 0.9, phase pause, continue, phase open, end game, phase "
     "winner"},
    {"A picture and a sound are questions like any other", "Trivia C, picture second, user advances",
     "skip, continue, picture panel is shown, phase open, player 1 rings in, phase player 1 answers, skip, continue, "
     "sound panel is shown, phase open, player 2 rings in, phase player 2 answers"},
    {"The notice is a phase of its own", "Trivia C, 7 questions, user advances",
     "skip, continue, player 1 rings in, correct, claim A1, phase notice, wait 3, phase pause"},
};

using PhaseStory = WordStoryTest;
TEST_P(PhaseStory, IsWhatTheShowWaitsFor) { Play(); }
INSTANTIATE_TEST_SUITE_P(Show, PhaseStory, testing::ValuesIn(kPhases), WordStoryTest::Name);

}  // namespace
}  // namespace pawnfield
