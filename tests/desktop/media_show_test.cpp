// A film on demand in the real windows, on a projector that comes and goes meanwhile. What runs is read from the
// screens themselves.

#include <gtest/gtest.h>

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QTemporaryDir>

#include "counted_film.h"
#include "desktop/files/native_path.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "media/media_on_demand.h"
#include "show_suite.h"

namespace pawnfield {
namespace {

// Long enough for a slow machine to look at it several times.
constexpr int kFilmSeconds = 40;
constexpr int kMiddle = kFilmSeconds / 2 * kCountedFramesPerSecond;
constexpr int kPictureKey = 'P' - 56, kFilmKey = 'F' - 56;

// The program starts with one monitor.
class MediaShowTest : public ShowSuite {
 protected:
  static void SetUpTestSuite() {
    Begin(kOneMonitor);
    ready_ = ready_ && MakeCountedFilm(Film(), kFilmSeconds) && Press({"optGameType_0", "btnStart"});
    TheShow().soundBanks[1][kFilmKey] = SpelledPath(Film());
    TheShow().soundBanks[1][kPictureKey] = TheShow().AppPath("\\Question Backgrounds\\7.jpg");
  }
  void TearDown() override {
    PressPlayer("pnlPlayerStop");
    EXPECT_TRUE(Wait(Gone));
  }

  static QString Film() { return folder_->path() + "/film.mp4"; }
  static void PressPlayer(const char* button) { Console().findChild<QPushButton*>(button)->click(); }
  static bool Gone() { return !Main().picMOD.Visible && !Audience().picMOD.Visible; }
  // The frames on the console and on the audience's screen, from one look at the whole desktop.
  static std::pair<int, int> Seen() {
    const QImage desktop = QGuiApplication::primaryScreen()->grabWindow(0, 0, 0, 3200, 1080).toImage();
    return {CountedFrame(desktop, ConsoleFilm(Console())), CountedFrame(desktop, AudienceFilm(Screen()))};
  }
  static bool FilmRunsOnBoth() {
    return Wait([] {
      const auto [console, audience] = Seen();
      return console > 0 && console == audience;
    });
  }
  static void MoveToTheMiddle() {
    auto* position = Console().findChild<QSlider*>("pnlPlayerPosition");
    position->setSliderPosition(500);
    emit position->actionTriggered(QAbstractSlider::SliderMove);
  }
  static void PlayFilm() {
    ASSERT_TRUE(driver_->Type({"f"}));
    ASSERT_TRUE(Wait([] { return Seen().first > 0; }));
  }
};

TEST_F(MediaShowTest, ARunningFilmComesToAScreenThatIsPluggedIn) {
  PlayFilm();
  EXPECT_FALSE(TheShow().state.DualScreen);
  ASSERT_TRUE(Xrandr(kTwoMonitors));
  EXPECT_TRUE(FilmRunsOnBoth());
  ASSERT_TRUE(Xrandr(kOneMonitor));
  EXPECT_TRUE(Wait([] { return !Screen().isVisible(); }));
  const int before = Seen().first;
  ASSERT_TRUE(Xrandr(kTwoMonitors));
  EXPECT_TRUE(FilmRunsOnBoth());
  EXPECT_GT(Seen().first, before);
}

TEST_F(MediaShowTest, TheOperatorsControlsAreSeenOnBothScreens) {
  PlayFilm();
  EXPECT_TRUE(FilmRunsOnBoth());
  PressPlayer("pnlPlayerPlay");
  EXPECT_TRUE(Wait([] { return Audience().MediaPlayer1.PlayState == 2; }));
  EXPECT_TRUE(Wait([] { return Seen().first == Seen().second; }));
  const auto held = Seen();
  driver_->Pause(300);
  EXPECT_EQ(Seen(), held) << "paused";
  MoveToTheMiddle();
  // The program has something else to do just when the picture comes.
  QTest::qSleep(3000);
  const std::pair middle(kMiddle, kMiddle);
  EXPECT_TRUE(Wait([&] { return Seen() == middle; })) << Seen().first << ' ' << Seen().second;
  PressPlayer("pnlPlayerPlay");
  EXPECT_TRUE(Wait([&] { return Seen().first > middle.first && FilmRunsOnBoth(); }));
}

TEST_F(MediaShowTest, APictureIsWholeAndAsLargeAsTheAudiencesScreenLetsIt) {
  ASSERT_TRUE(Xrandr(kTwoMonitors));
  ASSERT_TRUE(Wait([] { return Screen().isVisible(); }));
  // An edge of its own colour tells that nothing of the picture is cut off.
  const std::pair<QSize, QRect> table[] = {
      {{320, 180}, {0, 0, 1920, 1080}}, {{320, 240}, {240, 0, 1440, 1080}}, {{90, 180}, {690, 0, 540, 1080}}};
  for (const auto& [size, place] : table) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QPainter(&picture).fillRect(picture.rect().adjusted(10, 10, -10, -10), Qt::green);
    const QString file = folder_->path() + QString("/%1.bmp").arg(size.width() * 1000 + size.height());
    ASSERT_TRUE(picture.save(file));
    TheShow().soundBanks[1][kPictureKey] = SpelledPath(file);
    ASSERT_TRUE(driver_->Type({"p"}));
    const QImage seen = Screen().Screen().grab().toImage();
    const QRect inside = place.adjusted(3, 3, -3, -3);
    for (const QPoint corner : {inside.topLeft(), inside.bottomRight()}) {
      EXPECT_EQ(seen.pixelColor(corner), QColor(Qt::red)) << size.width() << " wide";
    }
    EXPECT_EQ(seen.pixelColor(inside.center()), QColor(Qt::green));
    EXPECT_EQ(seen.pixelColor(std::max(0, place.left() - 3), 500), QColor(place.left() > 0 ? Qt::black : Qt::red));
  }
  Main().tmrMODPicture.Fire();
}

TEST_F(MediaShowTest, AFilmWhoseFileIsRemovedPlaysOnAndItsKeyIsSilentThen) {
  const QString kept = Film() + ".kept";
  PlayFilm();
  ASSERT_TRUE(QFile::rename(Film(), kept));
  const int before = Seen().first;
  EXPECT_TRUE(Wait([&] { return Seen().first > before + kCountedFramesPerSecond; }));
  PressPlayer("pnlPlayerStop");
  EXPECT_TRUE(Wait([] { return !Main().picMOD.Visible; }));
  ASSERT_TRUE(driver_->Type({"f"}));
  EXPECT_FALSE(Main().picMOD.Visible);
  ASSERT_TRUE(QFile::rename(kept, Film()));
}

TEST_F(MediaShowTest, ADamagedFilmShowsWhatItHasAndGoes) {
  const QString damaged = folder_->path() + "/damaged.mpg";
  ASSERT_TRUE(MakeCountedFilm(damaged, 3));
  QFile file(damaged);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.seek(file.size() / 3));
  file.write(QByteArray(static_cast<int>(file.size() / 3), '\x5A'));
  file.close();
  TheShow().soundBanks[1]['D' - 56] = SpelledPath(damaged);
  PlayKeyMedia(TheShow(), 'D' - 56);
  EXPECT_TRUE(FilmRunsOnBoth());
  EXPECT_TRUE(Wait(Gone));
  PlayFilm();
}

TEST_F(MediaShowTest, KeysDuringAFilmReplaceItOrLeaveItAndTheShowGoesOn) {
  PlayFilm();
  MoveToTheMiddle();
  ASSERT_TRUE(Wait([] { return Seen().first >= kMiddle; }));
  ASSERT_TRUE(driver_->Type({"f"}));
  EXPECT_TRUE(Wait([] {
    const int frame = Seen().first;
    return frame >= 0 && frame < kMiddle;
  })) << "the film starts anew";
  EXPECT_TRUE(FilmRunsOnBoth());
  ASSERT_TRUE(driver_->Type({"a"}));
  EXPECT_TRUE(FilmRunsOnBoth());
  EXPECT_EQ(Main().txtDJCommand.Text.Get(), "A") << "half a square is typed";
  ASSERT_TRUE(driver_->Type({"p"}));
  EXPECT_TRUE(Wait([] { return Audience().picImageResize[1].IsShown(); }));
  EXPECT_FALSE(Audience().picMODVideo.IsShown() || Main().picMODVideo.IsShown());
}

}  // namespace
}  // namespace pawnfield
