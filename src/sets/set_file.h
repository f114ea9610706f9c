// Reads and writes set files, and keeps the console's list of sets.
#pragma once

#include <optional>
#include <string>

#include "data/trivia_set.h"

namespace pawnfield {

struct Show;

// The record of that number, 1 to 101; any other is the subscript error.
TriviaQuestion& RecordAt(TriviaSet& set, int number);

// The bytes of a set's file. Nothing, and an error message, when it is too large or can't be read.
std::optional<std::string> ReadSetBytes(Show& show, const std::string& path, const std::string& form,
                                        const std::string& procedure);

// Empties GameSet and with it the board, whose squares no set claims any more; it has no file either.
void ResetGameSet(Show& show);
// Fills GameSet. False for a blank path, which empties it, and for a file that can't be read: that is reported, and
// the set stays as it was.
bool LoadGameSet(Show& show, const std::string& path);
// Adds "Select Game Set" and the names of the sets folder to cboList and selects the first item.
void FillSetList(Show& show);

// The name of a set by its file's name: without ".txt" in any case.
std::string SetName(const std::string& fileName);
// NUL removed, trimmed, ".txt" appended unless the path ends so.
std::string NormalSetPath(const std::string& path);
// Where the file that a save replaces is kept: its name with ".bak" for ".txt".
std::string BackupPath(const std::string& path);
// Puts the bytes in the place of a set's file and keeps the one that was there, where they differ. After a RuntimeError
// the set's file is there unharmed.
void ReplaceSetFile(Show& show, const std::string& path, const std::string& bytes);
// Writes the set in the given path's normal form, which goes back to the caller. True when it was saved; a
// failure is reported to the operator.
bool SaveSetFile(Show& show, TriviaSet& set, std::string& path);

}  // namespace pawnfield
