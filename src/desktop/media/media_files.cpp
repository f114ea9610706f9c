#include "desktop/media/media_files.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

#include "desktop/files/native_path.h"
#include "desktop/files/windows_1252.h"
#include "desktop/media/sound_check.h"

namespace pawnfield {

namespace {

constexpr qint64 kSniffBytes = 512;
constexpr int kIdleMs = 5000;
constexpr int kWorkers = 2;
// What the room waits for passes a whole set's sounds that are being checked.
constexpr int kShown = 1, kCheck = 0;

bool IsTextByte(char byte) {
  const auto value = static_cast<unsigned char>(byte);
  return value >= 0x20 || value == '\t' || value == '\r' || value == '\n';
}

}  // namespace

std::optional<QString> FindPlayableFile(const std::string& path) {
  const auto native = NativePlainFile(path);
  if (!native) return std::nullopt;
  QFile file(*native);
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  const QByteArray start = file.read(kSniffBytes);
  const bool isText = std::all_of(start.begin(), start.end(), IsTextByte);
  return isText ? std::nullopt : native;
}

MediaFiles::MediaFiles() {
  workers_.setMaxThreadCount(kWorkers);
  workers_.setExpiryTimeout(kIdleMs);
}

MediaFiles::~MediaFiles() {
  workers_.clear();
  workers_.waitForDone();
}

void MediaFiles::Look(const std::string& path, std::function<void(bool plays)> then) {
  Ask(
      kShown, [path] { return FindPlayableFile(path).has_value(); }, std::move(then));
}

void MediaFiles::Check(const std::string& path, std::function<void(bool plays)> then) {
  Ask(
      kCheck,
      [path] {
        const auto native = FindPlayableFile(path);
        return native && IsDecodableSound(*native);
      },
      std::move(then));
}

void MediaFiles::Ask(int priority, std::function<bool()> question, std::function<void(bool)> then) {
  workers_.start(
      [this, question = std::move(question), then = std::move(then)] {
        const bool answer = question();
        QMetaObject::invokeMethod(
            this, [then, answer] { then(answer); }, Qt::QueuedConnection);
      },
      priority);
}

void MediaFiles::NameSoundDevices(std::function<void(const std::vector<std::string>& names)> then) {
  workers_.start([this, then = std::move(then)] {
    std::vector<std::string> names;
    for (const QString& name : SoundDeviceNames()) names.push_back(Escape(name));
    QMetaObject::invokeMethod(
        this, [then, names] { then(names); }, Qt::QueuedConnection);
  });
}

void MediaFiles::Measure(const std::string& path, std::function<void(double seconds)> then) {
  if (OnMeasure) OnMeasure(path, std::move(then));
}

}  // namespace pawnfield
