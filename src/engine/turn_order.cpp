#include "engine/turn_order.h"

#include <array>

#include "forms/main_form.h"
#include "outward/companion.h"
#include "presentation/both_screens.h"
#include "show/note.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::array<Color, kPlayers + 1> kFocusColor{kRed, kRed, kYellow, kGreen};

// The player of the first lit lamp, 0 when none is lit.
int LitPlayer(const GameState& state) {
  for (int player = 1; player <= kPlayers; ++player) {
    if (state.Lamp[player] == kLampOn) return player;
  }
  return 0;
}

// The player after that one, 0 when none is lit.
int NextByLamps(const GameState& state) {
  const int lit = LitPlayer(state);
  if (lit == 0) return 0;
  return lit >= state.Players ? 1 : lit + 1;
}

void SetLamps(GameState& state, int player) {
  for (int other = 1; other <= kPlayers; ++other) {
    state.Lamp[other] = other == player ? kLampOn : kLampOff;
    state.LampCode[other] = other == player ? "1" : "3";
  }
}

// The red box and the red score of the player who has the turn; 0 for nobody.
void ShowTurn(Show& show, int player) {
  LightScoreBox(show, player);
  for (int other = 1; other <= kPlayers; ++other)
    show.frmMain.Score(other).BackColor = other == player ? kRed : kYellow;
}

}  // namespace

void GiveTurnTo(Show& show, int player) {
  GameState& state = show.state;
  MainForm& form = show.frmMain;
  ShowTurn(show, player);
  SetLamps(state, player);
  form.imgDJEntry.Picture = form.FaceA(player).Picture;
  form.txtDJCommand.BackColor = kFocusColor[static_cast<std::size_t>(player)];
  state.CurrentPlayer = player;
}

void TakeTurn(Show& show) {
  ShowTurn(show, 0);
  show.frmMain.imgDJEntry.Picture = PicturePath(show, "\\Images\\Neutral.bmp");
  show.state.CurrentPlayer = 0;
}

void GiveFirstTurn(Show& show) {
  if (!show.state.Nature().RingIn) {
    GiveTurnTo(show, 1);
    return;
  }
  SetLamps(show.state, 1);
  TakeTurn(show);
}

void ShowRingIn(Show& show, int player) {
  LightScoreBox(show, player);
  show.frmMain.imgDJEntry.Picture = show.frmMain.FaceA(player).Picture;
}

void PassTurnTo(Show& show, int player) {
  const int old = LitPlayer(show.state);
  GiveTurnTo(show, player);
  ReportPlayer(show, player, kRed);
  ReportPlayer(show, old, kWhite);
}

void AdvanceToNextPlayer(Show& show) {
  const int next = NextByLamps(show.state);
  if (next == 0) return;
  Note(show, EventKind::Turn, next);
  // The step from player 3 to player 1 leaves the status text as it was.
  const bool announced = next != 1 || show.state.Lamp[2] == kLampOn;
  PassTurnTo(show, next);
  if (announced) show.frmMain.lblStatusBar.Caption = "Player " + std::to_string(next) + " Selected!";
}

void SayNobodyHasTurn(Show& show) {
  show.frmMain.lblStatusBar.Caption = show.state.Nature().RingIn
                                          ? "Nobody has the turn: let a player ring in."
                                          : "Nobody has the turn: press Next Player, or let a player ring in.";
}

void SetBuzzerStates(Show& show, bool enabled) {
  for (int player = 1; player <= kPlayers; ++player) {
    show.frmMain.btnBuzzer[PlayerIndex(player)].Enabled = enabled && Plays(show.state, player);
  }
}

void ChangeCursor(Show& show) { SetCursorOnBoth(show, show.state.CurrentPlayer); }

void btnNextPlayer_Click(Show& show) {
  // Where players ring in, nobody is next; a turn that is given would shut the buzzers.
  if (show.state.Nature().RingIn) return;
  AdvanceToNextPlayer(show);
  if (!show.state.Nature().Trivia) SetConsoleCursor(show, show.state.CurrentPlayer);
}

}  // namespace pawnfield
