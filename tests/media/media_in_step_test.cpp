#include <gtest/gtest.h>

#include "media/media_on_demand.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

constexpr int kKey = 9;

TEST(MediaInStep, AScreenThatComesUpShowsWhatTheConsoleHasUp) {
  const struct {
    const char* file;
    bool gone, ended, shown, film;
  } table[] = {{"a.mp4", false, false, true, true},
               {"a.mp4", true, false, true, true},
               {"a.mp4", false, true, false, false},
               {"a.jpg", false, false, true, false},
               {"a.jpg", true, false, false, false}};
  for (const auto& row : table) {
    SCOPED_TRACE(row.file);
    ShowFixture fixture(Screens::One);
    fixture.Start();
    const std::string path = std::string("C:\\media\\") + row.file;
    fixture.sim.files.Put(path, SimPictures::PictureBytes(1600, 900));
    fixture.show().soundBanks[1][kKey] = path;
    PlayKeyMedia(fixture.show(), kKey);
    if (row.film) fixture.sim.media.MediaPlayer1.Report(PlayState::Playing);
    if (row.ended) fixture.sim.media.MediaPlayer1.Report(PlayState::Stopped);
    if (row.gone) fixture.sim.files.Remove(path);
    fixture.sim.media.Log.clear();
    fixture.sim.displays.Change({{0, 0, 1280, 800}, {1280, 0, 3200, 1080}});
    const FSMainForm& audience = fixture.audience();
    EXPECT_EQ(audience.picMOD.Visible, row.shown);
    EXPECT_EQ(audience.MediaPlayer1.IsShown(), row.film);
    EXPECT_EQ(audience.picImageResize[1].IsShown(), row.shown && !row.film);
    EXPECT_EQ(audience.MediaPlayer1.URL.Get(), row.film ? path : "");
    EXPECT_EQ(fixture.sim.media.Log, MediaLog{}) << "what runs is left to run";
  }
}

}  // namespace
}  // namespace pawnfield
