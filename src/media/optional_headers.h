// Text headers that rotate in the header's place on both screens, and the dialog that edits them.
#pragma once

namespace pawnfield {

struct Show;

// Start-up: reads the headers that a show of the last six hours left.
void LoadOptionalHeaders(Show& show);
// Reads Headers.txt into the records and the dialog's boxes; headers of 360 minutes and more are left alone.
void ReadFromHeaderFile(Show& show);
// Writes the boxes to Headers.txt.
void SaveToOSKD(Show& show);
// Opens frmOptionalHeaders and returns when it has been closed.
void ShowOptionalHeaders(Show& show);
// The next header, or the base header, on both screens.
void tmrOptionalHeaders_Timer(Show& show);
// Gives the audience's heading the console's font, in a size of its own.
void FitHeading(Show& show);

void AttachOptionalHeadersHandlers(Show& show);

}  // namespace pawnfield
