#include "engine/lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <utility>
#include <vector>

namespace pawnfield {
namespace {

using Check = LineResult (*)(const BoardArray&, const LineClaim&);
struct Direction {
  Check check;
  int down, right;
};
constexpr Direction kDirections[] = {
    {CheckRowLine, 0, 1}, {CheckColumnLine, 1, 0}, {CheckDiagonalLine, 1, 1}, {CheckAntiDiagonalLine, 1, -1}};

// Rows of owners parted by "/", '.' for a free square, '*' for the claim of player 1. Each direction's points, of a
// row, a column, a diagonal and an anti-diagonal; "-" where there is no line.
struct LineCase {
  const char* what;
  std::string board;
  const char* paid;
};

const LineCase kLines[] = {
    {"two are no line", "*1./1../...", "- - - -"},
    {"another is in the way", "*121./...../...../...../.....", "- - - -"},
    {"a row of four pays once", "*111/..../..../....", "50 - - -"},
    {"a row of five joined in the middle pays once", "11*11/...../...../...../.....", "50 - - -"},
    {"a row does not wrap to the next", "..11/*.../..../....", "- - - -"},
    {"a column with a gap", "1../.../*..", "- - - -"},
    {"an anti-diagonal of four from above pays 100", "...*/..1./.1../1...", "- - - 100"},
    {"an anti-diagonal of four from below pays 100", "...1/..1./.1../*...", "- - - 100"},
    {"an anti-diagonal of four joined inside pays as three", "...1/..*./.1../1...", "- - - 200"},
    {"row and column at once", "*11/1../1..", "50 50 - -"},
    {"all four at once", "1.1.1/.111./11*11/.111./1.1.1", "50 50 50 200"},
};

TEST(Lines, EachDirectionPaysWhatItShould) {
  for (const LineCase& c : kLines) {
    BoardArray board{};
    const int grid = static_cast<int>(c.board.find('/'));
    LineClaim claim;
    std::size_t r = 0, col = 0;
    for (const char square : c.board) {
      if (square == '*') claim = {static_cast<int>(r), static_cast<int>(col), 1, grid, 50};
      if (square != '/') board[r][col] = square == '.' ? 0 : square == '*' ? 1 : square - '0';
      col = square == '/' ? 0 : col + 1;
      if (square == '/') ++r;
    }
    std::string paid;
    for (const Direction& direction : kDirections) {
      const LineResult result = direction.check(board, claim);
      paid += (paid.empty() ? "" : " ") + (result.Hit ? std::to_string(result.Points) : "-");
    }
    EXPECT_EQ(paid, c.paid) << c.what;
  }
}

// Every placement of three in a row on every grid is found from each of its three squares, and pays.
TEST(Lines, NoThreeIsMissedAnywhere) {
  for (const int grid : {3, 4, 5}) {
    for (const Direction& direction : kDirections) {
      int lines = 0;
      for (int at = 0; at < grid * grid; ++at) {
        const int row = at / grid, column = at % grid, lastColumn = column + 2 * direction.right;
        if (row + 2 * direction.down >= grid || lastColumn < 0 || lastColumn >= grid) continue;
        ++lines;
        BoardArray board{};
        for (int i = 0; i < 3; ++i) board.at(row + i * direction.down).at(column + i * direction.right) = 2;
        const LineResult expected{direction.right < 0 ? 200 : 10, true};
        for (int i = 0; i < 3; ++i) {
          const LineClaim claim{row + i * direction.down, column + i * direction.right, 2, grid, 10};
          EXPECT_EQ(direction.check(board, claim), expected) << grid << " from " << at << " at " << i;
        }
      }
      const bool straight = direction.down == 0 || direction.right == 0;
      EXPECT_EQ(lines, straight ? grid * (grid - 2) : (grid - 2) * (grid - 2));
    }
  }
}

TEST(Lines, FullBoardCountsOnlyTheGrid) {
  BoardArray board{};
  for (std::size_t r = 0; r < 4; ++r) std::fill_n(board[r].begin(), 4, 3);
  EXPECT_TRUE(IsBoardFull(board, 3) && IsBoardFull(board, 4) && !IsBoardFull(board, 5));
  board[3][3] = 0;
  EXPECT_TRUE(IsBoardFull(board, 3) && !IsBoardFull(board, 4));
}

TEST(WinnerText, RanksAndNamesWhoPlayed) {
  const std::array names{" Ann ", "Bob", "Cid"};
  const std::pair<const char*, const char*> cases[] = {{"100 50", "Ann/Wins!"},
                                                       {"50 100", "Bob/Wins!"},
                                                       {"100 100", "Ann and /Bob/Tie!"},
                                                       {"0 0", "Ann and /Bob/Tie!"},
                                                       {"-50 -100", "Ann/Wins!"},
                                                       {"-50 20", "Bob/Wins!"},
                                                       {"10 30 20", "Bob/Wins!"},
                                                       {"10 30 30", "Bob and /Cid/Tie!"},
                                                       {"40 40 40", "Ann and /Bob and /Cid/Tie!"},
                                                       {"-10 -10 -10", "Ann and /Bob and /Cid/Tie!"},
                                                       {"0 0 -10", "Ann and /Bob/Tie!"},
                                                       {"70000 40000 -40000", "Ann/Wins!"}};
  for (const auto& [scores, winner] : cases) {
    std::vector<Standing> standings;
    std::istringstream in(scores);
    for (long long score = 0; in >> score;) standings.push_back({score, names.at(standings.size())});
    std::string text = WinnerText(std::move(standings));
    text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
    std::replace(text.begin(), text.end(), '\n', '/');
    EXPECT_EQ(text, "Game Over!/" + std::string(winner)) << scores;
  }
}

}  // namespace
}  // namespace pawnfield
