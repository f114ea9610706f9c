// Pictures as cameras, programs and ill-wishers make them: how large they may be, which way up they are shown, and
// that none of them holds the program up.

#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QImageWriter>
#include <QTest>

#include "desktop/media/media_files.h"
#include "desktop/painting/picture_cache.h"
#include "places.h"

namespace pawnfield {
namespace {

constexpr int kScreen = 1920;

// Left half black, right half white.
QImage TwoHalves(int width, int height, QImage::Format format = QImage::Format_Grayscale8) {
  QImage image(width, height, format);
  image.fill(Qt::black);
  for (int y = 0; y < height && format == QImage::Format_Grayscale8; ++y) {
    std::fill(image.scanLine(y) + width / 2, image.scanLine(y) + width, uchar{255});
  }
  return image;
}

QByteArray Saved(const QImage& image, const char* format, bool progressive = false) {
  QBuffer buffer;
  QImageWriter writer(&buffer, format);
  writer.setProgressiveScanWrite(progressive);
  EXPECT_TRUE(writer.write(image)) << format;
  return buffer.data();
}

// As a camera writes it that was held upright: its sensor's rows are the picture's columns.
QByteArray Turned(QByteArray jpeg, char orientation) {
  QByteArray exif("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0?\0\0\0\0\0\0\0", 32);
  exif[24] = orientation;
  jpeg.insert(2, QByteArray("\xFF\xE1\0\x22", 4) + exif);
  return jpeg;
}

// Says in its header that it is of that size.
QByteArray Claiming(QByteArray jpeg, int width, int height) {
  qsizetype frame = jpeg.indexOf("\xFF\xC0");
  if (frame < 0) frame = jpeg.indexOf("\xFF\xC2");
  for (const auto& [at, length] : {std::pair{5, height}, {7, width}}) {
    jpeg[frame + at] = static_cast<char>(length >> 8);
    jpeg[frame + at + 1] = static_cast<char>(length & 0xFF);
  }
  return jpeg;
}

TEST(PictureFile, APhotoOfAPhoneHeldUprightStandsUprightInItsOwnShape) {
  for (const QByteArray& jpeg : {Saved(TwoHalves(400, 300), "jpg"), Saved(TwoHalves(4000, 3000), "jpg")}) {
    const QSize lying = ReadPictureBytes(jpeg, kScreen).Size;
    const ReadPicture picture = ReadPictureBytes(Turned(jpeg, 6), kScreen);
    ASSERT_EQ(picture.Error, 0);
    EXPECT_EQ(picture.Size, lying.transposed());
    const QImage& image = picture.Image;
    EXPECT_NEAR(static_cast<double>(image.height()) / image.width(), 4.0 / 3, 0.01);
    EXPECT_LE(image.height(), kScreen);
    EXPECT_LT(image.pixelColor(image.width() / 2, image.height() / 8).lightness(), 20) << "the left half is above";
    EXPECT_GT(image.pixelColor(image.width() / 2, image.height() * 7 / 8).lightness(), 235);
  }
}

TEST(PictureFile, LargePicturesAreReadAtTheScreensSizeAndTooLargeOnesRefused) {
  const QByteArray color = Saved(TwoHalves(64, 64, QImage::Format_RGB32), "jpg");
  const QByteArray inPasses = Saved(TwoHalves(64, 64, QImage::Format_RGB32), "jpg", true);
  const std::tuple<const char*, QByteArray, QSize> cases[] = {
      {"baseline of 48 megapixels", Saved(TwoHalves(8000, 6000), "jpg"), {8000, 6000}},
      {"baseline of 199 megapixels", Saved(TwoHalves(16000, 12400), "jpg"), {16000, 12400}},
      {"progressive of 24 megapixels", Saved(TwoHalves(6000, 4000), "jpg", true), {6000, 4000}},
      {"bitmap of 24 megapixels", Saved(TwoHalves(6000, 4000), "bmp"), {6000, 4000}},
      {"baseline beyond 200 megapixels", Claiming(color, 16400, 12400), {}},
      {"baseline that claims the most there is", Claiming(color, 65500, 65500), {}},
      {"progressive whose passes need 400 MB", Claiming(inPasses, 12000, 12000), {}},
      {"png of few bytes and 144 megapixels", Saved(TwoHalves(12000, 12000, QImage::Format_Mono), "png"), {}},
      {"no picture", "no picture", {}},
      {"drawing that may name other files", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>", {}},
  };
  for (const auto& [what, bytes, size] : cases) {
    const ReadPicture picture = ReadPictureBytes(bytes, kScreen);
    EXPECT_EQ(picture.Error, size.isEmpty() ? kErrorInvalidPicture : 0) << what;
    EXPECT_EQ(picture.Size, size.isEmpty() ? QSize() : size) << what;
    EXPECT_LE(std::max(picture.Image.width(), picture.Image.height()), kScreen) << what;
    EXPECT_EQ(picture.Image.isNull(), size.isEmpty()) << what;
  }
}

TEST(PictureFile, APictureOfCountlessPassesIsRefused) {
  QByteArray jpeg = Saved(TwoHalves(640, 640, QImage::Format_RGB32), "jpg", true);
  const qsizetype scan = jpeg.lastIndexOf("\xFF\xDA");
  const QByteArray pass = jpeg.mid(scan, jpeg.size() - 2 - scan);
  jpeg.insert(jpeg.size() - 2, pass.repeated(1000));
  EXPECT_EQ(ReadPictureBytes(jpeg, kScreen).Error, kErrorInvalidPicture);
}

class PictureCacheTest : public FolderTest {
 protected:
  std::optional<PictureFacts> Looked(const char* name) {
    std::optional<PictureFacts> told;
    cache_.Look(Spelled(name), [&](const PictureFacts& facts) { told = facts; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return told.has_value(); }, kSlowMachineMs)) << name;
    return told;
  }

  PictureCache cache_;
};

TEST_F(PictureCacheTest, WhatIsNoPlainFileIsMissingAndHoldsNothingUp) {
  ASSERT_EQ(mkfifo(QFile::encodeName(Native("pipe.jpg")).constData(), 0600), 0);
  ASSERT_EQ(symlink("/dev/zero", QFile::encodeName(Native("device.jpg")).constData()), 0);
  ASSERT_EQ(symlink("circle.jpg", QFile::encodeName(Native("circle.jpg")).constData()), 0);
  QDir().mkpath(Native("folder.jpg"));
  MediaFiles files;
  for (const char* name : {"\\pipe.jpg", "\\device.jpg", "\\circle.jpg", "\\folder.jpg", "\\none.jpg"}) {
    EXPECT_EQ(Looked(name)->Error, kErrorFileNotFound) << name;
    std::optional<bool> plays;
    files.Look(Spelled(name), [&](bool answer) { plays = answer; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return plays.has_value(); }, kSlowMachineMs)) << name;
    EXPECT_FALSE(*plays) << name;
  }
}

TEST_F(PictureCacheTest, OneDecodeGivesSizeAndPixelsAndAChangedFileIsSeen) {
  Make("a.jpg", Turned(Saved(TwoHalves(400, 300), "jpg"), 6));
  const std::string path = Spelled("\\A.JPG");
  EXPECT_TRUE(cache_.Original(path).isNull()) << "it has not come yet";
  EXPECT_EQ(Looked("\\A.JPG")->Size.Width, 300);
  EXPECT_EQ(cache_.Original(path).size(), QSize(300, 400));
  QFile::remove(Native("a.jpg"));
  bool atOnce = false;
  cache_.Look(path, [&](const PictureFacts& facts) { atOnce = facts.Error == 0 && facts.Size.Height == 400; });
  EXPECT_TRUE(atOnce) << "what is held needs no disk";
  Make("a.jpg", Saved(TwoHalves(50, 60), "jpg"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return cache_.IsIdle(); }, kSlowMachineMs));
  cache_.Hold(path);
  EXPECT_TRUE(QTest::qWaitFor([&] { return cache_.IsIdle(); }, kSlowMachineMs));
  EXPECT_EQ(Looked("\\A.JPG")->Size.Width, 50);
  EXPECT_EQ(cache_.Original(path).size(), QSize(50, 60));
}

}  // namespace
}  // namespace pawnfield
