// Reads and writes set files, and keeps the console's list of sets.
#pragma once

#include <optional>
#include <string>

#include "data/trivia_set.h"
#include "platform/controls.h"

namespace pawnfield {

struct Show;

// Parses a file's bytes into the set; returns the count of questions. The set is reset first.
int ParseSet(const std::string& bytes, TriviaSet& set);
// A sibling title's set: six blocks of a heading and five questions of four lines, the third of which means nothing
// here. Whatever the file lacks is left blank. The set is reset first. False when the file has another form: it holds
// no question, or one whose fourth line is no format.
inline constexpr int kImportedQuestions = 30;
bool ParseImportedSet(const std::string& bytes, TriviaSet& set);
// All 101 records, 303 lines.
std::string FormatSet(const TriviaSet& set);
// The questions only, up to the first blank one, at most 100.
std::string FormatQuestions(const TriviaSet& set);
// Moves blank records one step towards the end, in a single pass.
void CompactSet(TriviaSet& set);

// The questions up to the first blank one.
int CountQuestions(const TriviaSet& set);

// The record of that number, 1 to 101; any other is the subscript error.
TriviaQuestion& RecordAt(TriviaSet& set, int number);

// The bytes of a set's file. Nothing, and an error message, when it is too large or can't be read.
std::optional<std::string> ReadSetBytes(Show& show, const std::string& path, const std::string& form,
                                        const std::string& procedure);

// The set that was there has no file any more.
void ResetGameSet(Show& show);
// Fills GameSet. False for a blank path, which empties it, and for a file that can't be read: that is reported, and
// the set stays as it was.
bool LoadGameSet(Show& show, const std::string& path);
// Adds "Select Game Set" and the names of the sets folder to cboList and selects the first item.
void FillSetList(Show& show);

// Field parsers of a trimmed format line.
std::string ParseFontName(const std::string& line);
int ParseFontSize(const std::string& line);
bool ParseFontBold(const std::string& line);
bool ParseFontItalic(const std::string& line);
std::string ParseFontColor(const std::string& line);

// The font in which the show writes a text question, before it is fitted.
Font QuestionFont(const TriviaQuestion& question);

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

enum class QuestionKind { Text, Picture, Sound };
// By the last four characters of the trimmed text.
QuestionKind KindOfQuestion(const std::string& questionText);

}  // namespace pawnfield
