// The sound table: a media file for each game event and letter key, in three banks, and its file Sounds.dat.
#pragma once

#include <array>
#include <string>

#include "show/show.h"

namespace pawnfield {

inline constexpr int kSoundBuzzer1 = 1;  // 1, 2, 3: the players' ring-in clips.
inline constexpr int kSoundCorrect = 4;
inline constexpr int kSoundIncorrect = 5;
inline constexpr int kSoundCongratulations = 6;
inline constexpr int kSoundQuestionReveal = 7;
// What the game itself plays, row by row: its label in the grid, and bank 1's file of the program's folder.
struct GameSound {
  int Row;
  const char* Label;
  const char* File;
};
inline constexpr std::array kGameSounds{GameSound{kSoundBuzzer1, "Buzzer 1", "RingsIn.mp3"},
                                        GameSound{kSoundBuzzer1 + 1, "Buzzer 2", "RingsIn.mp3"},
                                        GameSound{kSoundBuzzer1 + 2, "Buzzer 3", "RingsIn.mp3"},
                                        GameSound{kSoundCorrect, "Correct", "Correct.mp3"},
                                        GameSound{kSoundIncorrect, "Incorrect", "Incorrect.mp3"},
                                        GameSound{kSoundCongratulations, "Congratulations", "DDouble.wav"},
                                        GameSound{kSoundQuestionReveal, "Question Reveal", "Question Appears.wav"}};
inline constexpr int kSoundFirstKey = 9;
inline constexpr int kSoundRows = 34;
inline constexpr int kSoundBankCount = 3;

// The entry of the bank in use (SoundSet); empty when the effect is off or the row or bank is out of range.
std::string SoundEntry(const Show& show, int row);

// The file's 102 lines, bank after bank, to the entries and back. False when lines are missing: their entries are
// empty.
bool ParseSoundTable(const std::string& bytes, SoundBanks& banks);
// The same, and the entries whose lines are missing stay as they are.
bool ReadSoundTable(const std::string& bytes, SoundBanks& banks);
std::string FormatSoundTable(const SoundBanks& banks);

// Reads Sounds.dat. False when it is missing or short; entries read so far stand, an absent file leaves the table
// alone.
bool LoadSoundTable(Show& show);
void SaveSoundTable(Show& show);
// Bank 1's files of the program's folder.
void FillDefaultSounds(Show& show);

}  // namespace pawnfield
