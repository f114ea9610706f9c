// What the tip of a control that can't be pressed says, in each game type and phase.
#include "engine/why_not.h"

#include "forms/main_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

struct Tip {
  const char* setup;
  const char* steps;
  const char* control;
  const char* says;
};

const Tip kTips[] = {
    {"Trivia A, not started", "", "btnStart", "Choose a set first"},
    {"Trivia A", "", "btnStart", "The game runs already"},
    {"Trivia A, not started", "", "btnContinue", "No game runs: choose a set and press Start"},
    {"Challenge A, not started", "", "btnNextPlayer", "No game runs: press Start"},
    {"Trivia A, user advances", "", "btnContinue", "A question is up: judge or skip it first"},
    {"Trivia A, user advances", "correct", "btnContinue", "A square is to be taken first"},
    {"Trivia A", "correct, claim A1", "btnContinue", "The next question comes by itself"},
    {"Challenge A", "", "btnContinue", "A challenge has no questions to continue with"},
    {"Challenge A", "", "btnSkipQuestion", "A challenge has no questions to skip"},
    {"Challenge A", "", "cboList", "Challenges are played without a set"},
    {"Trivia A", "", "btnPlayMode", "The room sees the board already"},
    {"Trivia A", "hide", "btnStandbyMode", "The room sees standby already"},
    {"Trivia C", "", "btnNextPlayer", "Players ring in: nobody is next"},
    {"Trivia C, not started", "", "btnUndo", "No game runs: choose a set and press Start"},
    {"Trivia C", "", "btnReset", "Wait until the first square is taken"},
    {"Trivia C, not started", "", "btnEndGame", "No game runs: choose a set and press Start"},
    {"Trivia C, 2 players", "", "btnSelectPlayer(2)", "Player 3 isn't in this game"},
    {"Trivia C", "", "optGridControl(0)", "The grid is locked from Start to the end of a game"},
    {"Trivia C", "", "chkAnimation", "Locked while a question is up"},
    {"Trivia C", "", "optGameType(0)", "Locked while a question is up"},
    {"Challenge A, not started", "", "cboAutoContinue", "This game type doesn't have it"},
};

TEST(WhyNot, SaysWhyAControlCanNotBePressed) {
  for (const Tip& tip : kTips) {
    SCOPED_TRACE(std::string(tip.setup) + ": " + tip.steps + ", " + tip.control);
    GamePlayer game(tip.setup);
    if (*tip.steps != '\0') game.Do(tip.steps);
    const Control* control = game.form().Find(tip.control);
    ASSERT_NE(control, nullptr);
    EXPECT_FALSE(control->IsReachable());
    EXPECT_EQ(WhyNot(game.show(), *control), tip.says);
  }
}

TEST(WhyNot, IsSilentOfWhatCanBePressed) {
  GamePlayer game("Trivia A, user advances");
  for (const char* name : {"btnSkipQuestion", "btnNextPlayer", "btnStandbyMode", "btnQuestionCorrect"}) {
    const Control* control = game.form().Find(name);
    ASSERT_TRUE(control->IsReachable()) << name;
    EXPECT_EQ(WhyNot(game.show(), *control), "") << name;
  }
}

}  // namespace
}  // namespace pawnfield
