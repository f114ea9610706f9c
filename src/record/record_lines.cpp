#include "record/record_lines.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <utility>

#include "record/snapshot_json.h"

namespace pawnfield {

namespace {

constexpr std::string_view kSumBegins = ",\"sum\":\"";
// The sum's eight digits and what closes the line.
constexpr std::size_t kSumLength = kSumBegins.size() + 8 + 2;

constexpr std::array<std::pair<EventKind, const char*>, 20> kKindNames{{
    {EventKind::Ready, "Ready"},       {EventKind::Start, "Start"},
    {EventKind::Question, "Question"}, {EventKind::RingIn, "RingIn"},
    {EventKind::Correct, "Correct"},   {EventKind::Incorrect, "Incorrect"},
    {EventKind::Claim, "Claim"},       {EventKind::Score, "Score"},
    {EventKind::Name, "Name"},         {EventKind::Skip, "Skip"},
    {EventKind::Turn, "Turn"},         {EventKind::Players, "Players"},
    {EventKind::Grid, "Grid"},         {EventKind::ClearScores, "ClearScores"},
    {EventKind::End, "End"},           {EventKind::Wipe, "Wipe"},
    {EventKind::Options, "Options"},   {EventKind::Undone, "Undone"},
    {EventKind::Redone, "Redone"},     {EventKind::BroughtBack, "BroughtBack"},
}};

constexpr std::array<const char*, 5> kWays{"hand", "key", "remote", "pad", "phone"};
constexpr std::array<const char*, 3> kPlaces{"first", "later", "early"};

// The sum that archives and networks use.
constexpr std::array<std::uint32_t, 256> MakeSumTable() {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t i = 0; i < 256; ++i) {
    std::uint32_t sum = i;
    for (int bit = 0; bit < 8; ++bit) sum = (sum & 1) != 0 ? (sum >> 1) ^ 0xEDB88320U : sum >> 1;
    table[i] = sum;
  }
  return table;
}

std::uint32_t SumOf(std::string_view bytes) {
  static constexpr auto kTable = MakeSumTable();
  std::uint32_t sum = 0xFFFFFFFFU;
  for (const char c : bytes) sum = kTable[(sum ^ static_cast<unsigned char>(c)) & 255U] ^ (sum >> 8);
  return ~sum;
}

std::string SumText(std::string_view bytes) {
  char text[9];
  std::snprintf(text, sizeof text, "%08x", static_cast<unsigned>(SumOf(bytes)));
  return text;
}

std::string TimeText(const LocalTime& at) {
  char text[80];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", at.Year, at.Month, at.Day, at.Hour, at.Minute,
                at.Second);
  return text;
}

LocalTime TimeOf(const Json* text) {
  LocalTime at;
  if (text == nullptr) return at;
  std::sscanf(text->AsText().c_str(), "%4d-%2d-%2d %2d:%2d:%2d", &at.Year, &at.Month, &at.Day, &at.Hour, &at.Minute,
              &at.Second);
  return at;
}

Json JsonOf(const Press& press) {
  return Json::List{press.Player, kWays[static_cast<std::size_t>(press.Way)], press.TimeUs, press.ErrorUs,
                    kPlaces[static_cast<std::size_t>(press.Place)]};
}

template <std::size_t N>
std::size_t PlaceIn(const std::array<const char*, N>& names, const std::string& name) {
  std::size_t place = 0;
  while (place + 1 < N && name != names[place]) ++place;
  return place;
}

std::optional<Press> PressOf(const Json& json) {
  const Json::List& fields = json.AsList();
  if (fields.size() != 5 || !IsPlayer(static_cast<int>(fields[0].AsNumber()))) return std::nullopt;
  return Press{static_cast<int>(fields[0].AsNumber()), static_cast<PressWay>(PlaceIn(kWays, fields[1].AsText())),
               fields[2].AsNumber(), fields[3].AsNumber(),
               static_cast<PressPlace>(PlaceIn(kPlaces, fields[4].AsText()))};
}

RecordedSet SetOf(const Json& json) {
  RecordedSet set;
  const auto text = [&](const char* name) {
    const Json* found = json.Find(name);
    return found != nullptr ? found->AsText() : std::string();
  };
  set.Path = text("path");
  set.Folder = text("folder");
  const Json* questions = json.Find("questions");
  if (questions == nullptr) return set;
  const Json::List& list = questions->AsList();
  for (std::size_t i = 0; i < std::min(list.size(), set.Questions.size()); ++i) set.Questions[i] = QuestionOf(list[i]);
  const Json* count = json.Find("count");
  const std::int64_t counted = count != nullptr ? count->AsNumber() : 0;
  set.Count = static_cast<int>(std::clamp<std::int64_t>(counted, 0, kSetCapacity));
  return set;
}

std::optional<EventKind> KindNamed(const std::string& name) {
  for (const auto& [kind, text] : kKindNames) {
    if (name == text) return kind;
  }
  return std::nullopt;
}

std::optional<RecordedEvent> EventOf(const Json& json) {
  const Json* kind = json.Find("kind");
  const Json* now = json.Find("now");
  const auto known = kind != nullptr ? KindNamed(kind->AsText()) : std::nullopt;
  if (!known || now == nullptr) return std::nullopt;
  RecordedEvent event;
  event.Kind = *known;
  const auto snapshot = SnapshotOf(*now);
  if (!snapshot) return std::nullopt;
  event.After = *snapshot;
  event.At = TimeOf(json.Find("at"));
  if (const Json* what = json.Find("what")) event.What = what->AsText();
  if (const Json* ms = json.Find("ms")) event.Ms = ms->AsNumber();
  if (const Json* opened = json.Find("opened")) event.OpenedUs = opened->AsNumber();
  if (const Json* player = json.Find("player")) event.Player = static_cast<int>(player->AsNumber());
  if (!IsPlayer(event.Player)) event.Player = 0;
  if (const Json* presses = json.Find("presses")) {
    for (const Json& one : presses->AsList()) {
      if (const auto press = PressOf(one)) event.Presses.push_back(*press);
    }
  }
  return event;
}

}  // namespace

const char* NameOfKind(EventKind kind) {
  for (const auto& [known, name] : kKindNames) {
    if (known == kind) return name;
  }
  return "";
}

std::string FormatLine(const Json::Members& members) {
  std::string line = Json(members).Text();
  line.pop_back();
  return line + std::string(kSumBegins) + SumText(line) + "\"}\n";
}

std::optional<Json> ParseLine(std::string_view line) {
  if (line.size() < kSumLength) return std::nullopt;
  const std::string_view body = line.substr(0, line.size() - kSumLength);
  const std::string_view tail = line.substr(body.size());
  if (tail != std::string(kSumBegins) + SumText(body) + "\"}") return std::nullopt;
  return Json::Parse(line);
}

std::string FormatHead(const LocalTime& at) { return FormatLine({{"record", kRecordVersion}, {"at", TimeText(at)}}); }

std::string FormatSetLine(const RecordedSet& set) {
  std::size_t last = set.Questions.size();
  const TriviaQuestion blank;
  while (last > 0 && set.Questions[last - 1] == blank) --last;
  Json::List questions;
  for (std::size_t i = 0; i < last; ++i) questions.push_back(JsonOf(set.Questions[i]));
  return FormatLine(
      {{"set",
        Json::Members{
            {"path", set.Path}, {"folder", set.Folder}, {"count", set.Count}, {"questions", std::move(questions)}}}});
}

std::string FormatEvent(const RecordedEvent& event) {
  Json::List presses;
  for (const Press& press : event.Presses) presses.push_back(JsonOf(press));
  return FormatLine({{"ms", event.Ms},
                     {"at", TimeText(event.At)},
                     {"kind", NameOfKind(event.Kind)},
                     {"player", event.Player},
                     {"what", event.What},
                     {"presses", std::move(presses)},
                     {"opened", event.OpenedUs},
                     {"now", JsonOf(event.After)}});
}

std::string FormatCheck(const std::vector<CheckedRow>& rows) {
  Json::List list;
  for (const CheckedRow& row : rows) list.push_back(Json::List{row.Row, row.Light, row.Sentence});
  return FormatLine({{"check", std::move(list)}});
}

std::string FormatEnd() { return FormatLine({{"end", true}}); }

bool WasPlayed(const GameHistory& game) {
  return std::any_of(game.Events.begin(), game.Events.end(),
                     [](const RecordedEvent& event) { return event.After.Started; });
}

namespace {

// A game that was brought back stands in the record once more, and counts once.
void LeaveGame(ReadRecord& record, const RecordedEvent& next) {
  if (WasPlayed(record.Game)) record.Games.push_back(std::move(record.Game));
  record.Game = {};
  if (next.Kind != EventKind::BroughtBack) return;
  std::erase_if(record.Games, [&](const GameHistory& game) { return game.Events.front().Ms == next.Ms; });
}

// Plays an event into the history as it was played in the show.
void Replay(ReadRecord& record, const RecordedEvent& event) {
  GameHistory& game = record.Game;
  switch (event.Kind) {
    case EventKind::Undone:
      if (game.Now > 0) game.Events[--game.Now].After = event.After;
      return;
    case EventKind::Redone:
      if (game.Now + 1 < game.Events.size()) game.Events[++game.Now].After = event.After;
      return;
    case EventKind::Options:
      if (!game.Events.empty()) game.Events[game.Now].After.Options = event.After.Options;
      return;
    case EventKind::Ready:
    case EventKind::Wipe:
    case EventKind::BroughtBack:
      LeaveGame(record, event);
      break;
    default:
      if (game.Events.size() > game.Now + 1) game.Events.resize(game.Now + 1);
  }
  game.Events.push_back(event);
  game.Now = game.Events.size() - 1;
}

void TakeCheck(ReadRecord& record, const Json& rows) {
  for (const Json& row : rows.AsList()) {
    const Json::List& texts = row.AsList();
    if (texts.size() == 3) record.Checked.push_back({texts[0].AsText(), texts[1].AsText(), texts[2].AsText()});
  }
}

void TakeLine(ReadRecord& record, const Json& line) {
  if (const Json* set = line.Find("set")) {
    record.Set = std::make_shared<const RecordedSet>(SetOf(*set));
  } else if (const Json* check = line.Find("check")) {
    TakeCheck(record, *check);
  } else if (line.Find("end") != nullptr) {
    record.Ended = true;
  } else if (auto event = EventOf(line)) {
    record.Ended = false;
    Replay(record, *event);
    record.Game.Set = record.Set;
    record.Events.push_back(std::move(*event));
  }
}

}  // namespace

std::optional<ReadRecord> ParseRecord(std::string_view bytes) {
  ReadRecord record;
  bool begun = false;
  std::size_t from = 0;
  for (std::size_t end = bytes.find('\n'); end != std::string_view::npos; end = bytes.find('\n', from)) {
    const auto line = ParseLine(bytes.substr(from, end - from));
    from = end + 1;
    if (!begun) {
      const Json* version = line ? line->Find("record") : nullptr;
      if (version == nullptr || version->AsNumber() != kRecordVersion) return std::nullopt;
      record.At = TimeOf(line->Find("at"));
      begun = true;
    } else if (line) {
      TakeLine(record, *line);
    }
    record.WholeBytes = from;
  }
  if (!begun) return std::nullopt;
  return record;
}

}  // namespace pawnfield
