// The local network in memory: pages that a test opens, each with a way of its own and a clock that stands differently.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/ports.h"
#include "sim/virtual_clock.h"

namespace pawnfield {

// A page as the network has it. Times are milliseconds, at least 1 each way.
struct SimPage {
  std::string Address = "192.168.1.20";
  int WayThere = 1, WayBack = 1;
  // What the page's clock shows at the machine's 0.
  std::int64_t Stands = 5000000;
  bool AnswersPings = true;
  bool Connected = true;
  // How often it was asked for its clock.
  int Pings = 0;
  // What it was told, pings left out.
  std::vector<std::string> Heard{};
  const std::string& Last() const;
};

class SimNetwork : public Pages {
 public:
  explicit SimNetwork(VirtualClock& clock);

  std::vector<std::string> Addresses() const override { return Interfaces; }
  int Open(const PagesPlace& place) override;
  void Close() override;
  void Send(std::uint64_t page, const std::string& text) override;
  void Drop(std::uint64_t page) override;
  void Answer(std::uint64_t request, int status, const std::string& text) override;
  void SendOsc(const OscMessage& message) override;
  std::int64_t NowUs() const override { return clock_.NowMs() * 1000; }
  std::string Secret(std::size_t bytes) override;

  // A page connects and says these words at once; its number.
  std::uint64_t Connect(const std::string& words, const SimPage& page = {});
  // It says something, which comes after its way.
  void Say(std::uint64_t page, const std::string& words);
  // Its button goes down now; or, by what it claims, so many milliseconds earlier.
  void Press(std::uint64_t page, int earlier = 0);
  // Its network is gone.
  void Lose(std::uint64_t page);
  // A control device asks, and the status and words it gets.
  std::string Ask(const std::string& request, const std::string& token, const std::string& address = "192.168.1.9");

  std::vector<std::string> Interfaces{"127.0.0.1", "192.168.1.5"};
  bool Listens = false;
  PagesPlace Place;
  // Ports that another program has.
  std::set<int> Taken;
  std::map<std::uint64_t, SimPage> Pages;
  // "/pawnfield/score 2 250", in order.
  std::vector<std::string> Osc;

 private:
  struct Coming {
    std::int64_t At = 0;
    PageEvent Event;
  };
  void Arrive(std::int64_t inMs, PageEvent event);
  void Deliver();
  void Arm();

  VirtualClock& clock_;
  Form holder_{"SimNetwork"};
  Timer timer_{holder_, "Timer"};
  std::vector<Coming> coming_;
  std::uint64_t last_ = 0;
  unsigned secrets_ = 0;
  std::string answer_;
};

}  // namespace pawnfield
