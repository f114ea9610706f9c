// The phase of a game: what the show waits for at this moment. It is worked out from the show at each question and kept
// nowhere, so that presses, keys, the status line and every window get the same answer.
#pragma once

namespace pawnfield {

struct AnswerClock;
struct Show;

enum class PhaseKind {
  Idle,          // No game is loaded.
  Ready,         // A set is loaded and waits for Start.
  QuestionOpen,  // A question is up and nobody has the turn.
  Answering,     // A question is up and the player has the turn.
  Claiming,      // The player may take a square.
  Flashing,      // The player's piece turns and flashes.
  Bonus,
  Notice,  // "5 Questions Left!"
  Pause,   // The next question comes by itself or by Continue.
  Winner,
};

struct GamePhase {
  PhaseKind Kind = PhaseKind::Idle;
  // Of Answering, Claiming and Flashing; 0 in the other phases.
  int Player = 0;
  bool operator==(const GamePhase&) const = default;
};

GamePhase Phase(const Show& show);
bool IsPhase(const Show& show, PhaseKind kind);
// A question of any kind is up, whether or not somebody has the turn.
bool QuestionIsUp(const Show& show);
// Who has the turn, and is shown with it: 0 for nobody, as in Trivia C between two ring-ins.
int HolderOfTurn(const Show& show);
// The seconds that run for the player who answers now; none for anybody else, whatever the last tick left behind.
AnswerClock RunningAnswerClock(const Show& show);
// Standby stands over the room's screen. A game goes on beneath it, in whatever phase it is.
bool ScreenCovered(const Show& show);

}  // namespace pawnfield
