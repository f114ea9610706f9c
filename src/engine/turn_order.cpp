#include "engine/turn_order.h"

#include <array>

#include "forms/main_form.h"
#include "outward/companion.h"
#include "presentation/both_screens.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::array<Color, 4> kFocusColor{kRed, kRed, kYellow, kGreen};

// The player of the first lit lamp, 0 when none is lit.
int LitPlayer(const GameState& state) {
  if (state.Lamp1 == kLampOn) return 1;
  if (state.Lamp2 == kLampOn) return 2;
  return state.Lamp3 == kLampOn ? 3 : 0;
}

// The player after that one, 0 when none is lit.
int NextByLamps(const GameState& state) {
  const int lit = LitPlayer(state);
  if (lit == 0) return 0;
  return lit == 3 || (lit == 2 && state.Players == 2) ? 1 : lit + 1;
}

}  // namespace

void GiveTurnTo(Show& show, int player) {
  GameState& state = show.state;
  MainForm& form = show.frmMain;
  LightScoreBox(show, player);
  state.Lamp1 = player == 1 ? kLampOn : kLampOff;
  state.Lamp2 = player == 2 ? kLampOn : kLampOff;
  state.Lamp3 = player == 3 ? kLampOn : kLampOff;
  state.LampCode1 = player == 1 ? "1" : "3";
  state.LampCode2 = player == 2 ? "1" : "3";
  state.LampCode3 = player == 3 ? "1" : "3";
  for (int other = 1; other <= 3; ++other) form.Score(other).BackColor = other == player ? kRed : kYellow;
  form.imgDJEntry.Picture = form.FaceA(player).Picture;
  form.txtDJCommand.BackColor = kFocusColor[static_cast<std::size_t>(player)];
  state.CurrentPlayer = player;
}

void AdvanceToNextPlayer(Show& show) {
  const int next = NextByLamps(show.state);
  if (next == 0) return;
  const int old = LitPlayer(show.state);
  // The step from player 3 to player 1 leaves the status text as it was.
  const bool announced = next != 1 || show.state.Lamp2 == kLampOn;
  GiveTurnTo(show, next);
  if (announced) show.frmMain.lblStatusBar.Caption = "Player " + std::to_string(next) + " Selected!";
  ReportPlayer(show, next, kRed);
  ReportPlayer(show, old, kWhite);
}

void SetBuzzerStates(Show& show, bool player1, bool player2, bool player3) {
  show.frmMain.btnBuzzer[0].Enabled = player1;
  show.frmMain.btnBuzzer[1].Enabled = player2;
  show.frmMain.btnBuzzer[2].Enabled = player3;
}

void ChangeCursor(Show& show) { SetCursorOnBoth(show, show.state.CurrentPlayer); }

void btnNextPlayer_Click(Show& show) {
  AdvanceToNextPlayer(show);
  if (IsChallengeType(show.state.GameType)) SetConsoleCursor(show, show.state.CurrentPlayer);
}

}  // namespace pawnfield
