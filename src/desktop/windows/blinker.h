// Shows and hides a widget over and over. Painting it anew each time would have the program wait for the X server to
// let go of the last frame; what blinks is painted once for each of its two sides, and then only handed to the server.
#pragma once

#include <QBackingStore>
#include <QImage>
#include <QObject>
#include <QTimer>
#include <array>
#include <memory>

class QWidget;
class QWindow;

namespace pawnfield {

class Blinker : public QObject {
 public:
  // From now on the widget is shown or not as it is told here; the toolkit takes it for shown. The widget must outlive
  // this.
  Blinker(QWidget& widget, bool lit);
  void Show(bool lit);

  // Keeps the unlit widget from being painted.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Side {
    QImage Picture;
    std::unique_ptr<QBackingStore> Store;
  };

  // False where only a repaint will do.
  bool HandOver();
  void Prepare(Side& side, const QImage& picture, QWindow& window);

  QWidget& widget_;
  bool lit_;
  // Begins anew with each blink and so ends after the last: what the toolkit itself holds of the place is older.
  QTimer rest_;
  // Unlit, lit.
  std::array<Side, 2> sides_;
};

}  // namespace pawnfield
