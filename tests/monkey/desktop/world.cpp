#include "monkey/desktop/world.h"

#include <fcntl.h>
#include <pty.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <array>

#include "desktop/files/native_path.h"
#include "monkey/random_world.h"
#include "show_driver.h"

namespace pawnfield {

namespace {

constexpr int kSetCount = 5;
constexpr std::size_t kFirstLetterRow = 9;

void WriteFile(const QString& path, const std::string& bytes) {
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

std::string Noise(Chance& chance, std::size_t most) {
  std::string noise;
  for (std::size_t length = chance.Below(most); length > 0; --length) noise += static_cast<char>(chance.Below(256));
  return noise;
}

}  // namespace

SerialLine::SerialLine() {
  std::array<char, 64> name{};
  if (openpty(&far_, &near_, name.data(), nullptr, nullptr) == 0) location_ = name.data();
  fcntl(far_, F_SETFL, O_NONBLOCK);
}

SerialLine::~SerialLine() {
  for (const int side : {near_, far_}) close(side);
}

void SerialLine::Feed(const std::string& bytes) {
  // What a full line does not take is lost, as on a real one.
  [[maybe_unused]] const ssize_t taken = write(far_, bytes.data(), bytes.size());
}

World::World(Chance& chance) : places_(PlacesBelow(folder_.path())) {
  QDir::setCurrent(folder_.path());
  for (int i = 0; i < kSetCount; ++i) WriteFile(Sets() + QString("%1.txt").arg(i), RandomSet(chance));
  PutMedia();
  QProcess::execute("ffmpeg", {"-v", "error", "-y", "-f", "lavfi", "-i", "testsrc2=size=320x240:rate=25:duration=2",
                               "-f", "lavfi", "-i", "sine=duration=2", Sets() + "film.mp4"});
  WriteFile(Sets() + "broken.mp4", "no film");
  if (chance.OneIn(2)) line_ = std::make_unique<SerialLine>();
}

DesktopPlaces World::Places() {
  DesktopPlaces places = places_;
  places.serialAdapters = [this] {
    return line_ ? std::vector<SerialAdapter>{line_->Adapter()} : std::vector<SerialAdapter>{};
  };
  return places;
}

void World::Join(Show& show) {
  transceiver_ = std::make_unique<HandedTransceiver>(show);
  show.presses.MFMap = {101, 102, 103};
  static constexpr std::array kMedia = {"there.wav", "there.jpg", "film.mp4", "broken.mp4", "missing.wav"};
  for (std::size_t row = kFirstLetterRow; row < show.soundBanks[1].size(); ++row) {
    show.soundBanks[1][row] = SpelledPath(Sets() + kMedia[row % kMedia.size()]);
  }
}

void World::PutMedia() {
  QImage picture(640, 480, QImage::Format_RGB32);
  picture.fill(Qt::darkCyan);
  picture.save(Sets() + "there.jpg");
  QFile::copy(folder_.path() + "/app/Sound Effects/Pawn.Wav", Sets() + "there.wav");
}

QString World::ChangeFiles(Chance& chance) {
  const QString set = QString("%1.txt").arg(chance.Below(kSetCount));
  const QString media = chance.OneIn(2) ? "there.jpg" : chance.OneIn(2) ? "there.wav" : "film.mp4";
  switch (chance.Below(4)) {
    case 0:
      QFile::remove(Sets() + media);
      return "lose " + media;
    case 1:
      QFile::remove(Sets() + set);
      return "lose " + set;
    case 2:
      PutMedia();
      return "find media";
    default:
      WriteFile(Sets() + set, RandomSet(chance));
      return "new " + set;
  }
}

QString World::UseDevice(Chance& chance) {
  const auto remote = static_cast<char>(chance.OneIn(10) ? chance.Below(256) : 1 + chance.Below(4));
  switch (chance.Below(line_ ? 8 : 3)) {
    case 0:
      transceiver_->Hand(Noise(chance, 33));
      return "noise by radio";
    case 1:
    case 2:
      transceiver_->Press(remote);
      return QString("remote %1").arg(static_cast<int>(remote));
    case 3:
      line_->Feed(Noise(chance, 400));
      return "noise by wire";
    case 4:
      // A new adapter in the old one's place.
      if (chance.OneIn(4)) line_ = std::make_unique<SerialLine>();
      return "adapter";
    default:
      line_->Feed(std::string("MF\0\4\xFD\0\0", 7) + static_cast<char>(100 + chance.Below(6)));
      return "pad";
  }
}

QString World::ChangeMonitors(Chance& chance) {
  static constexpr std::array kChanges = {"--output DUMMY1 --off", "--output DUMMY1 --mode 1920x1080 --pos 1280x0",
                                          "--output DUMMY1 --mode 1280x720 --pos 1280x0",
                                          "--output DUMMY1 --mode 1920x1080 --pos 1280x0",
                                          "--output DUMMY1 --mode 1920x1080 --pos 0x800"};
  const QString change = kChanges[chance.Below(kChanges.size())];
  QProcess::execute("xrandr", change.split(' '));
  return "xrandr " + change;
}

QString World::AnyFile(Chance& chance) const {
  static constexpr std::array kNames = {"0.txt",      "1.txt",       "2.txt",    "there.jpg", "there.wav", "film.mp4",
                                        "broken.mp4", "missing.txt", "New set",  "other.txt", "other.snd", "a/b.txt",
                                        "",           "..",          "\xe4.txt", "0.txt"};
  return Sets() + QString::fromLatin1(kNames[chance.Below(kNames.size())]);
}

}  // namespace pawnfield
