#include "forms/volume_slider.h"

#include <algorithm>
#include <cmath>

#include "platform/text.h"

namespace pawnfield {

namespace {
constexpr int kTickMs = 100;
constexpr double kTrackWidth = 4320;
constexpr double kKnobWidth = 120;
constexpr double kTrackHeight = 300;
}  // namespace

double KnobLeftAt(const SliderTrack& track, int percent) {
  return (track.Width - track.KnobWidth) / 100 * percent + track.Left;
}

int PercentAt(double fakeLeft, double fakeWidth, double innerLeft, double innerWidth) {
  const double whole = std::trunc(innerLeft + innerWidth);
  if (whole <= 0) return 0;
  const double share = std::trunc(fakeLeft + fakeWidth) / whole * 100;
  return static_cast<int>(std::clamp(RoundHalfEven(share), 0LL, 100LL));
}

std::int32_t WholePart(double value) { return static_cast<std::int32_t>(std::trunc(value)); }

KnobStop StopAtEnds(const SliderTrack& track, double knobLeft) {
  const double last = track.Left + track.Width - track.KnobWidth;
  KnobStop stop{knobLeft, false};
  if (stop.Left <= track.Left) stop = {track.Left + 1, true};
  if (stop.Left >= last) stop = {last - 1, true};
  return stop;
}

int AudibleVolume(int percent) { return percent == 1 ? 0 : percent; }

void SliderKnob::MouseDown(MouseButton button, double x) {
  if (!IsReachable() || !OnMouseDown) return;
  Raise([&] { OnMouseDown(button, x); }, "_MouseDown");
}

void SliderKnob::MouseMove(double x) {
  if (!IsReachable() || !OnMouseMove) return;
  Raise([&] { OnMouseMove(x); }, "_MouseMove");
}

void SliderKnob::MouseUp() { Raise(OnMouseUp, "_MouseUp"); }

void SliderKnob::StepTo(int percent) {
  if (!IsReachable() || !OnStep) return;
  Raise([&] { OnStep(std::clamp(percent, 0, 100)); }, "_KeyDown");
}

VolumeSlider::VolumeSlider(Form& form, const std::string& prefix, const std::string& timer, const std::string& label,
                           std::string caption)
    : RealBackground(form, prefix + "RealBackground"),
      RealSlider(form, prefix + "RealSlider"),
      Background(form, prefix + "Background"),
      FakeSlider(form, prefix + "FakeSlider"),
      SlideTimer(form, timer, kTickMs),
      Volume(form, label),
      Caption(std::move(caption)) {
  RealBackground.MoveTo(0, 0, kTrackWidth, kTrackHeight);
  RealSlider.MoveTo(0, 0, kKnobWidth, kTrackHeight);
  Background.MoveTo(0, 0, kTrackWidth, kTrackHeight);
  FakeSlider.MoveTo(0, 0, kKnobWidth, kTrackHeight);
}

void LoadSlider(VolumeSlider& slider, int volume) {
  slider.Volume.Caption = std::to_string(volume) + "%";
  const double knobWidth = slider.RealSlider.Width;
  slider.Background.Left = knobWidth;
  slider.Background.Width = slider.RealBackground.Width - 2 * knobWidth;
  slider.SliderOffset = WholePart(slider.RealBackground.Left + slider.Background.Left);
  slider.FakeSlider.Width = knobWidth;
  MoveKnobTo(slider, volume);
}

void GrabKnob(VolumeSlider& slider, MouseButton button, double x) {
  slider.SlideTimer.Enabled = true;
  if (button != MouseButton::Left) return;
  slider.Dragging = true;
  // A knob that stands at an end is let go of at the next tick, and this one has just been taken.
  slider.RealSlider.Left = StopAtEnds(slider.Track(), slider.RealSlider.Left).Left;
  slider.GrabX = static_cast<std::int16_t>(WholePart(x));
}

void DragKnob(VolumeSlider& slider, double x) {
  if (!slider.Dragging) return;
  slider.RealSlider.Left = slider.RealSlider.Left - (slider.GrabX - x);
  slider.FakeSlider.Left = slider.RealSlider.Left - slider.SliderOffset;
}

void MoveKnobTo(VolumeSlider& slider, int percent) {
  slider.RealSlider.Left = KnobLeftAt(slider.Track(), percent);
  slider.FakeSlider.Left = slider.RealSlider.Left - slider.SliderOffset;
}

int SlideTick(VolumeSlider& slider) {
  const KnobStop stop = StopAtEnds(slider.Track(), slider.RealSlider.Left);
  if (stop.AtEnd) {
    slider.Dragging = false;
    slider.SlideTimer.Enabled = false;
    slider.RealSlider.Left = stop.Left;
  }
  return ShowPercent(slider);
}

int ShowPercent(VolumeSlider& slider) {
  const int percent =
      PercentAt(slider.FakeSlider.Left, slider.FakeSlider.Width, slider.Background.Left, slider.Background.Width);
  slider.Volume.Caption = std::to_string(percent) + "%";
  return percent;
}

}  // namespace pawnfield
