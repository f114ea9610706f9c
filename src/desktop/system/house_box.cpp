#include "desktop/system/house_box.h"

#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include "desktop/system/stay_in_sight.h"

namespace pawnfield {

namespace {

class Head : public QLabel {
 public:
  explicit Head(const QWidget& box) : QLabel(box.windowTitle()) {
    setObjectName("pnlBoxHead");
    setTextFormat(Qt::PlainText);
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton) window()->windowHandle()->startSystemMove();
  }
};

}  // namespace

HouseBox::HouseBox(QWidget* parent) : QMessageBox(parent) {
  setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
}

void HouseBox::showEvent(QShowEvent* event) {
  if (layout()->menuBar() == nullptr) {
    auto* head = new Head(*this);
    layout()->setMenuBar(head);
    // The layout would show it a turn of the loop later, and the box would grow before the operator's eyes.
    head->show();
  }
  QMessageBox::showEvent(event);
}

void HouseBox::paintEvent(QPaintEvent* event) {
  QMessageBox::paintEvent(event);
  QPainter painter(this);
  painter.setPen(QColor("#62749F"));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void HouseBox::changeEvent(QEvent* event) {
  StayInSight(*this, *event);
  QMessageBox::changeEvent(event);
}

}  // namespace pawnfield
