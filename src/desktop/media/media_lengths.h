// How long sounds and films last, read beside the program by a player that plays nothing.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <map>
#include <string>

namespace pawnfield {

class MediaLengths : public QObject {
  Q_OBJECT
 public:
  MediaLengths();
  ~MediaLengths() override;
  // In seconds; 0 while it isn't known yet, and of what has none.
  double Of(const std::string& path);
  // Asks anew for each file from here on: it may have been replaced.
  void Forget() { known_.clear(); }

 signals:
  void Found();

 private:
  std::map<std::string, double> known_;
  QThreadPool workers_;
};

// "1:05"; empty for no length.
QString ClockText(double seconds);

}  // namespace pawnfield
