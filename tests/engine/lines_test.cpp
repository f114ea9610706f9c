#include "engine/lines.h"

#include <gtest/gtest.h>

namespace pawnfield {
namespace {

// Boards are rows of owners parted by "/", '.' for a free square; '*' is the claim of player 1.
struct LineCase {
  const char* what;
  const char* board;
  LineResult row, column, diagonal, anti;
};

constexpr LineResult kNone{};
constexpr LineResult kLine{50, true};

struct Parsed {
  BoardArray board{};
  LineClaim claim;
};

Parsed Parse(const std::string& text) {
  Parsed parsed;
  std::size_t r = 0, c = 0;
  for (const char square : text) {
    if (square == '/') {
      ++r;
      c = 0;
      continue;
    }
    parsed.board[r][c] = square == '.' ? 0 : square == '*' ? 1 : square - '0';
    if (square == '*') parsed.claim = {static_cast<int>(r), static_cast<int>(c), 1, 0, 50};
    ++c;
  }
  parsed.claim.GridSize = static_cast<int>(r) + 1;
  return parsed;
}

const LineCase kLines[] = {
    {"alone", "*../.../...", kNone, kNone, kNone, kNone},
    {"two are no line", "*1./1../...", kNone, kNone, kNone, kNone},
    {"row, claim at its left end", "*11/.../...", kLine, kNone, kNone, kNone},
    {"row, claim at its right end", "..../..../.11*/....", kLine, kNone, kNone, kNone},
    {"row, claim in the middle", ".1*1/..../..../....", kLine, kNone, kNone, kNone},
    {"row of another is in the way", "*121./...../...../...../.....", kNone, kNone, kNone, kNone},
    {"row of four pays once", "*111/..../..../....", kLine, kNone, kNone, kNone},
    {"row of five joined in the middle pays once", "11*11/...../...../...../.....", kLine, kNone, kNone, kNone},
    {"row does not wrap to the next", "..11/*.../..../....", kNone, kNone, kNone, kNone},
    {"column, claim at the top", "..../.*../.1../.1..", kNone, kLine, kNone, kNone},
    {"column, claim at the bottom", ".1./.1./.*.", kNone, kLine, kNone, kNone},
    {"column, claim in the middle", "1../*../1..", kNone, kLine, kNone, kNone},
    {"column with a gap", "1/./*", kNone, kNone, kNone, kNone},
    {"diagonal downwards", "*../.1./..1", kNone, kNone, kLine, kNone},
    {"diagonal upwards", "1..../.1.../..*../...../.....", kNone, kNone, kLine, kNone},
    {"diagonal through the middle", "...../.1.../..*../...1./.....", kNone, kNone, kLine, kNone},
    {"anti-diagonal of three from below", "..1/.1./*..", kNone, kNone, kNone, {200, true}},
    {"anti-diagonal of three from above", "..*/.1./1..", kNone, kNone, kNone, {200, true}},
    {"anti-diagonal of three, middle", "..1/.*./1..", kNone, kNone, kNone, {200, true}},
    {"anti-diagonal of four pays 100", "...*/..1./.1../1...", kNone, kNone, kNone, {100, true}},
    {"anti-diagonal of four from below pays 100", "...1/..1./.1../*...", kNone, kNone, kNone, {100, true}},
    {"anti-diagonal of four joined inside pays as three", "...1/..*./.1../1...", kNone, kNone, kNone, {200, true}},
    {"row and column at once", "*11/1../1..", kLine, kLine, kNone, kNone},
    {"all four at once", "1.1.1/.111./11*11/.111./1.1.1", kLine, kLine, kLine, {200, true}},
};

TEST(Lines, EachDirectionPaysWhatItShould) {
  for (const LineCase& c : kLines) {
    const Parsed parsed = Parse(c.board);
    EXPECT_EQ(CheckRowLine(parsed.board, parsed.claim), c.row) << c.what;
    EXPECT_EQ(CheckColumnLine(parsed.board, parsed.claim), c.column) << c.what;
    EXPECT_EQ(CheckDiagonalLine(parsed.board, parsed.claim), c.diagonal) << c.what;
    EXPECT_EQ(CheckAntiDiagonalLine(parsed.board, parsed.claim), c.anti) << c.what;
  }
}

// Every placement of three in a row on every grid must be found from each of its three squares.
TEST(Lines, NoThreeIsMissedAnywhere) {
  using Check = LineResult (*)(const BoardArray&, const LineClaim&);
  const struct {
    Check check;
    int down, right;
  } directions[] = {
      {CheckRowLine, 0, 1}, {CheckColumnLine, 1, 0}, {CheckDiagonalLine, 1, 1}, {CheckAntiDiagonalLine, 1, -1}};
  for (const int grid : {3, 4, 5}) {
    for (const auto& direction : directions) {
      int lines = 0;
      for (int at = 0; at < grid * grid; ++at) {
        BoardArray board{};
        const auto inside = [&](int step) {
          const int r = at / grid + step * direction.down, c = at % grid + step * direction.right;
          if (r < 0 || r >= grid || c < 0 || c >= grid) return false;
          board[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)] = 2;
          return true;
        };
        if (!inside(0) || !inside(1) || !inside(2)) continue;
        ++lines;
        for (int step = 0; step < 3; ++step) {
          const LineClaim claim{at / grid + step * direction.down, at % grid + step * direction.right, 2, grid, 10};
          EXPECT_TRUE(direction.check(board, claim).Hit) << grid << " from " << at << " at step " << step;
        }
      }
      const bool straight = direction.down == 0 || direction.right == 0;
      EXPECT_EQ(lines, straight ? grid * (grid - 2) : (grid - 2) * (grid - 2));
    }
  }
}

TEST(Lines, FullBoardCountsOnlyTheGrid) {
  BoardArray board{};
  for (std::size_t r = 0; r < 4; ++r) {
    for (std::size_t c = 0; c < 4; ++c) board[r][c] = 3;
  }
  EXPECT_TRUE(IsBoardFull(board, 3));
  EXPECT_TRUE(IsBoardFull(board, 4));
  EXPECT_FALSE(IsBoardFull(board, 5));
  board[3][3] = 0;
  EXPECT_FALSE(IsBoardFull(board, 4));
  EXPECT_TRUE(IsBoardFull(board, 3));
}

TEST(WinnerText, NamesTheLeadersWithTheEmptyRecordsInTheOrder) {
  struct Case {
    int players;
    std::array<long long, 3> scores;
    const char* text;
  };
  const Case cases[] = {
      {2, {100, 50, 0}, "Ann/Wins!"},
      {2, {50, 100, 0}, "Bob/Wins!"},
      {2, {100, 100, 0}, "Ann and /Bob/Tie!"},
      {2, {0, 0, 0}, "Ann and /Bob and //Tie!"},
      {2, {-50, -100, 0}, " and //Tie!"},
      {2, {-50, 20, 0}, "Bob/Wins!"},
      {3, {10, 30, 20}, "Bob/Wins!"},
      {3, {10, 30, 30}, "Bob and /Cid/Tie!"},
      {3, {40, 40, 40}, "Ann and /Bob and /Cid/Tie!"},
      {3, {-10, -10, -10}, "/Wins!"},
      {3, {0, 0, -10}, "Ann and /Bob and //Tie!"},
      {3, {70000, 40000, -40000}, "Ann/Wins!"},
  };
  const std::array names{" Ann ", "Bob", "Cid"};
  for (const Case& c : cases) {
    std::array<Standing, 4> standings;
    for (std::size_t i = 0; i < static_cast<std::size_t>(c.players); ++i) standings[i] = {c.scores[i], names[i]};
    std::string expected = "Game Over!/" + std::string(c.text);
    for (std::size_t at = 0; (at = expected.find('/', at)) != std::string::npos; at += 2)
      expected.replace(at, 1, "\r\n");
    EXPECT_EQ(WinnerText(standings, c.players), expected) << c.text;
  }
}

}  // namespace
}  // namespace pawnfield
