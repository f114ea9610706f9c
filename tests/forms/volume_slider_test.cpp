// The slider's arithmetic, and a slider dragged and stepped in virtual time.
#include "forms/main_form.h"
#include "forms/options_form.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

TEST(VolumeSlider, PlacesMakePercentagesAndStopWithinTheEnds) {
  // Only whole parts count, and nothing lies outside 0 to 100.
  for (const auto& [left, percent] :
       {std::pair{-500.0, 0}, {-99.1, 0}, {-98, 1}, {-78, 1}, {1980, 50}, {4080, 100}, {9000, 100}}) {
    EXPECT_EQ(PercentAt(left, 120, 120, 4080), percent) << left;
  }
  EXPECT_EQ(PercentAt(0.9, 10.05, 0, 1000.9), 1);
  EXPECT_EQ(PercentAt(5, 10, 0, 1000) + PercentAt(15, 10, 0, 1000), 4) << "halves go to the even percentage";
  EXPECT_EQ(PercentAt(10, 10, 0, 0), 0);
  const std::tuple<double, double, bool> stops[] = {{-9000, 101, true},  {100, 101, true},   {100.5, 100.5, false},
                                                    {1049, 1049, false}, {1050, 1049, true}, {5000, 1049, true}};
  for (const auto& [at, left, atEnd] : stops) {
    const KnobStop stop = StopAtEnds({100, 1000, 50}, at);
    EXPECT_TRUE(stop.Left == left && stop.AtEnd == atEnd) << at << " stops at " << stop.Left;
  }
}

class Sliders : public ShowFixture, public testing::Test {
 protected:
  Sliders() { Start(); }
  // Opens the options, works them while they are shown, and cancels.
  void Open(const std::function<void()>& act) {
    sim.dialogs.ExpectForm("frmOptions", [&] {
      act();
      options.btnCancel.Click();
    });
    form().mnuFileOptions.Click();
  }
  // Drags by that share of the way; the timer ticks while the button is held.
  void Drag(VolumeSlider& slider, double share) {
    slider.RealSlider.MouseDown(MouseButton::Left, 60.7);
    slider.RealSlider.MouseMove(60 + share * (slider.RealBackground.Width - slider.RealSlider.Width));
    sim.clock.Advance(100);
    slider.RealSlider.MouseUp();
  }

  OptionsForm& options = show().frmOptions;
  GameState& state = show().state;
};

TEST_F(Sliders, EachMovesItsOwnChannelAtOnceAndCancelKeepsIt) {
  for (std::size_t i = 0; i < 5; ++i) {
    const VolumeSlider& slider = *options.Sliders()[i];
    Open([&] {
      EXPECT_EQ(slider.Volume.Caption.Get(), "75%");
      Drag(*options.Sliders()[i], (25 + static_cast<int>(i) - 75) / 100.0);
      EXPECT_FALSE(options.btnApply.Enabled);
    });
    Open([&] { EXPECT_EQ(slider.Volume.Caption.Get(), std::to_string(25 + i) + "%"); });
  }
  const RecordedMedia& media = sim.media;
  const std::array volumes{25, 26, 27, 28, 29};
  EXPECT_EQ((std::array{state.EventPlayerVolume, state.KeyPressPlayerVolume, state.SoundClipPlayerVolume,
                        state.BackgroundPlayerVolume, state.CorrectIncorrectVolume}),
            volumes);
  EXPECT_EQ((std::array{media.EventPlayer.Volume, media.KeyPressPlayer.Volume, media.SoundClipPlayer.Volume,
                        media.BackgroundPlayer.Volume, media.CorrectIncorrectPlayer.Volume}),
            volumes);
}

TEST_F(Sliders, DraggedPastAnEndItStopsThereAndOnePercentIsSilence) {
  VolumeSlider& slider = options.picAnimation;
  const std::tuple<double, int, int, bool> drags[] = {{-0.74, 1, 0, false}, {-3, 0, 0, true}, {3, 100, 100, true}};
  for (const auto& [share, percent, heard, stopped] : drags) {
    state.CorrectIncorrectVolume = 75;
    slider.SlideTimer.Enabled = false;
    Open([&, by = share] { Drag(slider, by); });
    EXPECT_EQ(slider.Volume.Caption.Get(), std::to_string(percent) + "%");
    EXPECT_EQ(slider.SlideTimer.Enabled, !stopped) << share;
    EXPECT_EQ(state.CorrectIncorrectVolume, percent);
    EXPECT_EQ(sim.media.CorrectIncorrectPlayer.Volume, heard);
  }
}

// A hand that takes the knob at an end moves it on only after the first tick.
TEST_F(Sliders, AKnobAtAnEndIsTakenAndAPressThereChangesNothing) {
  VolumeSlider& slider = options.picEvent;
  for (const auto& [volume, share] : {std::pair{0, 0.5}, {100, -0.5}}) {
    state.EventPlayerVolume = volume;
    Open([&, at = volume, by = share] {
      slider.RealSlider.MouseDown(MouseButton::Left, 60);
      sim.clock.Advance(300);
      EXPECT_EQ(slider.Volume.Caption.Get(), std::to_string(at) + "%");
      slider.RealSlider.MouseMove(60 + by * (slider.RealBackground.Width - slider.RealSlider.Width));
      sim.clock.Advance(100);
      slider.RealSlider.MouseUp();
    });
    EXPECT_EQ(state.EventPlayerVolume, 50) << volume;
  }
}

TEST_F(Sliders, AnotherButtonTakesThePlaceAsItStandsAndTheKnobOfVolumeZeroStandsAtTheEnd) {
  VolumeSlider& slider = options.picEvent;
  Open([&] {
    slider.RealSlider.MouseDown(MouseButton::Other, 10);
    slider.RealSlider.MouseMove(500);
    sim.clock.Advance(300);
    EXPECT_EQ(slider.Volume.Caption.Get(), "75%");
    EXPECT_TRUE(slider.SlideTimer.Enabled);
  });
  for (const auto& [volume, place] : {std::pair{50, 2100 - 120.0}, {0, -120.0}}) {
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
      EXPECT_EQ(sim.media.KeyPressPlayer.Volume, volume == 1 ? 0 : volume);
      EXPECT_EQ(slider.Volume.Caption.Get(), std::to_string(volume) + "%");
    }
  });
}

}  // namespace
}  // namespace pawnfield
