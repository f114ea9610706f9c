#include "controllers/phone_presses.h"

#include <algorithm>

#include "controllers/press_trial.h"
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
  const std::int64_t claimed = page.Clock.ToOurs(pressedUs), slowest = page.Clock.SlowestWayUs();
  press.CountsUs = CountedTime(claimed, arrivedUs, slowest);
  // Of a way that was longer than what counts, the rest makes the press late.
  const std::int64_t beyond = std::max<std::int64_t>(0, slowest - kLongestWayUs);
  const std::int64_t late = std::clamp<std::int64_t>(press.CountsUs - claimed, 0, beyond);
  // Whoever holds the button while the question comes has pressed when it came.
  if (pages.OpenedUs >= 0) press.CountsUs = std::clamp(press.CountsUs, std::min(pages.OpenedUs, arrivedUs), arrivedUs);
  press.ErrorUs = page.Clock.ErrorUs(ShortestRoundTrip(pages)) + late;
  return press;
}

// The phones' clock and the show's count from moments of their own.
Press OnOurClock(const Show& show, const PhonePress& press) {
  const std::int64_t ago = show.platform.webPages.NowUs() - press.CountsUs;
  return {press.Player, PressWay::Phone, show.platform.clock.NowUs() - ago, press.ErrorUs, PressPlace::First};
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

// Into the order of the question's presses.
void List(Show& show, const PhonePress& press) { AddPress(show, OnOurClock(show, press)); }

void Decide(Show& show) {
  PageState& pages = *show.pages;
  show.frmPages.tmrWeigh.Enabled = false;
  std::vector<PhonePress> presses = std::exchange(pages.Weighed, {});
  if (presses.empty() || !ConsoleListens(show)) return;
  Weigh(presses, pages.Weighs);
  // A wired or wireless press that came in between is final, and these are listed behind it.
  bool open = MayRingIn(show);
  for (const PhonePress& press : presses) {
    List(show, press);
    if (open) AcceptRingIn(show, press.Player);
    open = false;
  }
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
  if (!seat.Locked && TakesForTrial(show, OnOurClock(show, Timed(pages, page, pressedUs, arrivedUs)), page.Seat))
    return;
  const bool bounces = seat.LastPressUs >= 0 && arrivedUs - seat.LastPressUs <= kDebounceUs;
  if (bounces || seat.Locked || !Plays(show.state, page.Seat) || !ConsoleListens(show)) return;
  seat.LastPressUs = arrivedUs;
  NoteTheQuestion(show);
  std::vector<PhonePress> press{Timed(pages, page, pressedUs, arrivedUs)};
  if (MayRingIn(show)) {
    pages.Weighed.push_back(press.front());
    WaitOrDecide(show);
  } else {
    Weigh(press, pages.Weighs);
    List(show, press.front());
  }
}

void NoteTheQuestion(Show& show) {
  PageState& pages = *show.pages;
  if (!IsPhase(show, PhaseKind::QuestionOpen))
    pages.OpenedUs = -1;
  else if (pages.OpenedUs < 0)
    pages.OpenedUs = show.platform.webPages.NowUs();
}

void tmrWeigh_Timer(Show& show) { Decide(show); }

}  // namespace pawnfield
