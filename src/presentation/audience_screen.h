// The life of the audience screen: frmFSMain is loaded once and stays until exit; frmSS, its window on the second
// monitor, comes and goes with that monitor.
#pragma once

namespace pawnfield {

struct Show;

// Ties the audience form's, frmSS's and the monitors' events to the routines below.
void AttachAudienceHandlers(Show& show);

// Loads frmFSMain at its first call, gives it the left edge in twips and shows it.
void ShowAudienceScreen(Show& show, int left);
// Loads frmSS where a second monitor is and frmSS is not loaded. The canvas paints each change at once, so that a tick
// without a change costs nothing.
void PaintGB(Show& show);
// Holds the desktop's saver and sleep off while the board or a question is up, whoever brought it up. Looked after
// every two seconds, on a timer that runs anyway; no saver is that quick.
void KeepAwakeWhileShowing(Show& show);
// Records frmFSMain's place and unloads both forms.
void UnloadAudienceScreen(Show& show);
// A monitor came, went or changed: the audience screen follows it, in step with the console.
void MonitorsChanged(Show& show);

}  // namespace pawnfield
