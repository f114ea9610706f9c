// The seconds to answer in, as they run on both screens.
#include "data/game_state.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "outward/page_views.h"
#include "show/phase.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const WordStory kClocks[] = {
    {"Without a time nothing runs", "Trivia C, user advances",
     "player 2 rings in, clock button is off, wait 11, answer clock is hidden, room answer clock is hidden, phase "
     "player 2 answers"},
    {"A ring in starts the seconds on both screens", "Trivia C, 3 s to answer, user advances",
     "answer clock is hidden, player 2 rings in, answer clock is 3, room answer clock is 3, wait 0.999, room answer "
     "clock is 3, wait 0.001, answer clock is 2, room answer clock is 2, wait 1, room answer clock is 1"},
    {"At the end it sounds and says so and judges nobody", "Trivia C, 3 s to answer, user advances, penalty",
     "player 2 rings in, wait 2.999, event sound is RingsIn.mp3, wait 0.001, event sound is TimeUp.Wav, room answer "
     "clock is 0, says \"Time is up: PLAYER 2\", wait 10, event sound is TimeUp.Wav, phase player 2 answers, scores "
     "0/0/0, correct, room answer clock is hidden, claim A1, scores 0/50/0"},
    {"Each player who rings in has the whole time", "Trivia C, 5 s to answer, user advances",
     "player 1 rings in, wait 3, room answer clock is 2, incorrect, answer clock is hidden, room answer clock is "
     "hidden, wait 1, player 3 rings in, wait 3, room answer clock is 2, tmrAnswerClock is on"},
    {"A question that is given to another player begins his time", "Trivia C, 5 s to answer, user advances",
     "player 1 rings in, wait 3, player 2 rings in, room answer clock is 5"},
    {"A remote's press starts it as a hand does", "Trivia C, remotes, 5 s to answer, user advances",
     "remote 2, turn 2, room answer clock is 5, clock button is on"},
    {"In Trivia A the operator starts it and each player's anew", "Trivia A, 3 s to answer, user advances",
     "wait 5, room answer clock is hidden, clock button is on, start the clock, wait 2, room answer clock is 1, start "
     "the clock, room answer clock is 3, wait 2, incorrect, room answer clock is hidden, wait 5, event sound is "
     "Incorrect.mp3, start the clock, room answer clock is 3, wait 3, says \"Time is up: PLAYER 2\""},
    {"A pass of the turn takes it down", "Trivia B, 3 s to answer, user advances",
     "start the clock, next player, answer clock is hidden, tmrAnswerClock is off, wait 5, says \"Player 2 "
     "Selected!\""},
    {"A skip takes it down", "Trivia C, 3 s to answer, user advances",
     "player 1 rings in, skip, room answer clock is hidden, wait 5, event sound is Skip.Wav"},
    {"The end of the game takes it down", "Trivia C, 3 s to answer, user advances",
     "player 1 rings in, correct, claim A1, continue, player 1 rings in, end game, room answer clock is hidden, "
     "tmrAnswerClock is off"},
    {"A reset takes it down", "Trivia C, 3 s to answer, user advances",
     "player 1 rings in, correct, claim A1, continue, player 1 rings in, reset, room answer clock is hidden, "
     "tmrAnswerClock is off"},
    {"Standby leaves it running", "Trivia C, 5 s to answer, user advances",
     "player 1 rings in, hide, wait 3, show, room answer clock is 2"},
    {"A challenge has none", "Challenge A, 5 s to answer",
     "clock button is off, claim A1, clock button is off, wait 6, answer clock is hidden"},
};

using AnswerClockStory = WordStoryTest;
TEST_P(AnswerClockStory, CountsForWhoAnswers) { Play(); }
INSTANTIATE_TEST_SUITE_P(Engine, AnswerClockStory, testing::ValuesIn(kClocks), WordStoryTest::Name);

TEST(AnswerClock, IsTheAnsweringPlayersAndHasHisColour) {
  GamePlayer player("Trivia C, user advances, 5 s to answer");
  const Color colors[] = {0x706BFF, 0x4DD8FF, 0x8CE046};
  for (int number = 1; number <= 3; ++number) {
    player.Do("player " + std::to_string(number) + " rings in, wait 1 s");
    EXPECT_EQ(RunningAnswerClock(player.show()), (AnswerClock{number, 4}));
    EXPECT_EQ(player.form().lblAnswerClock.ForeColor, colors[number - 1]);
    EXPECT_EQ(player.fixture().audience().lblAnswerClock.ForeColor, colors[number - 1]);
    player.Do("incorrect");
    EXPECT_EQ(RunningAnswerClock(player.show()), AnswerClock{});
  }
}

TEST(AnswerClock, RunsOnTheHostsPageAndTheScoresToo) {
  GamePlayer player("Trivia C, user advances, 5 s to answer");
  const auto clocks = [&] {
    std::string seen;
    for (const std::string& view : {HostView(player.show()), ScoresView(player.show())}) {
      const std::size_t at = view.find("\"clock\":\"") + 9;
      seen += view.substr(at, view.find('"', at) - at) + " ";
    }
    return seen;
  };
  EXPECT_EQ(clocks(), "  ");
  player.Do("player 1 rings in, wait 3 s");
  EXPECT_EQ(clocks(), "0:02 0:02 ");
  player.Do("wait 2 s");
  EXPECT_EQ(clocks(), "0:00 0:00 ");
  player.Do("incorrect");
  EXPECT_EQ(clocks(), "  ");
}

}  // namespace
}  // namespace pawnfield
