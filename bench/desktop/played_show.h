// The real program in its windows, amid a game that a benchmark plays: wireless presses are handed to it one by one,
// and what is painted is watched.
#pragma once

#include <QObject>
#include <QTemporaryDir>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "desktop/desktop_program.h"
#include "desktop/devices/hid_reader.h"
#include "platform/ports.h"

namespace pawnfield {

using Moment = std::chrono::steady_clock::time_point;

double Milliseconds(Moment from, Moment to);

// A transceiver that is handed one report at a time, which the program's own thread reads from a pipe as it reads a
// device. Its light's packet is written when all else is done.
class HandedReports : public HidPort {
 public:
  // Makes the pipe there.
  explicit HandedReports(const QString& pipe);
  ~HandedReports() override;
  std::vector<HidDevice> Enumerate() const override { return {}; }
  std::optional<int> Open(int vendor, const std::vector<int>& products) override;
  HidLengths Lengths() const override { return {33, 33}; }
  HidRead Read(std::string& report) override;
  std::size_t Write(const std::string& report) override;
  std::int64_t ArrivedUs() const override { return arrivedUs_; }
  void Close() override { reader_.reset(); }

  void Hand(int remote);

  Moment HandedAt, ReadAt, WrittenAt;
  bool Written = false;
  std::function<void()> OnWritten;

 private:
  const std::string pipe_;
  int device_ = -1;
  std::int64_t arrivedUs_ = 0;
  // Takes what the reading thread posts to the main one.
  QObject home_;
  std::unique_ptr<HidReader> reader_;
};

// When the console's indicators went out (the player is set at once after it), when the judging buttons came up (the
// clip has been handed to its player before), and when each screen was painted last.
class Watch : public QObject {
 public:
  explicit Watch(DesktopProgram& program);
  bool eventFilter(QObject* part, QEvent* event) override;
  // Both windows that show something are to be painted anew, from now on for a player's turn.
  void Begin();

  Moment PlayerAt, ClipAt, PaintedAt;
  bool ConsolePainted = false, AudiencePainted = false;
  // Called when both have been painted with a player's turn.
  std::function<void()> OnPainted;

 private:
  void Painted(const QWidget* window);

  DesktopProgram& program_;
  QWidget* indicator_ = nullptr;
  QWidget* verdict_ = nullptr;
  bool turnOnConsole_ = false, turnOnAudience_ = false;
};

class PlayedShow {
 public:
  static constexpr int kRemotes = 20;

  // A question is open to all.
  PlayedShow();
  ~PlayedShow();
  PlayedShow(const PlayedShow&) = delete;
  PlayedShow& operator=(const PlayedShow&) = delete;

  Show& TheShow() { return program_.TheShow(); }
  // The message loop for so long, and until something has happened; false when it hasn't.
  static void Stand(int ms);
  static bool WaitFor(const std::function<bool()>& happened, int ms = 5000);
  // Hands a remote's press over; false when it got lost.
  bool PressRemote(int remote);
  // Until both screens show the turn of who presses; false after two seconds.
  bool AwaitPainted();
  void JudgeIncorrect();

 private:
  // Before the program, which lies in it.
  QTemporaryDir folder_;
  QTimer answer_;

 public:
  HandedReports Port{folder_.path() + "/reports"};

 private:
  DesktopProgram program_;

 public:
  Watch Sees{program_};
};

}  // namespace pawnfield
