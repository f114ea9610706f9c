// Every setting of the program, each once: its key, what stands where nothing is stored, what of the game's state it is
// and its range, and when it is read and saved. Reading, saving, the forms' lists and the tests take it from here.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "data/game_state.h"

namespace pawnfield {

// Both ends are in the range.
struct Range {
  int Low, High;
  bool Holds(int value) const { return value >= Low && value <= High; }
};

// Ranges and choices that forms offer too.
inline constexpr Range kPictureHolds{5, 20};
inline constexpr Range kRoutes{1, 20};
inline constexpr Range kVolumes{0, 100};
inline constexpr Range kMusicModes{0, 2};
inline constexpr Range kGridSizes{3, 5};
inline constexpr Range kPlayerCounts{2, kPlayers};
inline constexpr Range kAutoContinues{3, kUserAdvances};
inline constexpr Range kPointChoices{0, 10};
// Each source has its own: GCC for Windows can't link an inline one, which it puts now among the constants and now not.
[[maybe_unused]] constexpr std::array kTimedResponses{0, 3, 5, 7, 10};
[[maybe_unused]] constexpr std::array kPenaltyChoices{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 20};

// Keys that are saved by name, at the moment of their choice.
inline constexpr const char* kSerialCommKey = "SerialComm";
inline constexpr const char* kShowBaseHeaderKey = "ShowBaseHeader";

// What is never read is found anew at each start, or is there for other programs.
enum class ReadAt { Load, Never };
// All are saved when they change while the console runs. AtExitToo: once more at the exit, in the table's order.
enum class SaveAt { ExitToo, ChangeOnly };

struct SettingRow {
  std::string Key;
  std::string Default;
  ReadAt Read;
  SaveAt Save;
  // Takes a stored text; what is out of range becomes what the row says. False, and nothing taken, for a text that
  // can't be converted.
  std::function<bool(GameState&, const std::string& text)> Take;
  // What is saved.
  std::function<std::string(const GameState&)> Text;
};

// In the order in which they are saved.
const std::vector<SettingRow>& SettingsTable();
const SettingRow& SettingOf(const std::string& key);

}  // namespace pawnfield
