#include "presentation/final_result.h"

#include <algorithm>
#include <string>
#include <vector>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "platform/escapes.h"
#include "platform/text.h"
#include "presentation/both_screens.h"
#include "show/show.h"

namespace pawnfield {

namespace {

std::string NameOf(const Show& show, int player) { return Trim(show.frmMain.PlayerName(player)); }

// The players from the highest score down; equal ones as they sit.
std::vector<int> ByScore(Show& show) {
  std::vector<int> order;
  for (int player = 1; player <= show.state.Players; ++player) order.push_back(player);
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return ScoreOf(show, a) > ScoreOf(show, b); });
  return order;
}

std::vector<int> Winners(Show& show) {
  std::vector<int> winners = ByScore(show);
  const double best = ScoreOf(show, winners.front());
  std::erase_if(winners, [&](int player) { return ScoreOf(show, player) != best; });
  return winners;
}

bool Holds(const std::vector<int>& players, int player) {
  return std::find(players.begin(), players.end(), player) != players.end();
}

std::string WordFor(const std::vector<int>& winners) { return winners.size() > 1 ? "Tie!" : "Wins!"; }

// Names and scores as they stand now.
void WriteResult(Show& show, WinnerPanel& winner) {
  const std::vector<int> winners = Winners(show);
  winner.lblWinnerHead.Caption = "Game Over!";
  winner.lblWinnerWord.Caption = WordFor(winners);
  for (int player = 1; player <= kPlayers; ++player) {
    const std::size_t i = PlayerIndex(player);
    const bool won = Holds(winners, player);
    winner.lblWinnerName[i].Caption = NameOf(show, player);
    winner.lblWinnerName[i].Visible = won;
    winner.lblFinalName[i].Caption = NameOf(show, player);
    winner.lblFinalScore[i].Caption = show.frmMain.Score(player).Caption;
    winner.picFinal[i].Picture = PicturePath(show, won ? "\\images\\scoreboxred.bmp" : "\\Images\\scorebox.bmp");
  }
  winner.PlaceTexts(winners.size());
  winner.PlaceCards(ByScore(show));
}

}  // namespace

void ShowResult(Show& show) {
  WriteResult(show, show.frmMain.Winner);
  if (show.state.DualScreen) WriteResult(show, show.frmFSMain.Winner);
}

void KeepLastResult(Show& show) {
  std::string names;
  for (const int player : Winners(show)) names += (names.empty() ? "" : " and ") + Isolated(NameOf(show, player));
  std::string scores;
  for (const int player : ByScore(show)) {
    scores +=
        (scores.empty() ? "" : ", ") + Isolated(NameOf(show, player)) + " " + show.frmMain.Score(player).Caption.Get();
  }
  show.frmMain.lblLastResult.Caption = "Last game: " + names + " " + WordFor(Winners(show)) + "\r\n" + scores;
  show.frmMain.picLastResult.Visible = true;
}

void DropLastResult(Show& show) { show.frmMain.picLastResult.Visible = false; }

}  // namespace pawnfield
