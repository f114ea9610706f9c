#include "page_callers.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <pthread.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <deque>

namespace pawnfield {

namespace {

using Bytes = std::string;

sockaddr_in AddressOf(const std::string& host, int port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(static_cast<std::uint16_t>(port));
  inet_pton(AF_INET, host.c_str(), &address.sin_addr);
  return address;
}

void SendAtOnce(int socket) {
  const int on = 1;
  setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
}

bool SendAll(int socket, const Bytes& bytes) {
  return send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL) == static_cast<ssize_t>(bytes.size());
}

// Waits for the sockets, no longer than to that time of the clock.
void WaitFor(std::vector<pollfd>& sockets, std::int64_t untilUs) {
  const std::int64_t left = std::clamp<std::int64_t>(untilUs - SteadyUs(), 0, 50000);
  const timespec wait{left / 1000000, (left % 1000000) * 1000};
  ppoll(sockets.data(), sockets.size(), &wait, nullptr);
}

// A text of a page, as a WebSocket carries it.
Bytes Frame(const std::string& text, int kind = 1) {
  Bytes frame(1, static_cast<char>(0x80 | kind));
  if (text.size() < 126) {
    frame += static_cast<char>(0x80U | text.size());
  } else {
    frame += static_cast<char>(0x80 | 126);
    frame += static_cast<char>(text.size() >> 8U);
    frame += static_cast<char>(text.size() & 0xFFU);
  }
  return frame + Bytes(4, '\0') + text;
}

std::string Upgrade(int server) {
  const std::string host = "127.0.0.1:" + std::to_string(server);
  return "GET /link HTTP/1.1\r\nHost: " + host + "\r\nOrigin: http://" + host +
         "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
         "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n";
}

std::string Milliseconds(double us) {
  std::array<char, 40> text{};
  std::snprintf(text.data(), text.size(), "%.3f", us / 1000);
  return text.data();
}

}  // namespace

std::int64_t SteadyUs() {
  using std::chrono::microseconds;
  return std::chrono::duration_cast<microseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

int CallFrom(const std::string& from, int port, bool waits) {
  const int caller = socket(AF_INET, SOCK_STREAM | (waits ? 0 : SOCK_NONBLOCK), 0);
  if (caller < 0) return -1;
  const sockaddr_in own = AddressOf(from, 0), to = AddressOf("127.0.0.1", port);
  const bool bound = bind(caller, reinterpret_cast<const sockaddr*>(&own), sizeof own) == 0;
  if (bound && (connect(caller, reinterpret_cast<const sockaddr*>(&to), sizeof to) == 0 || !waits)) {
    SendAtOnce(caller);
    return caller;
  }
  close(caller);
  return -1;
}

// One direction of a connection.
struct Relay::Way {
  int From = -1, To = -1;
  std::deque<std::pair<std::int64_t, Bytes>> Waiting{};
  bool Ended = false;

  void Take(std::int64_t delayUs) {
    std::array<char, 4096> part{};
    const ssize_t size = recv(From, part.data(), part.size(), MSG_DONTWAIT);
    if (size <= 0) Ended = true;
    if (size <= 0) return;
    const std::int64_t due = SteadyUs() + delayUs;
    // Nothing overtakes what went before it.
    Waiting.emplace_back(Waiting.empty() ? due : std::max(due, Waiting.back().first),
                         Bytes(part.data(), static_cast<std::size_t>(size)));
  }
  void PassOn(std::int64_t nowUs) {
    while (!Waiting.empty() && Waiting.front().first <= nowUs) {
      if (!SendAll(To, Waiting.front().second)) Ended = true;
      Waiting.pop_front();
    }
  }
};

Relay::Relay(int port, double leastMs, double mostMs) : server_(port), leastMs_(leastMs), mostMs_(mostMs) {
  listener_ = socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in here = AddressOf("127.0.0.1", 0);
  bind(listener_, reinterpret_cast<const sockaddr*>(&here), sizeof here);
  listen(listener_, 16);
  socklen_t size = sizeof here;
  getsockname(listener_, reinterpret_cast<sockaddr*>(&here), &size);
  port_ = ntohs(here.sin_port);
  thread_ = std::thread([this] { Run(); });
}

Relay::~Relay() {
  ended_ = true;
  thread_.join();
  close(listener_);
}

void Relay::Run() {
  std::mt19937 chance(7);
  std::uniform_real_distribution<double> delayMs(leastMs_, mostMs_);
  std::vector<Way> ways;
  while (!ended_) {
    std::int64_t next = SteadyUs() + 50000;
    std::vector<pollfd> sockets{{listener_, POLLIN, 0}};
    for (const Way& way : ways) {
      sockets.push_back({way.Ended ? -1 : way.From, POLLIN, 0});
      if (!way.Waiting.empty()) next = std::min(next, way.Waiting.front().first);
    }
    WaitFor(sockets, next);
    const std::int64_t now = SteadyUs();
    for (std::size_t i = 0; i < ways.size(); ++i) {
      if (sockets[i + 1].revents != 0) ways[i].Take(static_cast<std::int64_t>(delayMs(chance) * 1000));
      ways[i].PassOn(now);
      if (ways[i].Ended && ways[i].Waiting.empty()) shutdown(ways[i].To, SHUT_WR);
    }
    if (sockets[0].revents == 0) continue;
    const int caller = accept(listener_, nullptr, nullptr), server = CallFrom("127.0.0.1", server_);
    SendAtOnce(caller);
    ways.push_back({caller, server});
    ways.push_back({server, caller});
  }
  for (const Way& way : ways) close(way.From);
}

struct PageCallers::Caller {
  Page Is;
  int Socket = -1;
  Bytes Coming{};
  std::string Heard{};
  std::int64_t HeardUs = 0, PressedUs = 0;
  bool Linked = false, Closed = false;
};

PageCallers::PageCallers(int serverPort) : server_(serverPort) {
  if (pipe2(wake_, O_NONBLOCK) != 0) std::abort();
  thread_ = std::thread([this] { Run(); });
}

PageCallers::~PageCallers() {
  ended_ = true;
  if (write(wake_[1], "x", 1) < 0) std::abort();
  thread_.join();
  for (const auto& caller : callers_) close(caller->Socket);
  for (const int end : wake_) close(end);
}

int PageCallers::Join(const Page& page) {
  auto caller = std::make_unique<Caller>();
  caller->Is = page;
  caller->Socket = CallFrom(page.From, page.Port == 0 ? server_ : page.Port);
  if (caller->Socket < 0 || !SendAll(caller->Socket, Upgrade(server_))) return -1;
  const std::scoped_lock lock(mutex_);
  callers_.push_back(std::move(caller));
  if (write(wake_[1], "x", 1) < 0) return -1;
  return static_cast<int>(callers_.size()) - 1;
}

void PageCallers::Say(int page, const std::string& words) {
  const std::scoped_lock lock(mutex_);
  SendAll(callers_[static_cast<std::size_t>(page)]->Socket, Frame(words));
}

void PageCallers::PressAt(int page, std::int64_t us) {
  const std::scoped_lock lock(mutex_);
  presses_.emplace(us, page);
  if (write(wake_[1], "x", 1) < 0) std::abort();
}

std::int64_t PageCallers::PressedUs(int page) {
  const std::scoped_lock lock(mutex_);
  return callers_[static_cast<std::size_t>(page)]->PressedUs;
}

std::string PageCallers::Heard(int page) {
  const std::scoped_lock lock(mutex_);
  return callers_[static_cast<std::size_t>(page)]->Heard;
}

std::int64_t PageCallers::HeardUs(int page) {
  const std::scoped_lock lock(mutex_);
  return callers_[static_cast<std::size_t>(page)]->HeardUs;
}

bool PageCallers::Connected(int page) {
  const std::scoped_lock lock(mutex_);
  return page >= 0 && callers_[static_cast<std::size_t>(page)]->Linked &&
         !callers_[static_cast<std::size_t>(page)]->Closed;
}

double PageCallers::ClockOf(int page, std::int64_t us) const {
  const Page& is = callers_[static_cast<std::size_t>(page)]->Is;
  return static_cast<double>(us) * (1 + is.Faster) + is.AheadUs;
}

double PageCallers::ProcessorSeconds() {
  clockid_t clock{};
  timespec taken{};
  pthread_getcpuclockid(thread_.native_handle(), &clock);
  clock_gettime(clock, &taken);
  return static_cast<double>(taken.tv_sec) + static_cast<double>(taken.tv_nsec) / 1e9;
}

void PageCallers::Run() {
  while (!ended_) {
    std::vector<pollfd> sockets{{wake_[0], POLLIN, 0}};
    std::int64_t next = SteadyUs() + 50000;
    {
      const std::scoped_lock lock(mutex_);
      for (const auto& caller : callers_) sockets.push_back({caller->Closed ? -1 : caller->Socket, POLLIN, 0});
      if (!presses_.empty()) next = presses_.begin()->first;
    }
    WaitFor(sockets, next);
    const std::scoped_lock lock(mutex_);
    MakeDuePresses();
    std::array<char, 64> ignored{};
    while (read(wake_[0], ignored.data(), ignored.size()) > 0) {
    }
    for (std::size_t i = 1; i < sockets.size(); ++i) {
      if (sockets[i].revents != 0) TakeBytes(*callers_[i - 1]);
    }
  }
}

void PageCallers::MakeDuePresses() {
  while (!presses_.empty() && presses_.begin()->first <= SteadyUs()) {
    const int page = presses_.begin()->second;
    presses_.erase(presses_.begin());
    Caller& caller = *callers_[static_cast<std::size_t>(page)];
    caller.PressedUs = SteadyUs();
    SendAll(caller.Socket, Frame("press " + Milliseconds(ClockOf(page, caller.PressedUs))));
  }
}

void PageCallers::TakeBytes(Caller& caller) {
  std::array<char, 8192> part{};
  const ssize_t size = recv(caller.Socket, part.data(), part.size(), MSG_DONTWAIT);
  const std::int64_t came = SteadyUs();
  if (size <= 0) {
    caller.Closed = true;
    return;
  }
  Bytes& bytes = caller.Coming;
  bytes.append(part.data(), static_cast<std::size_t>(size));
  if (!caller.Linked) {
    const std::size_t end = bytes.find("\r\n\r\n");
    if (end == Bytes::npos) return;
    bytes.erase(0, end + 4);
    caller.Linked = true;
    SendAll(caller.Socket, Frame(caller.Is.Hello));
  }
  while (bytes.size() >= 2) {
    const auto at = [&bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const bool wide = at(1) == 126;
    if (wide && bytes.size() < 4) return;
    const std::size_t head = wide ? 4 : 2, length = wide ? at(2) * 256U + at(3) : at(1);
    if (bytes.size() < head + length) return;
    const std::string text = bytes.substr(head, length);
    const int kind = at(0) & 0xF;
    bytes.erase(0, head + length);
    TakeFrame(caller, kind, text, came);
  }
}

void PageCallers::TakeFrame(Caller& caller, int kind, const std::string& text, std::int64_t cameUs) {
  constexpr const char* kPing = "{\"t\":\"ping\",\"n\":";
  if (kind == 9) {
    SendAll(caller.Socket, Frame(text, 10));
  } else if (kind == 1 && text.starts_with(kPing)) {
    const auto& is = caller.Is;
    const auto clock = [&is](std::int64_t us) {
      return Milliseconds(static_cast<double>(us) * (1 + is.Faster) + is.AheadUs);
    };
    const int number = std::atoi(text.c_str() + std::char_traits<char>::length(kPing));
    SendAll(caller.Socket, Frame("pong " + std::to_string(number) + " " + clock(cameUs) + " " + clock(SteadyUs())));
  } else if (kind == 1) {
    caller.Heard = text;
    caller.HeardUs = cameUs;
  }
}

Attack::Attack(int serverPort) : server_(serverPort) {
  for (void (Attack::*harm)() : {&Attack::Flood, &Attack::Stall, &Attack::Crowd}) {
    threads_.emplace_back([this, harm] {
      // They are other machines in truth; of this one's processor they take what nobody wants.
      setpriority(PRIO_PROCESS, 0, 19);
      while (!ended_) (this->*harm)();
    });
  }
}

Attack::~Attack() {
  ended_ = true;
  for (std::thread& thread : threads_) thread.join();
}

// As many messages as a page may say, and then as many as go in, until it is cut off.
void Attack::Flood() {
  const int page = CallFrom("127.0.0.66", server_);
  if (page < 0) return;
  SendAll(page, Upgrade(server_));
  std::this_thread::sleep_for(std::chrono::milliseconds(20));
  for (int i = 0; i < 400 && !ended_; ++i) {
    ++tries_;
    if (!SendAll(page, Frame(i == 0 ? "hello scores" : "press " + std::to_string(i)))) break;
    // Of the first second's messages most come one by one, as those of a page that keeps below the limit.
    if (i < 40) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  close(page);
}

// Headers and frames that never end.
void Attack::Stall() {
  std::vector<int> stalling;
  for (int i = 0; i < 8; ++i) stalling.push_back(CallFrom("127.0.0.67", server_));
  for (int i = 0; i < 100 && !ended_; ++i) {
    for (const int one : stalling) {
      ++tries_;
      if (one >= 0) SendAll(one, i == 0 ? "GET / HTTP/1.1\r\nX: " : "a");
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  for (const int one : stalling) close(one);
}

// A thousand connections, which are left open as long as they are let.
void Attack::Crowd() {
  std::vector<int> crowd;
  for (int i = 0; i < 1000 && !ended_; ++i) {
    ++tries_;
    crowd.push_back(CallFrom("127.0.0." + std::to_string(70 + i % 100), server_, false));
    if (i % 10 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  std::this_thread::sleep_for(std::chrono::milliseconds(200));
  for (const int one : crowd) {
    if (one >= 0) close(one);
  }
}

}  // namespace pawnfield
