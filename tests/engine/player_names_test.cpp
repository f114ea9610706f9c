// The names dialog: what fills it, what OK takes and Cancel leaves, and its two spellings of every heading.
#include "forms/main_form.h"
#include "forms/player_names_form.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const WordStory kNames[] = {
    {"OK takes names in capitals and without the blanks around them", "Challenge A, not started",
     "at the names dialog: name 1 typed Ann; name 2 typed \"  b\xE9r\xE9nice \"; name 3 typed x y; press OK, names is "
     "ANN/B\xC9R\xC9NICE/X Y, room lblPlayer(1) is B\xC9R\xC9NICE"},
    {"The dialog opens with the names", "Challenge A, not started",
     "at the names dialog: name 1 is PLAYER 1; name 3 is PLAYER 3; name 1 typed Ann; press OK, at the names dialog: "
     "name 1 is ANN; name 3 is PLAYER 3; press Cancel"},
    {"The dialog is empty once it is closed", "Challenge A, not started",
     "at the names dialog: name 1 typed Ann; press OK; name 1 is empty"},
    {"A name of blanks or nothing is the reset name", "Challenge A, not started",
     "at the names dialog: name 1 typed Ann; name 2 typed Bo; name 3 typed Cy; press OK, at the names dialog: name 1 "
     "typed blank; name 2 typed empty; press OK, names is PLAYER 1/PLAYER 2/CY"},
    {"A third player who is away has no box", "Challenge A, 2 players, not started",
     "at the names dialog: name 3 is hidden; lblPlayer3Prompt is hidden; press OK, names is PLAYER 1/PLAYER 2/Player "
     "3"},
    {"A third player who comes has the reset name", "Challenge A, 2 players, not started",
     "at the names dialog: press OK, 3 players, at the names dialog: name 3 is empty; press OK, names is PLAYER "
     "1/PLAYER 2/PLAYER 3"},
    {"Cancel leaves the names", "Challenge A, not started",
     "at the names dialog: name 1 typed Ann; press Cancel, names is PLAYER 1/PLAYER 2/PLAYER 3"},
    {"Cancel leaves the penalties", "Challenge A, not started",
     "at the names dialog: press All Pay; press Cancel, penalties is ---/0, at the names dialog: chkPlayer1Penalty is "
     "0; press Cancel"},
    {"One button has all pay", "Challenge A, not started",
     "at the names dialog: press All Pay; press chkPlayer2Penalty; press OK, penalties is 1-3/0, at the names dialog: "
     "chkPlayer2Penalty is 0; press Cancel"},
    {"One button has nobody pay", "Challenge A, not started",
     "at the names dialog: press All Pay; press Nobody Pays; press OK, penalties is ---/0"},
    {"One button clears the names", "Challenge A, not started",
     "at the names dialog: press Clear All; name 1 is empty; name 3 is empty; press Cancel"},
    {"Penalty points count at once even if the dialog is cancelled", "Challenge A, not started",
     "at the names dialog: choose entry 11 of penalty points; penalties is ---/20; press Cancel, penalties is ---/20"},
    {"OK leaves the penalty points", "Challenge A, not started",
     "at the names dialog: choose entry 11 of penalty points; press Cancel, at the names dialog: press OK, penalties "
     "is ---/20"},
    {"Each entry of the penalty points counts", "Challenge A, not started",
     "at the names dialog: choose entry 10 of penalty points; press OK, penalties is ---/10, at the names dialog: "
     "choose entry 0 of penalty points; press OK, penalties is ---/0"},
};

using PlayerNames = WordStoryTest;
TEST_P(PlayerNames, AreWhatTheDialogTook) { Play(); }
INSTANTIATE_TEST_SUITE_P(Stories, PlayerNames, testing::ValuesIn(kNames), WordStoryTest::Name);

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
