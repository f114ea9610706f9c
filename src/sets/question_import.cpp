#include "sets/question_import.h"

#include <algorithm>
#include <array>
#include <optional>

#include "platform/escapes.h"
#include "platform/text.h"
#include "sets/set_parser.h"

namespace pawnfield {

namespace {

constexpr std::size_t kHeadingWords = 30;

std::string CellAt(const std::vector<std::string>& row, int column) {
  return column >= 0 && column < static_cast<int>(row.size()) ? row[static_cast<std::size_t>(column)] : std::string();
}

int ColumnsOf(const Sheet& sheet) {
  std::size_t most = 0;
  for (const auto& row : sheet) most = std::max(most, row.size());
  return static_cast<int>(most);
}

bool IsBlankRow(const std::vector<std::string>& row) {
  return std::all_of(row.begin(), row.end(), [](const std::string& cell) { return Trim(cell).empty(); });
}

// The column whose heading is the word or begins with it; -1 for none.
int FindHeading(const std::vector<std::string>& row, const std::string& word) {
  for (std::size_t i = 0; i < row.size(); ++i) {
    const std::string heading = ToLower(Trim(row[i]));
    if (heading == word || heading == word + "s") return static_cast<int>(i);
  }
  return -1;
}

std::optional<ImportColumns> ByHeading(const Sheet& sheet) {
  if (sheet.empty()) return std::nullopt;
  const int question = FindHeading(sheet.front(), "question"), answer = FindHeading(sheet.front(), "answer");
  if (question < 0 || answer < 0) return std::nullopt;
  return ImportColumns{question, answer, true};
}

std::optional<ImportColumns> Remembered(const std::string& text, int columns) {
  std::array<double, 3> numbers{};
  std::size_t start = 0;
  for (double& number : numbers) {
    const std::size_t end = std::min(text.find(',', start), text.size());
    const auto read = ParseNumber(text.substr(std::min(start, text.size()), end - std::min(start, text.size())));
    if (!read || *read < -1 || *read >= columns) return std::nullopt;
    number = *read;
    start = end + 1;
  }
  const ImportColumns chosen{static_cast<int>(numbers[0]), static_cast<int>(numbers[1]), numbers[2] == 1};
  if (chosen.Question < 0) return std::nullopt;
  return chosen;
}

std::string ColumnLetter(int column) {
  constexpr int kLetters = 26;
  const std::string last(1, static_cast<char>('A' + column % kLetters));
  return column < kLetters ? last : ColumnLetter(column / kLetters - 1) + last;
}

// A set's file leaves out blanks at the ends of a text; those of a cell are kept as escapes.
std::string KeepEnds(const std::string& cell) {
  if (Trim(cell).empty()) return "";
  const std::size_t first = cell.find_first_not_of(' '), last = cell.find_last_not_of(' ');
  std::string kept;
  for (std::size_t i = 0; i < cell.size(); ++i) {
    kept += i < first || i > last ? EscapeOf(U' ') : std::string(1, cell[i]);
  }
  return kept;
}

std::string FreeEnds(const std::string& text) {
  const std::string blank = EscapeOf(U' ');
  std::string cell = Trim(text);
  std::size_t lead = 0, trail = 0;
  for (; cell.starts_with(blank); ++lead) cell.erase(0, blank.size());
  for (; cell.ends_with(blank); ++trail) cell.erase(cell.size() - blank.size());
  return std::string(lead, ' ') + cell + std::string(trail, ' ');
}

std::string TooLong(const char* what, std::size_t bytes, std::size_t limit) {
  return std::string(what) + " too long: " + std::to_string(bytes) + " bytes, " + std::to_string(limit) + " fit";
}

std::string ProblemOf(const TriviaQuestion& question, bool isRoom) {
  if (question.QuestionText.empty()) return "No question";
  if (question.QuestionText.size() > kQuestionLength) {
    return TooLong("Question", question.QuestionText.size(), kQuestionLength);
  }
  if (question.AnswerText.size() > kAnswerLength) return TooLong("Answer", question.AnswerText.size(), kAnswerLength);
  return isRoom ? "" : "The set is full: " + std::to_string(kSetCapacity) + " questions";
}

TriviaQuestion QuestionOf(const std::vector<std::string>& row, const ImportColumns& columns,
                          const std::function<std::string(const std::string&)>& mediumPath) {
  TriviaQuestion question;
  question.QuestionText = KeepEnds(CellAt(row, columns.Question));
  question.AnswerText = KeepEnds(CellAt(row, columns.Answer));
  const QuestionKind kind = KindOfQuestion(question.QuestionText);
  question.QuestionType = kind == QuestionKind::Picture ? "P" : kind == QuestionKind::Sound ? "S" : "T";
  if (kind != QuestionKind::Text) question.QuestionText = mediumPath(question.QuestionText);
  return question;
}

}  // namespace

ImportColumns GuessColumns(const Sheet& sheet, const std::string& remembered) {
  if (const auto named = ByHeading(sheet)) return *named;
  const int columns = ColumnsOf(sheet);
  return Remembered(remembered, columns).value_or(ImportColumns{0, columns > 1 ? 1 : -1, false});
}

std::string ColumnsText(const ImportColumns& columns) {
  return std::to_string(columns.Question) + "," + std::to_string(columns.Answer) + "," +
         (columns.HasHeading ? "1" : "0");
}

std::vector<std::string> ColumnNames(const Sheet& sheet) {
  std::vector<std::string> names;
  for (int column = 0; column < ColumnsOf(sheet); ++column) {
    const std::string word = sheet.empty() ? "" : Trim(FirstLetters(CellAt(sheet.front(), column), kHeadingWords));
    names.push_back(ColumnLetter(column) + (word.empty() ? "" : ": " + word));
  }
  return names;
}

std::vector<ImportRow> ReadQuestions(const Sheet& sheet, const ImportColumns& columns, int room,
                                     const std::function<std::string(const std::string&)>& mediumPath) {
  std::vector<ImportRow> rows;
  for (std::size_t i = columns.HasHeading ? 1 : 0; i < sheet.size(); ++i) {
    if (IsBlankRow(sheet[i])) continue;
    ImportRow row{static_cast<int>(i) + 1, QuestionOf(sheet[i], columns, mediumPath), ""};
    row.Problem = ProblemOf(row.Question, room > 0);
    if (row.Problem.empty()) --room;
    rows.push_back(std::move(row));
  }
  return rows;
}

Sheet WriteQuestions(const TriviaSet& set, const std::function<std::string(const std::string&)>& mediumName) {
  Sheet sheet{{"Question", "Answer"}};
  for (int i = 0; i < CountQuestions(set); ++i) {
    const TriviaQuestion& question = set[static_cast<std::size_t>(i)];
    const bool isText = KindOfQuestion(Trim(question.QuestionText)) == QuestionKind::Text;
    const std::string text = FreeEnds(question.QuestionText);
    sheet.push_back({isText ? text : mediumName(text), FreeEnds(question.AnswerText)});
  }
  return sheet;
}

}  // namespace pawnfield
