// The port to the local network: pages that phones, a host's tablet, a streaming program and control devices open in
// this program. What a page says and hears is text; who may say what is decided above.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace pawnfield {

enum class PageEventKind {
  Opened,   // A page is connected.
  Message,  // It says Text.
  Closed,   // It is gone.
  Control,  // A control device asks for Text, "claim?square=C2", with its token.
};

struct PageEvent {
  PageEventKind Kind = PageEventKind::Opened;
  // The page's number, which is never used again; of Control the number to answer by, 0 where none is awaited.
  std::uint64_t Page = 0;
  // The peer's address, without its port.
  std::string Address{};
  std::string Text{};
  std::string Token{};
  // When it came from the network, by NowUs.
  std::int64_t ArrivedUs = 0;
};

struct PagesPlace {
  // One of Addresses.
  std::string Address;
  // 0 for any that is free.
  int Port = 0;
  // Whether control devices are answered; those that speak OSC from the listed addresses alone, to ControlPort.
  bool Control = false;
  int ControlPort = 0;
  std::vector<std::string> ControlAddresses{};
};

// A number or a state that goes out by OSC, under an address as "/pawnfield/score".
struct OscMessage {
  std::string Address;
  std::vector<int> Numbers;
};

class Pages {
 public:
  virtual ~Pages() = default;
  // Of this machine's interfaces: loopback, private and link-local ones.
  virtual std::vector<std::string> Addresses() const = 0;
  // Listens there and returns the port. A RuntimeError when that can't be.
  virtual int Open(const PagesPlace& place) = 0;
  // Nothing listens and nobody is connected any more; no event follows.
  virtual void Close() = 0;
  virtual void Send(std::uint64_t page, const std::string& text) = 0;
  // Sends what waits and closes.
  virtual void Drop(std::uint64_t page) = 0;
  virtual void Answer(std::uint64_t request, int status, const std::string& text) = 0;
  // To each of the listed addresses, where control is open.
  virtual void SendOsc(const OscMessage& message) = 0;
  // Microseconds of a clock that never goes back.
  virtual std::int64_t NowUs() const = 0;
  // So many random bytes, two digits each, that nobody can guess.
  virtual std::string Secret(std::size_t bytes) = 0;
  // Called between events of the program, in the order of their coming.
  std::function<void(const PageEvent& event)> OnEvent;
};

}  // namespace pawnfield
