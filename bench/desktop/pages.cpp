// What phones and pages cost and how fair they are, with the real server and the real windows, over the loopback and
// through a relay with the ways of a quiet and of a poor network.

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

namespace pawnfield {

namespace {

constexpr int kPairs = 1000;

struct Network {
  const char* Name;
  double LeastMs, MostMs;
  int Touches;
};

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

double MsOf(std::int64_t us) { return static_cast<double>(us) / 1000; }

std::int64_t MicrosecondsOf(Moment moment) {
  return std::chrono::duration_cast<std::chrono::microseconds>(moment.time_since_epoch()).count();
}

struct Touches {
  // From the touch to both screens; what of that is neither the way nor the wait; and to the host's page.
  std::vector<double> Screens, Above, Host;
};

// Three phones by turns, and a host whose page is on the loopback.
bool MeasureTouches(PagesShow& show, const Network& network, const std::vector<int>& phones) {
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

// Pairs of presses of two phones, 10 to 40 ms apart, once their clocks are known by 300 exchanges.
bool MeasurePairs(PagesShow& show, const std::vector<int>& phones) {
  std::mt19937 chance(11);
  std::uniform_int_distribution<std::int64_t> apart(10000, 40000);
  int rightByTime = 0, rightByArrival = 0;
  std::vector<double> errors;
  for (int pair = 0; pair < kPairs; ++pair) {
    const int first = 1 + static_cast<int>(chance() % 2), second = 3 - first;
    const std::int64_t at = SteadyUs() + 20000;
    show.Callers().PressAt(phones[static_cast<std::size_t>(first - 1)], at);
    show.Callers().PressAt(phones[static_cast<std::size_t>(second - 1)], at + apart(chance));
    PlayedShow::Stand(300);
    if (show.Holder() == 0 || show.CameUs(first) < at || show.CameUs(second) < at) return false;
    rightByTime += show.Holder() == first ? 1 : 0;
    rightByArrival += show.CameUs(first) < show.CameUs(second) ? 1 : 0;
    for (const int player : {first, second}) {
      const int phone = phones[static_cast<std::size_t>(player - 1)];
      const std::int64_t now = SteadyUs();
      const double error =
          static_cast<double>(show.ClockOf(player).ToOurs(std::llround(show.Callers().ClockOf(phone, now))) - now);
      errors.push_back(std::abs(error) / 1000);
    }
    show.Played().JudgeIncorrect();
  }
  PrintMedian("Pages/pairs_right_by_time", {rightByTime / (kPairs / 100.0)});
  PrintMedian("Pages/pairs_right_by_arrival", {rightByArrival / (kPairs / 100.0)});
  PrintPercentiles("Pages/offset_error", errors);
  return true;
}

bool MeasureNetwork(const Network& network, bool pairs) {
  PagesShow show(network);
  std::vector<int> phones;
  for (int player = 1; player <= (pairs ? 2 : 3); ++player) phones.push_back(show.Seat(player));
  if (std::count(phones.begin(), phones.end(), -1) > 0) return false;
  constexpr int kExchangesMs = 62000, kFewMs = 3000;
  PlayedShow::Stand(pairs ? kExchangesMs : kFewMs);
  return MeasureTouches(show, network, phones) && (!pairs || MeasurePairs(show, phones));
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

bool MeasureIdle() {
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

// Wireless presses, from their report to both screens.
bool PressRemotes(PagesShow& show, const std::string& name) {
  constexpr int kPresses = 300;
  std::vector<double> screens;
  for (int i = 0; i < kPresses; ++i) {
    PlayedShow::Stand(i * 7 % 31);
    if (!show.Played().PressRemote(1 + i % PlayedShow::kRemotes)) return false;
    screens.push_back(Milliseconds(show.Played().Port.ReadAt, show.Played().Port.WrittenAt));
    show.Played().JudgeIncorrect();
  }
  PrintPercentiles(name, screens);
  return true;
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

}  // namespace

bool MeasurePages() {
  bool all = true;
  for (const Network& network :
       {Network{"loopback", 0, 0, 300}, Network{"5ms", 2, 8, 200}, Network{"40ms", 10, 70, 200}}) {
    all = MeasureNetwork(network, network.MostMs > 50) && all;
  }
  all = MeasureIdle() && all;
  return MeasureAttack() && all;
}

}  // namespace pawnfield
