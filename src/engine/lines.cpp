#include "engine/lines.h"

#include <algorithm>
#include <initializer_list>

#include "platform/text.h"

namespace pawnfield {

namespace {

struct Direction {
  int Row, Column;
};

// A step up is bound by the grid's far edge, a step down by 0; a coordinate that stays is not looked at.
bool InBounds(int coordinate, int offset, int gridSize) {
  if (offset > 0) return coordinate + offset < gridSize;
  if (offset < 0) return coordinate + offset >= 0;
  return true;
}

// True when all the squares at the given steps along the direction are within bounds and the player's.
bool AllOwned(const BoardArray& board, const LineClaim& claim, Direction direction, std::initializer_list<int> steps) {
  for (const int step : steps) {
    const int rowOffset = direction.Row * step;
    const int columnOffset = direction.Column * step;
    if (!InBounds(claim.Row, rowOffset, claim.GridSize) || !InBounds(claim.Column, columnOffset, claim.GridSize)) {
      return false;
    }
    const auto row = static_cast<std::size_t>(claim.Row + rowOffset);
    const auto column = static_cast<std::size_t>(claim.Column + columnOffset);
    if (board[row][column] != claim.Player) return false;
  }
  return true;
}

LineResult CheckAlong(const BoardArray& board, const LineClaim& claim, Direction direction) {
  const bool hit = AllOwned(board, claim, direction, {1, 2, 3}) || AllOwned(board, claim, direction, {-1, -2, -3}) ||
                   AllOwned(board, claim, direction, {1, 2}) || AllOwned(board, claim, direction, {-1, -2}) ||
                   AllOwned(board, claim, direction, {-1, 1});
  return {hit ? claim.BonusPoints : 0, hit};
}

}  // namespace

LineResult CheckRowLine(const BoardArray& board, const LineClaim& claim) { return CheckAlong(board, claim, {0, 1}); }

LineResult CheckColumnLine(const BoardArray& board, const LineClaim& claim) { return CheckAlong(board, claim, {1, 0}); }

LineResult CheckDiagonalLine(const BoardArray& board, const LineClaim& claim) {
  return CheckAlong(board, claim, {1, 1});
}

LineResult CheckAntiDiagonalLine(const BoardArray& board, const LineClaim& claim) {
  constexpr int kFour = 100;
  constexpr int kThree = 200;
  const Direction downLeft{1, -1};
  LineResult result;
  for (const int sign : {1, -1}) {
    if (AllOwned(board, claim, downLeft, {sign, 2 * sign, 3 * sign})) result = {result.Points + kFour, true};
  }
  if (result.Hit) return result;
  const bool three = AllOwned(board, claim, downLeft, {-1, -2}) || AllOwned(board, claim, downLeft, {1, 2}) ||
                     AllOwned(board, claim, downLeft, {-1, 1});
  return three ? LineResult{kThree, true} : LineResult{};
}

std::vector<BoardSquare> ClaimedSquares(const BoardArray& board, const LineClaim& claim) {
  constexpr std::size_t kLine = 3;
  std::vector<BoardSquare> squares{{claim.Row, claim.Column}};
  for (const Direction direction : {Direction{0, 1}, Direction{1, 0}, Direction{1, 1}, Direction{1, -1}}) {
    std::vector<BoardSquare> others;
    for (const int sign : {1, -1}) {
      for (int step = sign; AllOwned(board, claim, direction, {step}); step += sign)
        others.push_back({claim.Row + direction.Row * step, claim.Column + direction.Column * step});
    }
    if (others.size() + 1 >= kLine) squares.insert(squares.end(), others.begin(), others.end());
  }
  return squares;
}

bool IsBoardFull(const BoardArray& board, int gridSize) {
  const auto size = static_cast<std::size_t>(gridSize);
  for (std::size_t r = 0; r < size; ++r) {
    for (std::size_t c = 0; c < size; ++c) {
      if (board[r][c] == 0) return false;
    }
  }
  return true;
}

std::string WinnerText(std::vector<Standing> standings) {
  const auto higher = [](const Standing& a, const Standing& b) { return a.Score > b.Score; };
  std::stable_sort(standings.begin(), standings.end(), higher);
  std::string names;
  int leaders = 0;
  for (const Standing& standing : standings) {
    if (standing.Score != standings.front().Score) break;
    if (leaders++ > 0) names += " and \r\n";
    names += Trim(standing.Name);
  }
  return "Game Over!\r\n" + names + "\r\n" + (leaders > 1 ? "Tie!" : "Wins!");
}

}  // namespace pawnfield
