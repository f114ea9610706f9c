// The seconds to answer in, as they run on both screens.
#include "data/game_state.h"
#include "forms/main_form.h"
#include "show/phase.h"
#include "support/operator_words.h"

namespace pawnfield {
namespace {

const WordStory kClocks[] = {
    {"Without a time nothing runs", "Trivia C, user advances",
     "player 2 rings in, btnAnswerClock=off, wait 11, lblAnswerClock=-, lblAnswerClock'=-, phase "
     "player 2 answers"},
    {"A ring in starts the seconds on both screens", "Trivia C, 3 s to answer, user advances",
     "lblAnswerClock=-, player 2 rings in, lblAnswerClock=3, lblAnswerClock'=3, wait 0.999, lblAnswerClock'=3, "
     "wait 0.001, lblAnswerClock=2, lblAnswerClock'=2, wait 1, lblAnswerClock'=1"},
    {"At the end it sounds and says so and judges nobody", "Trivia C, 3 s to answer, user advances, penalty",
     "player 2 rings in, wait 2.999, event=RingsIn.mp3, wait 0.001, event=TimeUp.Wav, lblAnswerClock'=0, "
     "says \"Time is up: PLAYER 2\", wait 10, event=TimeUp.Wav, phase player 2 answers, scores 0/0/0, correct, "
     "lblAnswerClock'=-, claim A1, scores 0/50/0"},
    {"Each player who rings in has the whole time", "Trivia C, 5 s to answer, user advances",
     "player 1 rings in, wait 3, lblAnswerClock'=2, incorrect, lblAnswerClock=-, lblAnswerClock'=-, wait 1, "
     "player 3 rings in, wait 3, lblAnswerClock'=2, tmrAnswerClock=on"},
    {"A question that is given to another player begins his time", "Trivia C, 5 s to answer, user advances",
     "player 1 rings in, wait 3, player 2 rings in, lblAnswerClock'=5"},
    {"A remote's press starts it as a hand does", "Trivia C, remotes, 5 s to answer, user advances",
     "remote 2, turn 2, lblAnswerClock'=5, btnAnswerClock=on"},
    {"In Trivia A the operator starts it and each player's anew", "Trivia A, 3 s to answer, user advances",
     "wait 5, lblAnswerClock'=-, btnAnswerClock=on, start the clock, wait 2, lblAnswerClock'=1, start the clock, "
     "lblAnswerClock'=3, wait 2, incorrect, lblAnswerClock'=-, wait 5, event=Incorrect.mp3, start the clock, "
     "lblAnswerClock'=3, wait 3, says \"Time is up: PLAYER 2\""},
    {"A pass of the turn takes it down", "Trivia B, 3 s to answer, user advances",
     "start the clock, next player, lblAnswerClock=-, tmrAnswerClock=off, wait 5, says \"Player 2 Selected!\""},
    {"A skip takes it down", "Trivia C, 3 s to answer, user advances",
     "player 1 rings in, skip, lblAnswerClock'=-, wait 5, event=Skip.Wav"},
    {"The end of the game takes it down", "Trivia C, 3 s to answer, user advances",
     "player 1 rings in, correct, claim A1, continue, player 1 rings in, end game, lblAnswerClock'=-, "
     "tmrAnswerClock=off"},
    {"A reset takes it down", "Trivia C, 3 s to answer, user advances",
     "player 1 rings in, correct, claim A1, continue, player 1 rings in, reset, lblAnswerClock'=-, "
     "tmrAnswerClock=off"},
    {"Standby leaves it running", "Trivia C, 5 s to answer, user advances",
     "player 1 rings in, hide, wait 3, show, lblAnswerClock'=2"},
    {"A challenge has none", "Challenge A, 5 s to answer",
     "btnAnswerClock=off, claim A1, btnAnswerClock=off, wait 6, lblAnswerClock=-"},
};

using AnswerClockStory = WordStoryTest;
TEST_P(AnswerClockStory, IsAsTold) { Play(); }
INSTANTIATE_TEST_SUITE_P(Engine, AnswerClockStory, testing::ValuesIn(kClocks), WordStoryTest::Name);

TEST(AnswerClock, IsTheAnsweringPlayersAndHasHisColour) {
  GamePlayer player("5 3 3 full m TimedResponse=5");
  const Color colors[] = {0x706BFF, 0x4DD8FF, 0x8CE046};
  for (int number = 1; number <= 3; ++number) {
    player.Play("r" + std::to_string(number) + " >1000");
    EXPECT_EQ(RunningAnswerClock(player.show()), (AnswerClock{number, 4}));
    EXPECT_EQ(player.form().lblAnswerClock.ForeColor, colors[number - 1]);
    player.Play("-");
    EXPECT_EQ(RunningAnswerClock(player.show()), AnswerClock{});
  }
}

}  // namespace
}  // namespace pawnfield
