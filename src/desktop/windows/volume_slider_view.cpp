#include "desktop/windows/volume_slider_view.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "platform/text.h"

namespace pawnfield {

namespace {
constexpr int kTrackHeight = 6;
constexpr int kKnobWidth = 14;
constexpr int kKnobHeight = 20;
const QColor kGroove("#0B0F1A");
const QColor kEdge("#33405E");
const QColor kAmber("#F2B84B");
const QColor kPale("#E6EAF2");
}  // namespace

VolumeSliderView::VolumeSliderView(QWidget* parent) : QAbstractSlider(parent) {
  setRange(0, 100);
  setFocusPolicy(Qt::StrongFocus);
  setOrientation(Qt::Horizontal);
  connect(this, &QAbstractSlider::valueChanged, this, [this](int percent) {
    if (slider_ != nullptr) slider_->RealSlider.StepTo(percent);
  });
}

void VolumeSliderView::Attach(VolumeSlider& slider) {
  slider_ = &slider;
  slider.FakeSlider.AddObserver(*this);
  setAccessibleName(QString::fromStdString(slider.Caption + " volume"));
}

void VolumeSliderView::Changed(Control&, PropertyId) {
  TakeValue();
  update();
}

void VolumeSliderView::TakeValue() {
  if (slider_ == nullptr) return;
  const QSignalBlocker blocker(this);
  setValue(static_cast<int>(LeadingNumber(slider_->Volume.Caption)));
}

void VolumeSliderView::keyPressEvent(QKeyEvent* event) {
  TakeValue();
  QAbstractSlider::keyPressEvent(event);
}

void VolumeSliderView::wheelEvent(QWheelEvent* event) {
  TakeValue();
  QAbstractSlider::wheelEvent(event);
}

double VolumeSliderView::TwipsPerPixel() const {
  const double pixels = std::max(1, width() - kKnobWidth);
  return (slider_->RealBackground.Width - slider_->RealSlider.Width) / pixels;
}

double VolumeSliderView::FromKnob(double pixels) const {
  return pixels * TwipsPerPixel() - (slider_->RealSlider.Left - slider_->RealBackground.Left);
}

void VolumeSliderView::mousePressEvent(QMouseEvent* event) {
  if (slider_ == nullptr) return;
  const bool left = event->button() == Qt::LeftButton;
  slider_->RealSlider.MouseDown(left ? MouseButton::Left : MouseButton::Other, FromKnob(event->position().x()));
}

void VolumeSliderView::mouseMoveEvent(QMouseEvent* event) {
  if (slider_ != nullptr) slider_->RealSlider.MouseMove(FromKnob(event->position().x()));
}

void VolumeSliderView::mouseReleaseEvent(QMouseEvent*) {
  if (slider_ != nullptr) slider_->RealSlider.MouseUp();
}

void VolumeSliderView::paintEvent(QPaintEvent*) {
  if (slider_ == nullptr) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double middle = height() / 2.0;
  const QRectF track(kKnobWidth / 2.0, middle - kTrackHeight / 2.0, width() - kKnobWidth, kTrackHeight);
  painter.setPen(kEdge);
  painter.setBrush(kGroove);
  painter.drawRoundedRect(track, kTrackHeight / 2.0, kTrackHeight / 2.0);
  // A knob dragged past an end is seen at the end.
  const double place = (slider_->Background.Left + slider_->FakeSlider.Left) / TwipsPerPixel();
  const double left = std::clamp(place, 0.0, static_cast<double>(width() - kKnobWidth));
  painter.setPen(Qt::NoPen);
  painter.setBrush(kAmber);
  painter.drawRoundedRect(QRectF(track.left(), track.top(), left, kTrackHeight), kTrackHeight / 2.0,
                          kTrackHeight / 2.0);
  painter.setPen(hasFocus() ? QPen(kAmber, 3) : QPen(kEdge, 1));
  painter.setBrush(kPale);
  painter.drawRoundedRect(QRectF(left + 1.5, middle - kKnobHeight / 2.0, kKnobWidth - 3, kKnobHeight), 4, 4);
}

}  // namespace pawnfield
