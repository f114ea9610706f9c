#include "program/program.h"

#include "forms/small_forms.h"
#include "platform/errors.h"
#include "presentation/monitors.h"
#include "presentation/screen_pairs.h"
#include "program/handlers.h"
#include "program/main_load.h"
#include "program/start_up.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// The audience screen is in use where a second monitor is; without one it would stand off the right edge.
void ReadMonitors(Show& show) {
  FindAudiencePlace(show);
  show.state.DualScreen = HasSecondMonitor(show);
  if (show.state.DualScreen) CopyPairs(show);
}

}  // namespace

void Main(Show& show) {
  AttachHandlers(show);
  Processes& processes = show.platform.processes;
  bool another = false;
  RunGuarded(
      show.platform.dialogs, [&] { another = processes.AnotherInstanceRuns(); }, "modMain", "Main");
  // A file that was opened goes to the program that runs, which offers it.
  if (another && !show.consoleDialog.FileName.empty() && processes.HandOver(show.consoleDialog.FileName)) {
    processes.EndProgram();
    return;
  }
  if (another) {
    show.platform.dialogs.MessageBox(
        "There is already an instance of this application open. Please close that instance first.", kAppTitle,
        BoxKind::Critical);
    processes.Activate(0);
    processes.EndProgram();
    return;
  }
  if (ScanForSiblings(show, ScanMode::Report)) return;
  ReadMonitors(show);
  RunGuarded(
      show.platform.dialogs, [&] { ShowStandbyFirst(show); }, "modMain", "ShowStandbyFirst");
  show.platform.displays.RoundWindow(show.frmLoading, kCornerRadius);
  show.frmLoading.Visible = true;
  RunGuarded(
      show.platform.dialogs, [&] { PrepareDataFolders(show); }, "modMain", "PrepareDataFolders");
  show.frmAlwaysLoaded.tmrAlwaysLoaded.Enabled = true;
}

}  // namespace pawnfield
