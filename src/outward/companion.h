// The companion link: a report of one player's name, score, look and verdict for a display of its own, as one text of
// 114 characters, over the transceiver or through a helper program.
#pragma once

#include <string>

#include "data/game_state.h"
#include "platform/controls.h"

namespace pawnfield {

struct Show;

inline constexpr std::size_t kReportLength = 114;

struct CompanionReport {
  // 1..3.
  int Player = 1;
  std::string Name, Score;
  ScreenStyle Style;
  // Three characters; any other number makes the text longer or shorter than a report is.
  std::string Object;
  bool Correct = false, Incorrect = false;
};

std::string ReportText(const CompanionReport& report);

// Takes the report of a player 1..3 down, with C2CObject and the verdict flags as they stand, and clears the flags. It
// is sent while TSSupport is on, once the present event is done: sending holds the program for 420 ms, and what the
// press has changed is on the screens and handed to the sound card by then. Any other player does nothing at all.
void SendC2CInfo(Show& show, int player);

// What a routine of the game reports while TSSupport is on: the player's box in that colour, all three in the same
// colour, a verdict on the player, and player 1's turn at a game's start.
void ReportPlayer(Show& show, int player, double color);
void ReportPlayers(Show& show, double color);
void ReportVerdict(Show& show, int player, bool correct);
void ReportFirstTurn(Show& show);
// The look of a companion without a show: scores of 0 and no object. Sent at once.
void ReportExit(Show& show);

// Sends the oldest report that waits.
void tmrCompanion_Timer(Show& show);

}  // namespace pawnfield
