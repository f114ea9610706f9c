// What the program can be told to do to the writers; each prints a line for each kind of file.
#pragma once

#include <QString>

namespace pawnfield::faults {

// Ends a writing process at that many random moments. Returns the count of faults found.
int RunKills(const QString& root, int kills);
// The record of a show that is killed amid a game.
int RunRecordKills(const QString& root, int kills);
// The show's record on a small disk that fills up, and in a folder that goes, amid a game.
int RunRecordDisks(const QString& root);

// The root lies on a small disk, which is filled more and more.
int RunFullDisk(const QString& root);
// The folder, and then the file, may not be written by this user.
int RunNoAccess(const QString& root);
// PrepareReadOnly writes the old files; then the disk is made read-only from outside.
int PrepareReadOnly(const QString& root);
int RunReadOnly(const QString& root);
// Files that have an owner, rights and names of their own.
int RunKept(const QString& root);
// The folder goes and comes back.
int RunVanished(const QString& root);

// Sets that are meant to do harm are read: pipes, devices, links in circles, huge files, and media of that kind.
int RunHostile(const QString& root);

}  // namespace pawnfield::faults
