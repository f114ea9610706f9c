// Who calls the server of the pages in a benchmark: pages on a thread of their own, a relay that delays what passes
// through it as a poor network does, and a crowd that means harm.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace pawnfield {

// Of the steady clock, in microseconds, as the server stamps what comes.
std::int64_t SteadyUs();

// A socket to a port of this machine, from an address of its own below 127.0.0; -1 where none is given.
int CallFrom(const std::string& from, int port, bool waits = true);

// Takes connections for the server and passes each part of theirs on after a time of its own, in order.
class Relay {
 public:
  Relay(int port, double leastMs, double mostMs);
  ~Relay();
  Relay(const Relay&) = delete;
  Relay& operator=(const Relay&) = delete;
  int Port() const { return port_; }

 private:
  struct Way;
  void Run();

  const int server_;
  const double leastMs_, mostMs_;
  int listener_ = -1, port_ = 0;
  std::atomic<bool> ended_ = false;
  std::thread thread_;
};

// Pages of one address or several, whose clocks stand and go as they like.
class PageCallers {
 public:
  // What one says when it is linked, and its clock: ahead of ours by so much, and by so much faster.
  struct Page {
    std::string Hello, From = "127.0.0.1";
    int Port = 0;
    double AheadUs = 0, Faster = 0;
  };

  // `serverPort` is whom the pages mean, whatever relay they go through.
  explicit PageCallers(int serverPort);
  ~PageCallers();
  PageCallers(const PageCallers&) = delete;
  PageCallers& operator=(const PageCallers&) = delete;

  // Its place among the pages; -1 for one that isn't let in.
  int Join(const Page& page);
  void Say(int page, const std::string& words);
  // Its button goes down at that time of our clock, not before now.
  void PressAt(int page, std::int64_t us);
  // When its button went down last, and the last message but pings, with the time of its coming.
  std::int64_t PressedUs(int page);
  std::string Heard(int page);
  std::int64_t HeardUs(int page);
  bool Connected(int page);
  // What its clock shows when ours shows that.
  double ClockOf(int page, std::int64_t us) const;
  // What this thread has taken of the processor, in seconds.
  double ProcessorSeconds();

 private:
  struct Caller;
  void Run();
  void TakeBytes(Caller& caller);
  void TakeFrame(Caller& caller, int kind, const std::string& text, std::int64_t cameUs);
  void MakeDuePresses();

  const int server_;
  int wake_[2] = {-1, -1};
  std::atomic<bool> ended_ = false;
  mutable std::mutex mutex_;
  std::vector<std::unique_ptr<Caller>> callers_;
  std::multimap<std::int64_t, int> presses_;
  std::thread thread_;
};

// Floods, stalls and a thousand connections at once, from threads that run when nobody else wants to.
class Attack {
 public:
  explicit Attack(int serverPort);
  ~Attack();
  Attack(const Attack&) = delete;
  Attack& operator=(const Attack&) = delete;
  // How often somebody has tried something.
  long long Tries() const { return tries_; }

 private:
  void Flood();
  void Stall();
  void Crowd();

  const int server_;
  std::atomic<bool> ended_ = false;
  std::atomic<long long> tries_ = 0;
  std::vector<std::thread> threads_;
};

}  // namespace pawnfield
