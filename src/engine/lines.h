// The rules of lines and of the final standing, as pure functions over the board and the scores.
#pragma once

#include <array>
#include <string>

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
bool IsBoardFull(const BoardArray& board, int gridSize);

struct Standing {
  long long Score = 0;
  std::string Name;
};

// "Game Over!", the leaders and "Wins!" or "Tie!". Records beyond the players stay empty and take part in the order.
std::string WinnerText(std::array<Standing, 4> standings, int players);

}  // namespace pawnfield
