// Widgets that the form files promote to: those that report more of the user's actions, or paint what no widget does.
#pragma once

#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QPixmap>
#include <functional>

namespace pawnfield {

// Of any text on the windows.
inline constexpr int kSmallestPixels = 11;

// Notifies before its list opens, so that the model can fill it.
class ModelComboBox : public QComboBox {
  Q_OBJECT
 public:
  using QComboBox::QComboBox;
  void showPopup() override;
 signals:
  void AboutToOpen();
};

// A label that can be clicked; its text is shown smaller rather than cut.
class ModelLabel : public QLabel {
  Q_OBJECT
 public:
  using QLabel::QLabel;
  // With the property "shrinks" its letters shrink instead, and a long text pushes nothing away.
  bool hasHeightForWidth() const override;
 signals:
  void Clicked();
  void DoubleClicked();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

// Paints one picture over its whole area behind what stands in it, or a player's card in the picture's place.
class PictureFrame : public QFrame {
  Q_OBJECT
 public:
  using QFrame::QFrame;
  void SetPicture(const QPixmap& picture);
  // Paints the card of that player 1..3 from now on, with the sign of his pieces where that is wanted.
  void SetCard(int player, bool sign);
  // The texts on the card wear their lit colours too: the style sheet asks for the property "lit".
  void SetLit(bool lit);
 signals:
  void Clicked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  QPixmap picture_;
  int player_ = 0;
  bool sign_ = false;
  bool lit_ = false;
};

// Hidden, the widget leaves its place to what stands beside or below it, which those of a form else keep.
void LeavePlace(QWidget& widget);

}  // namespace pawnfield
