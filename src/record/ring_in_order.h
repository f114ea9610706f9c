// RING-IN ORDER: the presses of a question in the order of their times, and how far apart they were.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/players.h"
#include "data/press.h"

namespace pawnfield {

struct Show;

// Lists the press and says what it was: the first, while the question is open; a later one within two seconds of the
// first; an early one, while no question is open; nothing otherwise, and for a player's second press. Call it before
// the press is served. Whoever rings in without a press of his own is listed by AcceptRingIn.
void AddPress(Show& show, Press press);
// A press that arrived at that time of the clock's microseconds, 0 for now, with the way's usual error.
Press PressOf(const Show& show, int player, PressWay way, std::int64_t atUs = 0);

enum class Opening { Anew, Again };
// A question opens, for the first time or again after a wrong answer: the order begins anew and keeps those who were
// early for this question.
void BeginRingInOrder(Show& show, Opening opening);

// "1 BEN first", "2 ANNA +12 ms (+-15), too close to call", "CHLOE early".
struct RingInRow {
  int Player = 0;
  std::string Number, Name, When;
  // Less lies between it and the first than can be told.
  bool TooClose = false;
};

std::vector<RingInRow> RingInRows(const std::vector<Press>& presses, const std::array<std::string, kPlayers>& names);
std::vector<RingInRow> RingInRows(const Show& show);
// Writes the order to the console's list.
void ShowRingInOrder(Show& show);

}  // namespace pawnfield
