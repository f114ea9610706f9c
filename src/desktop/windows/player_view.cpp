#include "desktop/windows/player_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QStyle>
#include <QVBoxLayout>

#include "desktop/media/film.h"
#include "desktop/media/mpv_video.h"

namespace pawnfield {

namespace {

constexpr int kBarHeight = 40;
constexpr int kRefreshMs = 200;
constexpr int kSteps = 1000;
constexpr int kLoudest = 100;

QString TimeText(double seconds) {
  const int whole = seconds > 0 ? static_cast<int>(seconds) : 0;
  return QString("%1:%2").arg(whole / 60).arg(whole % 60, 2, 10, QChar('0'));
}

QPushButton* MakeButton(const char* name, const char* tip, QHBoxLayout& row) {
  auto* button = new QPushButton;
  button->setObjectName(name);
  button->setFixedSize(34, 28);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  // The letter keys stay the console's; the space bar and the arrows work what Tab has come to.
  button->setFocusPolicy(Qt::TabFocus);
  row.addWidget(button);
  return button;
}

}  // namespace

PlayerView::PlayerView(MpvVideo& video, QWidget* parent) : QWidget(parent), video_(video) {
  setObjectName("pnlPlayer");
  // The film and the bar cover it, so that no frame needs what stands behind.
  setAttribute(Qt::WA_OpaquePaintEvent);
  MakeBar();
  connect(&video_, &MpvVideo::FrameChanged, this, [this] { update(FilmRect()); });
  refresh_.setInterval(kRefreshMs);
  connect(&refresh_, &QTimer::timeout, this, &PlayerView::ShowState);
}

void PlayerView::MakeBar() {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addStretch(1);
  bar_ = new QWidget(this);
  bar_->setObjectName("pnlPlayerBar");
  bar_->setFixedHeight(kBarHeight);
  column->addWidget(bar_);
  auto* row = new QHBoxLayout(bar_);
  row->setContentsMargins(8, 4, 8, 4);
  row->setSpacing(8);
  play_ = MakeButton("pnlPlayerPlay", "Play or pause", *row);
  stop_ = MakeButton("pnlPlayerStop", "Stop", *row);
  stop_->setText(QChar(0x25A0));
  position_ = new QSlider(Qt::Horizontal);
  position_->setObjectName("pnlPlayerPosition");
  position_->setRange(0, kSteps);
  position_->setAccessibleName("Position");
  position_->setFocusPolicy(Qt::TabFocus);
  row->addWidget(position_, 1);
  time_ = new QLabel;
  time_->setObjectName("pnlPlayerTime");
  row->addWidget(time_);
  mute_ = MakeButton("pnlPlayerMute", "Sound on or off", *row);
  mute_->setCheckable(true);
  volume_ = new QSlider(Qt::Horizontal);
  volume_->setObjectName("pnlPlayerVolume");
  volume_->setRange(0, kLoudest);
  volume_->setValue(kLoudest);
  volume_->setFixedWidth(90);
  volume_->setAccessibleName("Volume");
  volume_->setFocusPolicy(Qt::TabFocus);
  row->addWidget(volume_);
  connect(play_, &QPushButton::clicked, this, [this] { video_.IsPaused() ? video_.Play() : video_.Pause(); });
  connect(stop_, &QPushButton::clicked, this, [this] { video_.Stop(); });
  connect(position_, &QSlider::actionTriggered, this,
          [this] { video_.SeekTo(video_.Duration() * position_->sliderPosition() / kSteps); });
  const auto setVolume = [this] {
    video_.SetVolume(mute_->isChecked() ? 0 : volume_->value());
    ShowState();
  };
  connect(mute_, &QPushButton::toggled, this, setVolume);
  connect(volume_, &QSlider::valueChanged, this, setVolume);
}

void PlayerView::ShowState() {
  const double duration = video_.Duration();
  const double position = video_.CurrentPosition();
  play_->setText(video_.IsPaused() ? QString(QChar(0x25B6)) : QString("II"));
  mute_->setIcon(style()->standardIcon(mute_->isChecked() ? QStyle::SP_MediaVolumeMuted : QStyle::SP_MediaVolume));
  if (!position_->isSliderDown()) {
    const QSignalBlocker blocker(position_);
    position_->setValue(duration > 0 ? static_cast<int>(kSteps * position / duration) : 0);
  }
  time_->setText(TimeText(position) + " / " + TimeText(duration));
}

QRect PlayerView::FilmRect() const { return rect().adjusted(0, 0, 0, -kBarHeight); }

void PlayerView::showEvent(QShowEvent*) {
  ShowState();
  refresh_.start();
}

void PlayerView::hideEvent(QHideEvent*) { refresh_.stop(); }

void PlayerView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  PaintFilm(painter, FilmRect(), video_.Frame());
}

}  // namespace pawnfield
