// The rules of lines and of the final standing, as pure functions over the board and the scores.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "data/game_state.h"

namespace pawnfield {

using BoardArray = std::array<std::array<int, 7>, 7>;

struct LineClaim {
  int Row = 0;
  int Column = 0;
  int Player = 0;
  int GridSize = 0;
  int BonusPoints = 0;  // What a line pays, other than an anti-diagonal.
};

// Points that a check adds, and whether it found a line through the claimed square.
struct LineResult {
  int Points = 0;
  bool Hit = false;
  bool operator==(const LineResult&) const = default;
};

LineResult CheckRowLine(const BoardArray& board, const LineClaim& claim);
LineResult CheckColumnLine(const BoardArray& board, const LineClaim& claim);
LineResult CheckDiagonalLine(const BoardArray& board, const LineClaim& claim);
// Pays 100 for a run of four and 200 for a run of three, whatever the bonus; the two runs of four may both pay.
LineResult CheckAntiDiagonalLine(const BoardArray& board, const LineClaim& claim);
// The claimed square, and behind it the squares of every line of three and more through it.
std::vector<BoardSquare> ClaimedSquares(const BoardArray& board, const LineClaim& claim);
bool IsBoardFull(const BoardArray& board, int gridSize);

struct Standing {
  long long Score = 0;
  std::string Name;
};

// "Game Over!", the leaders and "Wins!" or "Tie!", of those who played. Leaders of one score keep their order.
std::string WinnerText(std::vector<Standing> standings);

}  // namespace pawnfield
