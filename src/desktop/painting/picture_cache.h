// Pictures by path, read once, and their scaled copies. Shared by both canvases.
#pragma once

#include <QCache>
#include <QPixmap>
#include <QString>

namespace pawnfield {

class PictureCache {
 public:
  PictureCache();
  // A key that changes with the file, empty when there is no such file. Asked once for each change of a picture.
  static QString KeyOf(const std::string& path);
  // The picture at exactly that size in pixels; cover keeps its shape and cuts what overhangs, else it is stretched.
  enum class Fill { Stretch, Cover };
  QPixmap Scaled(const QString& key, const QSize& size, Fill fill);
  // The picture in its own size; null when it can't be read.
  QPixmap Original(const QString& key);

 private:
  QCache<QString, QPixmap> originals_;
  QCache<QString, QPixmap> scaled_;
};

}  // namespace pawnfield
