// What the console offers and locks in each game type and phase.
#include <gtest/gtest.h>

#include "support/game_player.h"

namespace pawnfield {
namespace {

// The names of those controls that could be pressed now, in the order asked for.
std::string Offered(ShowFixture& fixture, std::initializer_list<const char*> names) {
  std::string offered;
  for (const char* name : names) {
    const Control* control = fixture.form().Find(name);
    if (control == nullptr) ADD_FAILURE() << name;
    if (control == nullptr || !control->IsReachable()) continue;
    if (!offered.empty()) offered += ' ';
    offered += name;
  }
  return offered;
}

std::string Buttons(ShowFixture& fixture) {
  return Offered(fixture, {"btnStart", "btnSelectGame", "btnPlayMode", "btnStandbyMode", "btnNextPlayer", "btnContinue",
                           "btnSkipQuestion", "btnUndo", "btnReset", "btnEndGame", "btnQuestionCorrect"});
}

std::string Options(ShowFixture& fixture) {
  return Offered(fixture, {"chkAnimation", "chkHideQuestion", "chkIncorrectPenalty", "cboTimedResponse",
                           "cboAutoContinue", "btnSelectPlayer(0)"});
}

TEST(ConsoleStates, EachTypeOffersItsOwnOptionsAfterReset) {
  struct Case {
    int gameType;
    const char* buttons;
    const char* options;
  };
  const char* all = "chkAnimation chkIncorrectPenalty cboAutoContinue btnSelectPlayer(0)";
  const Case cases[] = {
      {1, "btnStart btnPlayMode", ""},
      {2, "btnStart btnPlayMode", ""},
      {3, "btnSelectGame btnPlayMode", all},
      {4, "btnSelectGame btnPlayMode", all},
      {5, "btnSelectGame btnPlayMode",
       "chkAnimation chkHideQuestion chkIncorrectPenalty cboTimedResponse cboAutoContinue btnSelectPlayer(0)"},
  };
  for (const Case& c : cases) {
    GamePlayer player({c.gameType, 3, 3, Ending::FullBoard, "m"});
    player.Play(c.gameType <= 2 ? "00" : c.gameType == 5 ? "r1 + 00" : "+ 00");
    player.fixture().form().btnReset.Click();
    EXPECT_TRUE(player.fixture().form().picStandby.Visible) << c.gameType;
    EXPECT_EQ(Buttons(player.fixture()), c.buttons) << c.gameType;
    EXPECT_EQ(Options(player.fixture()), c.options) << c.gameType;
  }
}

TEST(ConsoleStates, AChangeOfTypeWhileIdleOffersTheNewTypesOptions) {
  ShowFixture fixture;
  fixture.sim.settings.Preset("Pawnfield", "Settings", "GameType", "1");
  fixture.Start();
  EXPECT_EQ(Buttons(fixture), "btnStart btnPlayMode");
  fixture.form().optGameType[2].Click();
  EXPECT_EQ(Buttons(fixture), "btnSelectGame btnPlayMode");
  EXPECT_TRUE(fixture.form().cboList.Enabled);
  fixture.form().optGameType[1].Click();
  EXPECT_EQ(Buttons(fixture), "btnStart btnPlayMode");
  EXPECT_FALSE(fixture.form().cboList.Enabled);
}

TEST(ConsoleStates, EachPhaseOffersWhatMovesItOn) {
  struct Case {
    GameSetup setup;
    const char* script;
    const char* buttons;
  };
  const Case cases[] = {
      {{1, 2, 3, Ending::FullBoard, ""}, "", "btnStandbyMode btnNextPlayer"},
      {{1, 2, 3, Ending::FullBoard, ""}, "00", "btnStandbyMode btnNextPlayer btnUndo btnReset btnEndGame"},
      {{1, 2, 3, Ending::FullBoard, ""}, "00 H", "btnPlayMode btnNextPlayer btnUndo btnReset btnEndGame"},
      {{1, 2, 3, Ending::FullBoard, ""}, "00 E", "btnStandbyMode"},
      {{3, 2, 3, Ending::FullBoard, "m"},
       "",
       "btnSelectGame btnStandbyMode btnNextPlayer btnSkipQuestion btnQuestionCorrect"},
      {{3, 2, 3, Ending::FullBoard, "m"}, "+", "btnSelectGame btnStandbyMode btnNextPlayer btnSkipQuestion"},
      {{3, 2, 3, Ending::FullBoard, "m"},
       "+ 00",
       "btnSelectGame btnStandbyMode btnNextPlayer btnContinue btnSkipQuestion btnUndo btnReset btnEndGame"},
      {{3, 2, 3, Ending::FullBoard, ""},
       "+ 00",
       "btnSelectGame btnStandbyMode btnNextPlayer btnSkipQuestion btnUndo btnReset btnEndGame"},
      {{3, 2, 3, Ending::FullBoard, "m"},
       "+ 00 C",
       "btnSelectGame btnStandbyMode btnNextPlayer btnSkipQuestion btnReset btnEndGame btnQuestionCorrect"},
      {{5, 2, 3, Ending::FullBoard, "m"}, "", "btnSelectGame btnStandbyMode btnSkipQuestion"},
      {{5, 2, 3, Ending::FullBoard, "m"}, "r1", "btnSelectGame btnStandbyMode btnSkipQuestion btnQuestionCorrect"},
      {{5, 2, 3, Ending::FullBoard, "m"}, "r1 -", "btnSelectGame btnStandbyMode btnSkipQuestion"},
  };
  for (const Case& c : cases) {
    GamePlayer player(c.setup);
    player.Play(c.script);
    EXPECT_EQ(Buttons(player.fixture()), c.buttons) << c.setup.GameType << ": " << c.script;
  }
}

TEST(ConsoleStates, OptionsAreLockedWhileAQuestionIsUpAndFreeAfterTheVerdict) {
  GamePlayer player({5, 2, 3, Ending::FullBoard, ""});
  EXPECT_EQ(Options(player.fixture()), "btnSelectPlayer(0)");
  EXPECT_FALSE(player.fixture().form().optGameType[0].IsReachable());
  player.Play("r1 +");
  EXPECT_NE(Options(player.fixture()), "btnSelectPlayer(0)");
  EXPECT_TRUE(player.fixture().form().optGameType[0].IsReachable());
  EXPECT_FALSE(player.fixture().form().btnSelectPlayer[2].Enabled);
}

TEST(ConsoleStates, AChangeOfTypeInARunningGameIsAsked) {
  GamePlayer player({2, 2, 3, Ending::FullBoard, ""});
  ShowFixture& fixture = player.fixture();
  MainForm& form = fixture.form();
  player.Play("00");
  form.optGameType[1].Click();
  fixture.sim.dialogs.ExpectForm("frmGameInProgress", [&] { fixture.show().frmGameInProgress.btnCancel.Click(); });
  form.optGameType[3].Click();
  EXPECT_TRUE(form.optGameType[1].Value);
  EXPECT_EQ(player.Board(), "100/000/000");
  EXPECT_EQ(fixture.Scores(), "50 0 0");
  fixture.sim.dialogs.ExpectForm("frmGameInProgress", [&] { fixture.show().frmGameInProgress.Unload(); });
  form.optGameType[3].Click();
  EXPECT_EQ(fixture.show().state.GameType, 2);
  fixture.sim.dialogs.ExpectForm("frmGameInProgress", [&] { fixture.show().frmGameInProgress.btnReset.Click(); });
  form.optGameType[3].Click();
  EXPECT_EQ(fixture.show().state.GameType, 4);
  EXPECT_EQ(player.Board(), "000/000/000");
  EXPECT_TRUE(form.picStandby.Visible);
  EXPECT_FALSE(form.btnStart.Enabled);
}

TEST(ConsoleStates, InStandbyTheGameCannotBeEnded) {
  GamePlayer player({2, 2, 3, Ending::FullBoard, ""});
  player.Play("00 H E");
  EXPECT_FALSE(player.fixture().form().picWinner.Visible);
  EXPECT_TRUE(player.fixture().show().state.GameInProgress);
  player.Play("V E");
  EXPECT_TRUE(player.fixture().form().picWinner.Visible);
}

TEST(ConsoleStates, AChangeOfGridOrPlayersActsAtOnce) {
  GamePlayer player({1, 3, 5, Ending::FullBoard, ""});
  ShowFixture& fixture = player.fixture();
  player.Play("00 44 H V");
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 3);
  EXPECT_EQ(fixture.form().MouseIcon, fixture.form().imgCursor[3].Picture.Get());
  fixture.form().optPlayers[0].Click();
  EXPECT_FALSE(fixture.form().picP3Score.Visible);
  EXPECT_FALSE(fixture.audience().picPlayer[2].Visible);
  EXPECT_FALSE(fixture.form().fraGridControl.Enabled);
  fixture.form().btnReset.Click();
  fixture.form().optGameType[0].Click();
  fixture.sim.clock.Advance(2000);
  fixture.form().optGridControl[0].Click();
  EXPECT_EQ(player.Board(), "000/000/000");
  EXPECT_FALSE(fixture.form().img.At(0, 3)->Visible);
  EXPECT_FALSE(fixture.audience().imgD.Visible);
  EXPECT_FALSE(fixture.form().img4.Visible);
  EXPECT_EQ(fixture.show().state.CurrentPlayer, 1);
}

TEST(ConsoleStates, TurnsGoRoundAndTheStatusTextSkipsTheStepFromThreeToOne) {
  GamePlayer three({2, 3, 3, Ending::FullBoard, ""});
  MainForm& form = three.fixture().form();
  three.Play("N N");
  EXPECT_EQ(form.lblStatusBar.Caption, "Player 3 Selected!");
  EXPECT_EQ(form.lblP3Score.BackColor, kRed);
  EXPECT_EQ(form.lblP1Score.BackColor, kYellow);
  EXPECT_EQ(form.txtDJCommand.BackColor, kGreen);
  three.Play("N");
  EXPECT_EQ(three.fixture().show().state.CurrentPlayer, 1);
  EXPECT_EQ(form.lblStatusBar.Caption, "Player 3 Selected!");
  GamePlayer two({2, 2, 3, Ending::FullBoard, ""});
  two.Play("N N");
  EXPECT_EQ(two.fixture().form().lblStatusBar.Caption, "Player 1 Selected!");
}

TEST(ConsoleStates, ChoosingASetClearsARunningGameEvenWhenCancelled) {
  GamePlayer player({3, 2, 3, Ending::FullBoard, "m"});
  ShowFixture& fixture = player.fixture();
  player.Play("+ 00");
  fixture.sim.dialogs.ExpectFile("");
  fixture.form().btnSelectGame.Click();
  EXPECT_EQ(fixture.Scores(), "0 0 0");
  EXPECT_EQ(player.Board(), "000/000/000");
  EXPECT_FALSE(fixture.show().state.GameLoaded);
  EXPECT_EQ(fixture.sim.dialogs.FileRequests().back().Filter, "Game Sets(*.txt)|*.txt");
  EXPECT_EQ(fixture.sim.dialogs.FileRequests().back().InitialFolder, "C:\\Pawnfield\\Trivia Sets");
  fixture.sim.dialogs.ExpectFile("C:\\Pawnfield\\Trivia Sets\\Long.txt");
  fixture.form().btnSelectGame.Click();
  EXPECT_TRUE(fixture.form().btnStart.Enabled);
  EXPECT_EQ(fixture.show().NumGameQuestions, 30);
  EXPECT_FALSE(fixture.audience().picStandby.Visible);
}

}  // namespace
}  // namespace pawnfield
