#include "desktop/media/mpv_video.h"

#include <QMetaObject>
#include <array>

namespace pawnfield {

MpvVideo::MpvVideo() : MpvChannel({{"vo", "libmpv"}, {"hwdec", "no"}, {"keep-open", "no"}}) {
  if (Handle() == nullptr) return;
  std::array<mpv_render_param, 2> params{
      {{MPV_RENDER_PARAM_API_TYPE, const_cast<char*>(MPV_RENDER_API_TYPE_SW)}, {MPV_RENDER_PARAM_INVALID, nullptr}}};
  if (mpv_render_context_create(&context_, Handle(), params.data()) < 0) {
    context_ = nullptr;
    return;
  }
  mpv_observe_property(Handle(), 0, "dwidth", MPV_FORMAT_INT64);
  mpv_observe_property(Handle(), 0, "dheight", MPV_FORMAT_INT64);
  mpv_render_context_set_update_callback(
      context_,
      [](void* self) {
        auto* video = static_cast<MpvVideo*>(self);
        QMetaObject::invokeMethod(
            video, [video] { video->Render(); }, Qt::QueuedConnection);
      },
      this);
}

MpvVideo::~MpvVideo() {
  if (context_ != nullptr) {
    mpv_render_context_set_update_callback(context_, nullptr, nullptr);
    mpv_render_context_free(context_);
    context_ = nullptr;
  }
  Close();
}

void MpvVideo::PropertyChanged(const mpv_event_property& property) {
  if (property.format != MPV_FORMAT_INT64) return;
  const int length = static_cast<int>(*static_cast<std::int64_t*>(property.data));
  QByteArray(property.name) == "dwidth" ? film_.setWidth(length) : film_.setHeight(length);
}

QSize MpvVideo::FrameSize() const {
  const bool tooLarge = film_.width() > target_.width() || film_.height() > target_.height();
  return tooLarge ? film_.scaled(target_, Qt::KeepAspectRatio) : film_;
}

void MpvVideo::Render() {
  if (context_ == nullptr) return;
  const bool isNew = (mpv_render_context_update(context_) & MPV_RENDER_UPDATE_FRAME) != 0;
  // A frame that isn't fetched within a fifth of a second is passed over, and a film at rest has no other after it.
  if (!isNew && !IsPaused()) return;
  const QSize wanted = FrameSize();
  if (!IsPlaying() || wanted.isEmpty()) {
    // The frame has to be taken all the same, or no further one is announced.
    int skip = 1;
    std::array<mpv_render_param, 2> params{
        {{MPV_RENDER_PARAM_SKIP_RENDERING, &skip}, {MPV_RENDER_PARAM_INVALID, nullptr}}};
    mpv_render_context_render(context_, params.data());
    return;
  }
  if (frame_.size() != wanted) frame_ = QImage(wanted, QImage::Format_RGB32);
  std::array<int, 2> size{wanted.width(), wanted.height()};
  std::size_t stride = static_cast<std::size_t>(frame_.bytesPerLine());
  int wait = 0;
  std::array<mpv_render_param, 6> params{{{MPV_RENDER_PARAM_SW_SIZE, size.data()},
                                          {MPV_RENDER_PARAM_SW_FORMAT, const_cast<char*>("bgr0")},
                                          {MPV_RENDER_PARAM_SW_STRIDE, &stride},
                                          {MPV_RENDER_PARAM_SW_POINTER, frame_.bits()},
                                          {MPV_RENDER_PARAM_BLOCK_FOR_TARGET_TIME, &wait},
                                          {MPV_RENDER_PARAM_INVALID, nullptr}}};
  if (mpv_render_context_render(context_, params.data()) < 0) return;
  ++frameCount_;
  emit FrameChanged();
}

void MpvVideo::FileGone() {
  if (frame_.isNull()) return;
  frame_ = QImage();
  emit FrameChanged();
}

}  // namespace pawnfield
