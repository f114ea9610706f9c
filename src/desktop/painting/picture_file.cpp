#include "desktop/painting/picture_file.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <array>

#include "platform/ports.h"

namespace pawnfield {

namespace {

// More passes over one picture than any camera or program makes.
constexpr qsizetype kMostScans = 200;
constexpr qint64 kHeadBytes = 256 * 1024;

ReadPicture Refused(int error) { return {{}, {}, error}; }

// What a JPEG's header says of the memory that its reader needs.
struct JpegFrame {
  bool IsWhole = false;
  // Bytes for each pixel where the reader keeps the whole picture, which it does when that comes in several passes.
  double BytesPerPixel = 0;
};

int Word(const QByteArray& bytes, qsizetype at) {
  return static_cast<unsigned char>(bytes[at]) << 8 | static_cast<unsigned char>(bytes[at + 1]);
}

// The samples of all components for each pixel, two bytes each.
double BytesPerPixel(const QByteArray& head, qsizetype frame, int components) {
  int samples = 0;
  int widest = 1;
  int highest = 1;
  for (int i = 0; i < components; ++i) {
    const int factors = static_cast<unsigned char>(head[frame + 11 + 3 * i]);
    samples += (factors >> 4) * (factors & 15);
    widest = std::max(widest, factors >> 4);
    highest = std::max(highest, factors & 15);
  }
  return 2.0 * samples / (widest * highest);
}

// Goes from marker to marker up to the first scan.
JpegFrame ReadFrame(const QByteArray& head) {
  constexpr int kBaseline = 0xC0, kExtended = 0xC1, kLastFrame = 0xCF, kScan = 0xDA;
  JpegFrame frame;
  int components = 0;
  bool isSequential = false;
  for (qsizetype at = 2; at + 4 <= head.size() && static_cast<unsigned char>(head[at]) == 0xFF;) {
    const int marker = static_cast<unsigned char>(head[at + 1]);
    if (marker == 0xFF) {
      // A filler.
      ++at;
      continue;
    }
    const int length = Word(head, at + 2);
    if (at + 2 + length > head.size()) break;
    const bool isTable = marker == 0xC4 || marker == 0xC8 || marker == 0xCC;
    if (marker >= kBaseline && marker <= kLastFrame && !isTable && length >= 8) {
      components = std::min<int>(static_cast<unsigned char>(head[at + 9]), (length - 8) / 3);
      isSequential = marker == kBaseline || marker == kExtended;
      frame.BytesPerPixel = BytesPerPixel(head, at, components);
    }
    if (marker == kScan) {
      frame.IsWhole = !isSequential || head[at + 4] < components;
      return frame;
    }
    at += 2 + length;
  }
  frame.IsWhole = true;
  return frame;
}

// How many bytes the reader needs for that many pixels, its copy for the screen's colours included.
double BytesNeeded(const QImageReader& reader, double pixels) {
  const int depth = QImage::toPixelFormat(reader.imageFormat()).bitsPerPixel();
  constexpr int kScreenDepth = 32;
  return pixels * (depth == kScreenDepth || depth == 0 ? 4 : depth / 8.0 + 4);
}

// Leaves the device where it stands, in the midst of a reader's work.
QByteArray WholeOf(QIODevice& device) {
  const qint64 place = device.pos();
  device.seek(0);
  QByteArray all = device.readAll();
  device.seek(place);
  return all;
}

bool IsRefused(QIODevice& device, const QByteArray& head, const QImageReader& reader, const QSize& size) {
  const double pixels = static_cast<double>(size.width()) * size.height();
  if (reader.format() != "jpeg") return BytesNeeded(reader, pixels) > kLargestPictureBytes;
  if (pixels > kLargestJpegPixels) return true;
  const JpegFrame frame = ReadFrame(head);
  if (!frame.IsWhole) return false;
  return frame.BytesPerPixel * pixels > kLargestPictureBytes || WholeOf(device).count("\xFF\xDA") > kMostScans;
}

bool IsKnownKind(const QByteArray& format) {
  constexpr std::array kKinds{"bmp", "jpeg", "png", "gif"};
  return std::any_of(kKinds.begin(), kKinds.end(), [&](const char* kind) { return format == kind; });
}

ReadPicture Read(QIODevice& device, int side) {
  QImageReader::setAllocationLimit(kLargestPictureBytes / (1024 * 1024));
  const QByteArray head = device.peek(kHeadBytes);
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  const QSize size = reader.size();
  if (size.isEmpty() || !IsKnownKind(reader.format()) || IsRefused(device, head, reader, size)) {
    return Refused(kErrorInvalidPicture);
  }
  const bool isLarge = std::max(size.width(), size.height()) > side;
  const QSize wanted = size.scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
  if (isLarge && reader.format() == "jpeg") reader.setScaledSize(wanted);
  QImage image = reader.read();
  if (image.isNull()) return Refused(kErrorInvalidPicture);
  const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
  if (isLarge && reader.format() != "jpeg") {
    image = image.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  }
  return {std::move(image), isTurned ? size.transposed() : size, 0};
}

}  // namespace

ReadPicture ReadPictureFile(const QString& path, int side) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? Read(file, side) : Refused(kErrorFileNotFound);
}

ReadPicture ReadPictureBytes(const QByteArray& bytes, int side) {
  QBuffer buffer;
  buffer.setData(bytes);
  return buffer.open(QIODevice::ReadOnly) ? Read(buffer, side) : Refused(kErrorInvalidPicture);
}

}  // namespace pawnfield
