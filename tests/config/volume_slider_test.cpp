// The slider's arithmetic, and a slider dragged and stepped in virtual time.
#include <gtest/gtest.h>

#include "support/show_fixture.h"

namespace pawnfield {
namespace {

TEST(VolumeSlider, EveryPercentageComesBackFromItsPlaceOnAnyTrack) {
  for (const SliderTrack& track : {SliderTrack{0, 4320, 120}, {1500, 3001.5, 255}, {-60, 600, 15}}) {
    const double inner = track.Width - 2 * track.KnobWidth;
    for (int percent = 0; percent <= 100; ++percent) {
      const double fake = KnobLeftAt(track, percent) - WholePart(track.Left + track.KnobWidth);
      EXPECT_EQ(PercentAt(fake, track.KnobWidth, track.KnobWidth, inner), percent) << track.Width;
    }
  }
}

TEST(VolumeSlider, PlacesMakePercentagesByTheirWholeParts) {
  struct Case {
    double fakeLeft, fakeWidth, innerLeft, innerWidth;
    int percent;
  };
  const Case cases[] = {
      {-120, 120, 120, 4080, 0},  {-78, 120, 120, 4080, 1},    {1980, 120, 120, 4080, 50}, {4080, 120, 120, 4080, 100},
      {-500, 120, 120, 4080, 0},  {9000, 120, 120, 4080, 100}, {-99.1, 120, 120, 4080, 0}, {-98, 120, 120, 4080, 1},
      {0.9, 10.05, 0, 1000.9, 1}, {5, 10, 0, 1000, 2},         {15, 10, 0, 1000, 2},       {10, 10, 0, 0, 0},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(PercentAt(c.fakeLeft, c.fakeWidth, c.innerLeft, c.innerWidth), c.percent) << c.fakeLeft;
  }
}

TEST(VolumeSlider, KnobStopsATwipWithinEitherEnd) {
  const SliderTrack track{100, 1000, 50};
  struct Case {
    double at, left;
    bool atEnd;
  };
  for (const Case& c : {Case{-9000, 101, true},
                        {100, 101, true},
                        {100.5, 100.5, false},
                        {600, 600, false},
                        {1049, 1049, false},
                        {1050, 1049, true},
                        {5000, 1049, true}}) {
    const KnobStop stop = StopAtEnds(track, c.at);
    EXPECT_EQ(stop.Left, c.left) << c.at;
    EXPECT_EQ(stop.AtEnd, c.atEnd) << c.at;
  }
  for (const auto& [percent, volume] : {std::pair{0, 0}, {1, 0}, {2, 2}, {100, 100}}) {
    EXPECT_EQ(AudibleVolume(percent), volume);
  }
}

class Sliders : public testing::Test {
 protected:
  Sliders() { fixture.Start(); }
  // Opens the options, works them while they are shown, and cancels.
  void Open(const std::function<void()>& act) {
    fixture.sim.dialogs.ExpectForm("frmOptions", [&] {
      act();
      options.btnCancel.Click();
    });
    fixture.form().mnuFileOptions.Click();
  }
  // Drags by that share of the way; the timer ticks while the button is held.
  void Drag(VolumeSlider& slider, double share) {
    slider.RealSlider.MouseDown(MouseButton::Left, 60.7);
    slider.RealSlider.MouseMove(60 + share * (slider.RealBackground.Width - slider.RealSlider.Width));
    fixture.sim.clock.Advance(100);
    slider.RealSlider.MouseUp();
  }

  ShowFixture fixture;
  OptionsForm& options = fixture.show().frmOptions;
  GameState& state = fixture.show().state;
};

TEST_F(Sliders, EachMovesItsOwnChannelAtOnceAndCancelKeepsIt) {
  RecordedMedia& media = fixture.sim.media;
  RecordedChannel* channels[] = {&media.EventPlayer, &media.KeyPressPlayer, &media.SoundClipPlayer,
                                 &media.BackgroundPlayer, &media.CorrectIncorrectPlayer};
  int* variables[] = {&state.EventPlayerVolume, &state.KeyPressPlayerVolume, &state.SoundClipPlayerVolume,
                      &state.BackgroundPlayerVolume, &state.CorrectIncorrectVolume};
  for (std::size_t i = 0; i < 5; ++i) {
    VolumeSlider& slider = *options.Sliders()[i];
    const int wanted = 25 + static_cast<int>(i);
    Open([&] {
      EXPECT_EQ(slider.Volume.Caption.Get(), "75%");
      Drag(slider, (wanted - 75) / 100.0);
      EXPECT_EQ(slider.Volume.Caption.Get(), std::to_string(wanted) + "%");
      EXPECT_FALSE(options.btnApply.Enabled);
    });
    EXPECT_EQ(channels[i]->Volume, wanted);
    EXPECT_EQ(*variables[i], wanted);
    Open([&] { EXPECT_EQ(slider.Volume.Caption.Get(), std::to_string(wanted) + "%"); });
  }
  EXPECT_EQ(media.EventPlayer.Volume, 25);
}

TEST_F(Sliders, DraggedPastAnEndItStopsThereAndOnePercentIsSilence) {
  VolumeSlider& slider = options.picAnimation;
  EXPECT_EQ(options.Find("picAnimationRealSlider"), &slider.RealSlider);
  struct Case {
    double share;
    const char* label;
    int percent, heard;
    bool stopped;
  };
  for (const Case& c : {Case{-0.74, "1%", 1, 0, false}, {-3, "0%", 0, 0, true}, {3, "100%", 100, 100, true}}) {
    state.CorrectIncorrectVolume = 75;
    slider.SlideTimer.Enabled = false;
    Open([&] {
      Drag(slider, c.share);
      EXPECT_EQ(slider.Volume.Caption.Get(), c.label);
      EXPECT_EQ(slider.SlideTimer.Enabled, !c.stopped) << c.label;
    });
    EXPECT_EQ(state.CorrectIncorrectVolume, c.percent);
    EXPECT_EQ(fixture.sim.media.CorrectIncorrectPlayer.Volume, c.heard);
  }
}

TEST_F(Sliders, PressWithoutAMoveOrByAnotherButtonTakesThePlaceAsItStands) {
  VolumeSlider& slider = options.picEvent;
  Open([&] {
    slider.RealSlider.MouseDown(MouseButton::Other, 10);
    slider.RealSlider.MouseMove(500);
    slider.RealSlider.MouseUp();
    fixture.sim.clock.Advance(300);
    EXPECT_EQ(slider.Volume.Caption.Get(), "75%");
    EXPECT_TRUE(slider.SlideTimer.Enabled);
  });
}

TEST_F(Sliders, AtVolumeZeroTheVisibleKnobKeepsThePlaceItIsGivenOnTheWay) {
  VolumeSlider& slider = options.picEvent;
  for (const auto& [volume, place] : {std::pair{0, 0 + 120.0}, {50, 2100 - 120.0}, {0, 2100 + 120.0}}) {
    state.EventPlayerVolume = volume;
    Open([&, at = place] { EXPECT_EQ(slider.FakeSlider.Left, at); });
  }
}

TEST_F(Sliders, KeysAndWheelStepTheKnobBetweenTheEnds) {
  VolumeSlider& slider = options.picKeyPress;
  Open([&] {
    for (const auto& [step, volume] : {std::pair{76, 76}, {0, 0}, {1, 1}, {100, 100}, {140, 100}, {-5, 0}}) {
      slider.RealSlider.StepTo(step);
      EXPECT_EQ(state.KeyPressPlayerVolume, volume);
      EXPECT_EQ(fixture.sim.media.KeyPressPlayer.Volume, volume == 1 ? 0 : volume);
      EXPECT_EQ(slider.Volume.Caption.Get(), std::to_string(volume) + "%");
    }
  });
}

}  // namespace
}  // namespace pawnfield
