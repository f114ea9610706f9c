#include "counted_film.h"

#include <QProcess>

#include "desktop/media/film.h"

namespace pawnfield {

namespace {

// A white bar, the bits of the number from the least on, and a black bar.
constexpr int kBits = 12;
constexpr int kBars = kBits + 2;
constexpr QSize kSize(1280, 720);

bool IsWhite(const QImage& picture, const QRectF& film, int bar) {
  const QPointF place(film.left() + film.width() * (bar + 0.5) / kBars, film.center().y());
  return picture.valid(place.toPoint()) && qGray(picture.pixel(place.toPoint())) > 127;
}

QRectF OnDesktop(const QWidget& widget, const QRect& area) {
  return widget.isVisible() ? FilmPlace(QRectF(widget.mapToGlobal(area.topLeft()), area.size()), kSize) : QRectF();
}

}  // namespace

bool MakeCountedFilm(const QString& path, int seconds) {
  const QString bars =
      QString(
          "color=black:size=%1x4:rate=%2:duration=%3,geq=lum='255*if(eq(X,0),1,if(eq(X,%1-1),0,"
          "mod(floor(N/pow(2,X-1)),2)))':cb=128:cr=128,scale=%4:%5:flags=neighbor,setsar=1,format=yuv420p")
          .arg(kBars)
          .arg(kCountedFramesPerSecond)
          .arg(seconds)
          .arg(kSize.width())
          .arg(kSize.height());
  return QProcess::execute("ffmpeg", {"-v", "error", "-y", "-f", "lavfi", "-i", bars, "-f", "lavfi", "-i",
                                      QString("sine=frequency=800:duration=%1").arg(seconds), path}) == 0;
}

int CountedFrame(const QImage& picture, const QRectF& film) {
  if (film.isEmpty() || !IsWhite(picture, film, 0) || IsWhite(picture, film, kBars - 1)) return -1;
  int number = 0;
  for (int bit = 0; bit < kBits; ++bit) number |= IsWhite(picture, film, bit + 1) ? 1 << bit : 0;
  return number;
}

QRectF ConsoleFilm(const QWidget& console) {
  const auto* player = console.findChild<QWidget*>("pnlPlayer");
  const auto* bar = console.findChild<QWidget*>("pnlPlayerBar");
  return OnDesktop(*player, player->rect().adjusted(0, 0, 0, -bar->height()));
}

QRectF AudienceFilm(const QWidget& audience) { return OnDesktop(audience, audience.rect()); }

}  // namespace pawnfield
