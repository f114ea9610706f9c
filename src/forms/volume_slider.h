// A volume slider of the options dialog: a knob on a track, the pair that the operator sees following it, and the
// arithmetic that makes a place of a percentage and back. Owned by frmOptions.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/controls.h"

namespace pawnfield {

// Places and widths in twips. The knob moves on the track's own scale; what is seen is offset from it.
struct SliderTrack {
  double Left = 0;
  double Width = 0;
  double KnobWidth = 0;
};

// The Left of a knob that stands for the percentage.
double KnobLeftAt(const SliderTrack& track, int percent);
// What the knob that is seen stands for, 0..100; it counts from its right edge within the inner track.
int PercentAt(double fakeLeft, double fakeWidth, double innerLeft, double innerWidth);
// The whole part of a place, as text boxes of that age keep it.
std::int32_t WholePart(double value);

// A knob at an end of its track is set a twip within it, and its drag is over.
struct KnobStop {
  double Left = 0;
  bool AtEnd = false;
};
KnobStop StopAtEnds(const SliderTrack& track, double knobLeft);

// What the channel is given: the faintest volume is none.
int AudibleVolume(int percent);

enum class MouseButton { Left, Other };

// A knob that is dragged; x is twips from its left edge.
class SliderKnob : public PictureBox {
 public:
  using PictureBox::PictureBox;
  void MouseDown(MouseButton button, double x);
  void MouseMove(double x);
  void MouseUp();
  // The arrow keys and the wheel: the knob goes to the place of that percentage.
  void StepTo(int percent);

  std::function<void(MouseButton button, double x)> OnMouseDown;
  std::function<void(double x)> OnMouseMove;
  std::function<void()> OnMouseUp;
  std::function<void(int percent)> OnStep;
};

// One of the five, whose four pictures are named by a common prefix, as picAnimationRealSlider is.
struct VolumeSlider {
  VolumeSlider(Form& form, const std::string& prefix, const std::string& timer, const std::string& label,
               std::string caption);

  SliderTrack Track() const { return {RealBackground.Left, RealBackground.Width, RealSlider.Width}; }

  PictureBox RealBackground;
  SliderKnob RealSlider;
  PictureBox Background;
  PictureBox FakeSlider;
  Timer SlideTimer;
  Label Volume;
  std::string Caption;
  bool Dragging = false;
  std::int16_t GrabX = 0;
  std::int32_t SliderOffset = 0;
};

// Puts the knobs where the volume says. At volume 0 the knob that is seen keeps the place it is given on the way.
void LoadSlider(VolumeSlider& slider, int volume);
void GrabKnob(VolumeSlider& slider, MouseButton button, double x);
void DragKnob(VolumeSlider& slider, double x);
// Brings both knobs to the place of the percentage, as a drag would.
void MoveKnobTo(VolumeSlider& slider, int percent);
// One tick while the knob is held: stops it at the ends; returns the percentage and shows it.
int SlideTick(VolumeSlider& slider);
int ShowPercent(VolumeSlider& slider);

}  // namespace pawnfield
