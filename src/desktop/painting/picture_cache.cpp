#include "desktop/painting/picture_cache.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

#include "desktop/files/native_path.h"
#include "platform/text.h"

namespace pawnfield {

namespace {

// In kilobytes of pixels.
constexpr int kOriginalsLimit = 96 * 1024;
constexpr int kScaledLimit = 96 * 1024;
constexpr qint64 kOwnFileLimit = 256 * 1024;
constexpr qint64 kOwnFilesLimit = 8 * 1024 * 1024;
constexpr int kIdleMs = 5000;
// Enough of a picture to know that it is whole.
constexpr int kCheckSide = 64;

// What waits to be shown goes before what is shown next, and that before a look at a whole set.
enum Priority { kCheck, kNext, kShown };

int CostOf(const QPixmap& pixmap) { return 1 + pixmap.width() * pixmap.height() / 256; }

QString KeyOf(const std::string& path) { return QString::fromLatin1(path.data(), static_cast<qsizetype>(path.size())); }

// The program spells its own files in any case.
QString OwnKeyOf(const std::string& path) { return KeyOf(ToLower(path)); }

// The longer side of the largest screen, in its own pixels.
int LargestSide() {
  qreal side = 1;
  for (const QScreen* screen : QGuiApplication::screens()) {
    side = std::max({side, screen->size().width() * screen->devicePixelRatio(),
                     screen->size().height() * screen->devicePixelRatio()});
  }
  return static_cast<int>(side);
}

PictureFacts FactsOf(const ReadPicture& picture) {
  return {{picture.Size.width(), picture.Size.height()}, picture.Error};
}

QString StampOf(const QString& native) {
  const QFileInfo file(native);
  return QString::number(file.lastModified().toMSecsSinceEpoch()) + '|' + QString::number(file.size());
}

}  // namespace

PictureCache::PictureCache() : originals_(kOriginalsLimit), scaled_(kScaledLimit) {
  // One picture at a time: two large ones together would need twice the memory.
  worker_.setMaxThreadCount(1);
  worker_.setExpiryTimeout(kIdleMs);
}

PictureCache::~PictureCache() {
  worker_.clear();
  worker_.waitForDone();
}

template <typename Work, typename Done>
void PictureCache::Beside(int priority, Work work, Done done) {
  ++running_;
  worker_.start(
      [this, work = std::move(work), done = std::move(done)] {
        auto result = work();
        QMetaObject::invokeMethod(
            this,
            [this, done, result = std::move(result)]() mutable {
              --running_;
              done(std::move(result));
            },
            Qt::QueuedConnection);
      },
      priority);
}

PictureCache::Outcome PictureCache::ReadOutcome(const std::string& path, const QString& stamp, int side) {
  const auto native = NativePlainFile(path);
  if (!native) return {{{}, {}, kErrorFileNotFound}, {}, false};
  const QString now = StampOf(*native);
  if (now == stamp) return {{}, now, true};
  return {ReadPictureFile(*native, side), now, false};
}

void PictureCache::Look(const std::string& path, std::function<void(const PictureFacts&)> then) {
  const QString key = KeyOf(path);
  const auto known = known_.constFind(key);
  // A file that could not be shown may have been mended; one that could may be another now, which is seen beside.
  if (known == known_.cend() || known->Facts.Error != 0) {
    Request(path, kShown, std::move(then));
    return;
  }
  const PictureFacts facts = known->Facts;
  if (!own_.contains(OwnKeyOf(path))) Request(path, kNext, {});
  then(facts);
}

void PictureCache::Check(const std::string& path, std::function<void(const PictureFacts&)> then) {
  Beside(
      kCheck, [path] { return ReadOutcome(path, {}, kCheckSide); },
      [then = std::move(then)](const Outcome& outcome) { then(FactsOf(outcome.Picture)); });
}

void PictureCache::Hold(const std::string& path) { Request(path, kNext, {}); }

void PictureCache::Request(const std::string& path, int priority, Then then) {
  const QString key = KeyOf(path);
  const bool isAsked = waiting_.contains(key);
  std::vector<Then>& waiting = waiting_[key];
  if (then) waiting.push_back(std::move(then));
  if (isAsked && priority != kShown) return;
  const auto own = own_.constFind(OwnKeyOf(path));
  const QString stamp = originals_.contains(key) ? known_.value(key).Stamp : QString();
  const int side = LargestSide();
  if (own != own_.cend()) {
    Beside(
        priority,
        [bytes = *own, side] {
          return Outcome{ReadPictureBytes(bytes, side), {}, false};
        },
        [this, path](const Outcome& outcome) { Take(path, outcome); });
    return;
  }
  Beside(
      priority, [path, stamp, side] { return ReadOutcome(path, stamp, side); },
      [this, path](const Outcome& outcome) { Take(path, outcome); });
}

PictureCache::Held PictureCache::Store(const std::string& path, const ReadPicture& picture) {
  Held held{QPixmap::fromImage(picture.Image), ++versions_};
  originals_.insert(KeyOf(path), new Held(held), std::min(CostOf(held.Pixels), kOriginalsLimit));
  return held;
}

void PictureCache::Take(const std::string& path, const Outcome& outcome) {
  const QString key = KeyOf(path);
  const std::vector<Then> waiting = waiting_.take(key);
  if (!outcome.Unchanged) {
    known_[key] = {FactsOf(outcome.Picture), outcome.Stamp};
    Store(path, outcome.Picture);
    emit Decoded(path);
  }
  const PictureFacts facts = known_[key].Facts;
  for (const Then& then : waiting) then(facts);
}

void PictureCache::HoldFolder(const std::string& folder) {
  using Files = QHash<QString, QByteArray>;
  Beside(
      kShown,
      [folder] {
        Files files;
        qint64 total = 0;
        const QDir directory(NativePath(folder));
        for (const QFileInfo& entry : directory.entryInfoList(QDir::Files, QDir::Name)) {
          QFile file(entry.filePath());
          if (entry.size() > kOwnFileLimit || total + entry.size() > kOwnFilesLimit) continue;
          if (!file.open(QIODevice::ReadOnly)) continue;
          total += entry.size();
          files.insert(OwnKeyOf(folder + "\\" + SpelledPath(entry.fileName())), file.readAll());
        }
        return files;
      },
      [this](const Files& files) { own_.insert(files); });
}

QPixmap PictureCache::Original(const std::string& path) {
  if (path.empty()) return {};
  const QString key = KeyOf(path);
  if (const Held* held = originals_.object(key)) return held->Pixels;
  const auto own = own_.constFind(OwnKeyOf(path));
  if (own != own_.cend()) {
    const ReadPicture picture = ReadPictureBytes(*own, LargestSide());
    known_[key] = {FactsOf(picture), {}};
    return Store(path, picture).Pixels;
  }
  if (!waiting_.contains(key)) Request(path, kShown, {});
  return {};
}

QPixmap PictureCache::Scaled(const std::string& path, const QSize& size, Fill fill) {
  if (path.empty() || size.isEmpty()) return {};
  QPixmap picture = Original(path);
  if (picture.isNull()) return {};
  const Held* held = originals_.object(KeyOf(path));
  const QString scaledKey = QString("%1|%2x%3|%4")
                                .arg(held == nullptr ? 0 : held->Version)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(fill == Fill::Cover ? 1 : 0);
  if (const QPixmap* known = scaled_.object(scaledKey)) return *known;
  const auto aspect = fill == Fill::Cover ? Qt::KeepAspectRatioByExpanding : Qt::IgnoreAspectRatio;
  picture = picture.scaled(size, aspect, Qt::SmoothTransformation);
  const QPoint overhang((picture.width() - size.width()) / 2, (picture.height() - size.height()) / 2);
  picture = picture.copy(QRect(overhang, size));
  scaled_.insert(scaledKey, new QPixmap(picture), std::min(CostOf(picture), kScaledLimit));
  return picture;
}

}  // namespace pawnfield
