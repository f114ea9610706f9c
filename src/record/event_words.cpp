#include "record/event_words.h"

#include <cmath>

#include "data/game_types.h"
#include "platform/escapes.h"
#include "platform/text.h"

namespace pawnfield {

namespace {

double ScoreIn(const Snapshot& snapshot, int player) {
  return ParseNumber(snapshot.Scores[PlayerIndex(player)]).value_or(0);
}

// ", -100" where the player's score changed, with another beginning where one is wanted.
std::string ScoreChange(const Snapshot& before, const Snapshot& after, int player, const char* begin = ", ") {
  const double change = ScoreIn(after, player) - ScoreIn(before, player);
  if (change == 0) return {};
  return std::string(begin) + (change > 0 ? "+" : "") + NumberText(change);
}

std::string NameIn(const Snapshot& snapshot, int player) {
  return IsPlayer(player) ? Isolated(snapshot.Names[PlayerIndex(player)]) : std::string("nobody");
}

// The square that only the snapshot after the event has, as the board's labels name it.
std::string ClaimedSquare(const Snapshot& before, const Snapshot& after) {
  for (std::size_t i = 0; i < after.Board.size(); ++i) {
    if (before.Board[i] == '0' && after.Board[i] != '0')
      return std::string(1, static_cast<char>('A' + i % 6)) + static_cast<char>('1' + i / 6);
  }
  return "a square";
}

std::string NamesSet(const Snapshot& before, const Snapshot& after) {
  std::string text;
  for (int player = 1; player <= kPlayers; ++player) {
    if (NameIn(before, player) == NameIn(after, player)) continue;
    text += (text.empty() ? "Name " : ", ") + NameIn(after, player);
  }
  return text.empty() ? "Names" : text;
}

std::string QuestionOf(const Snapshot& snapshot) { return std::to_string(snapshot.CurrentQuestion + 1); }

}  // namespace

std::string WordsOf(const Happening& happening, const Snapshot& before, const Snapshot& after,
                    const std::string& setName) {
  const int player = happening.Player;
  const std::string name = NameIn(after, player);
  switch (happening.Kind) {
    case EventKind::Ready:
      return setName.empty() ? "Ready" : setName + " is ready";
    case EventKind::Start:
      return "Start";
    case EventKind::Question:
      return "Question " + QuestionOf(after);
    case EventKind::RingIn:
      return name + " rings in";
    case EventKind::Correct:
      return "Correct for " + name;
    case EventKind::Incorrect:
      return "Incorrect for " + name + (IsPlayer(player) ? ScoreChange(before, after, player) : "");
    case EventKind::Claim:
      return name + " takes " + ClaimedSquare(before, after) +
             (IsPlayer(player) ? ScoreChange(before, after, player) : "");
    case EventKind::Score:
      return name + (IsPlayer(player) ? ScoreChange(before, after, player, " ") : "");
    case EventKind::Name:
      return NamesSet(before, after);
    case EventKind::Skip:
      return "Skip of question " + QuestionOf(before);
    case EventKind::Turn:
      return "Turn to " + NameIn(after, after.CurrentPlayer);
    case EventKind::Players:
      return std::to_string(after.Players) + " players";
    case EventKind::Grid:
      return std::to_string(after.GridSize) + "x" + std::to_string(after.GridSize) + " board";
    case EventKind::ClearScores:
      return "Clear All Scores";
    case EventKind::End:
      return "End Game";
    case EventKind::Wipe:
      return "Board cleared";
    case EventKind::Options:
      return "Options";
    case EventKind::Undone:
    case EventKind::Redone:
    case EventKind::BroughtBack:
      break;
  }
  return {};
}

}  // namespace pawnfield
