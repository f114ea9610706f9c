// A message box with a head of the house's own in the place of the window manager's frame: some managers put a minimise
// button on any frame they draw, whatever the window asks for, and a question that is out of sight holds the show.
#pragma once

#include <QMessageBox>

namespace pawnfield {

class HouseBox : public QMessageBox {
 public:
  explicit HouseBox(QWidget* parent);

 protected:
  // The head, with the window's title, is made when the box is shown. The box can be moved by it.
  void showEvent(QShowEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  // A box that is minimised all the same is back at once.
  void changeEvent(QEvent* event) override;
};

}  // namespace pawnfield
