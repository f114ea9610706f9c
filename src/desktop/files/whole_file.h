// Files that are the old one or the new one, whatever happens while they are written.
#pragma once

#include <QString>
#include <cstdio>
#include <functional>
#include <string_view>

#include "platform/ports.h"

namespace pawnfield {

// The error that a failed call of the operating system means, with the words of its number.
RuntimeError FileError(int systemError);

// All that the file holds. A RuntimeError when it can't be read, with the number that says whether it, its folder or
// the right to it is missing.
QByteArray ReadFile(const QString& path);

// A RuntimeError where there is one already or it can't be made; the folder above must be there.
void MakeFolder(const QString& path);

// Puts the bytes in the file's place, on the disk with its folder when it returns. A file that was there gives the new
// one its rights, and its owner and group where this user may set them. A link stays one and its target is replaced; of
// a file that has several names, this name alone gets the bytes and the others keep the old ones. After a RuntimeError
// the old file is there unharmed and nothing beside it. What a process left that was killed amid a write goes with the
// next write of the same file. Where another file is named, that one gives owner, group and rights.
void ReplaceFile(const QString& path, std::string_view bytes, const QString& like = {});
// The same for bytes that come piece by piece: the routine puts them into the file that it is given, and says whether
// they are wanted. False when they aren't; the old file is there then.
bool ReplaceFileBy(const QString& path, const std::function<bool(std::FILE* file)>& write);
// Returns when the file's bytes are on the disk. A RuntimeError where the disk can't take them.
void KeepOnDisk(const QString& path);
// The same for the names in a folder; a disk that can't sync a folder keeps them in its own time.
void SyncFolder(const QString& path);
// No process of that number runs.
bool HasEnded(qint64 process);

}  // namespace pawnfield
