// A text as a QR code, for a phone's camera. Paints nothing while the text is empty.
#pragma once

#include <QImage>
#include <QWidget>

namespace pawnfield {

// A pixel for each module, without the quiet zone; null for a text that is empty or too long for any code.
QImage QrCodeOf(const QByteArray& text);

class QrView : public QWidget {
  Q_OBJECT
 public:
  using QWidget::QWidget;
  void SetText(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QImage code_;
};

}  // namespace pawnfield
