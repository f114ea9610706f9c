// Where the program's own files and the operator's data lie on this machine.
#pragma once

#include <QString>

#include "platform/ports.h"

namespace pawnfield {

// The folder with the media and sets: beside the program, else the source tree's assets it was built from, else the
// installed share folder. Where that one can't be written, a per-user folder that has its own copy of the sets.
Folders FindFolders();
// The per-user stand-in for a read-only folder: links to what is only read, a copy of each set that isn't there yet.
QString MakeUserCopy(const QString& shared, const QString& userFolder);
// Of the settings, and of the lock and the socket.
QString ConfigFolder();
QString RuntimeFolder();

}  // namespace pawnfield
