// The server of the pages against everybody on the network: what it serves, to whom, and what it refuses.
#include "desktop/pages/page_server.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sched.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <thread>

#include "desktop/pages/osc_text.h"
#include "platform/ports.h"

namespace pawnfield {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

// A socket of somebody, by default on this machine, from an address of his own below 127.0.0.
class Caller {
 public:
  explicit Caller(int port, const std::string& from = "127.0.0.1", int type = SOCK_STREAM,
                  const std::string& to = "127.0.0.1")
      : socket_(socket(to.find(':') == std::string::npos ? AF_INET : AF_INET6, type, 0)) {
    connected_ = With(from, 0, bind) && With(to, port, connect);
  }
  ~Caller() { close(socket_); }
  Caller(const Caller&) = delete;
  Caller& operator=(const Caller&) = delete;

  bool Connected() const { return connected_; }
  // False once the other end takes no more.
  bool Write(const std::string& bytes) { return send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL) >= 0; }
  // What comes within that time, or until the other end closes; Closed tells which.
  std::string Read(int ms = 1000, std::size_t enough = 1) {
    std::string bytes;
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
    while (!closed_ && bytes.size() < enough && std::chrono::steady_clock::now() < end) {
      pollfd ready{socket_, POLLIN, 0};
      if (poll(&ready, 1, 20) <= 0) continue;
      char part[4096];
      const ssize_t size = recv(socket_, part, sizeof part, 0);
      if (size <= 0) closed_ = true;
      if (size > 0) bytes.append(part, static_cast<std::size_t>(size));
    }
    return bytes;
  }
  std::string ReadAll(int ms = 2000) { return Read(ms, static_cast<std::size_t>(-1)); }
  bool Closed(int ms = 1000) {
    ReadAll(ms);
    return closed_;
  }

 private:
  using Use = int (*)(int, const sockaddr*, socklen_t);
  bool With(const std::string& host, int port, Use use) const {
    sockaddr_in old{};
    old.sin_family = AF_INET;
    old.sin_port = htons(static_cast<std::uint16_t>(port));
    if (inet_pton(AF_INET, host.c_str(), &old.sin_addr) == 1) {
      return use(socket_, reinterpret_cast<const sockaddr*>(&old), sizeof old) == 0;
    }
    sockaddr_in6 newer{};
    newer.sin6_family = AF_INET6;
    newer.sin6_port = old.sin_port;
    return inet_pton(AF_INET6, host.c_str(), &newer.sin6_addr) == 1 &&
           use(socket_, reinterpret_cast<const sockaddr*>(&newer), sizeof newer) == 0;
  }
  int socket_;
  bool connected_ = false, closed_ = false;
};

// A frame of a WebSocket as a page sends it; 1 is text, 8 closes.
std::string Frame(const std::string& text, int opcode = 1) {
  std::string frame(1, static_cast<char>(0x80 | opcode));
  if (text.size() < 126) {
    frame += static_cast<char>(0x80U | text.size());
  } else {
    frame += static_cast<char>(0x80 | 126);
    frame += static_cast<char>(text.size() >> 8U);
    frame += static_cast<char>(text.size() & 0xFFU);
  }
  return frame + std::string(4, '\0') + text;
}

class Server : public testing::Test {
 protected:
  Server()
      : server_({{"/", {"text/html", "<title>phone</title>"}}, {"/host", {"text/html", "host"}}},
                [this](PageEvent event) { Take(std::move(event)); }) {
    port_ = server_.Open({.Address = "127.0.0.1"});
  }

  void Take(PageEvent event) {
    if (faulty_) throw std::runtime_error("a fault of ours");
    const std::scoped_lock lock(mutex_);
    events_.push_back(std::move(event));
    came_.notify_all();
  }
  // The next event of that kind, or none within the time.
  std::optional<PageEvent> Next(PageEventKind kind, int ms = 2000) {
    std::unique_lock lock(mutex_);
    std::optional<PageEvent> found;
    came_.wait_for(lock, std::chrono::milliseconds(ms), [&] {
      for (auto event = events_.begin(); event != events_.end(); ++event) {
        if (event->Kind != kind) continue;
        found = *event;
        events_.erase(event);
        return true;
      }
      return false;
    });
    return found;
  }

  std::string Host() const { return "127.0.0.1:" + std::to_string(port_); }
  std::string Get(const std::string& target, const std::string& more = "") const {
    return "GET " + target + " HTTP/1.1\r\nHost: " + Host() + "\r\n" + more + "\r\n";
  }
  std::string Upgrade(const std::string& more = "", const std::string& target = "/link") const {
    return Get(target,
               "Upgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
               "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n" +
                   more);
  }
  std::string Asked(const std::string& request) const {
    Caller caller(port_);
    caller.Write(request);
    return caller.ReadAll();
  }
  std::unique_ptr<Caller> Linked(const std::string& from = "127.0.0.1") const {
    auto caller = std::make_unique<Caller>(port_, from);
    caller->Write(Upgrade("Origin: http://" + Host() + "\r\n"));
    EXPECT_THAT(caller->Read(), StartsWith("HTTP/1.1 101"));
    return caller;
  }
  void Reopen(PagesPlace place) { port_ = server_.Open(place); }

  std::mutex mutex_;
  std::condition_variable came_;
  std::vector<PageEvent> events_;
  int port_ = 0;
  // What is handed an event fails.
  std::atomic<bool> faulty_ = false;
  PageServer server_;
};

TEST_F(Server, ServesItsTableAndNothingElse) {
  const std::string page = Asked(Get("/"));
  EXPECT_THAT(page, StartsWith("HTTP/1.1 200"));
  EXPECT_THAT(page, HasSubstr("Content-Security-Policy: default-src 'self'; connect-src 'self' ws://" + Host()));
  EXPECT_THAT(page, HasSubstr("X-Content-Type-Options: nosniff"));
  EXPECT_THAT(page, Not(HasSubstr("Set-Cookie")));
  EXPECT_THAT(page, HasSubstr("<title>phone</title>"));
  for (const char* target : {"/etc/passwd", "/../../etc/passwd", "/%2e%2e/etc/passwd", "//etc/passwd", "/host/",
                             "/host?x", "http://127.0.0.1/host", "*", "/link", "/control/skip", "/phone.html"}) {
    EXPECT_THAT(Asked(Get(target)), StartsWith("HTTP/1.1 404")) << target;
  }
  EXPECT_THAT(Asked("POST / HTTP/1.1\r\nHost: " + Host() + "\r\nContent-Length: 0\r\n\r\n"),
              StartsWith("HTTP/1.1 405"));
  EXPECT_THAT(Asked("no request at all\r\n\r\n"), Not(HasSubstr("200")));
}

TEST_F(Server, IsMeantByItsOwnAddressAlone) {
  const std::string port = std::to_string(port_);
  for (const std::string& host : {std::string("evil.example"), "evil.example:" + port, std::string("127.0.0.1"),
                                  "localhost:" + port, std::string()}) {
    EXPECT_THAT(Asked("GET / HTTP/1.1\r\nHost: " + host + "\r\n\r\n"), StartsWith("HTTP/1.1 403")) << host;
  }
  EXPECT_THAT(Asked("GET / HTTP/1.0\r\n\r\n"), StartsWith("HTTP/1.1 403"));
  for (const std::string& origin : {std::string("http://evil.example"), std::string("null"), "https://" + Host(),
                                    std::string("http://127.0.0.1:1")}) {
    EXPECT_THAT(Asked(Upgrade("Origin: " + origin + "\r\n")), StartsWith("HTTP/1.1 403")) << origin;
  }
  EXPECT_FALSE(Next(PageEventKind::Opened, 50));
  EXPECT_THAT(Asked(Upgrade("Origin: http://" + Host() + "\r\n", "/other")), StartsWith("HTTP/1.1 404"));
}

TEST_F(Server, PeersOutsideTheLocalNetworkAreNone) {
  const std::pair<const char*, bool> peers[] = {{"127.0.0.1", true},
                                                {"127.8.8.8", true},
                                                {"10.1.2.3", true},
                                                {"172.16.0.1", true},
                                                {"172.31.255.1", true},
                                                {"192.168.0.9", true},
                                                {"169.254.3.4", true},
                                                {"::1", true},
                                                {"fe80::1", true},
                                                {"fd00::5", true},
                                                {"::ffff:10.0.0.1", true},
                                                {"172.32.0.1", false},
                                                {"192.169.0.1", false},
                                                {"8.8.8.8", false},
                                                {"100.64.0.1", false},
                                                {"2001:db8::1", false},
                                                {"::ffff:8.8.8.8", false},
                                                {"0.0.0.0", false},
                                                {"host", false}};
  for (const auto& [address, local] : peers) EXPECT_EQ(IsLocalAddress(address), local) << address;
  EXPECT_THROW(server_.Open({.Address = "0.0.0.0"}), RuntimeError);
  EXPECT_THROW(server_.Open({.Address = "8.8.8.8"}), RuntimeError);
}

TEST_F(Server, CarriesMessagesBothWaysWithTheTimeOfTheirComing) {
  const std::unique_ptr<Caller> caller = Linked();
  const std::optional<PageEvent> opened = Next(PageEventKind::Opened);
  ASSERT_TRUE(opened);
  EXPECT_EQ(opened->Address, "127.0.0.1");
  const std::int64_t before = PageServer::NowUs();
  caller->Write(Frame("hello scores"));
  const std::optional<PageEvent> said = Next(PageEventKind::Message);
  ASSERT_TRUE(said);
  EXPECT_EQ(said->Text, "hello scores");
  EXPECT_EQ(said->Page, opened->Page);
  EXPECT_GE(said->ArrivedUs, before);
  EXPECT_LE(said->ArrivedUs, PageServer::NowUs());
  server_.Send(said->Page, R"({"t":"x"})");
  EXPECT_EQ(caller->Read(1000, 11), std::string("\x81\x09") + R"({"t":"x"})");
  server_.Send(4711, "to nobody");
  server_.Send(said->Page, "last words");
  server_.Drop(said->Page);
  EXPECT_THAT(caller->ReadAll(), HasSubstr("last words"));
  EXPECT_EQ(Next(PageEventKind::Closed)->Page, opened->Page);
}

TEST_F(Server, WhoSaysTooMuchIsCutOff) {
  const struct {
    const char* what;
    std::string said;
  } floods[] = {{"a message of 1,025 bytes", Frame(std::string(1025, 'a'))},
                {"a message that says it has 2^60 bytes", std::string("\x81\xFF\x10\0\0\0\0\0\0\0\0\0\0\0", 14)},
                {"bytes that are no text", Frame("\x01\x02", 2)},
                {"no frame at all", std::string(300, '\xFF')}};
  for (const auto& [what, said] : floods) {
    const std::unique_ptr<Caller> caller = Linked();
    caller->Write(said);
    EXPECT_TRUE(caller->Closed()) << what;
    EXPECT_TRUE(Next(PageEventKind::Closed)) << what;
  }
  const std::unique_ptr<Caller> fast = Linked();
  for (int i = 0; i < 200; ++i) fast->Write(Frame("press " + std::to_string(i)));
  EXPECT_TRUE(fast->Closed()) << "200 messages within a second";
  int heard = 0;
  while (Next(PageEventKind::Message, 100)) ++heard;
  EXPECT_LE(heard, kMessagesPerSecond);
  EXPECT_GE(heard, kMessagesPerSecond / 2);
}

TEST_F(Server, HeadersAndBodiesHaveTheirLimit) {
  Caller header(port_);
  header.Write("GET / HTTP/1.1\r\nHost: " + Host() + "\r\nX: ");
  for (int i = 0; i < 200 && header.Write(std::string(100000, 'a')); ++i) {
  }
  EXPECT_TRUE(header.Closed());
  Caller body(port_);
  body.Write("POST /control/skip HTTP/1.1\r\nHost: " + Host() + "\r\nContent-Length: 200000000\r\n\r\n");
  for (int i = 0; i < 200 && body.Write(std::string(100000, 'a')); ++i) {
  }
  EXPECT_TRUE(body.Closed());
  EXPECT_THAT(Asked(Get("/")), StartsWith("HTTP/1.1 200"));
}

TEST_F(Server, TheSilentAndTheSlowAreNotWaitedFor) {
  Caller silent(port_);
  Caller slow(port_);
  const std::unique_ptr<Caller> mute = Linked();
  slow.Write("GET / HT");
  const auto begun = std::chrono::steady_clock::now();
  EXPECT_TRUE(mute->Closed(7000)) << "a link that says nothing";
  EXPECT_TRUE(silent.Closed(2000));
  slow.Write("TP");
  EXPECT_TRUE(slow.Closed(2000));
  const auto took = std::chrono::steady_clock::now() - begun;
  EXPECT_GT(took, std::chrono::seconds(kFirstWordSeconds - 1));
  EXPECT_LT(took, std::chrono::seconds(kFirstWordSeconds + 3));
}

TEST_F(Server, WhoDoesNotListenIsNotWaitedFor) {
  const std::unique_ptr<Caller> deaf = Linked();
  const std::uint64_t page = Next(PageEventKind::Opened)->Page;
  deaf->Write(Frame("hello scores"));
  for (int i = 0; i < 20000; ++i) server_.Send(page, std::string(1000, 'a'));
  EXPECT_TRUE(Next(PageEventKind::Closed));
}

TEST_F(Server, ConnectionsAreCountedByAddressAndInAll) {
  std::vector<std::unique_ptr<Caller>> kept;
  for (std::size_t i = 0; i < kMostConnectionsOfAddress; ++i) kept.push_back(Linked("127.0.0.2"));
  Caller ninth(port_, "127.0.0.2");
  ninth.Write(Get("/"));
  EXPECT_TRUE(ninth.Closed());
  for (int host = 3; host <= 9; ++host) {
    for (std::size_t i = 0; i < kMostConnectionsOfAddress; ++i)
      kept.push_back(Linked("127.0.0." + std::to_string(host)));
  }
  EXPECT_EQ(kept.size(), kMostConnections);
  Caller another(port_, "127.0.0.10");
  another.Write(Get("/"));
  EXPECT_EQ(another.ReadAll(), "");
  // Who leaves makes room.
  kept.front()->Write(Frame("", 8));
  EXPECT_TRUE(kept.front()->Closed());
  EXPECT_TRUE(Next(PageEventKind::Closed));
  EXPECT_THAT(Asked(Get("/")), StartsWith("HTTP/1.1 200"));
}

TEST_F(Server, AThousandConnectionsTakeNothingFromThoseThatAreThere) {
  const std::unique_ptr<Caller> page = Linked("127.0.0.200");
  std::vector<std::unique_ptr<Caller>> crowd;
  for (int i = 0; i < 1000; ++i)
    crowd.push_back(std::make_unique<Caller>(port_, "127.0.0." + std::to_string(2 + i % 100)));
  page->Write(Frame("hello scores"));
  EXPECT_TRUE(Next(PageEventKind::Message));
}

TEST_F(Server, ControlIsClosedUntilItIsOpenedAndAskedForWithItsToken) {
  const std::string head = " HTTP/1.1\r\nHost: " + Host() + "\r\nContent-Length: 0\r\nX-Pawnfield-Token: secret\r\n";
  EXPECT_THAT(Asked("POST /control/skip" + head + "\r\n"), StartsWith("HTTP/1.1 404"));
  EXPECT_FALSE(Next(PageEventKind::Control, 50));
  Reopen({.Address = "127.0.0.1", .Control = true});
  const std::string open = " HTTP/1.1\r\nHost: " + Host() + "\r\nContent-Length: 0\r\nX-Pawnfield-Token: secret\r\n";
  EXPECT_THAT(Asked(Get("/control/skip")), StartsWith("HTTP/1.1 405"));
  EXPECT_THAT(Asked("POST /control/skip" + open + "Origin: http://evil.example\r\n\r\n"), StartsWith("HTTP/1.1 403"));
  EXPECT_FALSE(Next(PageEventKind::Control, 50));
  Caller box(port_);
  box.Write("POST /control/claim?square=C2" + open + "\r\n");
  const std::optional<PageEvent> asked = Next(PageEventKind::Control);
  ASSERT_TRUE(asked);
  EXPECT_EQ(asked->Text, "claim?square=C2");
  EXPECT_EQ(asked->Token, "secret");
  server_.Answer(asked->Page, 409, "No square may be taken now.");
  const std::string answer = box.ReadAll();
  EXPECT_THAT(answer, StartsWith("HTTP/1.1 409"));
  EXPECT_THAT(answer, HasSubstr("No square may be taken now."));
}

TEST_F(Server, AControlThatNobodyAnswersIsNotKept) {
  Reopen({.Address = "127.0.0.1", .Control = true});
  Caller box(port_);
  box.Write("POST /control/skip HTTP/1.1\r\nHost: " + Host() + "\r\nContent-Length: 0\r\n\r\n");
  const std::optional<PageEvent> asked = Next(PageEventKind::Control);
  ASSERT_TRUE(asked);
  EXPECT_THAT(box.ReadAll((kFirstWordSeconds + 2) * 1000), StartsWith("HTTP/1.1 503"));
  server_.Answer(asked->Page, 200, "Too late.");
  EXPECT_THAT(Asked(Get("/")), StartsWith("HTTP/1.1 200"));
}

TEST_F(Server, AFaultInItsThreadEndsNothing) {
  const std::unique_ptr<Caller> before = Linked();
  ASSERT_TRUE(Next(PageEventKind::Opened));
  faulty_ = true;
  const std::unique_ptr<Caller> amid = Linked();
  before->Write(Frame("hello scores"));
  EXPECT_FALSE(Next(PageEventKind::Message, 100));
  faulty_ = false;
  EXPECT_THAT(Asked(Get("/")), StartsWith("HTTP/1.1 200"));
  const std::unique_ptr<Caller> after = Linked();
  ASSERT_TRUE(Next(PageEventKind::Opened));
  after->Write(Frame("hello scores"));
  EXPECT_TRUE(Next(PageEventKind::Message));
}

TEST_F(Server, OscIsTakenFromListedAddressesAlone) {
  constexpr int kOsc = 18474;
  Reopen({.Address = "127.0.0.1",
          .Control = true,
          .ControlPort = kOsc,
          .ControlAddresses = {"127.0.0.5", "127.0.0.6:9999", "8.8.8.8", "nonsense", "127.0.0.7:0", "fd00::9",
                               "[fd00::9]:1", "[", "[]:", "::", "]"}});
  // The packet of a lighting desk, as the format writes it: address, types, token, square.
  const std::string claim("/pawnfield/claim\0\0\0\0,ss\0secret\0\0C2\0\0", 36);
  Caller stranger(kOsc, "127.0.0.7", SOCK_DGRAM), desk(kOsc, "127.0.0.5", SOCK_DGRAM);
  stranger.Write(claim);
  EXPECT_FALSE(Next(PageEventKind::Control, 100));
  for (const std::string& broken : {std::string("/pawnfield/claim"), claim.substr(0, 30), std::string("#bundle\0", 8),
                                    std::string("/other/claim\0\0\0\0,s\0\0x\0\0\0", 24), std::string(1000, '/')}) {
    desk.Write(broken);
    EXPECT_FALSE(Next(PageEventKind::Control, 50)) << broken;
  }
  desk.Write(claim);
  const std::optional<PageEvent> asked = Next(PageEventKind::Control);
  ASSERT_TRUE(asked);
  EXPECT_EQ(asked->Text, "claim C2");
  EXPECT_EQ(asked->Token, "secret");
  server_.Answer(asked->Page, 200, "Done.");
  EXPECT_EQ(desk.Read(), std::string("/pawnfield/answer\0\0\0,is\0\0\0\0\xC8"
                                     "Done.\0\0\0",
                                     36));
  EXPECT_EQ(WriteOsc({"/pawnfield/score", {2, 250}}),
            std::string("/pawnfield/score\0\0\0\0,ii\0\0\0\0\x02\0\0\0\xFA", 32));
}

TEST_F(Server, AnswersOnTheNewerKindOfAddress) {
  Reopen({.Address = "::1"});
  const std::string host = "[::1]:" + std::to_string(port_);
  Caller page(port_, "::1", SOCK_STREAM, "::1"), other(port_, "::1", SOCK_STREAM, "::1");
  page.Write("GET / HTTP/1.1\r\nHost: " + host + "\r\n\r\n");
  EXPECT_THAT(page.ReadAll(), StartsWith("HTTP/1.1 200"));
  other.Write("GET / HTTP/1.1\r\nHost: evil.example\r\n\r\n");
  EXPECT_THAT(other.ReadAll(), StartsWith("HTTP/1.1 403"));
  EXPECT_FALSE(Caller(port_).Connected()) << "the other kind, which wasn't chosen";
}

// Two machines of a room, each a network of its own, with a cable between them: the show's at 10.77.0.1, and a guest
// who has an address of the room and one of the internet.
class TwoMachines {
 public:
  TwoMachines() {
    Stands = Ip("netns add pawnfield-show") && Ip("netns add pawnfield-guest") &&
             Ip("-n pawnfield-show link add cable0 type veth peer name cable1 netns pawnfield-guest") &&
             Ip("-n pawnfield-show addr add 10.77.0.1/24 dev cable0") &&
             Ip("-n pawnfield-show addr add 10.77.0.3/24 dev cable0") &&
             Ip("-n pawnfield-show addr add fd77::1/64 dev cable0 nodad") &&
             Ip("-n pawnfield-guest addr add 10.77.0.2/24 dev cable1") &&
             Ip("-n pawnfield-guest addr add 203.0.113.9/24 dev cable1") &&
             Ip("-n pawnfield-guest addr add fd77::2/64 dev cable1 nodad") &&
             Ip("-n pawnfield-show link set cable0 up") && Ip("-n pawnfield-guest link set cable1 up") &&
             Ip("-n pawnfield-show route add 203.0.113.0/24 dev cable0");
  }
  ~TwoMachines() {
    Ip("netns del pawnfield-show");
    Ip("netns del pawnfield-guest");
  }
  TwoMachines(const TwoMachines&) = delete;
  TwoMachines& operator=(const TwoMachines&) = delete;

  // What is made meanwhile, sockets and threads, belongs to that machine.
  static void On(const std::string& machine, const std::function<void()>& work) {
    std::thread([&] {
      const int network = open(("/run/netns/pawnfield-" + machine).c_str(), O_RDONLY);
      EXPECT_EQ(setns(network, CLONE_NEWNET), 0);
      close(network);
      work();
    }).join();
  }

  bool Stands = false;

 private:
  static bool Ip(const std::string& words) { return std::system(("ip " + words + " 2>/dev/null").c_str()) == 0; }
};

TEST_F(Server, IsReachedOverTheNetworkByTheRoomAndByNobodyElse) {
  const TwoMachines machines;
  if (!machines.Stands) GTEST_SKIP() << "networks of their own need root and a kernel that has them";
  const auto answer = [this](const std::string& address, const std::string& from) {
    const bool newer = address.find(':') != std::string::npos;
    std::string heard;
    TwoMachines::On("guest", [&] {
      Caller guest(port_, from, SOCK_STREAM, address);
      guest.Write("GET / HTTP/1.1\r\nHost: " + (newer ? "[" + address + "]" : address) + ":" + std::to_string(port_) +
                  "\r\n\r\n");
      heard = guest.Connected() ? guest.ReadAll().substr(0, 12) : "unreached";
    });
    return heard;
  };
  TwoMachines::On("show", [this] { Reopen({.Address = "10.77.0.1"}); });
  EXPECT_EQ(answer("10.77.0.1", "10.77.0.2"), "HTTP/1.1 200");
  EXPECT_EQ(answer("10.77.0.1", "203.0.113.9"), "") << "an address of the internet";
  EXPECT_EQ(answer("10.77.0.3", "10.77.0.2"), "unreached") << "an interface that wasn't chosen";
  TwoMachines::On("guest", [this] {
    Caller phone(port_, "10.77.0.2", SOCK_STREAM, "10.77.0.1");
    const std::string host = "10.77.0.1:" + std::to_string(port_);
    phone.Write("GET /link HTTP/1.1\r\nHost: " + host + "\r\nOrigin: http://" + host +
                "\r\nUpgrade: websocket\r\nConnection: Upgrade\r\nSec-WebSocket-Version: 13\r\n"
                "Sec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n");
    EXPECT_THAT(phone.Read(), StartsWith("HTTP/1.1 101"));
    phone.Write(Frame("hello scores"));
    const std::optional<PageEvent> said = Next(PageEventKind::Message);
    ASSERT_TRUE(said);
    EXPECT_EQ(said->Address, "10.77.0.2");
  });
  TwoMachines::On("show", [this] { Reopen({.Address = "fd77::1"}); });
  EXPECT_EQ(answer("fd77::1", "fd77::2"), "HTTP/1.1 200");
}

TEST_F(Server, NothingListensOnceItIsClosed) {
  const std::unique_ptr<Caller> page = Linked();
  server_.Close();
  EXPECT_TRUE(page->Closed());
  EXPECT_FALSE(Caller(port_).Connected());
  server_.Send(1, "nobody");
  server_.Answer(1, 200, "nobody");
  // The port is free at once for the next start, with the crowd's sockets still in the system.
  const int before = port_;
  Reopen({.Address = "127.0.0.1", .Port = before});
  EXPECT_EQ(port_, before);
  PageServer other({}, [](const PageEvent&) {});
  EXPECT_THROW(other.Open({.Address = "127.0.0.1", .Port = before}), RuntimeError);
}

TEST_F(Server, OpensAndClosesUnderLoad) {
  std::atomic<bool> ended = false;
  std::thread crowd([&] {
    while (!ended) {
      Caller caller(port_);
      caller.Write(Upgrade());
      caller.Write(Frame("hello scores"));
      caller.Read(5);
    }
  });
  const int port = port_;
  for (int i = 0; i < 30; ++i) {
    for (std::uint64_t page = 1; page < 100; ++page) server_.Send(page, "x");
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
    server_.Close();
    server_.Open({.Address = "127.0.0.1", .Port = port});
  }
  ended = true;
  crowd.join();
}

}  // namespace
}  // namespace pawnfield

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  return RUN_ALL_TESTS();
}
