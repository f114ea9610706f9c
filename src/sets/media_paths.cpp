#include "sets/media_paths.h"

#include "engine/show.h"
#include "platform/text.h"

namespace pawnfield {

void ExpandMediaPaths(Show& show) {
  for (TriviaQuestion& question : show.GameSet) {
    const std::string type = Trim(question.QuestionType).substr(0, 1);
    const std::string path = Trim(question.QuestionText);
    if (path.empty()) return;
    if ((type != "P" && type != "S") || path.front() != '.') continue;
    question.QuestionText = (show.state.SetsFolder + path.substr(1)).substr(0, kQuestionLength);
  }
}

}  // namespace pawnfield
