// Reads and writes set files, and keeps the console's list of sets.
#pragma once

#include <string>

#include "data/trivia_set.h"

namespace pawnfield {

struct Show;

// Parses a file's bytes into the set; returns the count of questions. The set is reset first.
int ParseSet(const std::string& bytes, TriviaSet& set);
// A sibling title's set: six blocks of a heading and five questions of four lines, the third of which means nothing
// here. Whatever the file lacks is left blank. The set is reset first.
inline constexpr int kImportedQuestions = 30;
void ParseImportedSet(const std::string& bytes, TriviaSet& set);
// All 101 records, 303 lines.
std::string FormatSet(const TriviaSet& set);
// The questions only, up to the first blank one, at most 100.
std::string FormatQuestions(const TriviaSet& set);
// Moves blank records one step towards the end, in a single pass.
void CompactSet(TriviaSet& set);

// The record of that number, 1 to 101; any other is the subscript error.
TriviaQuestion& RecordAt(TriviaSet& set, int number);

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

// NUL removed, trimmed, ".txt" appended unless the path ends so.
std::string NormalSetPath(const std::string& path);
// Writes the set in the given path's normal form, which goes back to the caller. True when it was saved; a
// failure is told to the operator.
bool SaveSetFile(Show& show, TriviaSet& set, std::string& path);

enum class QuestionKind { Text, Picture, Sound };
// By the last four characters of the trimmed text.
QuestionKind KindOfQuestion(const std::string& questionText);

}  // namespace pawnfield
