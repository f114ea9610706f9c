#include "record/come_back.h"

#include <cstdio>
#include <utility>

#include "engine/game_flow.h"
#include "forms/main_form.h"
#include "platform/escapes.h"
#include "platform/text.h"
#include "record/history.h"
#include "record/record_lines.h"
#include "sets/set_file.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// The record goes on in the same file, behind what is whole of it. The room sees standby until the operator presses
// Show.
void BringBack(Show& show, InterruptedShow interrupted) {
  ShowRecord& record = *show.record;
  record.File = interrupted.Name;
  record.BegunMs = show.platform.clock.NowMs() - interrupted.Record.Events.back().Ms;
  show.platform.records.CutTo(interrupted.Name, interrupted.Record.WholeBytes);
  btnStandbyMode_Click(show);
  TakeUpGame(show, std::move(interrupted.Record.Game));
  show.frmMain.btnPlayMode.Enabled = true;
  show.frmMain.btnStandbyMode.Enabled = false;
  show.frmMain.lblStatusBar.Caption = "The show is back. The room sees standby until you press Show.";
}

// It isn't offered again.
void LeaveBehind(Show& show, const InterruptedShow& interrupted) {
  show.platform.records.CutTo(interrupted.Name, interrupted.Record.WholeBytes);
  show.platform.records.Append(interrupted.Name, FormatEnd());
}

}  // namespace

std::string Describe(const InterruptedShow& interrupted) {
  const GameHistory& game = interrupted.Record.Game;
  const RecordedEvent& last = game.Events[game.Now];
  char time[40];
  std::snprintf(time, sizeof time, "%02d:%02d", last.At.Hour, last.At.Minute);
  std::string text = std::string("A show was interrupted at ") + time + ":";
  const GameNature& type = NatureOf(static_cast<GameMode>(last.After.GameType));
  if (type.Trivia && game.Set) {
    text += " " + Isolated(SetName(ExtractFileName(game.Set->Path))) + ", question " +
            std::to_string(last.After.CurrentQuestion + 1) + " of " + std::to_string(game.Set->Count);
  } else {
    text += std::string(" ") + type.Caption;
  }
  for (int player = 1; player <= last.After.Players; ++player)
    text += ", " + Isolated(last.After.Names[PlayerIndex(player)]) + " " + last.After.Scores[PlayerIndex(player)];
  return text + ".";
}

bool AskForInterruptedShow(Show& show) {
  if (!show.record->Interrupted) return false;
  InterruptedShow interrupted = *std::exchange(show.record->Interrupted, std::nullopt);
  const BoxAnswer answer = show.platform.dialogs.Ask(
      {Describe(interrupted), BoxKind::YesNo, BoxAnswer::Yes, "Bring It Back", "Start Afresh"}, kAppTitle);
  if (answer != BoxAnswer::Yes) {
    LeaveBehind(show, interrupted);
    return false;
  }
  BringBack(show, std::move(interrupted));
  return true;
}

}  // namespace pawnfield
