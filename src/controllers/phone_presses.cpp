#include "controllers/phone_presses.h"

#include <algorithm>

#include "controllers/ring_in.h"
#include "forms/pages_form.h"
#include "record/ring_in_order.h"
#include "show/page_state.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::int64_t kDebounceUs = 200000;

bool IsIn(const std::vector<PhonePress>& presses, int player) {
  return std::any_of(presses.begin(), presses.end(), [&](const PhonePress& press) { return press.Player == player; });
}

bool IsPlaced(const RingInOrder& order, int player) {
  return std::any_of(order.Places.begin(), order.Places.end(),
                     [&](const PlacedPress& place) { return place.Player == player; });
}

// Of all phones that are there, which the error of each is measured against.
std::int64_t ShortestRoundTrip(const PageState& pages) {
  std::int64_t shortest = 0;
  for (const auto& [number, page] : pages.Pages) {
    if (page.Kind != PageKind::Phone || !page.Clock.Known()) continue;
    const std::int64_t own = page.Clock.ShortestRoundTripUs();
    shortest = shortest == 0 ? own : std::min(shortest, own);
  }
  return shortest;
}

PhonePress Timed(const PageState& pages, const ConnectedPage& page, std::int64_t pressedUs, std::int64_t arrivedUs) {
  PhonePress press{page.Seat, arrivedUs, arrivedUs, kLongestWayUs};
  if (!page.Clock.Known()) return press;
  press.CountsUs = CountedTime(page.Clock.ToOurs(pressedUs), arrivedUs, page.Clock.LongestWayUs());
  // Whoever holds the button while the question comes has pressed when it came.
  if (pages.OpenedUs >= 0) press.CountsUs = std::clamp(press.CountsUs, std::min(pages.OpenedUs, arrivedUs), arrivedUs);
  press.ErrorUs = page.Clock.ErrorUs(ShortestRoundTrip(pages));
  return press;
}

// Until when somebody's press may still come that was made before the first of those that wait.
std::int64_t Deadline(const Show& show) {
  const PageState& pages = *show.pages;
  std::int64_t first = pages.Weighed.front().CountsUs;
  for (const PhonePress& press : pages.Weighed) first = std::min(first, press.CountsUs);
  std::int64_t deadline = first;
  for (int player = 1; player <= kPlayers; ++player) {
    const PhoneSeat& seat = pages.Seats[player];
    const auto page = pages.Pages.find(seat.Page);
    const bool mayCome = page != pages.Pages.end() && !seat.Locked && Plays(show.state, player);
    if (!mayCome || IsIn(pages.Weighed, player) || !page->second.Clock.Known()) continue;
    deadline = std::max(deadline, first + page->second.Clock.LongestWayUs());
  }
  return deadline;
}

void BeginOrder(Show& show, std::vector<PlacedPress> places, std::int64_t takenUs, std::int64_t errorUs) {
  RingInOrder& order = show.pages->Order;
  order.Question = show.state.CurrentQuestion;
  order.Holder = show.state.CurrentPlayer;
  order.TakenUs = takenUs;
  order.ErrorUs = errorUs;
  order.Places = std::move(places);
}

// Behind who has the floor: it is too late for the turn, and the margin is told.
void PlaceLate(Show& show, const PhonePress& press) {
  RingInOrder& order = show.pages->Order;
  if (IsPlaced(order, press.Player) || !IsPhase(show, PhaseKind::Answering)) return;
  const bool byArrival = show.pages->Weighs == Weighing::ByArrival;
  PlacedPress place{.Player = press.Player};
  place.MarginUs = std::max<std::int64_t>(0, (byArrival ? press.ArrivedUs : press.CountsUs) - order.TakenUs);
  if (!byArrival) place.ErrorUs = press.ErrorUs + order.ErrorUs;
  place.TooClose = place.ErrorUs > place.MarginUs;
  const auto later = [&](const PlacedPress& other) { return other.MarginUs > place.MarginUs; };
  auto at = std::find_if(order.Places.begin(), order.Places.end(), later);
  if (at == order.Places.begin() && at != order.Places.end()) ++at;
  order.Places.insert(at, place);
}

void Decide(Show& show) {
  PageState& pages = *show.pages;
  show.frmPages.tmrWeigh.Enabled = false;
  const std::vector<PhonePress> presses = std::exchange(pages.Weighed, {});
  if (presses.empty() || !ConsoleListens(show)) return;
  if (!MayRingIn(show)) {
    // A wired or wireless press came in between, and is final.
    NoteTheFloor(show);
    for (const PhonePress& press : presses) PlaceLate(show, press);
    return;
  }
  std::vector<PlacedPress> places = PlacePresses(presses, pages.Weighs);
  const int winner = places.front().Player;
  const auto first =
      std::find_if(presses.begin(), presses.end(), [&](const auto& one) { return one.Player == winner; });
  if (!AcceptRingIn(show, winner)) return;
  const bool byArrival = pages.Weighs == Weighing::ByArrival;
  BeginOrder(show, std::move(places), byArrival ? first->ArrivedUs : first->CountsUs, byArrival ? 0 : first->ErrorUs);
}

void WaitOrDecide(Show& show) {
  const std::int64_t now = show.platform.webPages.NowUs();
  const std::int64_t deadline = show.pages->Weighs == Weighing::ByArrival ? now : Deadline(show);
  Timer& timer = show.frmPages.tmrWeigh;
  if (deadline <= now) {
    Decide(show);
    return;
  }
  timer.Interval = static_cast<int>(std::min(deadline - now, kLongestWayUs) + 999) / 1000;
  timer.Restart();
}

}  // namespace

void TakePhonePress(Show& show, std::uint64_t number, std::int64_t pressedUs, std::int64_t arrivedUs) {
  PageState& pages = *show.pages;
  const ConnectedPage& page = pages.Pages[number];
  if (page.Seat == 0) return;
  PhoneSeat& seat = pages.Seats[page.Seat];
  const bool bounces = seat.LastPressUs >= 0 && arrivedUs - seat.LastPressUs <= kDebounceUs;
  if (bounces || seat.Locked || !Plays(show.state, page.Seat) || !ConsoleListens(show)) return;
  seat.LastPressUs = arrivedUs;
  NoteTheFloor(show);
  const PhonePress press = Timed(pages, page, pressedUs, arrivedUs);
  // The phones' clock and the show's count from moments of their own.
  const std::int64_t ago = show.platform.webPages.NowUs() - press.CountsUs;
  AddPress(show, {press.Player, PressWay::Phone, show.platform.clock.NowUs() - ago, press.ErrorUs, PressPlace::First});
  if (!MayRingIn(show)) {
    PlaceLate(show, press);
    return;
  }
  pages.Weighed.push_back(press);
  WaitOrDecide(show);
}

void NoteTheFloor(Show& show) {
  PageState& pages = *show.pages;
  const GamePhase phase = Phase(show);
  if (phase.Kind != PhaseKind::QuestionOpen) pages.OpenedUs = -1;
  if (phase.Kind == PhaseKind::QuestionOpen && pages.OpenedUs < 0) pages.OpenedUs = show.platform.webPages.NowUs();
  if (phase.Kind == PhaseKind::QuestionOpen) pages.Order = {};
  if (phase.Kind != PhaseKind::Answering) return;
  const RingInOrder& order = pages.Order;
  if (order.Question == show.state.CurrentQuestion && order.Holder == phase.Player) return;
  BeginOrder(show, {{.Player = phase.Player}}, show.platform.webPages.NowUs(), 0);
}

void tmrWeigh_Timer(Show& show) { Decide(show); }

}  // namespace pawnfield
