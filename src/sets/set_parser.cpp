#include "sets/set_parser.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>

#include "media/media_kinds.h"
#include "platform/escapes.h"
#include "platform/line_reader.h"
#include "platform/text.h"

namespace pawnfield {

namespace {

constexpr int kDefaultFontSize = 28;
constexpr const char* kDefaultColor = "16777215";
// A shorter field counts as absent, so a size or colour of one digit is not read back.
constexpr std::size_t kShortestField = 2;

// Field 1 follows the first "#"; each is closed by the next. Nothing when it is not closed or too short.
std::optional<std::string> Field(const std::string& line, int number) {
  std::size_t start = line.find('#');
  for (int i = 1; i < number && start != std::string::npos; ++i) start = line.find('#', start + 1);
  if (start == std::string::npos) return std::nullopt;
  const std::size_t end = line.find('#', start + 1);
  if (end == std::string::npos || end - start - 1 < kShortestField) return std::nullopt;
  return line.substr(start + 1, end - start - 1);
}

bool ParseFlag(const std::string& line, int number) {
  const std::optional<std::string> field = Field(line, number);
  return field ? ParseBoolean(*field).value_or(true) : true;
}

std::string NextLine(LineReader& reader, std::size_t longest = std::string::npos) {
  return FirstLetters(reader.Next().value_or(""), longest);
}

void ReadFormat(const std::string& rawLine, TriviaQuestion& question) {
  question.QuestionType = rawLine;
  if (!rawLine.starts_with('T')) return;
  const std::string line = Trim(rawLine);
  question.FontName = ParseFontName(line);
  question.FontSize = std::to_string(ParseFontSize(line));
  question.FontBold = ParseFontBold(line);
  question.FontItalic = ParseFontItalic(line);
  question.FontColor = ParseFontColor(line);
  question.QuestionType = line.substr(0, 1);
}

// A type alone, or with fields behind it.
bool IsFormat(const std::string& line) {
  if (line.empty() || std::string("TPS").find(line[0]) == std::string::npos) return false;
  return line.size() == 1 || line[1] == '#';
}

std::string FormatLine(const TriviaQuestion& question) {
  const std::string type = Trim(question.QuestionType);
  if (!type.empty() && type[0] != 'T') return type.substr(0, 1);
  std::string line = type;
  if (!Trim(question.FontName).empty()) {
    line = "T#" + question.FontName + "#" + question.FontSize + "#" + BooleanText(question.FontBold) + "#" +
           BooleanText(question.FontItalic) + "#";
  }
  if (!Trim(question.FontColor).empty()) {
    if (line.size() == 1) line += "#";
    line += question.FontColor + "#";
  }
  return line;
}

std::string RecordLines(const TriviaQuestion& question) {
  return Trim(question.QuestionText) + "\r\n" + Trim(question.AnswerText) + "\r\n" + FormatLine(question) + "\r\n";
}

}  // namespace

std::string ParseFontName(const std::string& line) {
  const std::optional<std::string> field = Field(line, 1);
  return field && !ParseNumber(*field) ? *field : "";
}

int ParseFontSize(const std::string& line) {
  const std::optional<std::string> field = Field(line, 2);
  if (!field) return kDefaultFontSize;
  using Limits = std::numeric_limits<std::int16_t>;
  const double size = LeadingNumber(*field);
  if (size < Limits::min() || size > Limits::max()) return kDefaultFontSize;
  return static_cast<int>(RoundHalfEven(size));
}

bool ParseFontBold(const std::string& line) { return ParseFlag(line, 3); }

bool ParseFontItalic(const std::string& line) { return ParseFlag(line, 4); }

std::string ParseFontColor(const std::string& line) {
  const std::optional<std::string> first = Field(line, 1);
  if (!first) return kDefaultColor;
  return ParseNumber(*first) ? *first : Field(line, 5).value_or(kDefaultColor);
}

int ParseSet(const std::string& bytes, TriviaSet& set) {
  set.fill({});
  LineReader reader(bytes);
  int count = 0;
  for (TriviaQuestion& question : set) {
    question.QuestionText = NextLine(reader, kQuestionLength);
    if (Trim(question.QuestionText).empty()) break;
    question.AnswerText = NextLine(reader, kAnswerLength);
    ReadFormat(NextLine(reader), question);
    ++count;
  }
  return count;
}

Font QuestionFont(const TriviaQuestion& question) {
  constexpr double kSize = 28;
  if (Trim(question.FontName).empty()) return {"Courier New", kSize, true, true};
  return {question.FontName, kSize, question.FontBold, question.FontItalic};
}

int CountQuestions(const TriviaSet& set) {
  const auto blank = std::find_if(set.begin(), set.end(),
                                  [](const TriviaQuestion& question) { return Trim(question.QuestionText).empty(); });
  return static_cast<int>(blank - set.begin());
}

bool ParseImportedSet(const std::string& bytes, TriviaSet& set) {
  constexpr std::size_t kBlockLength = 5;
  set.fill({});
  LineReader reader(bytes);
  bool found = false;
  for (std::size_t i = 0; i < kImportedQuestions; ++i) {
    if (i % kBlockLength == 0) reader.Next();
    set[i].QuestionText = NextLine(reader, kQuestionLength);
    set[i].AnswerText = NextLine(reader, kAnswerLength);
    reader.Next();
    const std::string format = NextLine(reader);
    ReadFormat(format, set[i]);
    const bool isQuestion = !Trim(set[i].QuestionText).empty();
    if (isQuestion && !IsFormat(Trim(format))) return false;
    found = found || isQuestion;
  }
  return found;
}

std::string FormatSet(const TriviaSet& set) {
  std::string text;
  for (const TriviaQuestion& question : set) text += RecordLines(question);
  return text;
}

std::string FormatQuestions(const TriviaSet& set) {
  std::string text;
  for (std::size_t i = 0; i + 1 < set.size() && !Trim(set[i].QuestionText).empty(); ++i) text += RecordLines(set[i]);
  return text;
}

// One pass only: of two blank records side by side, one stays as a gap.
void CompactSet(TriviaSet& set) {
  for (std::size_t i = 0; i + 2 < set.size(); ++i) {
    if (!IsBlank(set[i])) continue;
    set[i] = set[i + 1];
    set[i + 1].QuestionText.clear();
    set[i + 1].AnswerText.clear();
  }
}

QuestionKind KindOfQuestion(const std::string& questionText) {
  switch (MediaKind(questionText)) {
    case Medium::Picture:
      return QuestionKind::Picture;
    case Medium::Sound:
      return QuestionKind::Sound;
    default:
      return QuestionKind::Text;
  }
}

std::string KindWord(const TriviaQuestion& question) {
  switch (KindOfQuestion(Trim(question.QuestionText))) {
    case QuestionKind::Picture:
      return "Picture";
    case QuestionKind::Sound:
      return "Sound";
    case QuestionKind::Text:
      break;
  }
  return "Text";
}

std::string WordingOf(const TriviaQuestion& question) {
  const std::string text = Trim(question.QuestionText);
  const std::string name = ExtractFileName(text);
  return KindOfQuestion(text) == QuestionKind::Text || name.empty() ? text : name;
}

bool IsBlank(const TriviaQuestion& question) {
  return Trim(question.QuestionText).empty() && Trim(question.AnswerText).empty();
}

}  // namespace pawnfield
