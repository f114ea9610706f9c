// The hand on the sound: the faders, mute, stop all, what plays now, and the list of the letters.
#include "media/sound_panel.h"

#include <gmock/gmock.h>

#include "forms/main_form.h"
#include "media/media_on_demand.h"
#include "media/sound_table.h"
#include "show/settings.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;

class SoundPanel : public testing::Test {
 protected:
  MainForm& form() { return game_.form(); }
  Show& show() { return game_.show(); }
  RecordedMedia& media() { return game_.fixture().sim.media; }
  std::string Playing() { return form().lblNowPlaying.Caption; }

  GamePlayer game_{"Trivia A, user advances"};
};

TEST_F(SoundPanel, EachFaderReachesItsOwnPlayerAtOnceAndIsKept) {
  form().btnCues.Click();
  const RecordedChannel* players[] = {&media().EventPlayer, &media().KeyPressPlayer, &media().SoundClipPlayer,
                                      &media().BackgroundPlayer, &media().CorrectIncorrectPlayer};
  const int* kept[] = {&show().state.EventPlayerVolume, &show().state.KeyPressPlayerVolume,
                       &show().state.SoundClipPlayerVolume, &show().state.BackgroundPlayerVolume,
                       &show().state.CorrectIncorrectVolume};
  for (std::size_t i = 0; i < 5; ++i) {
    const int before = players[i]->Volume;
    form().fdrVolume[i].Slide(20 + static_cast<int>(i));
    EXPECT_EQ(*kept[i], 20 + static_cast<int>(i)) << i;
    EXPECT_NE(players[i]->Volume, before) << i;
    form().fdrVolume[i].Slide(0);
    EXPECT_EQ(players[i]->Volume, 0) << i;
  }
  form().fdrMusic.Slide(60);
  EXPECT_EQ(form().fdrVolume[3].Value, 60) << "both are the music's";
}

TEST_F(SoundPanel, MuteTakesTheMusicAwayAndGivesItBackAtItsVolume) {
  form().fdrMusic.Slide(60);
  const int before = media().BackgroundPlayer.Volume;
  ASSERT_GT(before, 0);
  form().btnMute.Click();
  EXPECT_EQ(media().BackgroundPlayer.Volume, 0);
  EXPECT_EQ(form().btnMute.Caption.Get(), "Unmute");
  form().btnMute.Click();
  EXPECT_EQ(media().BackgroundPlayer.Volume, before);
  form().btnMute.Click();
  form().fdrMusic.Slide(40);
  EXPECT_GT(media().BackgroundPlayer.Volume, 0) << "a hand on the fader wants to hear it";
  EXPECT_EQ(form().btnMute.Caption.Get(), "Mute");
}

TEST_F(SoundPanel, SaysWhatPlaysNowAndStopAllEndsItAll) {
  show().soundBanks[1][kSoundFirstKey] = "C:\\applause.mp3";
  media().Deck.Durations["C:\\applause.mp3"] = 12;
  game_.fixture().sim.files.Put("C:\\applause.mp3", "a sound");
  EXPECT_EQ(Playing(), "");
  form().btnCues.Click();
  PlayKeyMedia(show(), kSoundFirstKey);
  game_.Do("wait 1");
  EXPECT_EQ(Playing(), "NOW: applause.mp3 0:11");
  form().btnStopAll.Click();
  EXPECT_EQ(Playing(), "");
  EXPECT_FALSE(media().KeyPressPlayer.Playing);
  EXPECT_FALSE(media().BackgroundPlayer.Playing);
  EXPECT_EQ(form().lblStatusBar.Caption.Get(), "All sounds stopped, and the music");
}

TEST_F(SoundPanel, ListsTheFilledLettersWithTheirKindLengthAndRest) {
  show().soundBanks[1][kSoundFirstKey] = "C:\\applause.mp3";
  show().soundBanks[1][kSoundFirstKey + 25] = "C:\\stage.jpg";
  media().Deck.Durations["C:\\applause.mp3"] = 12;
  form().btnCues.Click();
  game_.Do("wait 1");
  const std::vector<ListView::Row> rows = form().lstCues.ListItems;
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_THAT(rows[0], ElementsAre("A", "applause.mp3", "sound", testing::_, ""));
  EXPECT_THAT(rows[1], ElementsAre("Z", "stage.jpg", "picture", "", ""));
  form().btnCues.Click();
  EXPECT_FALSE(form().fraCues.Visible);
}

TEST(TimeText, IsInMinutesAndStartedSeconds) {
  const std::pair<double, const char*> cases[] = {
      {0, "0:00"}, {0.2, "0:01"}, {12, "0:12"}, {61, "1:01"}, {754, "12:34"}};
  for (const auto& [seconds, text] : cases) EXPECT_EQ(TimeText(seconds), text) << seconds;
}

}  // namespace
}  // namespace pawnfield
