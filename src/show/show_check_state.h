// What the check before the show knows, and how far its trials have come. Owned by the show.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "data/players.h"
#include "data/set_finding.h"
#include "data/trivia_set.h"
#include "platform/ports.h"
#include "show/press_state.h"

namespace pawnfield {

// What has come of a player's press while each presses once.
struct PressBox {
  // The press that counts; nothing until it came.
  std::optional<TriedPress> Came;
  // From the press, as far as that is known, to its being taken, in microseconds.
  std::int64_t WaitUs = 0;
};

struct PressTrial {
  bool Running = false;
  // Who is asked to press; 0 when all have.
  int Asked = 0;
  PerPlayer<PressBox> Boxes;
  // What was wrong with the last press that was not what was asked for, and all that was so.
  std::string Note;
  std::vector<std::string> Faults;
  // The presses of the last second.
  std::vector<TriedPress> Last;
};

struct ShowCheckState {
  // Asked of the machine; nothing before the first answer.
  std::optional<RecordPlace> Place;
  std::optional<AwakeAnswer> Awake;
  std::optional<std::vector<std::string>> SoundDevices;
  PressTrial Presses;
  // Which of the five channels sounds, 1 to 5, and 0 for none; whether all have.
  int Channel = 0;
  bool SoundsPlayed = false;
  // Seconds into the track of music that a trial has cut, below 0 for none, and whether the music's timer ran.
  double MusicAt = -1;
  bool MusicTimer = false;
  bool TestPictureShown = false;
  int TestLineSize = 0;
  // What was found about the game's set, and which set that was.
  std::vector<SetFinding> Findings;
  TriviaSet Checked;
  int CheckedCount = -1, CheckedFiles = 0;
};

}  // namespace pawnfield
