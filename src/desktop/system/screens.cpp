#include "desktop/system/screens.h"

#include <QGuiApplication>
#include <utility>

namespace pawnfield {

namespace {
// A change of monitors comes as a burst of signals, and the window manager has its say after it.
constexpr int kSoonMs = 30;
constexpr int kSettledMs = 600;

QScreen* Named(const QString& name) {
  for (QScreen* screen : QGuiApplication::screens()) {
    if (screen->name() == name) return screen;
  }
  return nullptr;
}
}  // namespace

bool WindowsHavePlaces() { return !QGuiApplication::platformName().startsWith("wayland"); }

Screens::Screens() {
  for (const auto& [timer, wait] : {std::pair{&soon_, kSoonMs}, {&settled_, kSettledMs}}) {
    timer->setSingleShot(true);
    timer->setInterval(wait);
    timer->callOnTimeout(this, [this] { NotifyChanged(); });
  }
  if (const QScreen* primary = QGuiApplication::primaryScreen()) home_ = primary->name();
  for (QScreen* screen : QGuiApplication::screens()) Watch(*screen);
  connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
    Watch(*screen);
    MonitorsChanged();
  });
  connect(qGuiApp, &QGuiApplication::screenRemoved, this, &Screens::MonitorsChanged);
  connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &Screens::MonitorsChanged);
}

void Screens::Watch(QScreen& screen) { connect(&screen, &QScreen::geometryChanged, this, &Screens::MonitorsChanged); }

void Screens::MonitorsChanged() {
  areAsAtFirst_ = false;
  Change();
}

void Screens::Change() {
  soon_.start();
  settled_.start();
}

void Screens::NotifyChanged() {
  for (const auto& changed : subscribers_) changed();
}

void Screens::MoveHome(const QScreen& screen) {
  const bool guessed = !homeIsKnown_ || (areAsAtFirst_ && !WindowsHavePlaces());
  if (!IsChanging() || guessed) home_ = screen.name();
  const bool moved = standing_ != screen.name();
  standing_ = screen.name();
  if (!std::exchange(homeIsKnown_, true) || (moved && !WindowsHavePlaces())) Change();
}

QScreen* Screens::First() const {
  QScreen* standing = WindowsHavePlaces() ? nullptr : Named(standing_);
  QScreen* first = standing != nullptr ? standing : Home();
  return first != nullptr ? first : QGuiApplication::primaryScreen();
}

QScreen* Screens::Home() const { return Named(home_); }

// A compositor takes a moment to put the windows of a monitor that is back on it again.
bool Screens::ConsoleIsOnItsWay() const {
  return !WindowsHavePlaces() && IsChanging() && Home() != nullptr && Home() != First();
}

QList<QScreen*> Screens::List() const {
  QList<QScreen*> screens = QGuiApplication::screens();
  const qsizetype home = screens.indexOf(First());
  if (home > 0) screens.move(home, 0);
  if ((!homeIsKnown_ || ConsoleIsOnItsWay()) && screens.size() > 1) screens.resize(1);
  return screens;
}

QRect Screens::Place(const QScreen& screen) const { return server_.Place(screen).value_or(screen.geometry()); }

QRect Screens::Room(const QScreen& screen) const {
  const QRect place = Place(screen);
  return place == screen.geometry() ? screen.availableGeometry() : place;
}

QScreen* Screens::At(QPoint point) const {
  for (QScreen* screen : QGuiApplication::screens()) {
    if (Place(*screen).contains(point)) return screen;
  }
  return nullptr;
}

QScreen* Screens::Second() const {
  const QList<QScreen*> screens = List();
  return screens.size() < 2 ? nullptr : screens[1];
}

}  // namespace pawnfield
