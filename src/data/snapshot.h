// A show at one moment as plain values: what an operator would miss if it were lost. A piece in flight, a flash, a
// bonus and a pause are held as they come to rest.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/players.h"
#include "data/trivia_set.h"

namespace pawnfield {

// The options that decide how the game goes on.
struct GameOptions {
  int Scoring = 5, Bonus = 5;
  int SoundSet = 1;
  int TimedResponse = 0;
  int AutoContinue = 3;
  int PenaltyPoints = 0;
  bool HideQuestion = true;
  bool KeyControl = true;
  bool Animation = false;
  bool GameEnds = false;
  bool IncorrectPenalty = false;
  bool Penalty1 = false, Penalty2 = false, Penalty3 = false;
  bool operator==(const GameOptions&) const = default;
};

struct Snapshot {
  int GameType = 5;
  int Players = kPlayers;
  int GridSize = 5;
  // The owners of the 36 squares as digits, row by row.
  std::string Board = std::string(36, '0');
  bool Loaded = false, Started = false, InProgress = false;
  bool QuestionUp = false, PlacementOpen = false;
  // The game has ended; its winner is due or stands.
  bool Over = false;
  int CurrentPlayer = 0;
  // Whose piece stands in the corner and whose box is lit; 0 is nobody's.
  int Corner = 0, Lit = 0;
  int Cursor = 0;
  // Standby stood over the room's screen.
  bool Covered = false;
  int CurrentQuestion = 0;
  // The question as the players were asked it, whatever became of it in the set; blank while none has been.
  TriviaQuestion Asked;
  std::string LastSquareKey;
  int LastPlayer = 0, LastPoints = 0, LastRow = 0, LastCol = 0;
  std::array<int, kPlayers> Lamp{};
  std::array<std::string, kPlayers> LampCode;
  std::array<std::string, kPlayers> Names;
  std::array<std::string, kPlayers> Scores;
  std::array<int, kPlayers> ScoreColors{};
  // The square that is being typed, and the text in its box.
  std::string Entry, EntryLetter, Typed;
  int EntryRow = 0, EntryColumn = 0;
  int EntryColor = 0;
  // The ground behind a text question.
  std::string Background;
  // The console points at what is to be pressed next; the headers change by themselves.
  bool Pointers = false, Headers = false;
  // Which of the flow's controls are disabled and which are hidden, by their names.
  std::vector<std::string> Disabled, Hidden;
  GameOptions Options;
  bool operator==(const Snapshot&) const = default;
};

}  // namespace pawnfield
