// A film whose every frame carries its number in black and white bars, so that the frame which a screen shows can be
// read from the screen itself.
#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <QWidget>

namespace pawnfield {

inline constexpr int kCountedFramesPerSecond = 25;

// Makes the film with a tone of 800 Hz beside it. False when nothing can make it.
bool MakeCountedFilm(const QString& path, int seconds);
// The number that the film shows at this place of the picture; -1 when it is none.
int CountedFrame(const QImage& picture, const QRectF& film);
// Where on the desktop each window shows it; the place is empty when the window isn't shown.
QRectF ConsoleFilm(const QWidget& console);
QRectF AudienceFilm(const QWidget& audience);

}  // namespace pawnfield
