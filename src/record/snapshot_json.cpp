#include "record/snapshot_json.h"

#include <algorithm>
#include <array>
#include <limits>

#include "data/game_types.h"

namespace pawnfield {

Json JsonOf(const TriviaQuestion& question) {
  return Json::List{question.QuestionType, question.QuestionText, question.FontName,  question.FontSize,
                    question.FontBold,     question.FontItalic,   question.FontColor, question.AnswerText};
}

TriviaQuestion QuestionOf(const Json& json) {
  TriviaQuestion question;
  const Json::List& fields = json.AsList();
  if (fields.size() != 8) return question;
  return {fields[0].AsText(), fields[1].AsText(), fields[2].AsText(), fields[3].AsText(),
          fields[4].AsBool(), fields[5].AsBool(), fields[6].AsText(), fields[7].AsText()};
}

namespace {

// Every member with its name, once for both directions.
template <typename Options, typename Visit>
void EachOption(Options& o, Visit&& visit) {
  visit("scoring", o.Scoring);
  visit("bonus", o.Bonus);
  visit("soundSet", o.SoundSet);
  visit("timedResponse", o.TimedResponse);
  visit("autoContinue", o.AutoContinue);
  visit("penaltyPoints", o.PenaltyPoints);
  visit("hideQuestion", o.HideQuestion);
  visit("keyControl", o.KeyControl);
  visit("animation", o.Animation);
  visit("gameEnds", o.GameEnds);
  visit("incorrectPenalty", o.IncorrectPenalty);
  visit("penalty1", o.Penalty1);
  visit("penalty2", o.Penalty2);
  visit("penalty3", o.Penalty3);
}

template <typename State, typename Visit>
void EachMember(State& s, Visit&& visit) {
  visit("type", s.GameType);
  visit("players", s.Players);
  visit("grid", s.GridSize);
  visit("board", s.Board);
  visit("loaded", s.Loaded);
  visit("started", s.Started);
  visit("inProgress", s.InProgress);
  visit("questionUp", s.QuestionUp);
  visit("placementOpen", s.PlacementOpen);
  visit("over", s.Over);
  visit("player", s.CurrentPlayer);
  visit("corner", s.Corner);
  visit("lit", s.Lit);
  visit("cursor", s.Cursor);
  visit("covered", s.Covered);
  visit("question", s.CurrentQuestion);
  visit("asked", s.Asked);
  visit("lastKey", s.LastSquareKey);
  visit("lastPlayer", s.LastPlayer);
  visit("lastPoints", s.LastPoints);
  visit("lastRow", s.LastRow);
  visit("lastColumn", s.LastCol);
  visit("lamp", s.Lamp);
  visit("lampCode", s.LampCode);
  visit("names", s.Names);
  visit("scores", s.Scores);
  visit("scoreColors", s.ScoreColors);
  visit("entry", s.Entry);
  visit("entryLetter", s.EntryLetter);
  visit("typed", s.Typed);
  visit("entryRow", s.EntryRow);
  visit("entryColumn", s.EntryColumn);
  visit("entryColor", s.EntryColor);
  visit("background", s.Background);
  visit("pointers", s.Pointers);
  visit("headers", s.Headers);
  visit("disabled", s.Disabled);
  visit("hidden", s.Hidden);
}

struct ToJson {
  Json::Members& members;
  template <typename T>
  void operator()(const char* name, const T& value) const {
    members.emplace_back(name, value);
  }
  void operator()(const char* name, const TriviaQuestion& value) const { members.emplace_back(name, JsonOf(value)); }
  template <typename T, std::size_t N>
  void operator()(const char* name, const std::array<T, N>& values) const {
    members.emplace_back(name, Json::List(values.begin(), values.end()));
  }
  void operator()(const char* name, const std::vector<std::string>& values) const {
    members.emplace_back(name, Json::List(values.begin(), values.end()));
  }
};

void Read(const Json& json, bool& value) { value = json.AsBool(value); }
void Read(const Json& json, TriviaQuestion& value) { value = QuestionOf(json); }
void Read(const Json& json, std::string& value) { value = json.AsText(value); }
void Read(const Json& json, int& value) {
  const std::int64_t number = json.AsNumber(value);
  if (number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max())
    value = static_cast<int>(number);
}
template <typename T, std::size_t N>
void Read(const Json& json, std::array<T, N>& values) {
  const Json::List& list = json.AsList();
  for (std::size_t i = 0; i < std::min(list.size(), N); ++i) Read(list[i], values[i]);
}
void Read(const Json& json, std::vector<std::string>& values) {
  values.clear();
  for (const Json& one : json.AsList()) values.push_back(one.AsText());
}

struct FromJson {
  const Json& json;
  template <typename T>
  void operator()(const char* name, T& value) const {
    if (const Json* found = json.Find(name)) Read(*found, value);
  }
};

bool Within(int value, int low, int high) { return value >= low && value <= high; }

bool CanStand(const Snapshot& s) {
  const bool board = s.Board.size() == 36 && std::all_of(s.Board.begin(), s.Board.end(), [](char owner) {
                       return owner >= '0' && owner <= '0' + kPlayers;
                     });
  const auto someone = [](int player) { return Within(player, 0, kPlayers); };
  return board && Within(s.GameType, 1, static_cast<int>(kGameTypes.size())) && Within(s.Players, 2, kPlayers) &&
         Within(s.GridSize, 3, 5) && Within(s.CurrentQuestion, 0, 100) && someone(s.CurrentPlayer) &&
         someone(s.Corner) && someone(s.Lit) && someone(s.Cursor) && someone(s.LastPlayer) && Within(s.LastRow, 0, 5) &&
         Within(s.LastCol, 0, 5) && Within(s.Options.AutoContinue, 3, 6) && Within(s.Options.Scoring, 0, 10) &&
         Within(s.Options.Bonus, 0, 10);
}

}  // namespace

Json JsonOf(const Snapshot& snapshot) {
  Json::Members members;
  EachMember(snapshot, ToJson{members});
  Json::Members options;
  EachOption(snapshot.Options, ToJson{options});
  members.emplace_back("options", std::move(options));
  return members;
}

std::optional<Snapshot> SnapshotOf(const Json& json) {
  Snapshot snapshot;
  EachMember(snapshot, FromJson{json});
  if (const Json* options = json.Find("options")) EachOption(snapshot.Options, FromJson{*options});
  if (!CanStand(snapshot)) return std::nullopt;
  return snapshot;
}

}  // namespace pawnfield
