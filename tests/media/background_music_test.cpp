#include "media/background_music.h"

#include "forms/main_form.h"
#include "forms/options_form.h"
#include "media/sound_channels.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

const std::string kFolder = "C:\\Ostara Show Kit Data\\BackgroundMusic\\";

class Music : public ShowFixture, public testing::Test {
 protected:
  void Begin(const std::string& mode, std::initializer_list<const char*> names, const std::string& file = "") {
    Preset("BackGroundMusic", mode);
    Preset("BgMusicFileName", file);
    for (const char* name : names) {
      sim.files.Put(kFolder + name, "music");
      sim.media.Deck.Durations[kFolder + name] = 9.5;
    }
    Start();
  }
  // The tracks that are begun within so many seconds.
  std::string Heard(int seconds) {
    sim.media.Log.clear();
    sim.clock.Advance(seconds * 1000);
    std::string tracks;
    const std::string url = "BackgroundPlayer url " + kFolder;
    for (const std::string& line : sim.media.Log) {
      if (line.starts_with(url)) tracks += line.substr(url.size()) + " ";
    }
    return tracks;
  }
  // The same from a first track on.
  std::string HeardAnew(int seconds) {
    sim.media.BackgroundPlayer.SetUrl("");
    show().state.MusicIndex = 0;
    return Heard(seconds);
  }
};

TEST_F(Music, TheFoldersTracksPlayInTurnForEverAndOneThatCannotBePlayedGivesWay) {
  Begin("1", {"b.MP3", "a.wav", "c.wma", "d.mp3.txt", "mp3"});
  EXPECT_EQ(HeardAnew(40), "a.wav b.MP3 a.wav b.MP3 ") << "each begins within a second of the other's end";
  sim.media.Deck.Durations[kFolder + "a.wav"] = 0;
  EXPECT_EQ(HeardAnew(13), "a.wav b.MP3 a.wav b.MP3 ");
}

TEST_F(Music, OneFileRepeatsUntilItIsGone) {
  Begin("2", {"one.mp3"}, kFolder + "one.mp3");
  EXPECT_EQ(HeardAnew(20), "one.mp3 one.mp3 ");
  sim.files.Remove(kFolder + "one.mp3");
  EXPECT_EQ(Heard(60), "");
}

TEST_F(Music, AModeWithNothingToPlayBecomesNone) {
  const std::tuple<const char*, const char*, std::string, int> cases[] = {
      {"0", "a.mp3", "", 0},   {"1", "a.wma", "", 0},      {"1", "a.WAV", "", 1},
      {"2", "a.mp3", "  ", 0}, {"2", "a.mp3", "x.mp3", 0}, {"2", "a.mp3", kFolder + "a.mp3", 2}};
  for (const auto& [mode, name, file, becomes] : cases) {
    ShowFixture fresh;
    fresh.sim.files.Put(kFolder + name, "music");
    fresh.Preset("BackGroundMusic", mode);
    fresh.Preset("BgMusicFileName", file);
    fresh.Start();
    EXPECT_EQ(fresh.show().state.BackgroundMusic, becomes) << mode << name;
    EXPECT_EQ(fresh.show().state.MusicEnabled, becomes != 0);
  }
}

TEST_F(Music, AHundredTracksAreKeptAndTheRestIsReported) {
  for (int i = 100; i < 201; ++i) sim.files.Put(kFolder + std::to_string(i) + ".mp3", "music");
  sim.dialogs.ExpectMessage("Procedure: LoadMusicList");
  EXPECT_TRUE(LoadMusicList(show()));
  EXPECT_EQ(show().state.MusicList.size(), 100U);
  EXPECT_EQ(show().state.MusicList.back(), kFolder + "199.mp3");
}

TEST_F(Music, ASoundQuestionPausesItAndTheEndOfTheGameStopsItUntilTheNextSet) {
  sim.files.Put("C:\\clip.wav", "sound");
  WriteSet("Mixed", {"C:\\clip.wav", "Next?"});
  Begin("1", {"a.mp3"});
  form().optGameType[2].Click();
  ChooseSet("Mixed");
  sim.clock.Advance(3000);
  form().btnStart.Click();
  const RecordedChannel& music = sim.media.BackgroundPlayer;
  EXPECT_TRUE(music.Paused);
  EXPECT_GT(music.CurrentPosition(), 0);
  EXPECT_EQ(Heard(30), "") << "a paused track is not at its end";
  form().btnQuestionCorrect.Click();
  EXPECT_TRUE(music.Playing && !music.Paused) << "a correct answer begins it anew";
  EXPECT_EQ(music.CurrentPosition(), 0);
  Claim(0, 0);
  sim.clock.Advance(2000);
  form().btnEndGame.Click();
  EXPECT_EQ(Heard(30), "");
  EXPECT_FALSE(music.Playing);
  ChooseSet("Mixed");
  EXPECT_EQ(Heard(2), "a.mp3 ");
}

TEST_F(Music, AClipEndsWithItsQuestionAndTheMusicGoesOn) {
  sim.files.Put("C:\\clip.wav", "sound");
  WriteSet("Mixed", {"First?", "C:\\clip.wav", "Last?"});
  Begin("1", {"a.mp3"});
  const RecordedChannel& music = sim.media.BackgroundPlayer;
  const RecordedChannel& clip = sim.media.SoundClipPlayer;
  for (Button* end : {&form().btnQuestionIncorrect, &form().btnSkipQuestion, &form().btnReset, &form().btnEndGame}) {
    sim.clock.Advance(8000);
    form().optGameType[2].Click();
    ChooseSet("Mixed");
    form().btnStart.Click();
    form().btnQuestionCorrect.Click();
    Claim(0, 0);
    sim.clock.Advance(4500);
    EXPECT_TRUE(clip.Playing && music.Paused) << end->Name();
    end->Click();
    EXPECT_FALSE(clip.Playing || music.Paused) << end->Name();
    EXPECT_EQ(music.Playing, end != &form().btnEndGame) << "the game's end has the music end too";
    if (form().btnReset.Enabled) form().btnReset.Click();
  }
}

TEST_F(Music, AClipThatEndsByItselfLetsTheMusicGoOnAndPlayAgainPausesItAgain) {
  sim.files.Put("C:\\clip.wav", "sound");
  sim.media.Deck.Durations["C:\\clip.wav"] = 5;
  WriteSet("Mixed", {"C:\\clip.wav", "Next?"});
  Begin("1", {"a.mp3"});
  form().optGameType[2].Click();
  ChooseSet("Mixed");
  form().btnStart.Click();
  const RecordedChannel& music = sim.media.BackgroundPlayer;
  sim.clock.Advance(4000);
  EXPECT_TRUE(music.Paused);
  sim.clock.Advance(2000);
  EXPECT_TRUE(music.Playing && !music.Paused);
  form().btnPlay.Click();
  EXPECT_TRUE(music.Paused);
  form().btnStopSounds.Click();
  EXPECT_FALSE(music.Paused);
}

TEST_F(Music, EachStartOfAGameBringsBackWhatTheLastGamesEndStopped) {
  Begin("1", {"a.mp3"});
  form().optGameType[1].Click();
  form().btnStart.Click();
  Claim(0, 0);
  sim.clock.Advance(2000);
  form().btnEndGame.Click();
  EXPECT_EQ(Heard(10), "");
  form().btnStart.Click();
  EXPECT_EQ(Heard(2), "a.mp3 ");
}

TEST_F(Music, AnEndThatIsTakenBackBringsItBackAndTheEndDoneAgainEndsIt) {
  Begin("1", {"a.mp3"});
  form().optGameType[1].Click();
  form().btnStart.Click();
  Claim(0, 0);
  sim.clock.Advance(2000);
  form().btnEndGame.Click();
  sim.clock.Advance(100);
  EXPECT_FALSE(sim.media.BackgroundPlayer.Playing);
  form().btnUndo.Click();
  EXPECT_EQ(Heard(2), "a.mp3 ");
  form().KeyPress('Y' - '@');
  EXPECT_FALSE(sim.media.BackgroundPlayer.Playing);
  EXPECT_EQ(Heard(10), "");
}

TEST_F(Music, MusicChosenInTheOptionsWaitsForAGame) {
  Begin("0", {"a.mp3"});
  form().optGameType[1].Click();
  sim.dialogs.ExpectForm("frmOptions", [&] {
    show().frmOptions.optBackgroundMusic[1].Click();
    show().frmOptions.btnOK.Click();
  });
  form().mnuFileOptions.Click();
  EXPECT_EQ(Heard(30), "") << "nobody has started a game";
  form().btnStart.Click();
  EXPECT_EQ(Heard(2), "a.mp3 ");
}

}  // namespace
}  // namespace pawnfield
