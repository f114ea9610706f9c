#include "desktop/windows/fitting_scale.h"

#include <QGuiApplication>
#include <QRegularExpression>
#include <QScreen>
#include <algorithm>
#include <vector>

#include "desktop/system/screens.h"

namespace pawnfield {

namespace {
// Room in which the console has all its panels, and the frame around it.
constexpr double kNeededWidth = 1190;
constexpr double kNeededHeight = 782;
constexpr const char* kFactor = "QT_SCALE_FACTOR";
constexpr const char* kPlatform = "QT_QPA_PLATFORM";

// Monitors are known again by their names. Where a compositor tells none, the X server that stands beside it does.
void LeaveUnnamedScreens() {
  QStringList names;
  for (const QScreen* screen : QGuiApplication::screens()) names.append(screen->name());
  if (!NamesTell(names) && qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet(kPlatform)) {
    qputenv(kPlatform, "xcb");
  }
}
}  // namespace

bool NamesTell(QStringList names) {
  // The toolkit's own names for what has none; they change with each plugging in.
  static const QRegularExpression made("^(Screen\\d+)?$");
  return names.removeDuplicates() == 0 && names.filter(made).isEmpty();
}

double FittingShare(double pixelRatio, int width, int height) {
  const double largest = std::min(width / kNeededWidth, height / kNeededHeight);
  // The toolkit paints nothing smaller than its pixels: below 1 windows are clipped. There the layout gives way
  // instead.
  return std::clamp(largest / pixelRatio, std::min(1.0, 1 / pixelRatio), 1.0);
}

void FitScaleToMonitor(int argc, char** argv) {
  double share = 1;
  {
    // It takes options out of the list that it is given.
    std::vector<char*> options(argv, argv + argc + 1);
    const QGuiApplication probe(argc, options.data());
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!WindowsHavePlaces()) LeaveUnnamedScreens();
    // In a Wayland session the toolkit paints wrongly at a factor that is not whole.
    if (screen == nullptr || !WindowsHavePlaces()) return;
    const double ratio = screen->devicePixelRatio();
    const QSizeF pixels = QSizeF(screen->availableGeometry().size()) * ratio;
    share = FittingShare(ratio, qRound(pixels.width()), qRound(pixels.height()));
  }
  if (share >= 1) return;
  bool given = false;
  const double factor = qEnvironmentVariable(kFactor).toDouble(&given);
  qputenv(kFactor, QByteArray::number((given && factor > 0 ? factor : 1) * share));
}

}  // namespace pawnfield
