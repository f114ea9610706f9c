#include "controllers/phones.h"

#include <algorithm>

#include "controllers/outward_news.h"
#include "controllers/pages_switch.h"
#include "controllers/phone_presses.h"
#include "controllers/show_control.h"
#include "forms/main_form.h"
#include "forms/pages_form.h"
#include "outward/page_views.h"
#include "show/page_state.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::int64_t kMinuteUs = 60000000;
constexpr std::size_t kWrongInMinute = 5;
constexpr std::size_t kTokenBytes = 16;
constexpr std::size_t kMostGuessers = 256;

void Send(Show& show, std::uint64_t page, const std::string& text) { show.platform.webPages.Send(page, text); }

void Refuse(Show& show, std::uint64_t page, const char* why) {
  Send(show, page, JsonObject().Text("t", "no").Text("why", why).Done());
  show.platform.webPages.Drop(page);
}

// True for an address that has guessed too often, for a minute from its last guess on.
bool IsRefused(const Show& show, const std::string& address, std::int64_t nowUs) {
  const auto found = show.pages->Guesses.find(address);
  return found != show.pages->Guesses.end() && nowUs < found->second.RefusedUntilUs;
}

// Whoever has many addresses ends nobody's refusal by them: what is given up is what would end first.
void KeepRoomForGuessers(std::map<std::string, WrongGuesses>& guesses, std::int64_t nowUs) {
  std::erase_if(guesses, [nowUs](const auto& one) {
    return nowUs >= one.second.RefusedUntilUs &&
           (one.second.AtUs.empty() || nowUs - one.second.AtUs.back() > kMinuteUs);
  });
  if (guesses.size() < kMostGuessers) return;
  guesses.erase(std::min_element(guesses.begin(), guesses.end(), [](const auto& one, const auto& other) {
    return one.second.RefusedUntilUs < other.second.RefusedUntilUs;
  }));
}

void CountWrongGuess(Show& show, const std::string& address, std::int64_t nowUs) {
  auto& guesses = show.pages->Guesses;
  if (guesses.count(address) == 0) KeepRoomForGuessers(guesses, nowUs);
  WrongGuesses& wrong = guesses[address];
  std::erase_if(wrong.AtUs, [&](std::int64_t at) { return nowUs - at > kMinuteUs; });
  wrong.AtUs.push_back(nowUs);
  if (wrong.AtUs.size() < kWrongInMinute) return;
  wrong.AtUs.clear();
  wrong.RefusedUntilUs = nowUs + kMinuteUs;
  const std::string text = "Wrong PINs from " + address + ": refused for a minute.";
  show.frmMain.lblStatusBar.Caption = text;
  show.frmPages.lblPagesStatus.Caption = text;
}

bool KnowsSecret(const PageState& pages, const PageMessage& hello) {
  switch (hello.Kind) {
    case PageKind::Phone:
      return hello.Secret == pages.Pin;
    case PageKind::Host:
      return hello.Secret == pages.HostPin;
    case PageKind::Events:
      return pages.Place.Control && hello.Secret == pages.ControlToken;
    default:
      return hello.Kind == PageKind::Scores;
  }
}

void StandUp(Show& show, std::uint64_t page) {
  for (int player = 1; player <= kPlayers; ++player) {
    PhoneSeat& seat = show.pages->Seats[player];
    if (seat.Page == page) seat.Page = 0;
  }
}

// A phone that comes back pushes out what is left of its own earlier connection.
void SitDown(Show& show, std::uint64_t page, int player) {
  PhoneSeat& seat = show.pages->Seats[player];
  if (seat.Page != 0 && seat.Page != page) {
    const std::uint64_t earlier = seat.Page;
    show.pages->Pages.erase(earlier);
    Refuse(show, earlier, "elsewhere");
  }
  seat.Page = page;
  show.pages->Pages[page].Seat = player;
}

void FindSeatAgain(Show& show, std::uint64_t page, const std::string& token) {
  if (token.empty()) return;
  for (int player = 1; player <= kPlayers; ++player) {
    if (show.pages->Seats[player].Token == token) SitDown(show, page, player);
  }
}

bool IsSeatedPhone(const ConnectedPage& page) { return page.Kind == PageKind::Phone && page.Seat != 0; }

void Ping(Show& show, std::uint64_t number, ConnectedPage& page) {
  constexpr std::size_t kMostOnTheirWay = 16;
  PageState& pages = *show.pages;
  page.LastPingUs = show.platform.webPages.NowUs();
  if (page.Pings.size() >= kMostOnTheirWay) page.Pings.erase(page.Pings.begin());
  page.Pings[++pages.LastPing] = page.LastPingUs;
  const std::int64_t roundTripMs = (page.Clock.LastRoundTripUs() + 999) / 1000;
  Send(show, number, JsonObject().Text("t", "ping").Number("n", pages.LastPing).Number("rtt", roundTripMs).Done());
}

// How often the seated phones are asked. A game is in progress from its first square on; presses come from its first
// question on.
void SetPace(Show& show) {
  constexpr int kOften = 200, kSeldom = 1000;
  const bool often = std::any_of(show.pages->Pages.begin(), show.pages->Pages.end(), [&](const auto& one) {
    return IsSeatedPhone(one.second) && (show.state.GameStarted || !one.second.Clock.Known());
  });
  Timer& timer = show.frmPages.tmrPing;
  const int pace = often ? kOften : kSeldom;
  if (timer.Interval != pace) timer.Interval = pace;
  if (!timer.Enabled) timer.Enabled = true;
}

void TakeHello(Show& show, const PageEvent& event, const PageMessage& hello) {
  ConnectedPage& page = show.pages->Pages[event.Page];
  if (page.Kind != PageKind::None) return;
  // A refused address isn't told whether this guess was right.
  if (hello.Kind != PageKind::Scores && IsRefused(show, event.Address, event.ArrivedUs)) {
    Refuse(show, event.Page, "wait");
    return;
  }
  if (!KnowsSecret(*show.pages, hello)) {
    CountWrongGuess(show, event.Address, event.ArrivedUs);
    Refuse(show, event.Page, "pin");
    return;
  }
  page.Kind = hello.Kind;
  if (hello.Kind == PageKind::Phone) FindSeatAgain(show, event.Page, hello.SeatToken);
  // It alone: when a whole hall comes at once, those who sit would answer so often as to be cut off.
  Ping(show, event.Page, page);
  SetPace(show);
}

void TakeSeat(Show& show, std::uint64_t page, int player) {
  const ConnectedPage& who = show.pages->Pages[page];
  if (who.Kind != PageKind::Phone || who.Seat != 0 || !Plays(show.state, player)) return;
  PhoneSeat& seat = show.pages->Seats[player];
  if (!seat.Token.empty() || seat.Locked) return;
  seat.Token = show.platform.webPages.Secret(kTokenBytes);
  SitDown(show, page, player);
  Send(show, page, JsonObject().Text("t", "seat").Number("n", player).Text("token", seat.Token).Done());
  SavePages(show);
}

void EmptySeat(Show& show, int player) {
  PhoneSeat& seat = show.pages->Seats[player];
  seat.Token.clear();
  const auto page = show.pages->Pages.find(seat.Page);
  seat.Page = 0;
  if (page != show.pages->Pages.end()) {
    page->second.Seat = 0;
    Send(show, page->first, JsonObject().Text("t", "unseated").Done());
  }
  SavePages(show);
}

void TakePong(Show& show, const PageEvent& event, const PageMessage& pong) {
  ConnectedPage& page = show.pages->Pages[event.Page];
  const auto ping = page.Pings.find(pong.Number);
  if (ping == page.Pings.end()) return;
  page.Clock.Add({ping->second, pong.FirstUs, pong.SecondUs, event.ArrivedUs});
  page.Pings.erase(ping);
}

void TakeMessage(Show& show, const PageEvent& event) {
  const auto page = show.pages->Pages.find(event.Page);
  if (page == show.pages->Pages.end()) return;
  const PageMessage message = DecodePageMessage(event.Text);
  // Who doesn't begin with a hello is none of ours.
  if (page->second.Kind == PageKind::None && message.Word != PageWord::Hello) {
    show.platform.webPages.Drop(event.Page);
    return;
  }
  switch (message.Word) {
    case PageWord::Hello:
      TakeHello(show, event, message);
      break;
    case PageWord::Seat:
      TakeSeat(show, event.Page, message.Number);
      break;
    case PageWord::Leave:
      if (page->second.Seat != 0) EmptySeat(show, page->second.Seat);
      break;
    case PageWord::Pong:
      TakePong(show, event, message);
      break;
    case PageWord::Press:
      TakePhonePress(show, event.Page, message.FirstUs, event.ArrivedUs);
      break;
    case PageWord::Nothing:
      break;
  }
}

void TakeControl(Show& show, const PageEvent& event) {
  ControlAnswer answer{401, "The token is wrong."};
  if (IsRefused(show, event.Address, event.ArrivedUs)) {
    answer = {429, "Too many wrong tokens; refused for a minute."};
  } else if (!show.pages->Place.Control || event.Token != show.pages->ControlToken) {
    CountWrongGuess(show, event.Address, event.ArrivedUs);
  } else {
    answer = RunControl(show, event.Text);
  }
  if (event.Page != 0) show.platform.webPages.Answer(event.Page, answer.Status, answer.Text);
}

// What the pages are to show, each view worked out once however many pages show it.
class Views {
 public:
  explicit Views(const Show& show) : show_(show) {}
  const std::string& Of(const ConnectedPage& page) {
    std::string& view = views_[{page.Kind, page.Seat}];
    if (view.empty()) view = Make(page);
    return view;
  }

 private:
  std::string Make(const ConnectedPage& page) const {
    switch (page.Kind) {
      case PageKind::Phone:
        return page.Seat == 0 ? SeatsView(show_) : PhoneView(show_, page.Seat);
      case PageKind::Host:
        return HostView(show_);
      case PageKind::Scores:
        return ScoresView(show_);
      default:
        return {};
    }
  }
  const Show& show_;
  std::map<std::pair<PageKind, int>, std::string> views_;
};

}  // namespace

void PagesChanged(Show& show, const PageEvent& event) {
  if (!show.pages->On) return;
  switch (event.Kind) {
    case PageEventKind::Opened:
      show.pages->Pages[event.Page].Address = event.Address;
      break;
    case PageEventKind::Message:
      TakeMessage(show, event);
      break;
    case PageEventKind::Closed:
      StandUp(show, event.Page);
      show.pages->Pages.erase(event.Page);
      break;
    case PageEventKind::Control:
      TakeControl(show, event);
      break;
  }
}

void TellPages(Show& show) {
  if (!show.pages->On) return;
  NoteTheQuestion(show);
  Views views(show);
  for (auto& [number, page] : show.pages->Pages) {
    const std::string& view = views.Of(page);
    if (view.empty() || view == page.Told) continue;
    Send(show, number, view);
    page.Told = view;
  }
  TellControlDevices(show);
  ShowWhoIsConnected(show);
}

void tmrPing_Timer(Show& show) {
  constexpr std::int64_t kOthersUs = 5000000;
  const std::int64_t now = show.platform.webPages.NowUs();
  for (auto& [number, page] : show.pages->Pages) {
    if (page.Kind == PageKind::None) continue;
    // Only the clock of a phone that has a seat is needed; the others are asked whether they are still there.
    if (IsSeatedPhone(page) || page.LastPingUs == 0 || now - page.LastPingUs >= kOthersUs) Ping(show, number, page);
  }
  SetPace(show);
}

void btnEmptySeat_Click(Show& show, int index) { EmptySeat(show, index + 1); }

void btnLockSeat_Click(Show& show, int index) {
  PhoneSeat& seat = show.pages->Seats[index + 1];
  seat.Locked = !seat.Locked;
}

}  // namespace pawnfield
