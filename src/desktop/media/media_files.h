// Looks at sounds and films on threads of their own, so that no disk holds the program up.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <optional>

#include "desktop/media/sound_devices.h"
#include "platform/ports.h"

namespace pawnfield {

// The native path of a file that a player takes; nothing for anything else. Waits for the disk.
std::optional<QString> FindPlayableFile(const std::string& path);

class MediaFiles : public QObject, public MediaReader {
 public:
  MediaFiles();
  ~MediaFiles() override;
  MediaFiles(const MediaFiles&) = delete;
  MediaFiles& operator=(const MediaFiles&) = delete;

  void Look(const std::string& path, std::function<void(bool plays)> then) override;
  void Check(const std::string& path, std::function<void(bool plays)> then) override;
  void Measure(const std::string& path, std::function<void(double seconds)> then) override;
  bool HasSoundDevice() const override { return pawnfield::HasSoundDevice(); }

  void NameSoundDevices(std::function<void(const std::vector<std::string>& names)> then) override;

  // Whoever can tell how long a file lasts; files aren't measured without.
  std::function<void(const std::string& path, std::function<void(double seconds)> then)> OnMeasure;

 private:
  // Runs the question beside, those of a higher priority first, and hands its answer on between events.
  void Ask(int priority, std::function<bool()> question, std::function<void(bool)> then);
  QThreadPool workers_;
};

}  // namespace pawnfield
