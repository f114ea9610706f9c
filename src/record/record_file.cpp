#include "record/record_file.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

namespace {

std::string FileNameOf(const LocalTime& at) {
  char text[80];
  std::snprintf(text, sizeof text, "Show %04d-%02d-%02d %02d-%02d-%02d", at.Year, at.Month, at.Day, at.Hour, at.Minute,
                at.Second);
  return text;
}

void RemoveOldShows(Show& show) {
  std::vector<std::string>& names = show.record->FilesAtStart;
  while (names.size() >= kShowsKept) {
    show.platform.records.Remove(names.front());
    names.erase(names.begin());
  }
}

// Two shows of one second, and a clock that was put back, get names of their own behind the others.
std::string NewName(Show& show) {
  const std::vector<std::string>& names = show.record->FilesAtStart;
  const std::string wanted = FileNameOf(show.platform.clock.Now());
  std::string name = wanted;
  for (int number = 2; std::find(names.begin(), names.end(), name + kRecordEnding) != names.end(); ++number)
    name = wanted + " " + std::to_string(number);
  return name + kRecordEnding;
}

// The first line of a record, when there is none yet.
std::string BeginFile(Show& show) {
  ShowRecord& record = *show.record;
  if (!record.File.empty()) return {};
  record.File = NewName(show);
  record.SetOnFile.reset();
  RemoveOldShows(show);
  return FormatHead(show.platform.clock.Now());
}

std::string SetLine(Show& show) {
  ShowRecord& record = *show.record;
  if (record.Game.Set == nullptr || record.SetOnFile == record.Game.Set) return {};
  record.SetOnFile = record.Game.Set;
  return FormatSetLine(*record.Game.Set);
}

// What the check before the show said, once.
std::string CheckLine(Show& show) {
  const std::vector<CheckedRow> rows = std::exchange(show.record->Checked, {});
  return rows.empty() ? std::string() : FormatCheck(rows);
}

// The events of the game up to the present one; the first begins the game for who reads it.
std::string GameLines(const GameHistory& game) {
  std::string lines;
  for (std::size_t i = 0; i <= game.Now; ++i) lines += FormatEvent(game.Events[i]);
  return lines;
}

void RecordFails(Show& show, const RuntimeError& error) {
  if (std::exchange(show.record->FileFails, true)) return;
  show.frmMain.lblStatusBar.Caption =
      "The show's record can't be written: " + std::string(error.what()) + ". The show goes on.";
}

// What was lost meanwhile is whole again with the game as it stands.
void RecordIsBack(Show& show) {
  if (!std::exchange(show.record->FileFails, false)) return;
  show.frmMain.lblStatusBar.Caption = "The show's record is written again.";
}

}  // namespace

void AttachRecord(Show& show) {
  // A show that runs asks no disk which records there are.
  show.record->FilesAtStart = show.platform.records.List();
  // Events of the console, so that its chip follows at once.
  show.platform.records.OnFailed = [&show](const RuntimeError& error) {
    show.frmMain.Dispatch([&] { RecordFails(show, error); }, "OnRecordFailed");
  };
  show.platform.records.OnBack = [&show] { show.frmMain.Dispatch([&] { RecordIsBack(show); }, "OnRecordBack"); };
}

void AppendEvent(Show& show, const RecordedEvent& event) {
  ShowRecord& record = *show.record;
  std::string lines;
  if (record.File.empty()) {
    if (!event.After.Started) return;
    lines = BeginFile(show);
    lines += CheckLine(show) + SetLine(show) + GameLines(record.Game);
  } else {
    lines = CheckLine(show) + SetLine(show) + FormatEvent(event);
  }
  show.platform.records.Append(record.File, lines);
}

void AppendGame(Show& show) {
  ShowRecord& record = *show.record;
  std::string head = BeginFile(show);
  // A record whose file is lost begins anew with what was added first.
  if (head.empty()) head = FormatHead(show.platform.clock.Now());
  record.SetOnFile.reset();
  const std::string set = SetLine(show);
  RecordedEvent first = record.Game.Events.front();
  first.Kind = EventKind::BroughtBack;
  std::string lines = head + set + FormatEvent(first);
  for (std::size_t i = 1; i < record.Game.Events.size(); ++i) lines += FormatEvent(record.Game.Events[i]);
  for (std::size_t i = record.Game.Events.size(); i > record.Game.Now + 1; --i) {
    RecordedEvent undone = record.Game.Events[i - 2];
    undone.Kind = EventKind::Undone;
    lines += FormatEvent(undone);
  }
  show.platform.records.Append(record.File, lines);
}

void EndShow(Show& show) {
  if (!show.record->File.empty()) show.platform.records.Append(show.record->File, FormatEnd());
}

std::optional<InterruptedShow> FindInterruptedShow(Show& show) {
  RecordFiles& files = show.platform.records;
  const std::vector<std::string>& names = show.record->FilesAtStart;
  if (names.empty()) return std::nullopt;
  auto record = ParseRecord(files.Read(names.back()));
  if (!record || record->Ended || record->Game.Events.empty()) return std::nullopt;
  const Snapshot& last = record->Game.Events[record->Game.Now].After;
  if (!last.Loaded || !last.Started) return std::nullopt;
  return InterruptedShow{names.back(), std::move(*record)};
}

}  // namespace pawnfield
