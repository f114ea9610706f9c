// The server behind the port to the local network: HTTP, WebSocket and OSC on a thread of its own, with a limit to
// everything that a stranger may send. It knows no toolkit and no show: what comes in goes out as a PageEvent.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/pages.h"

namespace pawnfield {

// What one who connects may have.
inline constexpr std::size_t kMostConnections = 64;
inline constexpr std::size_t kMostConnectionsOfAddress = 8;
inline constexpr std::size_t kHeaderBytes = 8 * 1024;
inline constexpr std::size_t kBodyBytes = 1024;
inline constexpr std::size_t kMessageBytes = 1024;
inline constexpr int kFirstWordSeconds = 5;
inline constexpr int kMessagesPerSecond = 50;

// A file of the fixed table that is served.
struct PageFile {
  std::string Type;
  std::string Bytes;
};

// Loopback, private and link-local addresses; no other peer is answered.
bool IsLocalAddress(const std::string& address);

class PageServer {
 public:
  // By their paths, as "/host". Events are delivered on the server's thread.
  PageServer(std::map<std::string, PageFile> files, std::function<void(PageEvent)> deliver);
  // Closes.
  ~PageServer();
  PageServer(const PageServer&) = delete;
  PageServer& operator=(const PageServer&) = delete;

  // As Pages has them; each may be called from one thread beside the server's.
  int Open(const PagesPlace& place);
  void Close();
  void Send(std::uint64_t page, const std::string& text);
  void Drop(std::uint64_t page);
  void Answer(std::uint64_t request, int status, const std::string& text);
  void SendOsc(const OscMessage& message);

  // Microseconds of the steady clock, by which events are stamped.
  static std::int64_t NowUs();

 private:
  class Running;

  std::map<std::string, PageFile> files_;
  std::function<void(PageEvent)> deliver_;
  std::unique_ptr<Running> running_;
  // Goes on over a Close, so that no page's number comes twice.
  std::uint64_t numbers_ = 0;
};

}  // namespace pawnfield
