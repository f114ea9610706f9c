// Any bytes import as thirty records; what was imported, up to its first blank, survives being written and read again.
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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto imported = std::make_unique<TriviaSet>();
  static const auto again = std::make_unique<TriviaSet>();
  ParseImportedSet(std::string(reinterpret_cast<const char*>(data), size), *imported);
  for (std::size_t i = kImportedQuestions; i < imported->size(); ++i) Require((*imported)[i] == TriviaQuestion());
  const int count = ParseSet(FormatQuestions(*imported), *again);
  Require(count <= kImportedQuestions && ParseSet(FormatSet(*imported), *again) == count);
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    Require(Trim((*imported)[i].QuestionText) == (*again)[i].QuestionText);
    Require(Trim((*imported)[i].AnswerText) == (*again)[i].AnswerText);
  }
  return 0;
}
