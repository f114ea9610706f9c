// The game types, and the one table of what each is: everything that asks for a type asks its row. A further type is a
// value and a row here, and a button of its own in the console's window.
#pragma once

#include <array>
#include <cstddef>

#include "platform/ports.h"

namespace pawnfield {

// The values are those of the setting.
enum class GameMode { ChallengeA = 1, ChallengeB, TriviaA, TriviaB, TriviaC };

// Who has the turn next: the same player, the one after, or nobody until a player rings in or is chosen.
enum class NextTurn { Stays, Passes, Nobodys };

// What the console has on offer while a type is chosen.
struct Offers {
  bool Animation = false;
  bool HideQuestion = false;
  bool IncorrectPenalty = false;
  bool TimedResponse = false;
  bool AutoContinue = false;
  // The buttons that give the question to a player by hand.
  bool SelectPlayer = false;
  bool NextPlayer = false;
};

struct GameNature {
  GameMode Mode;
  const char* Caption;
  const char* ToolTip;
  const char* Help;
  // Asks the questions of a set, which must be loaded; else the host asks, and the board is open from the start.
  bool Trivia;
  // The question is open to everybody; who rings in first answers.
  bool RingIn;
  NextTurn AfterClaim, AfterIncorrect, AfterSkip;
  // The console comes up with Hide on offer and not Show.
  bool OffersHideAtLoad;
  Offers Offer;
};

inline constexpr Offers kChallengeOffers{.NextPlayer = true};
inline constexpr Offers kTurnsOffers{.Animation = true,
                                     .IncorrectPenalty = true,
                                     .TimedResponse = true,
                                     .AutoContinue = true,
                                     .SelectPlayer = true,
                                     .NextPlayer = true};
inline constexpr Offers kRingInOffers{.Animation = true,
                                      .HideQuestion = true,
                                      .IncorrectPenalty = true,
                                      .TimedResponse = true,
                                      .AutoContinue = true,
                                      .SelectPlayer = true};

inline constexpr std::array kGameTypes{
    GameNature{GameMode::ChallengeA, "Challenge Mode A", "Players take turns answering questions.",
               "Players take turns. The host asks; a placed piece passes the turn on.", false, false, NextTurn::Passes,
               NextTurn::Passes, NextTurn::Nobodys, false, kChallengeOffers},
    GameNature{GameMode::ChallengeB, "Challenge Mode B", "Players answer questions until the are incorrect.",
               "A player goes on placing pieces until Next Player is pressed.", false, false, NextTurn::Stays,
               NextTurn::Passes, NextTurn::Nobodys, false, kChallengeOffers},
    GameNature{GameMode::TriviaA, "Trivia Mode A", "Players take turns answering questions.",
               "Players take turns answering questions from the loaded set.", true, false, NextTurn::Passes,
               NextTurn::Passes, NextTurn::Stays, true, kTurnsOffers},
    GameNature{GameMode::TriviaB, "Trivia Mode B", "Players answer questions until they are incorrect.",
               "A player answers questions from the set until one is incorrect.", true, false, NextTurn::Stays,
               NextTurn::Passes, NextTurn::Nobodys, false, kTurnsOffers},
    GameNature{GameMode::TriviaC, "Trivia Mode C", "Players ring in after question appears.",
               "The question appears and the first player to ring in answers.", true, true, NextTurn::Nobodys,
               NextTurn::Nobodys, NextTurn::Nobodys, false, kRingInOffers},
};

// The type's row, counted from 0; also the place of its button among the console's. Error 9 for what is no type.
constexpr std::size_t RowOf(GameMode mode) {
  const auto row = static_cast<std::size_t>(static_cast<int>(mode) - 1);
  if (row >= kGameTypes.size()) throw SubscriptError();
  return row;
}

constexpr const GameNature& NatureOf(GameMode mode) { return kGameTypes[RowOf(mode)]; }

}  // namespace pawnfield
