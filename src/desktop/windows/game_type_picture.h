// A small drawing of what makes a game type: who asks, who answers, and who goes on.
#pragma once

#include <QWidget>

namespace pawnfield {

class GameTypePicture : public QWidget {
 public:
  // By the row of kGameTypes.
  explicit GameTypePicture(std::size_t row);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::size_t row_;
};

}  // namespace pawnfield
