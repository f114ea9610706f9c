// The names dialog: what fills it, what OK takes and Cancel leaves, and its two spellings of every heading.
#include "forms/main_form.h"
#include "forms/player_names_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const Story kNames[] = {
    {"OkTakesNamesInCapitalsAndBlanksGoBackToTheResetName", "1 3 3 full i",
     "mnuFileAddPlayerNames@frmPlayerNames { txtPlayerName(0)=PLAYER_1 txtPlayerName(2)=PLAYER_3 txtPlayerName(0):Ann "
     "txtPlayerName(1):_b\xE9r\xE9nice_ txtPlayerName(2):x_y btnOK txtPlayerName(0)= } names=ANN/B\xC9R\xC9NICE/X_Y "
     "lblPlayer(1)'=B\xC9R\xC9NICE mnuFileAddPlayerNames@frmPlayerNames { txtPlayerName(0)=ANN txtPlayerName(2)=X_Y "
     "txtPlayerName(0):____ txtPlayerName(1): txtPlayerName(2):Cy btnOK } names=PLAYER_1/PLAYER_2/CY"},
    {"AThirdPlayerWhoIsAwayHasNoName", "1 2 3 full i",
     "mnuFileAddPlayerNames@frmPlayerNames { txtPlayerName(2)=- lblPlayer3Prompt=- btnOK } "
     "names=PLAYER_1/PLAYER_2/Player_3 optPlayers(1) mnuFileAddPlayerNames@frmPlayerNames { txtPlayerName(2)= btnOK } "
     "names=PLAYER_1/PLAYER_2/PLAYER_3"},
    {"CancelLeavesNamesAndPenalties", "1 3 3 full i",
     "mnuFileAddPlayerNames@frmPlayerNames { Command2 txtPlayerName(0):Ann btnCancel } penalties=---/0 "
     "names=PLAYER_1/PLAYER_2/PLAYER_3 mnuFileAddPlayerNames@frmPlayerNames { chkPlayer1Penalty=0 btnCancel }"},
    {"ButtonsFillAndClear", "1 3 3 full i",
     "mnuFileAddPlayerNames@frmPlayerNames { Command2 chkPlayer2Penalty btnClearAll txtPlayerName(0)= "
     "txtPlayerName(2)= "
     "btnOK } penalties=1-3/0 mnuFileAddPlayerNames@frmPlayerNames { chkPlayer2Penalty=0 Command1 btnOK } "
     "penalties=---/0"},
    {"PenaltyPointsCountAtOnceEvenIfTheDialogIsCancelled", "1 3 3 full i",
     "mnuFileAddPlayerNames@frmPlayerNames { cboPenaltyPoints:11 penalties=---/20 btnCancel } "
     "mnuFileAddPlayerNames@frmPlayerNames { btnOK } penalties=---/20 "
     "mnuFileAddPlayerNames@frmPlayerNames { cboPenaltyPoints:10 btnOK } penalties=---/10 "
     "mnuFileAddPlayerNames@frmPlayerNames { cboPenaltyPoints:0 btnOK } penalties=---/0"},
};

using PlayerNames = StoryTest;
TEST_P(PlayerNames, AreAsWritten) { Play(); }
INSTANTIATE_TEST_SUITE_P(Stories, PlayerNames, testing::ValuesIn(kNames), StoryTest::Name);

TEST(PlayerNamesForm, HeadingSaysForInTheBoxAndItsOtherWordingAfterADoubleClick) {
  ShowFixture fixture;
  fixture.Start();
  PlayerNamesForm& dialog = fixture.show().frmPlayerNames;
  const auto heading = [&] { return dialog.Form::Caption.Get() + "/" + dialog.lblPlayerNamePrompt.Caption.Get(); };
  fixture.sim.dialogs.ExpectForm("frmPlayerNames", [&] {
    EXPECT_EQ(heading(), "Enter Name For Player 1/Enter Name For Player 1");
    dialog.txtPlayerName[2].GotFocus();
    EXPECT_EQ(heading(), "Enter Name For Player 3/Enter Name For Player 3");
    dialog.cboPenaltyPoints.ListIndex = -1;
    dialog.btnOK.Click();
    EXPECT_EQ(fixture.show().state.PenaltyPoints, 0);
  });
  fixture.form().mnuFileAddPlayerNames.Click();
  for (std::size_t i = 0; i < 3; ++i) {
    const std::string number = std::to_string(i + 1);
    fixture.sim.dialogs.ExpectForm("frmPlayerNames", [&] {
      EXPECT_EQ(heading(), "Enter Name for Player " + number + "/Enter Player " + number + " Name");
      EXPECT_EQ(dialog.ActiveControl, &dialog.txtPlayerName[i]);
      EXPECT_EQ(dialog.lblHiddenPlayerNumber.Caption.Get(), number);
      dialog.Unload();
      EXPECT_EQ(dialog.txtPlayerName[0].Text.Get(), "");
    });
    fixture.form().lblPlayer1[i].DblClick();
  }
}

}  // namespace
}  // namespace pawnfield
