// What the show remembers of itself: the events of the game with the snapshot that each led to, the game before it, and
// the presses of the question. Owned by the show; the record room works it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "data/press.h"
#include "data/show_results.h"
#include "data/snapshot.h"
#include "data/trivia_set.h"
#include "platform/ports.h"

namespace pawnfield {

enum class EventKind {
  Ready,
  Start,
  Question,
  RingIn,
  Correct,
  Incorrect,
  Claim,
  Score,
  Name,
  Skip,
  Turn,
  Players,
  Grid,
  ClearScores,
  End,
  Wipe,
  Options,
  Undone,
  Redone,
  BroughtBack,
};

struct Happening {
  EventKind Kind = EventKind::Ready;
  // Whom it is about; 0 for nobody.
  int Player = 0;
};

struct RecordedEvent {
  EventKind Kind = EventKind::Ready;
  int Player = 0;
  // In words, as in "Incorrect for BEN, -100".
  std::string What;
  LocalTime At;
  // Since the record's beginning.
  std::int64_t Ms = 0;
  std::vector<Press> Presses;
  // When the question opened to these presses, in the microseconds of the same clock; 0 where none did.
  std::int64_t OpenedUs = 0;
  Snapshot After;
};

// The set of a game as it was played, whatever becomes of its file.
struct RecordedSet {
  TriviaSet Questions;
  int Count = 0;
  std::string Path, Folder;
  bool operator==(const RecordedSet&) const = default;
};

// The first event is what the game began with, and can't be taken back.
struct GameHistory {
  std::vector<RecordedEvent> Events;
  // The place of the event whose snapshot the show stands at; those behind it have been taken back.
  std::size_t Now = 0;
  std::shared_ptr<const RecordedSet> Set;
};

// What the check before a show said of one thing that the show needs.
struct CheckedRow {
  std::string Row, Light, Sentence;
  bool operator==(const CheckedRow&) const = default;
};

// What a record tells, as far as it can be read.
struct ReadRecord {
  LocalTime At;
  // The game that was open last, with the events that were taken back in it.
  GameHistory Game;
  // The set that was read last, which is that of the events behind it.
  std::shared_ptr<const RecordedSet> Set;
  // The games before it, in their order, each as it stood at last.
  std::vector<GameHistory> Games;
  // All events of the show in their order.
  std::vector<RecordedEvent> Events;
  // What the checks before its games said, a row of the check each.
  std::vector<CheckedRow> Checked;
  // The operator has ended the show.
  bool Ended = false;
  // The length of what is whole: a line that was torn behind it has no part in it.
  std::size_t WholeBytes = 0;
};

// A show whose record ends amid a game.
struct InterruptedShow {
  std::string Name;
  ReadRecord Record;
};

struct ShowRecord {
  // What has happened in the event under way, the cause first.
  std::vector<Happening> Noted;
  // What has happened and waits for its snapshot.
  std::vector<Happening> Due;
  // The presses as they stood then.
  std::vector<Press> DuePresses;
  std::int64_t DueOpenedUs = 0;
  GameHistory Game, LastGame;
  // How often Undo, Redo and the return of a game have moved the show to another snapshot.
  std::size_t Steps = 0;
  // Of the question, in the order of their times.
  std::vector<Press> Presses;
  // When the question came up, in the clock's microseconds.
  std::int64_t QuestionUs = 0;
  // When it opened last, which it does again after a wrong answer.
  std::int64_t OpenedUs = 0;
  // The name of the record on the disk, empty before the first line of it.
  std::string File;
  // The records that there were at the program's start, oldest first.
  std::vector<std::string> FilesAtStart;
  // What was found at the start and waits for the operator's answer.
  std::optional<InterruptedShow> Interrupted;
  std::int64_t BegunMs = 0;
  // The set whose text the record holds.
  std::shared_ptr<const RecordedSet> SetOnFile;
  bool FileFails = false;
  // What the check before the show said last; goes to the record with its next line.
  std::vector<CheckedRow> Checked;
  // What the results' window shows, and a number for each record that was asked for.
  ShowResults Results;
  int ResultsAsked = 0;
};

}  // namespace pawnfield
