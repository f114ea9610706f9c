#include "support/operator_words.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <vector>

namespace pawnfield {

namespace {

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \n");
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \n") - first + 1);
}

std::vector<std::string> Phrases(const std::string& words) {
  std::vector<std::string> phrases(1);
  bool quoted = false;
  for (const char c : words) {
    if (c == '"') quoted = !quoted;
    if (c == ',' && !quoted) {
      phrases.emplace_back();
    } else {
      phrases.back() += c;
    }
  }
  for (std::string& phrase : phrases) phrase = Trimmed(phrase);
  return phrases;
}

// What stands behind the beginning; empty for a phrase that begins otherwise.
std::string Behind(const std::string& phrase, const std::string& beginning) {
  return phrase.starts_with(beginning) ? phrase.substr(beginning.size()) : "";
}

// "B3" as the row and column digits "21".
std::string Square(const std::string& name) {
  return {static_cast<char>(name.at(1) - 1), static_cast<char>(name.at(0) - 'A' + '0')};
}

std::string Keys(const std::string& keys) {
  const std::string letter = Behind(keys, "ctrl ");
  if (!letter.empty()) return std::string("keys:^") + static_cast<char>(std::toupper(letter[0]));
  return keys == "enter" ? "keys:^M" : "keys:" + keys;
}

std::string Underscored(std::string text) {
  std::erase(text, '"');
  std::replace(text.begin(), text.end(), ' ', '_');
  return text;
}

std::string Plain(const std::string& phrase) {
  static const std::map<std::string, std::string> kSteps = {{"correct", "+"},
                                                            {"incorrect", "-"},
                                                            {"skip", "S"},
                                                            {"continue", "C"},
                                                            {"undo", "U"},
                                                            {"next player", "N"},
                                                            {"start", "btnStart"},
                                                            {"reset", "R"},
                                                            {"end game", "E"},
                                                            {"hide", "H"},
                                                            {"show", "V"},
                                                            {"clear all scores", "fileClearAllScores"},
                                                            {"two players", "optPlayers(0)"},
                                                            {"nobody lit", "lit=nobody"},
                                                            {"start the clock", "btnAnswerClock"},
                                                            {"turn nobody", "turn=0"},
                                                            {"choose the set", "set"},
                                                            {"pause of 5 s", "cboAutoContinue:2"}};
  const auto step = kSteps.find(phrase);
  return step == kSteps.end() ? "" : step->second;
}

std::string Step(const std::string& phrase) {
  if (const std::string plain = Plain(phrase); !plain.empty()) return plain;
  if (const std::string text = Behind(phrase, "says "); !text.empty()) return "lblStatusBar=" + Underscored(text);
  if (phrase.find('=') != std::string::npos) return phrase;
  if (const std::string who = Behind(phrase, "player "); !who.empty()) {
    return who.ends_with("lit") ? "lit=" + who.substr(0, 1) : "r" + who.substr(0, 1);
  }
  if (const std::string remote = Behind(phrase, "remote "); !remote.empty()) return remote + " >30";
  if (const std::string pad = Behind(phrase, "pad "); !pad.empty()) return pad;
  if (const std::string key = Behind(phrase, "key "); !key.empty()) return Keys(key);
  if (const std::string keys = Behind(phrase, "keys "); !keys.empty()) return Keys(keys);
  if (const std::string square = Behind(phrase, "claim "); !square.empty()) return Square(square);
  if (const std::string square = Behind(phrase, "click "); !square.empty()) return Square(square) + "!";
  if (const std::string time = Behind(phrase, "wait "); !time.empty()) {
    return ">" + std::to_string(std::lround(std::stod(time) * 1000));
  }
  if (const std::string number = Behind(phrase, "question "); !number.empty()) {
    return "question=" + std::to_string(std::stoi(number) - 1);
  }
  for (const char* seen : {"turn ", "phase ", "scores ", "board "}) {
    const std::string value = Behind(phrase, seen);
    if (!value.empty()) return Trimmed(seen) + "=" + Underscored(value);
  }
  ADD_FAILURE() << "no such words: " << phrase;
  return "";
}

}  // namespace

std::string SetupOfWords(const std::string& words) {
  static const std::map<std::string, std::string> kTypes = {
      {"Challenge A", "1"}, {"Challenge B", "2"}, {"Trivia A", "3"}, {"Trivia B", "4"}, {"Trivia C", "5"}};
  static const std::map<std::string, char> kOptions = {
      {"penalty", 'p'},  {"user advances", 'm'}, {"worthless squares", '0'},
      {"animated", 'a'}, {"7 questions", '7'},   {"remotes", 'w'},
      {"pads", 'l'},     {"not started", 'i'},   {"picture second", 'k'}};
  std::string type = "1", players = "3", grid = "3", ending = "full", options = "-", settings;
  for (const std::string& phrase : Phrases(words)) {
    if (kTypes.contains(phrase)) {
      type = kTypes.at(phrase);
    } else if (phrase.ends_with("players")) {
      players = phrase.substr(0, 1);
    } else if (phrase.size() == 3 && phrase[1] == 'x') {
      grid = phrase.substr(0, 1);
    } else if (phrase.ends_with(" s to answer")) {
      settings = " TimedResponse=" + phrase.substr(0, phrase.find(' '));
    } else if (kOptions.contains(phrase)) {
      options += kOptions.at(phrase);
    } else {
      EXPECT_TRUE(phrase == "Finish Row" || phrase == "Full Board") << "no such words: " << phrase;
      ending = phrase == "Finish Row" ? "row" : "full";
    }
  }
  return type + " " + players + " " + grid + " " + ending + " " + options + settings;
}

std::string StepsOfWords(const std::string& words) {
  std::string steps;
  for (const std::string& phrase : Phrases(words)) steps += Step(phrase) + " ";
  return steps;
}

std::string WordStoryTest::Name(const testing::TestParamInfo<WordStory>& story) {
  std::string name;
  bool first = true;
  for (const char c : std::string(story.param.claim)) {
    const bool letter = std::isalnum(static_cast<unsigned char>(c)) != 0;
    if (letter) name += first ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
    first = !letter;
  }
  return name;
}

}  // namespace pawnfield
