#include "outward/page_views.h"

#include <algorithm>
#include <optional>

#include "data/press_order.h"
#include "devices/page_message.h"
#include "forms/main_form.h"
#include "platform/text.h"
#include "show/page_state.h"
#include "show/phase.h"
#include "show/show.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

// Of a phone that was later than who has the floor; none where the operator has given the floor to somebody else.
std::optional<PlacedPress> PlaceBehind(const Show& show, int holder, int player) {
  const std::vector<PlacedPress> order = PlacePresses(show.record->Presses);
  if (order.empty() || order.front().Of.Player != holder) return std::nullopt;
  const auto place = std::find_if(order.begin() + 1, order.end(),
                                  [player](const PlacedPress& placed) { return placed.Of.Player == player; });
  return place == order.end() ? std::nullopt : std::optional(*place);
}

bool IsWeighed(const Show& show, int player) {
  const auto& weighed = show.pages->Weighed;
  return std::any_of(weighed.begin(), weighed.end(), [&](const PhonePress& press) { return press.Player == player; });
}

// One word for what the button is now, which the page has a look and a text for.
const char* ButtonState(const Show& show, int player) {
  const GamePhase phase = Phase(show);
  if (show.pages->Seats[player].Locked) return "locked";
  if (!Plays(show.state, player)) return "out";
  if (IsWeighed(show, player)) return "pressed";
  if (phase.Kind == PhaseKind::Answering) return phase.Player == player ? "floor" : "other";
  if (phase.Kind == PhaseKind::Claiming && phase.Player == player) return "claim";
  if (phase.Kind == PhaseKind::Winner) return "over";
  return BuzzersAreOpen(show) ? "ready" : "wait";
}

// Counted from 1; 0 while no question has been asked.
int QuestionNumber(const Show& show) {
  return show.state.Nature().Trivia && show.state.GameStarted ? show.state.CurrentQuestion + 1 : 0;
}

const TriviaQuestion* QuestionAt(const Show& show, int number) {
  const bool asked = number >= 1 && number <= show.NumGameQuestions && number <= kSetCapacity;
  return asked ? &show.GameSet[static_cast<std::size_t>(number - 1)] : nullptr;
}

// A question that is a picture or a sound is named by its file.
std::string QuestionText(const TriviaQuestion* question) {
  if (question == nullptr) return {};
  std::string text = Trim(question->QuestionText);
  if (question->QuestionType.starts_with("P")) return "Picture: " + ExtractFileName(text);
  if (question->QuestionType.starts_with("S")) return "Sound: " + ExtractFileName(text);
  return text;
}

std::string PlayersJson(const Show& show) {
  std::string list;
  for (int player = 1; player <= show.state.Players; ++player) {
    const std::string one = JsonObject()
                                .Number("n", player)
                                .Text("name", show.frmMain.PlayerName(player))
                                .Text("score", show.frmMain.Score(player).Caption.Get())
                                .Truth("turn", HolderOfTurn(show) == player)
                                .Done();
    list += (list.empty() ? "" : ",") + one;
  }
  return "[" + list + "]";
}

std::string OrderJson(const Show& show) {
  std::string list;
  for (const PlacedPress& place : PlacePresses(show.record->Presses)) {
    const std::string one = JsonObject()
                                .Number("n", place.Of.Player)
                                .Text("name", show.frmMain.PlayerName(place.Of.Player))
                                .Number("ms", Milliseconds(place.MarginUs))
                                .Number("error", Milliseconds(place.ErrorUs))
                                .Truth("close", place.TooClose)
                                .Text("margin", MarginText(place))
                                .Done();
    list += (list.empty() ? "" : ",") + one;
  }
  return "[" + list + "]";
}

// "0:03" while seconds to answer run, and 0:00 when they are up; empty else.
std::string ClockText(const Show& show) {
  const AnswerClock clock = RunningAnswerClock(show);
  if (clock.Player == 0) return {};
  const std::string seconds = std::to_string(clock.SecondsLeft % 60);
  return std::to_string(clock.SecondsLeft / 60) + ":" + (seconds.size() < 2 ? "0" : "") + seconds;
}

std::string WinnerText(const Show& show) {
  return Phase(show).Kind == PhaseKind::Winner ? Trim(show.frmMain.lblWinner.Caption) : std::string();
}

}  // namespace

bool BuzzersAreOpen(const Show& show) { return IsPhase(show, PhaseKind::QuestionOpen) && !ScreenCovered(show); }

std::string FloorText(const Show& show) {
  const GamePhase phase = Phase(show);
  if (phase.Kind == PhaseKind::Answering) return show.frmMain.PlayerName(phase.Player) + " answers";
  if (phase.Kind == PhaseKind::Claiming) return show.frmMain.PlayerName(phase.Player) + " takes a square";
  if (phase.Kind == PhaseKind::QuestionOpen) return ScreenCovered(show) ? "Covered" : "Open to all";
  return {};
}

std::string PhoneView(const Show& show, int player) {
  const GamePhase phase = Phase(show);
  JsonObject view;
  view.Text("t", "phone").Number("n", player).Text("name", show.frmMain.PlayerName(player));
  view.Text("state", ButtonState(show, player)).Number("question", QuestionNumber(show));
  view.Text("score", show.frmMain.Score(player).Caption.Get());
  if (phase.Kind == PhaseKind::Answering && phase.Player != player) {
    view.Number("floor", phase.Player).Text("floorName", show.frmMain.PlayerName(phase.Player));
    if (const auto place = PlaceBehind(show, phase.Player, player)) {
      view.Number("ms", Milliseconds(place->MarginUs)).Number("error", Milliseconds(place->ErrorUs));
      view.Truth("close", place->TooClose);
    }
  }
  return view.Done();
}

std::string SeatsView(const Show& show) {
  std::string list;
  for (int player = 1; player <= show.state.Players; ++player) {
    const PhoneSeat& seat = show.pages->Seats[player];
    const std::string one = JsonObject()
                                .Number("n", player)
                                .Text("name", show.frmMain.PlayerName(player))
                                .Truth("free", seat.Token.empty() && !seat.Locked)
                                .Done();
    list += (list.empty() ? "" : ",") + one;
  }
  return JsonObject().Text("t", "seats").Json("seats", "[" + list + "]").Done();
}

std::string HostView(const Show& show) {
  const int number = QuestionNumber(show);
  const TriviaQuestion* question = QuestionAt(show, number);
  const GamePhase phase = Phase(show);
  JsonObject view;
  view.Text("t", "host").Text("set", StripExtension(ExtractFileName(show.state.LoadedSetPath)));
  view.Number("question", number).Number("of", show.NumGameQuestions).Text("text", QuestionText(question));
  view.Text("answer", question == nullptr ? "" : Trim(question->AnswerText));
  view.Text("next", number > 0 ? QuestionText(QuestionAt(show, number + 1)) : "");
  view.Number("holder", phase.Player).Text("floor", FloorText(show)).Truth("up", QuestionIsUp(show));
  view.Json("order", OrderJson(show))
      .Json("players", PlayersJson(show))
      .Text("winner", WinnerText(show))
      .Text("clock", ClockText(show));
  return view.Done();
}

std::string ScoresView(const Show& show) {
  JsonObject view;
  view.Text("t", "scores").Json("players", PlayersJson(show)).Number("question", QuestionNumber(show));
  view.Number("of", show.NumGameQuestions).Text("winner", WinnerText(show)).Text("clock", ClockText(show));
  return view.Done();
}

}  // namespace pawnfield
