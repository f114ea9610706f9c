// A button of the console: it shows the key that does the same in its corner, and a note on what it will do.
#pragma once

#include <QPushButton>
#include <QString>

namespace pawnfield {

class KeyButton : public QPushButton {
  Q_OBJECT
 public:
  using QPushButton::QPushButton;
  // As on the keyboard, "Ctrl U"; empty for none.
  void SetKey(const QString& key);
  // A line in small letters under the button's text; empty for none.
  void SetNote(const QString& note);
  // What is drawn in the place of the caption, cut with dots where it is too long; empty for the caption itself.
  void SetFace(const QString& face);
  // The key, the note and the sign grow as the text does with the window's look.
  void SetGrowth(double growth);
  // The least width in which neither the text nor the key is cut.
  int NeededWidth() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QFont SmallFont() const;
  QSize KeySize() const;
  void PaintKey(QPainter& painter) const;
  void PaintNote(QPainter& painter) const;
  void PaintFace(QPainter& painter, const QStyleOptionButton& option) const;

  QString key_, note_, face_;
  double growth_ = 1;
  // As it was given, before any growth.
  QSize sign_;
};

}  // namespace pawnfield
