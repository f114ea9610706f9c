#include "desktop/painting/picture_cache.h"

#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <algorithm>

#include "desktop/files/native_path.h"

namespace pawnfield {

namespace {

// In kilobytes of pixels.
constexpr int kOriginalsLimit = 96 * 1024;
constexpr int kScaledLimit = 96 * 1024;

int CostOf(const QPixmap& pixmap) { return 1 + pixmap.width() * pixmap.height() / 256; }

QPixmap ReadPicture(const QString& path) {
  QImageReader reader(path);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  return QPixmap::fromImage(reader.read());
}

}  // namespace

PictureCache::PictureCache() : originals_(kOriginalsLimit), scaled_(kScaledLimit) {}

QString PictureCache::KeyOf(const std::string& path) {
  const auto native = NativePlainFile(path);
  if (!native) return {};
  return *native + '|' + QString::number(QFileInfo(*native).lastModified().toMSecsSinceEpoch());
}

QPixmap PictureCache::Original(const QString& key) {
  if (key.isEmpty()) return {};
  if (const QPixmap* known = originals_.object(key)) return *known;
  const QPixmap picture = ReadPicture(key.left(key.lastIndexOf('|')));
  originals_.insert(key, new QPixmap(picture), std::min(CostOf(picture), kOriginalsLimit));
  return picture;
}

QPixmap PictureCache::Scaled(const QString& key, const QSize& size, Fill fill) {
  if (key.isEmpty() || size.isEmpty()) return {};
  const QString scaledKey =
      key + QString("|%1x%2|%3").arg(size.width()).arg(size.height()).arg(fill == Fill::Cover ? 1 : 0);
  if (const QPixmap* known = scaled_.object(scaledKey)) return *known;
  QPixmap picture = Original(key);
  if (picture.isNull()) return {};
  const auto aspect = fill == Fill::Cover ? Qt::KeepAspectRatioByExpanding : Qt::IgnoreAspectRatio;
  picture = picture.scaled(size, aspect, Qt::SmoothTransformation);
  const QPoint overhang((picture.width() - size.width()) / 2, (picture.height() - size.height()) / 2);
  picture = picture.copy(QRect(overhang, size));
  scaled_.insert(scaledKey, new QPixmap(picture), std::min(CostOf(picture), kScaledLimit));
  return picture;
}

}  // namespace pawnfield
