#include "media/background_music.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "media/sound_channels.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;

const std::string kFolder = "C:\\Ostara Show Kit Data\\BackgroundMusic\\";

class Music : public testing::Test {
 protected:
  void Begin(const std::string& mode, std::initializer_list<const char*> names, const std::string& file = "") {
    fixture.sim.settings.Preset("Pawnfield", "Settings", "BackGroundMusic", mode);
    fixture.sim.settings.Preset("Pawnfield", "Settings", "BgMusicFileName", file);
    for (const char* name : names) {
      fixture.sim.files.Put(kFolder + name, "music");
      fixture.sim.media.Deck.Durations[kFolder + name] = 9.5;
    }
    fixture.Start();
  }
  // The tracks that are begun within so many seconds.
  std::vector<std::string> Heard(int seconds) {
    MediaLog& log = fixture.sim.media.Log;
    log.clear();
    fixture.sim.clock.Advance(seconds * 1000);
    std::vector<std::string> tracks;
    const std::string url = "BackgroundPlayer url " + kFolder;
    for (const std::string& line : log) {
      if (line.starts_with(url)) tracks.push_back(line.substr(url.size()));
    }
    return tracks;
  }
  bool Sounds() { return fixture.sim.media.BackgroundPlayer.Playing && !fixture.sim.media.BackgroundPlayer.Paused; }

  ShowFixture fixture;
};

TEST_F(Music, TheFoldersTracksPlayInTurnForEver) {
  Begin("1", {"b.MP3", "a.wav", "c.wma", "d.mp3.txt", "mp3"});
  EXPECT_EQ(fixture.show().state.MusicList.size(), 2);
  fixture.sim.media.BackgroundPlayer.SetUrl("");
  fixture.show().state.MusicIndex = 0;
  // Each begins within a second of the other's end.
  EXPECT_THAT(Heard(40), ElementsAre("a.wav", "b.MP3", "a.wav", "b.MP3"));
}

TEST_F(Music, ATrackThatCannotBePlayedGivesWayToTheNext) {
  Begin("1", {"a.mp3", "b.mp3"});
  fixture.sim.media.Deck.Durations[kFolder + "a.mp3"] = 0;
  fixture.sim.media.BackgroundPlayer.SetUrl("");
  fixture.show().state.MusicIndex = 0;
  EXPECT_THAT(Heard(13), ElementsAre("a.mp3", "b.mp3", "a.mp3", "b.mp3"));
}

TEST_F(Music, OneFileRepeatsUntilItIsGone) {
  Begin("2", {"one.mp3"}, kFolder + "one.mp3");
  fixture.sim.media.BackgroundPlayer.SetUrl("");
  EXPECT_THAT(Heard(20), ElementsAre("one.mp3", "one.mp3"));
  fixture.sim.files.Remove(kFolder + "one.mp3");
  EXPECT_THAT(Heard(60), ElementsAre());
}

TEST_F(Music, AModeWithNothingToPlayBecomesNone) {
  const struct {
    const char* mode;
    const char* name;
    std::string file;
    int becomes;
  } cases[] = {{"0", "a.mp3", "", 0},   {"1", "a.wma", "", 0},      {"1", "a.WAV", "", 1},
               {"2", "a.mp3", "  ", 0}, {"2", "a.mp3", "x.mp3", 0}, {"2", "a.mp3", kFolder + "a.mp3", 2}};
  for (const auto& c : cases) {
    ShowFixture fresh;
    fresh.sim.files.Put(kFolder + c.name, "music");
    fresh.sim.settings.Preset("Pawnfield", "Settings", "BackGroundMusic", c.mode);
    fresh.sim.settings.Preset("Pawnfield", "Settings", "BgMusicFileName", c.file);
    fresh.Start();
    EXPECT_EQ(fresh.show().state.BackgroundMusic, c.becomes) << c.mode << c.name;
    EXPECT_EQ(fresh.show().state.MusicEnabled, c.becomes != 0);
  }
}

TEST_F(Music, AHundredTracksAreKeptAndTheRestIsTold) {
  for (int i = 100; i < 201; ++i) fixture.sim.files.Put(kFolder + std::to_string(i) + ".mp3", "music");
  fixture.sim.dialogs.ExpectMessage("Procedure: LoadMusicList");
  EXPECT_TRUE(LoadMusicList(fixture.show()));
  EXPECT_EQ(fixture.show().state.MusicList.size(), 100);
  EXPECT_EQ(fixture.show().state.MusicList.back(), kFolder + "199.mp3");
}

TEST_F(Music, ASoundQuestionPausesItAndACorrectAnswerBringsItBack) {
  fixture.sim.files.Put("C:\\Pawnfield\\Sounds\\clip.wav", "sound");
  fixture.WriteSet("Mixed", {"C:\\Pawnfield\\Sounds\\clip.wav", "Next?"});
  Begin("1", {"a.mp3"});
  fixture.form().optGameType[2].Click();
  fixture.ChooseSet("Mixed");
  EXPECT_TRUE(Sounds());
  fixture.form().btnStart.Click();
  EXPECT_TRUE(fixture.sim.media.BackgroundPlayer.Paused);
  EXPECT_THAT(Heard(30), ElementsAre()) << "a paused track is not at its end";
  fixture.form().btnQuestionCorrect.Click();
  EXPECT_TRUE(Sounds());
  EXPECT_EQ(fixture.sim.media.BackgroundPlayer.CurrentPosition(), 0);
}

TEST_F(Music, TheEndOfTheGameStopsItAndTheNextSetBringsItBack) {
  fixture.WriteNumberedSet("Numbers", 5);
  Begin("1", {"a.mp3"});
  fixture.form().optGameType[2].Click();
  fixture.ChooseSet("Numbers");
  fixture.form().btnStart.Click();
  fixture.form().btnQuestionCorrect.Click();
  fixture.sim.clock.Advance(2000);
  fixture.Claim(0, 0);
  fixture.sim.clock.Advance(2000);
  fixture.form().btnEndGame.Click();
  EXPECT_THAT(Heard(30), ElementsAre());
  EXPECT_FALSE(Sounds());
  fixture.ChooseSet("Numbers");
  EXPECT_THAT(Heard(2), ElementsAre("a.mp3"));
}

}  // namespace
}  // namespace pawnfield
