#include "sets/set_check.h"

#include <algorithm>
#include <map>
#include <string>

#include "forms/main_form.h"
#include "platform/ports.h"
#include "platform/text.h"
#include "presentation/test_picture.h"
#include "sets/set_parser.h"
#include "show/show.h"

namespace pawnfield {

namespace {

// Without regard to case, to blanks that are doubled and to what a sentence ends in.
std::string Plainly(const std::string& wording) {
  std::string plain;
  for (const char c : ToLower(Trim(wording))) {
    const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
    if (blank && (plain.empty() || plain.back() == ' ')) continue;
    plain += blank ? ' ' : c;
  }
  while (!plain.empty() && std::string(" .?!").find(plain.back()) != std::string::npos) plain.pop_back();
  return plain;
}

bool FitsAt(const TextMeasurer& measurer, const TriviaQuestion& question, const FitLimits& limits, int size) {
  FitLimits one = limits;
  one.FirstSize = size;
  return FittingSize(measurer, QuestionFont(question), Trim(question.QuestionText), one) == size;
}

class Checker {
 public:
  Checker(const TextMeasurer& measurer, const WordingRoom& room) : measurer_(measurer), room_(room) {}

  void Look(int number, const TriviaQuestion& question) {
    number_ = number;
    const std::string text = Trim(question.QuestionText);
    const bool isText = KindOfQuestion(text) == QuestionKind::Text;
    if (Trim(question.AnswerText).empty()) Find(FindingKind::NoAnswer, "No answer");
    const auto [first, isNew] = numbers_.emplace(Plainly(text), number);
    if (!isNew) {
      Find(FindingKind::Twice,
           (isText ? "The same as question " : "The same file as question ") + std::to_string(first->second));
    }
    LookAtLetters(isText ? text : "", QuestionFont(question), Trim(question.AnswerText));
    if (isText) LookAtSize(question);
  }

  std::vector<SetFinding> Findings;

 private:
  void Find(FindingKind kind, std::string sentence) { Findings.push_back({number_, kind, std::move(sentence)}); }

  void LookAtSize(const TriviaQuestion& question) {
    if (FitsAt(measurer_, question, room_.Limits, room_.SmallestSize + 1)) return;
    const int size = FittingSize(measurer_, QuestionFont(question), Trim(question.QuestionText), room_.Limits);
    Find(FindingKind::SmallLetters,
         "Long words or lines: its letters are of size " + std::to_string(size) + ", hard to read from the back");
  }

  void LookAtLetters(const std::string& text, const Font& font, const std::string& answer) {
    const LackedLetters inText = measurer_.Lacked(font, text);
    const LackedLetters inAnswer = measurer_.Lacked(room_.AnswerFont, answer);
    if (!inText.Missing.empty()) Find(FindingKind::MissingLetters, "No font here has " + inText.Missing);
    if (!inAnswer.Missing.empty()) {
      Find(FindingKind::MissingLetters, "Its answer: no font here has " + inAnswer.Missing);
    }
    if (!inText.Borrowed.empty()) {
      Find(FindingKind::BorrowedLetters, font.Name + " lacks " + inText.Borrowed + ", shown in another font");
    }
  }

  const TextMeasurer& measurer_;
  const WordingRoom& room_;
  int number_ = 0;
  // Where each wording came first.
  std::map<std::string, int> numbers_;
};

int Counted(int count) { return std::clamp(count, 0, kSetCapacity); }

}  // namespace

WordingRoom RoomForWordings(const Show& show) {
  return {AudienceQuestionLimits(show), SmallestLineSize(show), show.frmMain.lblAnswer.Font};
}

std::vector<SetFinding> CheckSet(const TextMeasurer& measurer, const TriviaSet& set, int count,
                                 const WordingRoom& room) {
  Checker checker(measurer, room);
  for (int i = 0; i < Counted(count); ++i) checker.Look(i + 1, set[static_cast<std::size_t>(i)]);
  return std::move(checker.Findings);
}

std::vector<SetFinding> CheckGameSet(const Show& show) {
  std::vector<SetFinding> findings =
      CheckSet(show.platform.text, show.GameSet, show.NumGameQuestions, RoomForWordings(show));
  for (const auto& [number, error] : show.mediaCheck.Errors) findings.push_back({number, FindingKind::File, error});
  std::stable_sort(findings.begin(), findings.end(),
                   [](const SetFinding& a, const SetFinding& b) { return a.Question < b.Question; });
  return findings;
}

int SmallestSizeUsed(const TextMeasurer& measurer, const TriviaSet& set, int count, const WordingRoom& room) {
  int smallest = room.SmallestSize;
  for (int i = 0; i < Counted(count); ++i) {
    const TriviaQuestion& question = set[static_cast<std::size_t>(i)];
    const std::string text = Trim(question.QuestionText);
    if (KindOfQuestion(text) != QuestionKind::Text || FitsAt(measurer, question, room.Limits, smallest)) continue;
    smallest = FittingSize(measurer, QuestionFont(question), text, room.Limits);
  }
  return smallest;
}

}  // namespace pawnfield
