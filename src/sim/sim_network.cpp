#include "sim/sim_network.h"

#include <algorithm>
#include <cstdlib>

#include "sim/virtual_clock.h"

namespace pawnfield {

namespace {

// The number behind "n" in a ping, 0 for another text.
int PingNumber(const std::string& text) {
  constexpr const char* kPing = "{\"t\":\"ping\",\"n\":";
  return text.starts_with(kPing) ? std::atoi(text.c_str() + std::string(kPing).size()) : 0;
}

}  // namespace

const std::string& SimPage::Last() const {
  static const std::string kNothing;
  return Heard.empty() ? kNothing : Heard.back();
}

SimNetwork::SimNetwork(VirtualClock& clock) : clock_(clock) {
  timer_.OnTimer = [this] { Deliver(); };
  clock_.Attach(holder_);
}

int SimNetwork::Open(const PagesPlace& place) {
  constexpr int kAnyPort = 40000;
  if (Taken.count(place.Port) != 0) throw RuntimeError(kErrorDeviceIo, "Address already in use");
  Listens = true;
  Place = place;
  if (Place.Port == 0) Place.Port = kAnyPort;
  return Place.Port;
}

void SimNetwork::Close() {
  Listens = false;
  coming_.clear();
  timer_.Enabled = false;
  for (auto& [number, page] : Pages) page.Connected = false;
}

void SimNetwork::Send(std::uint64_t number, const std::string& text) {
  const auto page = Pages.find(number);
  if (page == Pages.end() || !page->second.Connected) return;
  const int ping = PingNumber(text);
  if (ping == 0) {
    page->second.Heard.push_back(text);
    return;
  }
  ++page->second.Pings;
  if (!page->second.AnswersPings) return;
  const std::string at = std::to_string(clock_.NowMs() + page->second.WayThere + page->second.Stands);
  Arrive(page->second.WayThere + page->second.WayBack,
         {PageEventKind::Message, number, page->second.Address, "pong " + std::to_string(ping) + " " + at + " " + at});
}

void SimNetwork::Drop(std::uint64_t page) { Lose(page); }

void SimNetwork::Answer(std::uint64_t, int status, const std::string& text) {
  answer_ = std::to_string(status) + " " + text;
}

void SimNetwork::SendOsc(const OscMessage& message) {
  std::string text = message.Address;
  for (const int number : message.Numbers) text += " " + std::to_string(number);
  Osc.push_back(text);
}

std::string SimNetwork::Secret(std::size_t bytes) {
  std::string secret;
  for (std::size_t i = 0; i < bytes; ++i) {
    constexpr const char* kDigits = "0123456789abcdef";
    secrets_ = secrets_ * 1664525U + 1013904223U;
    secret += kDigits[secrets_ >> 28U];
    secret += kDigits[(secrets_ >> 24U) & 0xFU];
  }
  return secret;
}

std::uint64_t SimNetwork::Connect(const std::string& words, const SimPage& page) {
  if (!Listens) return 0;
  Pages[++last_] = page;
  Arrive(0, {PageEventKind::Opened, last_, page.Address});
  Say(last_, words);
  return last_;
}

void SimNetwork::Say(std::uint64_t number, const std::string& words) {
  const SimPage& page = Pages.at(number);
  if (page.Connected) Arrive(page.WayBack, {PageEventKind::Message, number, page.Address, words});
}

void SimNetwork::Press(std::uint64_t number, int earlier) {
  Say(number, "press " + std::to_string(clock_.NowMs() - earlier + Pages.at(number).Stands));
}

void SimNetwork::Lose(std::uint64_t number) {
  const auto page = Pages.find(number);
  if (page == Pages.end() || !page->second.Connected) return;
  page->second.Connected = false;
  std::erase_if(coming_, [&](const Coming& coming) { return coming.Event.Page == number; });
  Arrive(1, {PageEventKind::Closed, number, page->second.Address});
}

std::string SimNetwork::Ask(const std::string& request, const std::string& token, const std::string& address) {
  answer_ = "no answer";
  PageEvent event{PageEventKind::Control, ++last_, address, request, token, NowUs()};
  if (Listens && OnEvent) OnEvent(event);
  return answer_;
}

void SimNetwork::Arrive(std::int64_t inMs, PageEvent event) {
  coming_.push_back({clock_.NowMs() + inMs, std::move(event)});
  Arm();
}

void SimNetwork::Arm() {
  const auto sooner = [](const Coming& one, const Coming& other) { return one.At < other.At; };
  const auto next = std::min_element(coming_.begin(), coming_.end(), sooner);
  timer_.Enabled = false;
  if (next == coming_.end()) return;
  timer_.Interval = static_cast<int>(std::max<std::int64_t>(1, next->At - clock_.NowMs()));
  timer_.Enabled = true;
}

void SimNetwork::Deliver() {
  const std::int64_t now = clock_.NowMs();
  std::vector<Coming> due;
  for (const Coming& coming : coming_) {
    if (coming.At <= now) due.push_back(coming);
  }
  std::erase_if(coming_, [&](const Coming& coming) { return coming.At <= now; });
  for (Coming& coming : due) {
    coming.Event.ArrivedUs = NowUs();
    if (OnEvent) OnEvent(coming.Event);
  }
  Arm();
}

}  // namespace pawnfield
