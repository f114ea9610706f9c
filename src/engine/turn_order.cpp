#include "engine/turn_order.h"

#include <array>

#include "forms/main_form.h"
#include "outward/companion.h"
#include "presentation/both_screens.h"
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

}  // namespace

void GiveTurnTo(Show& show, int player) {
  GameState& state = show.state;
  MainForm& form = show.frmMain;
  LightScoreBox(show, player);
  for (int other = 1; other <= kPlayers; ++other) {
    state.Lamp[other] = other == player ? kLampOn : kLampOff;
    state.LampCode[other] = other == player ? "1" : "3";
    form.Score(other).BackColor = other == player ? kRed : kYellow;
  }
  form.imgDJEntry.Picture = form.FaceA(player).Picture;
  form.txtDJCommand.BackColor = kFocusColor[static_cast<std::size_t>(player)];
  state.CurrentPlayer = player;
}

void AdvanceToNextPlayer(Show& show) {
  const int next = NextByLamps(show.state);
  if (next == 0) return;
  const int old = LitPlayer(show.state);
  // The step from player 3 to player 1 leaves the status text as it was.
  const bool announced = next != 1 || show.state.Lamp[2] == kLampOn;
  GiveTurnTo(show, next);
  if (announced) show.frmMain.lblStatusBar.Caption = "Player " + std::to_string(next) + " Selected!";
  ReportPlayer(show, next, kRed);
  ReportPlayer(show, old, kWhite);
}

void SetBuzzerStates(Show& show, bool enabled) {
  for (int player = 1; player <= kPlayers; ++player) show.frmMain.btnBuzzer[PlayerIndex(player)].Enabled = enabled;
}

void ChangeCursor(Show& show) { SetCursorOnBoth(show, show.state.CurrentPlayer); }

void btnNextPlayer_Click(Show& show) {
  AdvanceToNextPlayer(show);
  if (!show.state.Nature().Trivia) SetConsoleCursor(show, show.state.CurrentPlayer);
}

}  // namespace pawnfield
