// Shows one volume slider: its track, the knob that the operator sees, and the focus. The mouse drags the model's knob;
// the arrow keys and the wheel step it.
#pragma once

#include <QAbstractSlider>

#include "forms/volume_slider.h"

namespace pawnfield {

class VolumeSliderView : public QAbstractSlider, public Observer {
  Q_OBJECT
 public:
  explicit VolumeSliderView(QWidget* parent = nullptr);
  // Follows the slider, which must outlive this view.
  void Attach(VolumeSlider& slider);

  void Changed(Control& control, PropertyId id) override;
  QSize sizeHint() const override { return {240, 26}; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // Twips of the model for a pixel of the view, and the place of the mouse from the left edge of the model's knob.
  double TwipsPerPixel() const;
  double FromKnob(double pixels) const;
  // The toolkit's slider steps from the volume that stands beside it.
  void TakeValue();

  VolumeSlider* slider_ = nullptr;
};

}  // namespace pawnfield
