#include "monkey/second_show.h"

#include <algorithm>

#include "forms/main_form.h"
#include "platform/text.h"
#include "presentation/both_screens.h"
#include "presentation/picture_question.h"
#include "program/program.h"
#include "record/capture.h"
#include "record/history.h"
#include "record/record_lines.h"
#include "record/restore.h"
#include "record/snapshot_json.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"
#include "support/same_show.h"

namespace pawnfield {

namespace {

bool SameMonitors(const std::vector<MonitorInfo>& a, const std::vector<MonitorInfo>& b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](const MonitorInfo& x, const MonitorInfo& y) {
           return x.Left == y.Left && x.Top == y.Top && x.Right == y.Right && x.Bottom == y.Bottom;
         });
}

// Whether the room's screen is covered and what was written of the console alone isn't the record's.
void CoverLike(const Show& played, Show& restored) {
  restored.frmMain.picStandby.Visible = played.frmMain.picStandby.Visible;
}

// The picture of the question that is up was lost or found since: the played show has what was there then, and the
// restored one what is there now.
bool PictureCameOrWent(Show& played, const SimPlatform& machine) {
  const std::string picture = Trim(RecordAt(played.GameSet, played.state.CurrentQuestion + 1).QuestionText);
  return played.state.QuestionUp && KindOfQuestion(picture) == QuestionKind::Picture &&
         machine.files.CanOpen(picture) == IsPictureMissing(played);
}

std::string AtStep(Show& show, const char* way) {
  const GameHistory& game = show.record->Game;
  Snapshot wanted = game.Events[game.Now].After;
  const Snapshot found = Capture(show);
  wanted.Options = found.Options;
  // The winner himself moves, and isn't begun again.
  wanted.Over = found.Over;
  // The cover stays as it is through a step, and hides or shows whose turn it is.
  if (wanted.Covered != found.Covered) wanted.Lit = found.Lit, wanted.Cursor = found.Cursor;
  wanted.Covered = found.Covered;
  if (wanted == found) return {};
  return std::string(way) + " to '" + game.Events[game.Now].What + "': " + UnlikeSnapshots(wanted, found);
}

}  // namespace

SecondShow::SecondShow(const std::vector<MonitorInfo>& monitors) : show_(sim_.platform) {
  sim_.displays.Monitors = monitors;
  sim_.dialogs.ExpectMessage("No hardware was detected");
  Main(show_);
  sim_.clock.Advance(12000);
}

std::string SecondShow::Compare(Show& played, const SimPlatform& machine) {
  sim_.files = machine.files;
  if (!SameMonitors(sim_.displays.Monitors, machine.displays.Monitors)) sim_.displays.Change(machine.displays.Monitors);
  if (std::string fault = ReadRecordOf(played); !fault.empty()) return fault;
  CoverLike(played, show_);
  RestoreSet(*read_.Set, show_);
  RestoreOptions(read_.Events[0].After.Options, show_);
  Restore(read_.Events[0].After, show_);
  if (PictureCameOrWent(played, machine)) return {};
  const std::string unlike = UnlikeShows(played, show_);
  return unlike.empty() ? unlike : "after a restore: " + unlike;
}

std::string SecondShow::ReadRecordOf(const Show& played) {
  RecordedEvent event;
  event.After = Capture(played);
  const RecordedSet set = CaptureSet(played);
  const bool isWritten = !read_.Events.empty() && event.After == written_ && set == writtenSet_;
  if (isWritten) return {};
  const auto record = ParseRecord(FormatHead({}) + FormatSetLine(set) + FormatEvent(event));
  if (!record || record->Game.Events.size() != 1) return "the record doesn't read back: " + FormatEvent(event);
  written_ = event.After;
  writtenSet_ = set;
  read_ = record->Game;
  return {};
}

std::string WalkHistory(Show& show) {
  const GameHistory& game = show.record->Game;
  const std::size_t from = game.Now;
  while (game.Now > 0) {
    btnUndo_Click(show);
    if (std::string fault = AtStep(show, "undone"); !fault.empty()) return fault;
  }
  while (game.Now < from) {
    Redo(show);
    if (std::string fault = AtStep(show, "done again"); !fault.empty()) return fault;
  }
  return {};
}

}  // namespace pawnfield
