#include "controllers/outward_news.h"

#include "forms/main_form.h"
#include "platform/text.h"
#include "show/page_state.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

struct Number {
  const char* Name;
  int Value;
};

// As {"t":"score","player":2,"score":250} to the pages of control devices, and as /pawnfield/score 2 250 by OSC.
void Tell(Show& show, const std::string& what, const std::vector<Number>& numbers) {
  JsonObject object;
  object.Text("t", what);
  OscMessage message{"/pawnfield/" + what, {}};
  for (const auto& [name, value] : numbers) {
    object.Number(name, value);
    message.Numbers.push_back(value);
  }
  for (const auto& [number, page] : show.pages->Pages) {
    if (page.Kind == PageKind::Events) show.platform.webPages.Send(number, object.Done());
  }
  show.platform.webPages.SendOsc(message);
}

void TellQuestion(Show& show, ToldGame& told) {
  const int question = show.state.GameStarted && show.state.Nature().Trivia ? show.state.CurrentQuestion + 1 : 0;
  if (question == told.Question) return;
  told.Question = question;
  if (question > 0) Tell(show, "question", {{"number", question}, {"of", show.NumGameQuestions}});
}

void TellVerdict(Show& show, ToldGame& told) {
  const LastVerdict& verdict = show.lastVerdict;
  if (verdict.Count == told.Verdicts) return;
  told.Verdicts = verdict.Count;
  Tell(show, "verdict", {{"player", verdict.Player}, {"correct", verdict.Correct ? 1 : 0}});
}

void TellHolder(Show& show, ToldGame& told) {
  const GamePhase phase = Phase(show);
  const int holder = phase.Kind == PhaseKind::Answering ? phase.Player : 0;
  if (holder == told.Holder) return;
  told.Holder = holder;
  if (holder != 0) Tell(show, "ringin", {{"player", holder}});
}

// Row after row, a digit for each square.
void TellClaims(Show& show, ToldGame& told) {
  std::string board;
  for (int row = 0; row < show.state.GridRows; ++row) {
    for (int column = 0; column < show.state.GridCols; ++column) {
      board +=
          static_cast<char>('0' + show.state.Board[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)]);
    }
  }
  for (std::size_t i = 0; told.Board.size() == board.size() && i < board.size(); ++i) {
    if (board[i] == told.Board[i]) continue;
    const int columns = show.state.GridCols;
    const int square = static_cast<int>(i);
    Tell(show, "claim", {{"player", board[i] - '0'}, {"column", square % columns + 1}, {"row", square / columns + 1}});
  }
  told.Board = std::move(board);
}

void TellScores(Show& show, ToldGame& told) {
  for (int player = 1; player <= kPlayers; ++player) {
    const std::string score = show.frmMain.Score(player).Caption;
    if (score == told.Scores[player]) continue;
    told.Scores[player] = score;
    Tell(show, "score", {{"player", player}, {"score", static_cast<int>(LeadingNumber(score))}});
  }
}

void TellEnd(Show& show, ToldGame& told) {
  const bool over = IsPhase(show, PhaseKind::Winner);
  if (over && !told.Over) Tell(show, "gameover", {});
  told.Over = over;
}

}  // namespace

void TellControlDevices(Show& show) {
  if (!show.pages->Place.Control) return;
  for (const auto tell : {TellVerdict, TellQuestion, TellHolder, TellClaims, TellScores, TellEnd}) {
    tell(show, show.pages->Told);
  }
}

}  // namespace pawnfield
