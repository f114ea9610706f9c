#include "sets/media_paths.h"

#include <algorithm>

#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

std::string SetsFolder(const Show& show) { return show.AppPath("\\Trivia Sets"); }

std::string Comparable(std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  return ToLower(path);
}

std::string StoredPath(const Show& show, const std::string& path) {
  const std::string folder = SetsFolder(show);
  const bool below = Comparable(path).starts_with(Comparable(folder + '\\'));
  return below ? '.' + path.substr(folder.size()) : path;
}

}  // namespace

bool IsMedium(const TriviaQuestion& question) {
  const std::string type = Trim(question.QuestionType);
  return type == "P" || type == "S";
}

std::string WholePath(const Show& show, const std::string& path) {
  return path.starts_with('.') ? SetsFolder(show) + path.substr(1) : path;
}

void TakeWholePaths(const Show& show, TriviaSet& set) {
  for (TriviaQuestion& question : set) {
    if (IsMedium(question)) question.QuestionText = WholePath(show, Trim(question.QuestionText));
  }
}

TriviaSet WithStoredPaths(const Show& show, const TriviaSet& set) {
  TriviaSet stored = set;
  for (TriviaQuestion& question : stored) {
    if (IsMedium(question)) question.QuestionText = StoredPath(show, Trim(question.QuestionText));
  }
  return stored;
}

bool IsSamePath(const std::string& a, const std::string& b) { return Comparable(a) == Comparable(b); }

}  // namespace pawnfield
