// A trivia set in memory: 101 questions and their count, and the reset values of a question.
#pragma once

#include <array>
#include <string>

namespace pawnfield {

inline constexpr int kSetCapacity = 101;
inline constexpr std::size_t kQuestionLength = 256;
inline constexpr std::size_t kAnswerLength = 174;

// Question and answer are kept as read, cut to their lengths; readers trim blanks at both ends.
struct TriviaQuestion {
  std::string QuestionType;
  std::string QuestionText;
  std::string FontName = "Courier New";
  std::string FontSize = "28";
  bool FontBold = true;
  bool FontItalic = true;
  std::string FontColor = "16777215";
  std::string AnswerText;
  bool operator==(const TriviaQuestion&) const = default;
};

using TriviaSet = std::array<TriviaQuestion, kSetCapacity>;

}  // namespace pawnfield
