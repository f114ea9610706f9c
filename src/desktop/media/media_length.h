// How long sounds and films last, asked of a player that plays nothing; one file after another.
#pragma once

#include <QTimer>
#include <deque>
#include <functional>
#include <string>
#include <utility>

#include "desktop/media/mpv_channel.h"

namespace pawnfield {

class MediaLength : public MpvChannel {
 public:
  MediaLength();
  // Tells in seconds, 0 for a file that can't be played or doesn't say.
  void Measure(const std::string& path, std::function<void(double seconds)> then);

 private:
  void LookAtNext();
  void LookAgain();

  std::deque<std::pair<std::string, std::function<void(double)>>> asked_;
  QTimer look_;
  int looks_ = 0;
};

}  // namespace pawnfield
