// The operator's player of media on demand: the film and, below it, its controls. What they do is seen on both screens.
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;
class QPushButton;
class QSlider;

namespace pawnfield {

class MpvVideo;

class PlayerView : public QWidget {
  Q_OBJECT
 public:
  PlayerView(MpvVideo& video, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void MakeBar();
  void ShowState();
  QRect FilmRect() const;

  MpvVideo& video_;
  // Runs while the controls are seen.
  QTimer refresh_;
  QWidget* bar_ = nullptr;
  QPushButton* play_ = nullptr;
  QPushButton* stop_ = nullptr;
  QPushButton* mute_ = nullptr;
  QSlider* position_ = nullptr;
  QSlider* volume_ = nullptr;
  QLabel* time_ = nullptr;
};

}  // namespace pawnfield
