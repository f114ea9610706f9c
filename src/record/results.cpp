#include "record/results.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "data/game_types.h"
#include "data/press_order.h"
#include "platform/escapes.h"
#include "platform/text.h"
#include "record/record_lines.h"
#include "record/ring_in_order.h"
#include "sets/set_file.h"
#include "sets/set_parser.h"

namespace pawnfield {

namespace {

std::string ClockText(const LocalTime& at) {
  char text[40];
  std::snprintf(text, sizeof text, "%02d:%02d:%02d", at.Hour, at.Minute, at.Second);
  return text;
}

std::string DayText(const LocalTime& at) {
  char text[60];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d", at.Year, at.Month, at.Day, at.Hour, at.Minute);
  return text;
}

// What is summed up of a player while the games are read.
struct Tally {
  PlayerTotal Total;
  std::int64_t MarginSum = 0;
  int Margins = 0;
};

Tally& TallyOf(std::vector<Tally>& tallies, const std::string& name) {
  const auto found =
      std::find_if(tallies.begin(), tallies.end(), [&](const Tally& tally) { return tally.Total.Name == name; });
  if (found != tallies.end()) return *found;
  tallies.emplace_back().Total.Name = name;
  return tallies.back();
}

// By how much the first was ahead; nothing where nobody came second.
std::optional<std::int64_t> LeadOf(const std::vector<Press>& presses) {
  const Press* first = FirstOf(presses);
  std::optional<std::int64_t> lead;
  for (const Press& press : presses) {
    if (first == nullptr || press.Place != PressPlace::Later) continue;
    const std::int64_t margin = Milliseconds(press.TimeUs - first->TimeUs);
    if (!lead || margin < *lead) lead = margin;
  }
  return lead;
}

std::string OrderText(const std::vector<Press>& presses, const std::array<std::string, kPlayers>& names) {
  std::string text;
  for (const RingInRow& row : RingInRows(presses, names)) {
    text += (text.empty() ? "" : ", ") + Isolated(row.Name);
    if (row.When != "first") text += " " + row.When;
  }
  return text;
}

// Reads one game: its events one after the other, with the question that is open.
class GameReader {
 public:
  GameReader(const GameHistory& game, std::vector<Tally>& tallies) : game_(game), tallies_(tallies) {}

  GameResults Read() {
    const Snapshot& last = game_.Events[game_.Now].After;
    const GameNature& type = NatureOf(static_cast<GameMode>(last.GameType));
    results_.Name = type.Trivia && game_.Set ? SetName(ExtractFileName(game_.Set->Path)) : std::string(type.Caption);
    for (int player = 1; player <= last.Players; ++player) TallyOf(tallies_, last.Names[PlayerIndex(player)]);
    for (std::size_t i = 1; i <= game_.Now; ++i) Take(game_.Events[i - 1].After, game_.Events[i]);
    CloseQuestion();
    for (int player = 1; player <= last.Players; ++player)
      TallyOf(tallies_, last.Names[PlayerIndex(player)]).Total.Score +=
          ParseNumber(last.Scores[PlayerIndex(player)]).value_or(0);
    return std::move(results_);
  }

 private:
  void Take(const Snapshot& before, const RecordedEvent& event) {
    const Snapshot& after = event.After;
    const bool trivia = NatureOf(static_cast<GameMode>(after.GameType)).Trivia;
    if (open_) TakeAnswer(event);
    const bool asks = trivia && after.Started && (!before.Started || after.CurrentQuestion != before.CurrentQuestion);
    if (open_ && (asks || !after.Started)) CloseQuestion();
    if (asks) OpenQuestion(event);
    if (!trivia && event.Kind == EventKind::Claim) {
      AddRow(event);
      results_.Rows.back().Verdict = event.What;
    }
    if (open_ || (!trivia && !results_.Rows.empty())) TakeScores(results_.Rows.back(), after);
  }

  void AddRow(const RecordedEvent& event) {
    results_.Rows.emplace_back().Time = ClockText(event.At);
    TakeScores(results_.Rows.back(), event.After);
  }

  void OpenQuestion(const RecordedEvent& event) {
    AddRow(event);
    ResultRow& row = results_.Rows.back();
    row.Question = event.After.CurrentQuestion + 1;
    row.Wording = WordingOf(event.After.Asked);
    row.Answer = Trim(event.After.Asked.AnswerText);
    open_ = true;
  }

  // A verdict ends the order of presses that led to it.
  void TakeAnswer(const RecordedEvent& event) {
    const Press* first = FirstOf(event.Presses);
    if (first != nullptr && first->TimeUs != lastFirstUs_) presses_ = event;
    const bool right = event.Kind == EventKind::Correct;
    if (right || event.Kind == EventKind::Incorrect) {
      AddVerdict(event.What);
      const std::string& name = event.After.Names[PlayerIndex(std::max(event.Player, 1))];
      if (IsPlayer(event.Player)) ++(right ? TallyOf(tallies_, name).Total.Right : TallyOf(tallies_, name).Total.Wrong);
      EndOrder();
    }
    if (event.Kind == EventKind::Skip) AddVerdict("Skipped");
  }

  void AddVerdict(const std::string& what) {
    std::string& verdict = results_.Rows.back().Verdict;
    verdict += (verdict.empty() ? "" : "; ") + what;
  }

  void EndOrder() {
    const Press* first = FirstOf(presses_.Presses);
    if (first == nullptr) return;
    ResultRow& row = results_.Rows.back();
    row.RangIn += (row.RangIn.empty() ? "" : "; ") + OrderText(presses_.Presses, presses_.After.Names);
    const auto lead = LeadOf(presses_.Presses);
    if (!row.MarginMs) row.MarginMs = lead;
    lastFirstUs_ = first->TimeUs;
    // A hand at the console is the operator's and tells nothing of a player.
    if (first->Way != PressWay::Hand) TakeTimes(*first, lead);
    presses_ = {};
  }

  void TakeTimes(const Press& first, const std::optional<std::int64_t>& lead) {
    Tally& tally = TallyOf(tallies_, presses_.After.Names[PlayerIndex(first.Player)]);
    const std::int64_t took = Milliseconds(first.TimeUs - presses_.OpenedUs);
    if (presses_.OpenedUs != 0 && took >= 0)
      tally.Total.FastestMs = std::min(tally.Total.FastestMs.value_or(took), took);
    if (!lead) return;
    tally.MarginSum += *lead;
    ++tally.Margins;
  }

  void CloseQuestion() {
    if (!open_) return;
    EndOrder();
    open_ = false;
  }

  static void TakeScores(ResultRow& row, const Snapshot& after) {
    for (int player = 1; player <= after.Players; ++player) {
      row.Names[PlayerIndex(player)] = after.Names[PlayerIndex(player)];
      row.Scores[PlayerIndex(player)] = after.Scores[PlayerIndex(player)];
    }
  }

  const GameHistory& game_;
  std::vector<Tally>& tallies_;
  GameResults results_;
  bool open_ = false;
  // The event with the presses since the question opened last, and the first press of the opening before.
  RecordedEvent presses_;
  std::int64_t lastFirstUs_ = 0;
};

TableRow RowOf(const std::string& game, const ResultRow& row) {
  TableRow cells{game,       row.Time,   row.Question > 0 ? std::to_string(row.Question) : "", row.Wording,
                 row.Answer, row.RangIn, row.MarginMs ? std::to_string(*row.MarginMs) : "",    row.Verdict};
  for (std::size_t i = 0; i < kPlayers; ++i) {
    cells.push_back(row.Names[i]);
    cells.push_back(row.Scores[i]);
  }
  return cells;
}

TableRow RowOf(const PlayerTotal& total) {
  return {total.Name,
          std::to_string(total.Right),
          std::to_string(total.Wrong),
          total.FastestMs ? std::to_string(*total.FastestMs) : "",
          total.MeanMarginMs ? std::to_string(*total.MeanMarginMs) : "",
          NumberText(total.Score)};
}

PrintBlock BlockOf(const ResultRow& row) {
  const std::string number = row.Question > 0 ? std::to_string(row.Question) + ". " : "";
  PrintBlock block{row.Time + "  " + number + (row.Question > 0 ? Isolated(row.Wording) : row.Verdict)};
  if (!row.Answer.empty()) block.push_back("Answer: " + Isolated(row.Answer));
  if (!row.RangIn.empty()) block.push_back("Rang in: " + row.RangIn);
  if (row.Question > 0 && !row.Verdict.empty()) block.push_back(row.Verdict);
  block.push_back(ScoresText(row));
  block.emplace_back(" ");
  return block;
}

std::string TotalText(const PlayerTotal& total) {
  std::string text = Isolated(total.Name) + ": " + NumberText(total.Score) + " points, " + std::to_string(total.Right) +
                     " right, " + std::to_string(total.Wrong) + " wrong";
  if (total.FastestMs) text += ", fastest " + SecondsText(total.FastestMs);
  if (total.MeanMarginMs) text += ", ahead by " + LeadText(total.MeanMarginMs).substr(1) + " on average";
  return text;
}

}  // namespace

ShowResults ResultsOf(const ReadRecord& record) {
  ShowResults results;
  results.Begun = DayText(record.At);
  std::vector<Tally> tallies;
  for (const GameHistory& game : record.Games) results.Games.push_back(GameReader(game, tallies).Read());
  if (WasPlayed(record.Game)) results.Games.push_back(GameReader(record.Game, tallies).Read());
  for (Tally& tally : tallies) {
    if (tally.Margins > 0) tally.Total.MeanMarginMs = tally.MarginSum / tally.Margins;
    results.Totals.push_back(std::move(tally.Total));
  }
  for (const CheckedRow& row : record.Checked)
    results.Checked.push_back(row.Row + ": " + row.Light + ", " + row.Sentence);
  return results;
}

std::string SecondsText(const std::optional<std::int64_t>& ms) {
  if (!ms) return {};
  char text[40];
  std::snprintf(text, sizeof text, "%.2f s", static_cast<double>(*ms) / 1000);
  return text;
}

std::string LeadText(const std::optional<std::int64_t>& ms) {
  return ms ? "+" + std::to_string(*ms) + " ms" : std::string();
}

std::string ScoresText(const ResultRow& row) {
  std::string text;
  for (std::size_t i = 0; i < kPlayers; ++i) {
    if (row.Scores[i].empty()) continue;
    text += (text.empty() ? "" : ", ") + Isolated(row.Names[i]) + " " + row.Scores[i];
  }
  return text;
}

Table TableOf(const ShowResults& results) {
  Table table{{"Game", "Time", "Question no.", "Question", "Answer", "Rang in", "Margin (ms)", "Verdict", "Player 1",
               "Score 1", "Player 2", "Score 2", "Player 3", "Score 3"}};
  for (const GameResults& game : results.Games) {
    for (const ResultRow& row : game.Rows) table.push_back(RowOf(game.Name, row));
  }
  table.emplace_back();
  table.push_back({"Player", "Right", "Wrong", "Fastest (ms)", "Mean margin (ms)", "Score"});
  for (const PlayerTotal& total : results.Totals) table.push_back(RowOf(total));
  for (TableRow& row : table) {
    row.resize(table[0].size());
    for (std::string& cell : row) cell = CellOf(WithoutIsolation(cell));
  }
  return table;
}

PrintDocument DocumentOf(const ShowResults& results) {
  PrintDocument document{"Results of the show of " + results.Begun, {}};
  PrintBlock head{document.Title, " "};
  for (const PlayerTotal& total : results.Totals) head.push_back(TotalText(total));
  head.emplace_back(" ");
  document.Blocks.push_back(std::move(head));
  for (const GameResults& game : results.Games) {
    document.Blocks.push_back({Isolated(game.Name), " "});
    for (const ResultRow& row : game.Rows) document.Blocks.push_back(BlockOf(row));
  }
  return document;
}

}  // namespace pawnfield
