// Reads one picture file: upright, in its own shape, and no larger than a screen can show. Works on any thread.
#pragma once

#include <QImage>
#include <QString>

namespace pawnfield {

// A baseline JPEG is made smaller as it is read and needs little memory; any other file is read whole.
inline constexpr qint64 kLargestJpegPixels = 200'000'000;
inline constexpr qint64 kLargestPictureBytes = 200 * 1024 * 1024;

struct ReadPicture {
  // Null after an error; else fits a square of the side that was asked for.
  QImage Image;
  // As it stands upright, before it was made smaller.
  QSize Size;
  // The number of the error, 0 for none: 53 for no such file, 481 for a file that holds no picture or too large a one.
  int Error = 0;
};

ReadPicture ReadPictureFile(const QString& path, int side);
// The same of a file's bytes.
ReadPicture ReadPictureBytes(const QByteArray& bytes, int side);

}  // namespace pawnfield
