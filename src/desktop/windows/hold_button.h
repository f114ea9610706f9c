// A button for what can't be taken back by a slip: it acts when it has been held for a while, by mouse, finger or the
// space bar, and its edge fills meanwhile.
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>

#include "desktop/windows/key_button.h"

namespace pawnfield {

inline constexpr int kHoldMs = 800;

// Neither a click nor a key that is only struck emits clicked(). What does is an action of an assistive device or a
// program, which can't hold: whoever uses the button asks before it acts on that.
class HoldButton : public KeyButton {
  Q_OBJECT
 public:
  using KeyButton::KeyButton;
  // 0 to 1, for what shows it.
  double Filled() const;

 signals:
  void Held();
  // Let go of before the time was over.
  void LetGo();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void changeEvent(QEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void timerEvent(QTimerEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Begin();
  void End();

  QBasicTimer tick_;
  QElapsedTimer sinceTick_;
  int heldMs_ = 0;
};

}  // namespace pawnfield
