#include "record/history.h"

#include <algorithm>
#include <utility>

#include "forms/main_form.h"
#include "forms/small_forms.h"
#include "platform/text.h"
#include "record/capture.h"
#include "record/event_words.h"
#include "record/record_file.h"
#include "record/restore.h"
#include "record/ring_in_order.h"
#include "sets/set_file.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

const RecordedEvent& Current(const GameHistory& game) { return game.Events[game.Now]; }

bool Holds(const std::vector<Happening>& happenings, EventKind kind) {
  return std::any_of(happenings.begin(), happenings.end(), [&](const Happening& one) { return one.Kind == kind; });
}

// The options and the cover are no part of what is taken back.
bool IsSameGame(Snapshot a, const Snapshot& b) {
  a.Options = b.Options;
  a.Covered = b.Covered;
  a.Over = b.Over;
  return a == b;
}

std::string SetNameOf(const Show& show) { return SetName(ExtractFileName(show.state.LoadedSetPath)); }

RecordedEvent EventOf(const Show& show, const Happening& cause, const Snapshot& before, Snapshot after) {
  RecordedEvent event;
  event.Kind = cause.Kind;
  event.Player = cause.Player;
  event.What = WordsOf(cause, before, after, SetNameOf(show));
  event.At = show.platform.clock.Now();
  event.Ms = show.platform.clock.NowMs() - show.record->BegunMs;
  event.Presses = show.record->DuePresses;
  event.OpenedUs = show.record->DueOpenedUs;
  event.After = std::move(after);
  return event;
}

// The set of the game, shared with the history as long as it is the same.
void FollowSet(Show& show) {
  std::shared_ptr<const RecordedSet>& set = show.record->Game.Set;
  RecordedSet now = CaptureSet(show);
  if (set == nullptr || !(*set == now)) set = std::make_shared<const RecordedSet>(std::move(now));
}

// A question that comes up, and one that opens again after a wrong answer, begins an order of its own.
void FollowPresses(Show& show) {
  const std::vector<Happening>& noted = show.record->Noted;
  if (Holds(noted, EventKind::Question) || Holds(noted, EventKind::Start) || Holds(noted, EventKind::Wipe)) {
    BeginRingInOrder(show, Opening::Anew);
  } else if (Holds(noted, EventKind::Incorrect) && QuestionIsUp(show)) {
    BeginRingInOrder(show, Opening::Again);
  }
}

// The board was cleared: what was played on it becomes the last game.
void BeginGame(Show& show, RecordedEvent event) {
  ShowRecord& record = *show.record;
  if (WasPlayed(record.Game)) record.LastGame = std::move(record.Game);
  record.Game = {};
  if (event.After.Loaded) {
    event.Kind = EventKind::Ready;
    event.What = WordsOf({EventKind::Ready, 0}, event.After, event.After, SetNameOf(show));
  }
  record.Game.Events.push_back(std::move(event));
}

// Before a game there is nothing to take back; what was done is what it begins with.
bool IsBeforeGame(const GameHistory& game, const Snapshot& after) {
  return game.Events.size() == 1 && !game.Events[0].After.Loaded && !after.Loaded;
}

void AddEvent(GameHistory& game, RecordedEvent event) {
  if (IsBeforeGame(game, event.After)) {
    game.Events[0] = std::move(event);
    return;
  }
  game.Events.resize(game.Now + 1);
  game.Events.push_back(std::move(event));
  ++game.Now;
}

void TakeOptions(Show& show) {
  RecordedEvent& current = show.record->Game.Events[show.record->Game.Now];
  current.After.Options = CaptureOptions(show);
  AppendEvent(show, EventOf(show, {EventKind::Options, 0}, current.After, current.After));
}

// A step through the history, which is an event of its own in the record.
void StepTo(Show& show, std::size_t place, EventKind kind, const std::string& what) {
  GameHistory& game = show.record->Game;
  game.Now = place;
  ++show.record->Steps;
  Restore(Current(game).After, show);
  show.record->Noted.clear();
  // A ring-in that was taken back may come again.
  if (IsPhase(show, PhaseKind::QuestionOpen)) BeginRingInOrder(show, Opening::Again);
  RecordedEvent step = EventOf(show, {kind, 0}, Current(game).After, Current(game).After);
  step.What = (kind == EventKind::Undone ? "Undone: " : "Done again: ") + what;
  show.frmMain.lblStatusBar.Caption = step.What;
  AppendEvent(show, step);
  ShowUndo(show);
}

// A claim that was taken back leaves the operator the choice of going on without another.
void OfferContinue(const Show& show, Snapshot& snapshot) {
  if (show.state.Nature().Trivia) std::erase(snapshot.Disabled, show.frmMain.btnContinue.Name());
}

// The last event at which the game still ran.
std::size_t LastRunning(const GameHistory& game) {
  std::size_t place = game.Now;
  while (place > 0 && !(game.Events[place].After.Loaded && game.Events[place].After.Started)) --place;
  return place;
}

}  // namespace

void BeginHistory(Show& show) {
  ShowRecord& record = *show.record;
  record.BegunMs = show.platform.clock.NowMs();
  record.Noted.clear();
  record.Due.clear();
  const Snapshot now = Capture(show);
  record.Game = {};
  record.Game.Events.push_back(EventOf(show, {EventKind::Ready, 0}, now, now));
  ShowUndo(show);
}

void BeforeEvent(Show& show) { TakeSnapshot(show); }

void AfterEvent(Show& show) {
  ShowRecord& record = *show.record;
  if (record.Game.Events.empty()) return;
  const bool options =
      record.Noted.empty() && record.Due.empty() && !(CaptureOptions(show) == Current(record.Game).After.Options);
  if (options) record.Noted.push_back({EventKind::Options, 0});
  if (record.Noted.empty()) return;
  record.Due.insert(record.Due.end(), record.Noted.begin(), record.Noted.end());
  record.DuePresses = record.Presses;
  record.DueOpenedUs = record.OpenedUs;
  FollowPresses(show);
  record.Noted.clear();
  if (!options) show.frmMain.btnUndo.Enabled = !Holds(record.Due, EventKind::Wipe);
  show.frmAlwaysLoaded.tmrRecord.Enabled = true;
}

void TakeSnapshot(Show& show) {
  ShowRecord& record = *show.record;
  if (record.Due.empty()) return;
  show.frmAlwaysLoaded.tmrRecord.Enabled = false;
  const std::vector<Happening> due = std::exchange(record.Due, {});
  if (due.front().Kind == EventKind::Options) {
    TakeOptions(show);
    return;
  }
  const Snapshot before = Current(record.Game).After;
  RecordedEvent event = EventOf(show, due.front(), before, Capture(show));
  const bool wipe = Holds(due, EventKind::Wipe);
  if (wipe || !IsSameGame(event.After, before)) {
    if (wipe) {
      BeginGame(show, event);
    } else {
      AddEvent(record.Game, event);
    }
    FollowSet(show);
    AppendEvent(show, Current(record.Game));
  }
  ShowUndo(show);
}

std::string UndoText(const Show& show) {
  const GameHistory& game = show.record->Game;
  return game.Now > 0 ? Current(game).What : std::string();
}

std::string RedoText(const Show& show) {
  const GameHistory& game = show.record->Game;
  return game.Now + 1 < game.Events.size() ? game.Events[game.Now + 1].What : std::string();
}

void btnUndo_Click(Show& show) {
  TakeSnapshot(show);
  const GameHistory& game = show.record->Game;
  if (game.Now == 0) return;
  const bool claim = Current(game).Kind == EventKind::Claim;
  if (claim) OfferContinue(show, show.record->Game.Events[game.Now - 1].After);
  StepTo(show, game.Now - 1, EventKind::Undone, UndoText(show));
}

void Redo(Show& show) {
  TakeSnapshot(show);
  const GameHistory& game = show.record->Game;
  if (game.Now + 1 < game.Events.size()) StepTo(show, game.Now + 1, EventKind::Redone, RedoText(show));
}

bool HasLastGame(const Show& show) { return WasPlayed(show.record->LastGame); }

void TakeUpGame(Show& show, GameHistory game) {
  ShowRecord& record = *show.record;
  record.Game = std::move(game);
  ++record.Steps;
  record.Due.clear();
  record.Noted.clear();
  record.Presses.clear();
  if (record.Game.Set) RestoreSet(*record.Game.Set, show);
  const Snapshot now = Current(record.Game).After;
  RestoreOptions(now.Options, show);
  Restore(now, show);
  record.Noted.clear();
  AppendGame(show);
  ShowUndo(show);
}

void BringBackLastGame(Show& show) {
  TakeSnapshot(show);
  if (!HasLastGame(show)) return;
  ShowRecord& record = *show.record;
  GameHistory game = std::exchange(record.LastGame, {});
  game.Now = LastRunning(game);
  if (WasPlayed(record.Game)) record.LastGame = std::move(record.Game);
  TakeUpGame(show, std::move(game));
  show.frmMain.lblStatusBar.Caption = "The last game is back.";
}

void ShowUndo(Show& show) {
  MainForm& form = show.frmMain;
  const std::string undo = UndoText(show);
  form.btnUndo.Enabled = !undo.empty();
  form.btnUndo.ToolTipText = undo.empty() ? "Ctrl+U" : "Ctrl+U: " + undo;
  form.mnuFileBringBack.Enabled = HasLastGame(show);
}

}  // namespace pawnfield
