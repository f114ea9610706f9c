// What is really heard: the program plays into a sink of a sound server of the test's own, which is recorded.

#include <QProcess>
#include <QPushButton>
#include <QSlider>
#include <QStandardPaths>
#include <QTest>

#include "desktop/windows/player_view.h"
#include "forms/main_form.h"
#include "media/background_music.h"
#include "media/media_on_demand.h"
#include "media/sound_channels.h"
#include "places.h"
#include "program/handlers.h"
#include "sound_rig.h"

namespace pawnfield {
namespace {

// The channels' own tones, far enough apart to be told from one another.
constexpr double kEvent = 500, kKeys = 800, kClip = 1100, kVerdict = 1700, kMusic = 2300, kOther = 3100;
// Half of full scale in the file, at the volume 100.
constexpr double kFull = 0.5;

using Tones = std::vector<double>;

class HeardTest : public FolderTest {
 protected:
  void SetUp() override {
    if (!SoundRig::IsPossible()) GTEST_SKIP() << "no sound server is installed";
    ASSERT_TRUE(rig_.StartServer());
    DesktopPlaces places = PlacesIn(folder_);
    places.folders.App = Spelled("");
    platform_ = std::make_unique<DesktopPlatform>(places, [] {});
    show_ = std::make_unique<Show>(platform_->platform);
    AttachHandlers(*show_);
    channels_ = {&platform_->eventPlayer, &platform_->keyPressPlayer, &platform_->soundClipPlayer,
                 &platform_->correctIncorrectPlayer, &platform_->backgroundPlayer};
    // Five at once stay below what the sink takes without distortion.
    for (MpvChannel* channel : channels_) channel->SetVolume(30);
  }
  // The clock lets go of the timers before the forms end.
  void TearDown() override {
    if (!show_) return;
    for (Form* form : AllForms(*show_)) platform_->clock.Detach(*form);
    show_.reset();
    platform_.reset();
  }
  // A file of that tone, and its path as the program spells it.
  std::string Tone(double hertz, int milliseconds = 30000, const QString& folder = "") {
    return SpelledPath(Make(folder + QString("%1.wav").arg(hertz), ToneFile(hertz, milliseconds)));
  }
  void PlayAllFive() {
    PlayEvent(*show_, Tone(kEvent));
    PlayKeyPress(*show_, Tone(kKeys));
    PlaySoundClip(*show_, Tone(kClip));
    PlayCorrectIncorrect(*show_, Tone(kVerdict));
    platform_->backgroundPlayer.SetUrl(Tone(kMusic));
    const auto plays = [](const MpvChannel* channel) { return channel->IsPlaying(); };
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return std::all_of(channels_.begin(), channels_.end(), plays); }, kSlowMachineMs));
    // The server gathers the new streams.
    QTest::qWait(400);
  }
  // Which of the tones are heard in the next half second.
  Tones Heard() {
    const Recording recording = rig_.Record(500);
    Tones tones;
    for (const double tone : {kEvent, kKeys, kClip, kVerdict, kMusic, kOther}) {
      if (recording.Level(tone, 0.1, 0.5) > 0.02) tones.push_back(tone);
    }
    return tones;
  }
  // What is heard once it is these, or after a few seconds: the sink still holds what it took before.
  void ExpectHeard(const Tones& tones) {
    Tones heard = Heard();
    for (int i = 0; i < 8 && heard != tones; ++i) heard = Heard();
    EXPECT_EQ(heard, tones);
  }
  // How loud the tone is once it is about that, or after a few seconds.
  void ExpectLevel(double tone, double level) {
    double heard = -1;
    for (int i = 0; i < 8 && std::abs(heard - level) > 0.03; ++i) heard = rig_.Record(500).Level(tone, 0.1, 0.5);
    EXPECT_NEAR(heard, level, 0.03) << tone;
  }
  bool ComesBack(double tone) {
    bool heard = false;
    for (int i = 0; i < 12 && !heard; ++i) {
      const Tones tones = Heard();
      heard = std::find(tones.begin(), tones.end(), tone) != tones.end();
    }
    return heard;
  }

  SoundRig rig_;
  std::unique_ptr<DesktopPlatform> platform_;
  std::unique_ptr<Show> show_;
  std::vector<MpvChannel*> channels_;
};

TEST_F(HeardTest, FiveAtOnceCutOnTheirOwnAndStoppedByTheirButton) {
  PlayAllFive();
  ExpectHeard({kEvent, kKeys, kClip, kVerdict, kMusic});
  PlayEvent(*show_, Tone(kOther));
  QTest::qWait(300);
  ExpectHeard({kKeys, kClip, kVerdict, kMusic, kOther});
  PlayEvent(*show_, "");
  show_->frmMain.btnStopSounds.Click();
  QTest::qWait(300);
  ExpectHeard({kMusic});
}

TEST_F(HeardTest, VolumesAreHeardAsSet) {
  const double tones[] = {kEvent, kKeys, kClip, kVerdict, kMusic};
  PlayAllFive();
  for (const auto& [volume, level] : {std::pair{100, kFull}, {50, kFull / 2}, {0, 0.0}}) {
    // One at a time at its volume: five at full scale would be too loud for the sink.
    for (std::size_t i = 0; i < 5; ++i) {
      for (MpvChannel* channel : channels_) channel->SetVolume(channel == channels_[i] ? volume : 5);
      ExpectLevel(tones[i], level);
    }
  }
}

TEST_F(HeardTest, MusicPausesAndGoesOnWhenItIsRestarted) {
  platform_->backgroundPlayer.SetUrl(Tone(kMusic));
  ASSERT_TRUE(ComesBack(kMusic));
  PauseBackground(*show_);
  QTest::qWait(300);
  ExpectHeard({});
  RestartBackground(*show_);
  EXPECT_TRUE(ComesBack(kMusic));
  EXPECT_LT(platform_->backgroundPlayer.CurrentPosition(), 5);
  PauseBackground(*show_);
  platform_->backgroundPlayer.SetUrl(Tone(kOther));
  EXPECT_TRUE(ComesBack(kOther)) << "a new track sounds after a pause";
}

TEST_F(HeardTest, TheNextTrackFollowsWithinItsTime) {
  Tone(kMusic, 1500, "data/BackgroundMusic/");
  Tone(kOther, 1500, "data/BackgroundMusic/");
  show_->state.BackgroundMusic = kMusicFolderMode;
  DecideOnMusic(*show_);
  const Recording recording = rig_.Record(7000);
  EXPECT_LT(recording.Begin(kOther) - recording.End(kMusic), 2.5);
  EXPECT_NEAR(recording.End(kMusic) - recording.Begin(kMusic), 1.5, 0.1) << "the whole track is heard";
}

TEST_F(HeardTest, SoundComesBackWithTheServerAndWithTheSink) {
  platform_->backgroundPlayer.SetUrl(Tone(kMusic, 90000));
  ASSERT_TRUE(ComesBack(kMusic));
  rig_.StopServer();
  QTest::qWait(1500);
  PlayEvent(*show_, Tone(kEvent, 60000));
  EXPECT_TRUE(platform_->backgroundPlayer.IsPlaying()) << "the show goes on in silence";
  QTest::qWait(1000);
  ASSERT_TRUE(rig_.StartServer());
  EXPECT_TRUE(ComesBack(kMusic));
  EXPECT_TRUE(ComesBack(kEvent));
  rig_.RemoveSink();
  QTest::qWait(1500);
  rig_.AddSink();
  EXPECT_TRUE(ComesBack(kMusic));
  PlayEvent(*show_, Tone(kOther));
  EXPECT_TRUE(ComesBack(kOther)) << "a later file is heard too";
}

TEST_F(HeardTest, EveryKindOfMediaPlays) {
  if (QStandardPaths::findExecutable("ffmpeg").isEmpty()) GTEST_SKIP() << "nothing to make test media with";
  for (const char* kind : {"wav", "mp3", "wma", "avi", "mpg", "mpeg", "mov", "mp4", "wmv"}) {
    const QString file = folder_.path() + "/clip." + kind;
    const bool film = QString("wav mp3 wma").indexOf(kind) < 0;
    const QString picture = film ? " -f lavfi -i testsrc=size=320x240:rate=25:duration=3" : "";
    const QString make = "-v error -f lavfi -i sine=frequency=800:duration=3" + picture + ' ' + file;
    ASSERT_EQ(QProcess::execute("ffmpeg", make.split(' ')), 0) << kind;
    MpvChannel& player = film ? platform_->mediaPlayer1 : platform_->keyPressPlayer;
    const int frames = platform_->mediaPlayer1.FrameCount();
    show_->soundBanks[1][9] = SpelledPath(file);
    PlayKeyMedia(*show_, 9);
    EXPECT_TRUE(ComesBack(kKeys)) << kind;
    EXPECT_EQ(player.Failed(), 0) << kind;
    EXPECT_EQ(platform_->mediaPlayer1.FrameCount() > frames, film) << kind;
    EXPECT_EQ(show_->frmMain.picMOD.Visible.Get(), film) << kind;
    player.Stop();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !show_->frmMain.picMOD.Visible; }, kSlowMachineMs)) << kind;
  }
}

TEST_F(HeardTest, ThePlayersOwnControlsAreHeard) {
  PlayerView view(platform_->mediaPlayer1, nullptr);
  platform_->mediaPlayer1.SetUrl(Tone(kKeys));
  for (const auto& [value, level] : {std::pair{100, kFull}, {50, kFull / 2}, {0, 0.0}, {100, kFull}}) {
    view.findChild<QSlider*>("pnlPlayerVolume")->setValue(value);
    ExpectLevel(kKeys, level);
  }
  for (const auto& [button, level] :
       {std::pair{"pnlPlayerMute", 0.0}, {"pnlPlayerMute", kFull}, {"pnlPlayerPlay", 0}}) {
    view.findChild<QPushButton*>(button)->click();
    ExpectLevel(kKeys, level);
  }
}

TEST_F(HeardTest, FilmsThatCannotBeShownGoAway) {
  for (const auto& [name, bytes] : {std::pair<const char*, QByteArray>{"broken.mp4", QByteArray(5000, '\x01')},
                                    {"text.mp4", "#EXTM3U\nother.mp4\n"},
                                    {"empty.mp4", ""}}) {
    show_->soundBanks[1][9] = SpelledPath(Make(name, bytes));
    PlayKeyMedia(*show_, 9);
    // The file is looked at beside the main thread; a film that comes up at all has gone after a second.
    QTest::qWait(1000);
    EXPECT_FALSE(show_->frmMain.picMOD.Visible) << name;
    EXPECT_TRUE(platform_->mediaPlayer1.Frame().isNull());
  }
}

}  // namespace
}  // namespace pawnfield
