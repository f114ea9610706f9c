// Any bytes load as a set; what was loaded survives being written and read again.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>

#include "platform/text.h"
#include "sets/set_parser.h"

namespace {

using namespace pawnfield;

void Require(bool holds) {
  if (!holds) std::abort();
}

// Fields too short to be read back, and colours that pass for font names, settle within three rounds; from then on the
// file and the set stand for each other.
constexpr int kRoundsToSettle = 3;

void CheckWording(const TriviaSet& read, const TriviaSet& again, int count) {
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    Require(Trim(read[i].QuestionText) == again[i].QuestionText);
    Require(Trim(read[i].AnswerText) == again[i].AnswerText);
    Require(KindOfQuestion(read[i].QuestionText) == KindOfQuestion(again[i].QuestionText));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto read = std::make_unique<TriviaSet>();
  static const auto again = std::make_unique<TriviaSet>();
  const int count = ParseSet(std::string(reinterpret_cast<const char*>(data), size), *read);
  Require(count >= 0 && count <= kSetCapacity);
  std::string bytes = FormatSet(*read);
  Require(ParseSet(bytes, *again) == count);
  CheckWording(*read, *again, count);
  // A repaired set is written without the records behind its end, and holds no more than the editor can make.
  Require(ParseSet(FormatQuestions(*read), *again) == std::min(count, kSetCapacity - 1));
  CheckWording(*read, *again, std::min(count, kSetCapacity - 1));
  ParseSet(bytes, *again);
  for (int round = 1; round < kRoundsToSettle; ++round) {
    bytes = FormatSet(*again);
    ParseSet(bytes, *again);
  }
  *read = *again;
  Require(ParseSet(FormatSet(*read), *again) == count);
  Require(*read == *again);
  CompactSet(*again);
  return 0;
}
