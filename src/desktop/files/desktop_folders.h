// Where the program's own files and the operator's data lie on this machine.
#pragma once

#include <QString>
#include <optional>

#include "desktop/files/user_copy.h"
#include "platform/ports.h"

namespace pawnfield {

// The folder with the media and sets: beside the program, else the source tree's assets it was built from, else the
// installed share folder. Where that one can't be written, the user's own copy of it, and what of
// that could not be made.
Folders FindFolders(std::optional<CopyFailure>& failure);
// Of the settings, and of the lock and the socket.
QString ConfigFolder();
QString RuntimeFolder();

}  // namespace pawnfield
