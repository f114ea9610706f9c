// What phones and pages cost and how fair they are, with the real server and the real windows, over the loopback and
// through a relay with the ways of a quiet and of a poor network.

#include <array>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <map>
#include <random>

#include "figures.h"
#include "forms/main_form.h"
#include "forms/pages_form.h"
#include "page_callers.h"
#include "played_show.h"
#include "show/page_state.h"
#include "show/phase.h"
#include "show/show.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

struct Network {
  const char* Name;
  double LeastMs, MostMs;
  int Touches;
};
constexpr Network kPoorNetwork{"40ms", 10, 70, 200};

double MsOf(std::int64_t us) { return static_cast<double>(us) / 1000; }

// The show with its pages switched on at the loopback, and callers that reach it directly or through a relay.
class PagesShow {
 public:
  explicit PagesShow(const Network& network = {"loopback", 0, 0, 0}) {
    PagesForm& form = TheShow().frmPages;
    TheShow().frmMain.mnuFilePages.Click();
    for (std::size_t i = 0; i < form.cboAddress.List->size(); ++i) {
      if (form.cboAddress.List.Get()[i] == "127.0.0.1") form.cboAddress.Select(static_cast<int>(i));
    }
    form.btnSwitch.Click();
    form.btnClose.Click();
    port_ = TheShow().pages->Place.Port;
    if (network.MostMs > 0) relay_ = std::make_unique<Relay>(port_, network.LeastMs, network.MostMs);
    callers_ = std::make_unique<PageCallers>(port_);
    auto& taken = TheShow().platform.webPages.OnEvent;
    taken = [this, inner = taken](const PageEvent& event) {
      if (event.Kind == PageEventKind::Message && event.Text.starts_with("press")) came_[event.Page] = event.ArrivedUs;
      inner(event);
    };
  }

  Show& TheShow() { return played_.TheShow(); }
  PlayedShow& Played() { return played_; }
  PageCallers& Callers() { return *callers_; }
  int Port() const { return port_; }
  int ReachedBy() const { return relay_ ? relay_->Port() : port_; }
  int Holder() { return IsPhase(TheShow(), PhaseKind::Answering) ? Phase(TheShow()).Player : 0; }

  // A phone sits down, its clock elsewhere and of another pace.
  int Seat(int player) {
    const int phone = callers_->Join({.Hello = "hello phone " + TheShow().pages->Pin,
                                      .Port = ReachedBy(),
                                      .AheadUs = 1e6 * player,
                                      .Faster = (player - 2) * 0.00002});
    if (phone < 0 || !Hears(phone, "\"seats\"")) return -1;
    callers_->Say(phone, "seat " + std::to_string(player));
    return Hears(phone, "\"t\":\"phone\"") ? phone : -1;
  }
  bool Hears(int page, const std::string& words) {
    return PlayedShow::WaitFor([&] { return callers_->Heard(page).find(words) != std::string::npos; });
  }
  const PhoneSeat& SeatOf(int player) { return TheShow().pages->Seats[player]; }
  const ClockOffset& ClockOf(int player) { return TheShow().pages->Pages.at(SeatOf(player).Page).Clock; }
  // By how many milliseconds the second came after the first, as the order of presses has it, and the error it says.
  std::pair<double, double> MarginOf(int first, int second) {
    double margin = 0, error = 0;
    for (const Press& press : TheShow().record->Presses) {
      if (press.Player == first) margin -= MsOf(press.TimeUs);
      if (press.Player == second) margin += MsOf(press.TimeUs);
      error += MsOf(press.ErrorUs);
    }
    return {margin, error};
  }
  std::int64_t CameUs(int player) { return came_[SeatOf(player).Page]; }
  // What a press of this player may have to wait for.
  std::int64_t LongestWaitUs(int player) {
    std::int64_t longest = 0;
    for (int other = 1; other <= kPlayers; ++other) {
      const bool there = other != player && TheShow().pages->Pages.count(SeatOf(other).Page) != 0;
      if (there) longest = std::max(longest, ClockOf(other).LongestWayUs());
    }
    return longest;
  }

 private:
  PlayedShow played_;
  int port_ = 0;
  std::map<std::uint64_t, std::int64_t> came_;
  std::unique_ptr<Relay> relay_;
  std::unique_ptr<PageCallers> callers_;
};

std::int64_t MicrosecondsOf(Moment moment) {
  return std::chrono::duration_cast<std::chrono::microseconds>(moment.time_since_epoch()).count();
}

struct Touches {
  // From the touch to both screens; what of that is neither the way nor the wait; and to the host's page.
  std::vector<double> Screens, Above, Host;
};

// Three phones by turns, and a host whose page is on the loopback.
bool Touch(PagesShow& show, const Network& network, const std::vector<int>& phones) {
  const int host = show.Callers().Join({.Hello = "hello host " + show.TheShow().pages->HostPin, .From = "127.0.0.9"});
  if (!show.Hears(host, "\"t\":\"host\"")) return false;
  Touches times;
  for (int i = 0; i < network.Touches; ++i) {
    const int player = 1 + i % static_cast<int>(phones.size());
    const int phone = phones[static_cast<std::size_t>(player - 1)];
    PlayedShow::Stand(210 + i * 7 % 31);
    const std::int64_t wait = show.LongestWaitUs(player);
    show.Played().Sees.Begin();
    show.Callers().PressAt(phone, SteadyUs() + 1000);
    if (!show.Played().AwaitPainted() || show.Holder() != player) return false;
    const std::int64_t painted = MicrosecondsOf(show.Played().Sees.PaintedAt),
                       pressed = show.Callers().PressedUs(phone);
    times.Screens.push_back(MsOf(painted - pressed));
    times.Above.push_back(MsOf(painted - show.CameUs(player) - wait));
    // The verdict is the console's, whose change the host is to see.
    const std::int64_t judged = SteadyUs();
    show.Played().JudgeIncorrect();
    if (!PlayedShow::WaitFor([&] { return show.Callers().HeardUs(host) > judged; })) return false;
    times.Host.push_back(MsOf(show.Callers().HeardUs(host) - judged));
  }
  const std::string name = std::string("Pages/") + network.Name;
  PrintPercentiles(name + "/screens", times.Screens);
  PrintPercentiles(name + "/above_way_and_wait", times.Above);
  PrintPercentiles(name + "/host", times.Host);
  return true;
}

// What came of the pairs so far.
struct Pairs {
  int Count = 0, RightByTime = 0, RightByArrival = 0, AsSaid = 0;
  std::vector<double> Errors, Margins;

  void Print() const {
    PrintMedian("Pages/pairs", {static_cast<double>(Count)});
    PrintMedian("Pages/pairs_right_by_time", {RightByTime * 100.0 / Count});
    PrintMedian("Pages/pairs_right_by_arrival", {RightByArrival * 100.0 / Count});
    PrintPercentiles("Pages/offset_error", Errors);
    PrintPercentiles("Pages/margin_error", Margins);
    PrintMedian("Pages/margins_as_said", {AsSaid * 100.0 / Count});
  }
};

// One of two phones presses so much before the other.
bool PressPair(PagesShow& show, const std::array<int, kPlayers + 1>& phones, int first, std::int64_t apartUs,
               Pairs& pairs) {
  const int second = 3 - first;
  const auto phone = [&phones](int player) { return phones[static_cast<std::size_t>(player)]; };
  const std::int64_t at = SteadyUs() + 20000;
  show.Callers().PressAt(phone(first), at);
  show.Callers().PressAt(phone(second), at + apartUs);
  PlayedShow::Stand(300);
  if (show.Holder() == 0 || show.CameUs(first) < at || show.CameUs(second) < at) return false;
  ++pairs.Count;
  pairs.RightByTime += show.Holder() == first ? 1 : 0;
  pairs.RightByArrival += show.CameUs(first) < show.CameUs(second) ? 1 : 0;
  for (const int player : {first, second}) {
    const std::int64_t now = SteadyUs(),
                       told = show.ClockOf(player).ToOurs(std::llround(show.Callers().ClockOf(phone(player), now)));
    pairs.Errors.push_back(std::abs(MsOf(told - now)));
  }
  const double truly = MsOf(show.Callers().PressedUs(phone(second)) - show.Callers().PressedUs(phone(first)));
  const auto [margin, said] = show.MarginOf(first, second);
  pairs.Margins.push_back(std::abs(margin - truly));
  pairs.AsSaid += pairs.Margins.back() <= said ? 1 : 0;
  show.Played().JudgeIncorrect();
  return true;
}

double ProcessorSeconds() {
  timespec taken{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &taken);
  return static_cast<double>(taken.tv_sec) + static_cast<double>(taken.tv_nsec) / 1e9;
}

// What the program takes of one core while nobody does anything, its callers' own work left out.
double IdlePercent(PagesShow& show) {
  constexpr int kMs = 20000;
  PlayedShow::Stand(5000);
  const double before = ProcessorSeconds() - show.Callers().ProcessorSeconds();
  PlayedShow::Stand(kMs);
  return (ProcessorSeconds() - show.Callers().ProcessorSeconds() - before) * 100 / (kMs / 1000.0);
}

// Wireless presses, from their report to both screens.
bool PressRemotes(PagesShow& show, const std::string& name) {
  constexpr int kPresses = 300;
  std::vector<double> screens;
  for (int i = 0; i < kPresses; ++i) {
    PlayedShow::Stand(i * 7 % 31);
    if (!show.Played().PressRemote(1 + i % PlayedShow::kRemotes)) return false;
    screens.push_back(Milliseconds(show.Played().Port.HandedAt, show.Played().Port.WrittenAt));
    show.Played().JudgeIncorrect();
  }
  PrintPercentiles(name, screens);
  return true;
}

}  // namespace

bool MeasureTouches() {
  for (const Network& network : {Network{"loopback", 0, 0, 300}, Network{"5ms", 2, 8, 200}, kPoorNetwork}) {
    PagesShow show(network);
    std::vector<int> phones;
    for (int player = 1; player <= kPlayers; ++player) phones.push_back(show.Seat(player));
    if (std::count(phones.begin(), phones.end(), -1) > 0) return false;
    // A few exchanges.
    PlayedShow::Stand(3000);
    if (!Touch(show, network, phones)) return false;
  }
  return true;
}

bool MeasurePairs() {
  constexpr int kPairs = 1000, kPrintedAfter = 250;
  PagesShow show(kPoorNetwork);
  const std::array phones{-1, show.Seat(1), show.Seat(2), -1};
  if (phones[1] < 0 || phones[2] < 0) return false;
  // Some 300 exchanges.
  PlayedShow::Stand(62000);
  std::mt19937 chance(11);
  std::uniform_int_distribution<std::int64_t> apartUs(10000, 40000);
  Pairs pairs;
  while (pairs.Count < kPairs) {
    if (!PressPair(show, phones, 1 + static_cast<int>(chance() % 2), apartUs(chance), pairs)) return false;
    if (pairs.Count % kPrintedAfter == 0) pairs.Print();
  }
  return true;
}

bool MeasureIdlePages() {
  constexpr int kPages = 60, kOfAddress = 8;
  PagesShow show;
  PrintMedian("Pages/idle_without_pages", {IdlePercent(show)});
  for (int player = 1; player <= kPlayers; ++player) {
    if (show.Seat(player) < 0) return false;
  }
  const PageState& pages = *show.TheShow().pages;
  int last = -1;
  for (int i = kPlayers; i < kPages; ++i) {
    const std::string hello = i == 3  ? "hello host " + pages.HostPin
                              : i < 6 ? "hello scores"
                                      : "hello phone " + pages.Pin;
    last = show.Callers().Join({.Hello = hello, .From = "127.0.0." + std::to_string(1 + i / kOfAddress)});
    if (last < 0) return false;
  }
  if (!PlayedShow::WaitFor([&] { return pages.Pages.size() == kPages; }) || !show.Hears(last, "\"seats\""))
    return false;
  PrintMedian("Pages/idle_with_sixty", {IdlePercent(show)});
  return pages.Pages.size() == kPages;
}

bool MeasureAttack() {
  PagesShow show;
  // One who sits, whose clock runs wild, and who presses all the time; the operator has locked that seat.
  const int liar = show.Seat(3);
  if (liar < 0 || !PressRemotes(show, "Pages/wired_alone")) return false;
  show.TheShow().frmPages.btnLockSeat[2].Click();
  Attack attack(show.Port());
  QTimer lies;
  int lie = 0;
  QObject::connect(&lies, &QTimer::timeout, &lies, [&] {
    show.Callers().Say(liar, ++lie % 2 == 0 ? "press 1" : "pong " + std::to_string(lie) + " 999999999 1");
  });
  // Below the limit, so that nothing but what it says is wrong.
  lies.start(50);
  PlayedShow::Stand(1000);
  const bool pressed = PressRemotes(show, "Pages/wired_beside_attack");
  PrintMedian("Pages/tries_of_the_attack", {static_cast<double>(attack.Tries())});
  return pressed && attack.Tries() > 1000 && show.Callers().Connected(liar);
}

}  // namespace pawnfield
