#include "desktop/windows/qr_view.h"

#include <qrencode.h>

#include <QPainter>
#include <memory>

namespace pawnfield {

QImage QrCodeOf(const QByteArray& text) {
  const std::unique_ptr<QRcode, decltype(&QRcode_free)> code(
      QRcode_encodeString(text.constData(), 0, QR_ECLEVEL_M, QR_MODE_8, 1), QRcode_free);
  if (text.isEmpty() || code == nullptr) return {};
  QImage image(code->width, code->width, QImage::Format_RGB32);
  for (int y = 0; y < code->width; ++y) {
    for (int x = 0; x < code->width; ++x) {
      const bool dark = (code->data[y * code->width + x] & 1U) != 0;
      image.setPixel(x, y, dark ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    }
  }
  return image;
}

void QrView::SetText(const QString& text) {
  code_ = QrCodeOf(text.toLatin1());
  setAccessibleName(text.isEmpty() ? QString() : "QR code of " + text);
  update();
}

void QrView::paintEvent(QPaintEvent*) {
  constexpr int kQuietModules = 4;
  if (code_.isNull()) return;
  QPainter painter(this);
  const int module = std::min(width(), height()) / (code_.width() + 2 * kQuietModules);
  const int side = module * code_.width();
  const QRect whole(0, 0, side + 2 * kQuietModules * module, side + 2 * kQuietModules * module);
  const QRect paper = whole.translated((width() - whole.width()) / 2, (height() - whole.height()) / 2);
  painter.fillRect(paper, Qt::white);
  const int edge = kQuietModules * module;
  painter.drawImage(paper.adjusted(edge, edge, -edge, -edge), code_);
}

}  // namespace pawnfield
