// What a show came to, as plain values: each question with who rang in and what became of it, and each player's totals.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/players.h"

namespace pawnfield {

// One question of a game, or a claim of a game without questions.
struct ResultRow {
  // Hours, minutes and seconds, as in "20:14:05".
  std::string Time;
  // 0 for a claim.
  int Question = 0;
  std::string Wording, Answer;
  // "BEN, ANNA +12 ms (too close to call); CHLOE": who rang in each time the question was open, in the order of times.
  std::string RangIn;
  // By how many milliseconds the first was ahead of the second; nothing where there was no second.
  std::optional<std::int64_t> MarginMs;
  // "Incorrect for BEN, -100; Correct for CHLOE".
  std::string Verdict;
  // Of those who play; the others are empty.
  std::array<std::string, kPlayers> Names, Scores;
};

struct PlayerTotal {
  std::string Name;
  int Right = 0, Wrong = 0;
  // From the question to the press, and the mean lead over who came second; nothing where there was none.
  std::optional<std::int64_t> FastestMs, MeanMarginMs;
  // The scores at the ends of the games, together.
  double Score = 0;
};

// A game that was played, by the name of its set or of its type.
struct GameResults {
  std::string Name;
  std::vector<ResultRow> Rows;
};

struct ShowResults {
  // As in "2026-03-01 20:00"; empty for none.
  std::string Begun;
  std::vector<GameResults> Games;
  // By the players' names, over all games.
  std::vector<PlayerTotal> Totals;
  // What the checks before the games said.
  std::vector<std::string> Checked;
};

}  // namespace pawnfield
