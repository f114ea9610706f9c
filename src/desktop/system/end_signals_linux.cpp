#include "desktop/system/end_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <utility>

namespace pawnfield {

namespace {

constexpr std::array<int, 3> kEnding{SIGTERM, SIGINT, SIGHUP};

// A signal's handler is given nothing but the signal's number, so that the pipe's end must lie where it finds it.
std::atomic<int>& WriteEnd() {
  static std::atomic<int> end{-1};
  return end;
}

extern "C" void PassOn(int) {
  const int error = errno;
  // A full pipe tells already.
  [[maybe_unused]] const ssize_t written = write(WriteEnd(), "", 1);
  errno = error;
}

void SetHandler(int number, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  sigaction(number, &action, nullptr);
}

// The C library's exit is given no more than a signal's handler is.
std::function<void()>*& ToSay() {
  static std::function<void()>* say = nullptr;
  return say;
}

void SayAtExit() {
  if (ToSay() != nullptr) (*std::exchange(ToSay(), nullptr))();
}

}  // namespace

void IgnoreBrokenPipes() { SetHandler(SIGPIPE, SIG_IGN); }

LastWords::LastWords(Form& console, std::function<void()> say) : say_(std::move(say)) { console.AddObserver(*this); }

void LastWords::Changed(Control& console, PropertyId id) {
  if (id != PropertyId::Visible || !console.Visible || ToSay() != nullptr) return;
  ToSay() = &say_;
  std::atexit(SayAtExit);
}

LastWords::~LastWords() { ToSay() = nullptr; }

EndSignals::EndSignals(std::function<void()> onEnd) : onEnd_(std::move(onEnd)) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  readEnd_ = ends[0];
  WriteEnd() = ends[1];
  notifier_.setSocket(readEnd_);
  connect(&notifier_, &QSocketNotifier::activated, this, &EndSignals::Read);
  notifier_.setEnabled(true);
  for (const int number : kEnding) SetHandler(number, PassOn);
}

EndSignals::~EndSignals() {
  for (const int number : kEnding) SetHandler(number, SIG_DFL);
  notifier_.setEnabled(false);
  if (readEnd_ < 0) return;
  close(WriteEnd().exchange(-1));
  close(readEnd_);
}

void EndSignals::Read() {
  std::array<char, 64> bytes{};
  while (read(readEnd_, bytes.data(), bytes.size()) > 0) continue;
  onEnd_();
}

}  // namespace pawnfield
