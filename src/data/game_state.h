// The record of the running game: vocabulary of every room. The console owns the one instance.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "data/game_types.h"
#include "data/interface_code.h"
#include "data/players.h"

namespace pawnfield {

// The user advances by hand; the other values of AutoContinue are seconds.
inline constexpr int kUserAdvances = 6;

// Lamp characters: the player whose turn it is, and the others.
inline constexpr int kLampOn = '3';
inline constexpr int kLampOff = '0';

// How a player's score screen looks on companion hardware.
struct ScreenStyle {
  std::string FontName = "Comic Sans MS";
  int FontSize = 100;
  bool FontItalic = false;
  bool FontBold = true;
  double BackColor = 0;
  double ForeColor = 16777215;
};

// A text that takes the header's place on both screens. Colours are decimal text, as in the file.
struct OptionalHeader {
  std::string HeaderText;
  std::string HeaderFont;
  int HeaderFontSize = 0;
  bool HeaderFontBold = false;
  bool HeaderFontItalic = false;
  std::string HeaderForeColor;
  std::string HeaderBackColor;
  bool operator==(const OptionalHeader&) const = default;
};

struct BoardSquare {
  int Row = 0;
  int Column = 0;
  bool operator==(const BoardSquare&) const = default;
};

// The seconds in which a player is to answer. Player 0 while none run; 0 seconds left is "time is up", which stands
// until the verdict.
struct AnswerClock {
  int Player = 0;
  int SecondsLeft = 0;
  bool operator==(const AnswerClock&) const = default;
};

struct GameState {
  GameMode GameType = GameMode::TriviaC;
  int Players = kPlayers;
  int GridSize = 5;
  int GridCols = 5;
  int GridRows = 5;
  // By row and column; 0 is empty, otherwise the owner's number. Only 0..5 are used.
  std::array<std::array<int, 7>, 7> Board{};

  bool GameLoaded = false;
  bool GameInProgress = false;
  bool PlacementOpen = false;
  // Start has been pressed for the loaded game, and a question of it waits for its answer.
  bool GameStarted = false;
  bool QuestionUp = false;

  // Who may answer or claim; 0 is nobody.
  int CurrentPlayer = 0;
  int FlipPlayer = 0;
  PerPlayer<int> Lamp{kLampOn, kLampOff, kLampOff};
  PerPlayer<std::string> LampCode{"1", "3", "3"};
  int CurrentQuestion = 0;
  // By the clock's milliseconds: when the pause that runs brings the next question.
  std::int64_t ContinueAtMs = 0;
  int PiecePoints = 0;
  // Tens of points: what a claim pays, and what a line adds.
  int Scoring = 5, Bonus = 5;
  std::string LastSquareKey;

  // The last claim, for undo; LastPlayer 0 means none.
  int LastPlayer = 0, LastPoints = 0, LastRow = 0, LastCol = 0;

  bool DualScreen = false;
  bool TSSupport = false;
  std::string C2CObject;
  double C2CColor = 0;
  double C2CValue = 0;
  bool C2CCorrectFlag = false;
  bool C2CIncorrectFlag = false;
  PerPlayer<ScreenStyle> ScreenFonts;

  bool HideQuestion = true;
  bool KeyControl = true;
  bool Animation = false;
  int SoundSet = 1;
  // Seconds to answer in; 0 for as long as it takes. Which of them are left is asked of RunningAnswerClock.
  int TimedResponse = 0;
  AnswerClock Clock;
  int AutoContinue = 3;
  bool GameEnds = false;
  bool IncorrectPenalty = false;
  int PenaltyPoints = 0;
  PerPlayer<bool> PlayerPenalty;
  std::string KeyCorrect = "Y", KeyIncorrect = "N";
  bool MicsOnWithBuzzer = false;
  int LedEffects = 0;
  int LedSpeed = 5;
  InterfaceCode SerialComm = InterfaceCode::OutOfRange;
  int RotateCount = 0;

  std::array<int, 22> Routing{};
  bool ShowBaseHeader = true;
  int MODPictureTimer = 5;
  int EventPlayerVolume = 75, KeyPressPlayerVolume = 75, SoundClipPlayerVolume = 75, BackgroundPlayerVolume = 75,
      CorrectIncorrectVolume = 75;
  // The mode of the music: 0 none, 1 the music folder, 2 one file.
  int BackgroundMusic = 0;
  std::string BgMusicFileName;
  // Which columns of a sheet were question and answer last, and whether it had a heading: "0,1,1".
  std::string ImportColumns;
  bool SpellChecker = false;
  // True while there is something to play. The folder's tracks; MusicIndex counts from 1, 0 is before the first.
  bool MusicEnabled = false;
  // The operator has turned the music's sound off, or has stopped it, until he turns it on again.
  bool MusicMuted = false, MusicStopped = false;
  // A question's clip has paused the music, which comes back with the clip's end.
  bool MusicWaits = false;
  std::vector<std::string> MusicList;
  int MusicIndex = 0;
  // Only the first four are used. OptionalHeaderIndex is the next to show.
  std::array<OptionalHeader, 6> OptionalHeaders;
  bool OptionalHeadersOn = false;
  int OptionalHeaderCount = 0;
  int OptionalHeaderIndex = 0;
  bool FullScreenGameBoard = false;
  bool ZR650 = false;
  int LCDResolutions = 1;
  int LCDScreensTop = 0;

  // Twips; where the audience screen goes.
  int FSLeft = 0, FSTop = 0;

  std::string SetsFolder;
  std::string LoadedSetPath;
  std::string SetFolder;

  const GameNature& Nature() const { return NatureOf(GameType); }
};

// Who takes part; with two players the third neither rings in nor judges nor claims.
inline bool Plays(const GameState& state, int number) { return number >= 1 && number <= state.Players; }

}  // namespace pawnfield
