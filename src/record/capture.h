// A show's snapshot, and the set that its game plays.
#pragma once

#include <vector>

#include "data/snapshot.h"
#include "show/show_record.h"

namespace pawnfield {

class Control;
class MainForm;
struct Show;

// The show as it is, but for what moves: a piece that turns or flashes, a bonus, the notice and the pause are taken as
// they come to rest, with Continue on offer. Changes nothing.
Snapshot Capture(const Show& show);
GameOptions CaptureOptions(const Show& show);
RecordedSet CaptureSet(const Show& show);

// The console's controls whose being enabled and shown is part of the game.
std::vector<Control*> FlowControls(MainForm& form);

}  // namespace pawnfield
