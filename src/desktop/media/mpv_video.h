// The player of media on demand: a channel whose film is one picture that every window paints. Both screens thus show
// the same frame, and its sound is heard once.
#pragma once

#include <mpv/render.h>

#include <QImage>

#include "desktop/media/mpv_channel.h"

namespace pawnfield {

class MpvVideo : public MpvChannel {
  Q_OBJECT
 public:
  MpvVideo();
  ~MpvVideo() override;

  // The frame that is due, null when there is none.
  const QImage& Frame() const { return frame_; }
  // The largest size in pixels at which a window shows the film.
  void SetTargetSize(const QSize& size) { target_ = size; }
  // How many frames have been painted into the picture since the start.
  int FrameCount() const { return frameCount_; }

 signals:
  void FrameChanged();

 protected:
  void FileGone() override;
  void PropertyChanged(const mpv_event_property& property) override;

 private:
  void Render();
  QSize FrameSize() const;

  mpv_render_context* context_ = nullptr;
  QImage frame_;
  // The film's own size in square pixels.
  QSize film_{0, 0};
  QSize target_{1920, 1080};
  int frameCount_ = 0;
};

}  // namespace pawnfield
