// What tells the operator where the show is: the chips of the menu bar and the order in which players rang in.
#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QList>
#include <QStringList>
#include <QTreeWidget>

#include "platform/controls.h"

namespace pawnfield {

// A word behind a small light: green, amber or red, or none.
class ChipView : public QAbstractButton {
  Q_OBJECT
 public:
  explicit ChipView(QWidget* parent = nullptr);
  void Show(const QString& text, ChipState state);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  ChipState state_ = ChipState::None;
};

// A golden edge around what is to be pressed next. It paints itself: what a style sheet draws of a frame is drawn ahead
// of its paint event, so that nothing could keep it from being seen while it blinks.
class EdgeFrame : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A text that ends in dots where it would be cut.
class ElidedLabel : public QLabel {
  Q_OBJECT
 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// The letters that bring something up: letter, name, kind, length, and what is left of the one that plays.
class CueView : public QTreeWidget {
  Q_OBJECT
 public:
  explicit CueView(QWidget* parent = nullptr);

 protected:
  // An empty list says how it is filled.
  void paintEvent(QPaintEvent* event) override;
};

// A line for each ring-in: its place and the player's name in the player's colour, and when it was.
class OrderView : public QWidget {
  Q_OBJECT
 public:
  explicit OrderView(QWidget* parent = nullptr);
  // Place, name, when, "amber" where that is too close to call, and the player's number.
  void SetRows(const QList<QStringList>& rows);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int LineHeight() const;
  QList<QStringList> rows_;
};

}  // namespace pawnfield
