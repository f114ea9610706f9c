#include "support/operator_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <optional>
#include <vector>

namespace pawnfield {

namespace {

using Words = std::map<std::string, std::string>;

const Words kActs = {{"correct", "btnQuestionCorrect"},
                     {"incorrect", "btnQuestionIncorrect"},
                     {"skip", "btnSkipQuestion"},
                     {"continue", "btnContinue"},
                     {"undo", "btnUndo"},
                     {"next player", "btnNextPlayer"},
                     {"choose the set", "set"},
                     {"choose the set from the list", "cboList:1"},
                     {"start", "btnStart"},
                     {"reset", "btnReset"},
                     {"end game", "btnEndGame"},
                     {"hide", "btnStandbyMode"},
                     {"show", "btnPlayMode"},
                     {"start the clock", "btnAnswerClock"},
                     {"clear all scores", "fileClearAllScores"},
                     {"2 players", "optPlayers(0)"},
                     {"two players", "optPlayers(0)"},
                     {"3 players", "optPlayers(1)"},
                     {"3x3 board", "optGridControl(0)"},
                     {"pause of 3 s", "cboAutoContinue:0"},
                     {"pause of 5 s", "cboAutoContinue:2"},
                     {"user advances", "cboAutoContinue:3"},
                     {"reconnect the pads", "mnuReconnectMF"},
                     {"key ^", "keys:^^"},
                     {"key enter", "keys:^M"},
                     {"key backspace", "keys:^H"},
                     {"nobody lit", "lit=nobody"},
                     {"turn nobody", "turn=0"}};

const Words kDialogs = {{"names dialog", "mnuFileAddPlayerNames@frmPlayerNames"},
                        {"keys dialog", "btnEditKeyboardCtrl@frmConfigKeys"},
                        {"options", "mnuFileOptions@frmOptions"},
                        {"interface wizard", "mnuFileInterface@frmSetInterface"},
                        {"projector help", "mnuHelpProjector@frmConnectToProjector"},
                        {"about box", "mnuHelpAbout@frmHelpAbout"},
                        {"headers", "mnuFileOptionalHeaders@frmOptionalHeaders"},
                        {"sound table", "btnSounds@frmSoundEffects"}};

const Words kControls = {{"Start", "btnStart"},
                         {"Continue", "btnContinue"},
                         {"Undo", "btnUndo"},
                         {"Skip", "btnSkipQuestion"},
                         {"Reset", "btnReset"},
                         {"Correct", "btnQuestionCorrect"},
                         {"Select Game", "btnSelectGame"},
                         {"Animation", "chkAnimation"},
                         {"OK", "btnOK"},
                         {"Cancel", "btnCancel"},
                         {"winner", "picWinner"},
                         {"winner text", "winner"},
                         {"bonus", "picBonus"},
                         {"standby", "picStandby"},
                         {"question panel", "picQuestion"},
                         {"question text", "lblQuestion(0)"},
                         {"picture panel", "picQuestionPicture"},
                         {"sound panel", "picSound"},
                         {"cover", "picHideQuestion"},
                         {"verdict", "picCorrect"},
                         {"verdict text", "lblRightWrong"},
                         {"verdict picture", "imgCorrect"},
                         {"answer text", "lblAnswer"},
                         {"answering player", "lblPlayerName"},
                         {"answer clock", "lblAnswerClock"},
                         {"clock button", "btnAnswerClock"},
                         {"entry", "txtDJCommand"},
                         {"corner piece", "imgDJEntry"},
                         {"grid choice", "fraGridControl"},
                         {"third score panel", "picP3Score"},
                         {"event sound", "event"},
                         {"verdict sound", "verdict"},
                         {"All Pay", "Command2"},
                         {"Nobody Pays", "Command1"},
                         {"Clear All", "btnClearAll"},
                         {"penalty points", "cboPenaltyPoints"},
                         {"Finished", "btnFinished"},
                         {"Default Keys", "btnKeyDefaults"},
                         {"correct key", "txtKey(0)"},
                         {"incorrect key", "txtKey(1)"},
                         {"question shadow", "lblQuestion(1)"},
                         {"Next Player", "btnNextPlayer"},
                         {"Edit", "btnStartGame"},
                         {"Exit", "mnuFileExit"},
                         {"Manual", "mnuHelpManual"},
                         {"Documentation", "mnuHelpDocumentation"},
                         {"Support", "mnuHelpSupport"},
                         {"Licence", "btnLicence"},
                         {"the cross", "imgExit"},
                         {"Finish Row", "optGameEnds(0)"},
                         {"Hide Question", "chkHideQuestion"},
                         {"Incorrect Penalty", "chkIncorrectPenalty"},
                         {"Keyboard Control", "chkExtKeyboardCtrl"},
                         {"Companion", "chkTSSupport"},
                         {"Full Screen", "chkFullScreenGameBoard"},
                         {"picture time", "cboMODPictureTmr"},
                         {"Browse", "btnBGMusic"},
                         {"No Music", "optBackgroundMusic(0)"},
                         {"Whole Folder", "optBackgroundMusic(1)"},
                         {"One File", "optBackgroundMusic(2)"},
                         {"music file", "lblBackgroundMusic"},
                         {"Defaults", "btnRoutingDefaults"},
                         {"Apply", "btnApply"},
                         {"Open", "btnOpen"},
                         {"Save", "btnSave"},
                         {"Save As", "mnuFileSaveAs"},
                         {"Import", "btnImport"},
                         {"Export", "btnExport"}};

// Controls that go by a number from 1.
const Words kNumbered = {{"name ", "txtPlayerName"},     {"buzzer ", "btnBuzzer"},   {"score box ", "picPlayer"},
                         {"score ", "Label11"},          {"routing ", "cboRouting"}, {"header ", "txtOptionalHeader"},
                         {"Sound Bank ", "optSoundBank"}};

const Words kProperties = {{" height", ".Height"},    {" top", ".Top"},       {" font size", ".Font"},
                           {" colour", ".BackColor"}, {" ink", ".ForeColor"}, {" tip", ".Tip"}};

const Words kValues = {{"shown", "up"}, {"hidden", "-"}, {"empty", ""}, {"none", ""}, {"blank", "_"}};

const Words kTypes = {
    {"Challenge A", "1"}, {"Challenge B", "2"}, {"Trivia A", "3"}, {"Trivia B", "4"}, {"Trivia C", "5"}};

std::optional<std::string> Find(const Words& words, const std::string& key) {
  const auto found = words.find(key);
  return found == words.end() ? std::nullopt : std::optional(found->second);
}

std::string Trimmed(const std::string& text) {
  const std::size_t first = text.find_first_not_of(" \n");
  return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(" \n") - first + 1);
}

std::vector<std::string> Phrases(const std::string& words, char parting = ',') {
  std::vector<std::string> phrases(1);
  bool quoted = false;
  for (const char c : words) {
    if (c == '"') quoted = !quoted;
    if (c == parting && !quoted) {
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

std::string Underscored(std::string text) {
  std::erase(text, '"');
  std::replace(text.begin(), text.end(), ' ', '_');
  return text;
}

bool IsSquare(const std::string& name) {
  return name.size() == 2 && name[0] >= 'A' && name[0] <= 'F' && name[1] >= '1' && name[1] <= '6';
}

// "B3" as the row and column digits "21".
std::string Square(const std::string& name) {
  EXPECT_TRUE(IsSquare(name)) << "no such square: " << name;
  return {static_cast<char>(name[1] - 1), static_cast<char>(name[0] - 'A' + '0')};
}

std::string Milliseconds(const std::string& time) {
  const double number = std::stod(time);
  return std::to_string(std::lround(time.ends_with("ms") ? number : number * 1000));
}

// The control of a square, of words or of a number; other words are a control's name.
std::string ControlOf(const std::string& words) {
  if (IsSquare(words)) return "img" + Square(words);
  for (const auto& [family, name] : kNumbered) {
    const std::string number = Behind(words, family);
    if (!number.empty() && number.size() < 3) return name + "(" + std::to_string(std::stoi(number) - 1) + ")";
  }
  const auto type = Find(kTypes, Behind(words, "choice of "));
  if (type) return "optGameType(" + std::to_string(std::stoi(*type) - 1) + ")";
  return Find(kControls, words).value_or(words);
}

// "room C2 height" as "img12.Height'"; a name without a word of its own is a control's.
std::string Subject(std::string words) {
  const std::string room = Behind(words, "room ");
  if (!room.empty()) words = room;
  std::string property;
  for (const auto& [word, name] : kProperties) {
    if (!words.ends_with(word)) continue;
    property = name;
    words.resize(words.size() - word.size());
  }
  return ControlOf(words) + property + (room.empty() ? "" : "'");
}

std::string Value(const std::string& words) { return Underscored(Find(kValues, words).value_or(words)); }

std::string Seen(const std::string& phrase) {
  for (const char* seen : {"turn ", "phase ", "scores ", "board "}) {
    const std::string value = Behind(phrase, seen);
    if (!value.empty()) return Trimmed(seen) + "=" + Underscored(value);
  }
  if (phrase.starts_with("player ") && phrase.ends_with(" lit")) return "lit=" + phrase.substr(7, 1);
  if (const std::string text = Behind(phrase, "says "); !text.empty()) return "lblStatusBar=" + Underscored(text);
  if (const std::string text = Behind(phrase, "line "); !text.empty()) return "line=" + Underscored(text);
  if (const std::string number = Behind(phrase, "question "); !number.empty() && number.size() < 3) {
    return "question=" + std::to_string(std::stoi(number) - 1);
  }
  for (const char* list : {"offers ", "options "}) {
    std::string names = Behind(phrase, list);
    for (std::size_t at = names.find(" and "); at != std::string::npos; at = names.find(" and ")) {
      names.replace(at, 5, ",");
    }
    if (!names.empty()) return Trimmed(list) + "=" + names;
  }
  if (const std::size_t at = phrase.find(" shows "); at != std::string::npos) {
    return Subject(phrase.substr(0, at)) + "=" + phrase.substr(at + 7) + ".bmp";
  }
  const std::size_t at = phrase.find(" is ");
  if (at == std::string::npos) return "";
  const std::string subject = Subject(phrase.substr(0, at)), value = phrase.substr(at + 4);
  if (value == "enabled" || value == "disabled") return subject + ".Enabled=" + (value == "enabled" ? "yes" : "no");
  return subject + "=" + (subject.starts_with("img") && value == "empty" ? "Blank.bmp" : Value(value));
}

// "player 2 rings in", "player 2 gains 100" by the score buttons.
std::string ByPlayer(const std::string& phrase) {
  const std::string who = phrase.substr(7, 1), act = phrase.substr(9);
  if (act == "rings in") return "btnSelectPlayer(" + std::to_string(std::stoi(who) - 1) + ")";
  const bool gains = act.starts_with("gains ");
  const std::size_t digits = act.size() - 6;
  return "btnScore" + who + (gains ? "Up(" : "Dn(") + std::to_string(6 - digits) + ")";
}

std::string Press(const std::string& phrase) {
  const Words presses = {{"remote ", ""},       {"queue remote ", ""}, {"pad ", ""},
                         {"remote code ", "#"}, {"pad code ", "#"},    {"host key ", "*"}};
  std::string step;
  for (const auto& [beginning, sign] : presses) {
    const std::string code = Behind(phrase, beginning);
    if (!code.empty() && code.find(' ') == std::string::npos) step = sign + code;
  }
  // A report is taken by the next poll.
  return phrase.starts_with("remote ") ? step + " >30" : step;
}

std::string Choice(const std::string& phrase) {
  for (const auto& [type, number] : kTypes) {
    const std::string rest = phrase == type ? "." : Behind(phrase, type + " and ");
    const std::string option = "optGameType(" + std::to_string(std::stoi(number) - 1) + ")";
    if (rest == ".") return option;
    if (rest == "cancel") return option + "@frmGameInProgress { btnCancel }";
    if (rest == "reset") return option + "@frmGameInProgress { btnReset }";
  }
  const std::size_t of = phrase.find(" of ");
  return phrase.starts_with("entry ") ? Subject(phrase.substr(of + 4)) + ":" + phrase.substr(6, of - 6) : "";
}

std::string Step(const std::string& phrase);

std::string Steps(const std::string& words, char parting) {
  std::string steps;
  for (const std::string& phrase : Phrases(words, parting)) steps += Step(phrase) + " ";
  return steps;
}

std::string Within(const std::string& place) {
  const std::size_t colon = place.find(": ");
  const std::string where = place.substr(0, colon), steps = Steps(place.substr(colon + 2), ';');
  if (where == "a message box") return "[ " + steps + "]";
  return Find(kDialogs, Behind(where, "the ")).value_or("no such dialog") + " { " + steps + "}";
}

std::string Done(const std::string& phrase) {
  if (const std::string place = Behind(phrase, "at "); !place.empty()) return Within(place);
  if (phrase.starts_with("player ") && !phrase.ends_with(" lit")) return ByPlayer(phrase);
  if (const std::string press = Press(phrase); !press.empty()) return press;
  if (const std::string key = Behind(phrase, "key ctrl "); !key.empty()) {
    return std::string("keys:^") + static_cast<char>(std::toupper(key[0]));
  }
  for (const char* keys : {"key ", "keys "}) {
    if (phrase.starts_with(keys)) return "keys:" + Behind(phrase, keys);
  }
  if (const std::string square = Behind(phrase, "claim "); !square.empty()) return Square(square);
  if (const std::string square = Behind(phrase, "click room "); !square.empty()) return Square(square) + "'";
  if (const std::string square = Behind(phrase, "click "); !square.empty()) return Square(square) + "!";
  if (const std::string time = Behind(phrase, "wait "); !time.empty()) return ">" + Milliseconds(time);
  if (const std::string control = Behind(phrase, "press "); !control.empty()) return Subject(control);
  if (const std::string choice = Behind(phrase, "choose "); !choice.empty()) return Choice(choice);
  if (const std::string text = Behind(phrase, "expect "); !text.empty()) return "?" + Underscored(text);
  if (const std::string text = Behind(phrase, "answer No to "); !text.empty()) return "?No:" + Underscored(text);
  if (const std::string path = Behind(phrase, "file "); !path.empty()) return "file:" + Value(path);
  for (const auto& [worth, list] : Words{{"squares worth ", "cbxScore(0):"}, {"lines worth ", "cbxScore(1):"}}) {
    if (phrase.starts_with(worth)) return list + std::to_string(std::stoi(phrase.substr(worth.size())) / 10);
  }
  const std::size_t typed = phrase.find(" typed ");
  if (typed == std::string::npos) return "";
  return Subject(phrase.substr(0, typed)) + ":" + Value(phrase.substr(typed + 7));
}

std::string Step(const std::string& phrase) {
  if (const auto act = Find(kActs, phrase)) return *act;
  if (phrase.find('=') != std::string::npos) return phrase;
  if (const std::string done = Done(phrase); !done.empty()) return done;
  if (const std::string seen = Seen(phrase); !seen.empty()) return seen;
  ADD_FAILURE() << "no such words: " << phrase;
  return "";
}

}  // namespace

std::string SetupOfWords(const std::string& words) {
  static const std::map<std::string, char> kOptions = {
      {"penalty", 'p'},     {"user advances", 'm'}, {"worthless squares", '0'}, {"animated", 'a'},
      {"7 questions", '7'}, {"remotes", 'w'},       {"long remotes", 'W'},      {"pads", 'l'},
      {"not started", 'i'}, {"picture second", 'k'}};
  std::string type = "1", players = "3", grid = "3", ending = "full", options = "-", settings;
  for (const std::string& phrase : Phrases(words)) {
    if (const auto number = Find(kTypes, phrase)) {
      type = *number;
    } else if (phrase.ends_with("players")) {
      players = phrase.substr(0, 1);
    } else if (phrase.size() == 3 && phrase[1] == 'x') {
      grid = phrase.substr(0, 1);
    } else if (phrase.ends_with(" s to answer")) {
      settings += " TimedResponse=" + phrase.substr(0, phrase.find(' '));
    } else if (kOptions.contains(phrase)) {
      options += kOptions.at(phrase);
    } else if (phrase.find('=') != std::string::npos) {
      settings += " " + phrase;
    } else {
      EXPECT_TRUE(phrase == "Finish Row" || phrase == "Full Board") << "no such words: " << phrase;
      ending = phrase == "Finish Row" ? "row" : "full";
    }
  }
  return type + " " + players + " " + grid + " " + ending + " " + options + settings;
}

std::string StepsOfWords(const std::string& words) { return Steps(words, ','); }

}  // namespace pawnfield
