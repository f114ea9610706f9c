// What stands on the winner's panel of both screens: the winner's name in the player's colour, what the result is, and
// a card for each player with the final score. lblWinner beneath holds the same as one text.
#pragma once

#include <vector>

#include "data/players.h"
#include "platform/controls.h"

namespace pawnfield {

class WinnerPanel {
 public:
  WinnerPanel(Form& form, PictureBox& panel);
  // In shares of the panel's size, for so many winners.
  void PlaceTexts(std::size_t winners);
  // The cards from left to right, by the players' numbers; who isn't named has none.
  void PlaceCards(const std::vector<int>& order);

  Label lblWinnerHead;
  // By player; shown for those who have won.
  ControlArray<Label, kPlayers> lblWinnerName;
  // "Wins!" or "Tie!".
  Label lblWinnerWord;
  ControlArray<PictureBox, kPlayers> picFinal;
  ControlArray<Label, kPlayers> lblFinalName;
  ControlArray<Label, kPlayers> lblFinalScore;

 private:
  PictureBox& panel_;
};

}  // namespace pawnfield
