// The set file's format: its records, its format line, and the text form of a set.
#pragma once

#include <string>

#include "data/trivia_set.h"
#include "platform/controls.h"

namespace pawnfield {

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

// Field parsers of a trimmed format line.
std::string ParseFontName(const std::string& line);
int ParseFontSize(const std::string& line);
bool ParseFontBold(const std::string& line);
bool ParseFontItalic(const std::string& line);
std::string ParseFontColor(const std::string& line);

// The font in which the show writes a text question, before it is fitted.
Font QuestionFont(const TriviaQuestion& question);

enum class QuestionKind { Text, Picture, Sound };
// By the last four characters of the trimmed text.
QuestionKind KindOfQuestion(const std::string& questionText);
// "Text", "Picture" or "Sound".
std::string KindWord(const TriviaQuestion& question);
// What people read of a question: its wording, or the file's name of a picture or sound, without the folders above it.
std::string WordingOf(const TriviaQuestion& question);
// Neither a wording nor an answer.
bool IsBlank(const TriviaQuestion& question);

}  // namespace pawnfield
