// The names dialog: what fills it, what OK takes and Cancel leaves, and its two spellings of every heading.
#include <array>

#include "support/show_fixture.h"

namespace pawnfield {
namespace {

class PlayerNames : public testing::Test {
 protected:
  PlayerNames() { fixture.Start(); }

  // Opens the dialog from the menu and works it; act must end it.
  void Open(const std::function<void()>& act) {
    fixture.sim.dialogs.ExpectForm("frmPlayerNames", act);
    fixture.form().mnuFileAddPlayerNames.Click();
  }
  std::string Boxes() { return box(0).Text.Get() + "|" + box(1).Text.Get() + "|" + box(2).Text.Get(); }
  std::string Names() {
    std::string names;
    for (std::size_t i = 0; i < 3; ++i) {
      EXPECT_EQ(fixture.form().lblPlayer1[i].Caption.Get(), fixture.audience().lblPlayer[i].Caption.Get());
      names += (i == 0 ? "" : "|") + fixture.form().lblPlayer1[i].Caption.Get();
    }
    return names;
  }
  TextBox& box(std::size_t i) { return dialog.txtPlayerName[i]; }
  std::string Penalties() {
    const GameState& s = fixture.show().state;
    return std::string(s.Player1Penalty ? "1" : "-") + (s.Player2Penalty ? "2" : "-") + (s.Player3Penalty ? "3" : "-");
  }

  ShowFixture fixture;
  PlayerNamesForm& dialog = fixture.show().frmPlayerNames;
};

TEST_F(PlayerNames, OkTakesEachNameInUpperCaseAndBlanksGoBackToTheResetName) {
  struct Case {
    int players;
    const char* filled;
    std::array<const char*, 3> typed;
    const char* names;
  };
  const Case cases[] = {
      {3, "PLAYER 1|PLAYER 2|PLAYER 3", {"Ann", " b\xE9r\xE9nice ", "x y"}, "ANN|B\xC9R\xC9NICE|X Y"},
      {3, "ANN|B\xC9R\xC9NICE|X Y", {"   ", "", "Cy"}, "PLAYER 1|PLAYER 2|CY"},
      {2, "PLAYER 1|PLAYER 2|", {"Ann", "Bob", "Cid"}, "ANN|BOB|Player 3"},
      {3, "ANN|BOB|", {"Ann", "Bob", ""}, "ANN|BOB|PLAYER 3"},
      {3, "ANN|BOB|PLAYER 3", {"Player 1", "", "Player 3"}, "PLAYER 1|PLAYER 2|PLAYER 3"},
  };
  for (const Case& c : cases) {
    fixture.form().optPlayers[static_cast<std::size_t>(c.players - 2)].Click();
    Open([&] {
      EXPECT_EQ(Boxes(), c.filled);
      EXPECT_EQ(dialog.lblPlayer3Prompt.IsShown(), c.players == 3);
      for (std::size_t i = 0; i < 3; ++i) box(i).Type(c.typed[i]);
      dialog.btnOK.Click();
      EXPECT_EQ(Boxes(), "||");
    });
    EXPECT_EQ(Names(), c.names);
  }
}

TEST_F(PlayerNames, CancelAndTheCloseBoxLeaveNamesAndPenalties) {
  for (const bool byCancel : {true, false}) {
    Open([&] {
      EXPECT_EQ(dialog.chkPlayer1Penalty.Value, 0);
      dialog.Command2.Click();
      box(0).Type("Ann");
      byCancel ? dialog.btnCancel.Click() : dialog.Unload();
    });
    EXPECT_EQ(Names() + Penalties(), "PLAYER 1|PLAYER 2|PLAYER 3---");
  }
}

TEST_F(PlayerNames, ButtonsFillAndClearWithoutEndingTheDialog) {
  Open([&] {
    dialog.Command2.Click();
    dialog.chkPlayer2Penalty.Click();
    dialog.btnClearAll.Click();
    EXPECT_EQ(Boxes(), "||");
    EXPECT_TRUE(dialog.Visible);
    dialog.btnOK.Click();
  });
  EXPECT_EQ(Penalties(), "1-3");
  Open([&] {
    EXPECT_EQ(dialog.chkPlayer2Penalty.Value, 0);
    dialog.Command1.Click();
    dialog.btnOK.Click();
  });
  EXPECT_EQ(Penalties(), "---");
}

TEST_F(PlayerNames, PenaltyAmountCountsAtOnceEvenIfTheDialogIsCancelled) {
  for (const auto& [index, points] : {std::pair{7, 7}, {11, 20}, {0, 0}, {10, 10}}) {
    Open([&, i = index, p = points] {
      dialog.cboPenaltyPoints.Select(i);
      EXPECT_EQ(fixture.show().state.PenaltyPoints, p);
      dialog.btnCancel.Click();
    });
    Open([&] { dialog.btnOK.Click(); });
    EXPECT_EQ(fixture.show().state.PenaltyPoints, points);
  }
  dialog.cboPenaltyPoints.ListIndex = -1;
  Open([&] { dialog.btnOK.Click(); });
  EXPECT_EQ(fixture.show().state.PenaltyPoints, 0);
}

TEST_F(PlayerNames, HeadingSaysForInTheBoxAndItsOtherWordingAfterADoubleClick) {
  const auto heading = [&] { return dialog.Form::Caption.Get() + "/" + dialog.lblPlayerNamePrompt.Caption.Get(); };
  Open([&] {
    EXPECT_EQ(heading(), "Enter Name For Player 1/Enter Name For Player 1");
    box(2).GotFocus();
    EXPECT_EQ(heading(), "Enter Name For Player 3/Enter Name For Player 3");
    dialog.btnCancel.Click();
  });
  for (std::size_t i = 0; i < 3; ++i) {
    const std::string number = std::to_string(i + 1);
    fixture.sim.dialogs.ExpectForm("frmPlayerNames", [&] {
      EXPECT_EQ(heading(), "Enter Name for Player " + number + "/Enter Player " + number + " Name");
      EXPECT_EQ(dialog.ActiveControl, &box(i));
      EXPECT_EQ(dialog.lblHiddenPlayerNumber.Caption.Get(), number);
      dialog.btnCancel.Click();
    });
    fixture.form().lblPlayer1[i].DblClick();
  }
}

}  // namespace
}  // namespace pawnfield
