// Which monitors there are, in the order in which the program counts them: the console's own is the first, whatever
// the desktop calls its primary one. Notifies when that changes.
#pragma once

#include <QObject>
#include <QScreen>
#include <QTimer>
#include <functional>
#include <vector>

#include "desktop/system/x_monitors.h"

namespace pawnfield {

// False in a Wayland session, where a window knows its screen but not its place on it.
bool WindowsHavePlaces();

class Screens : public QObject {
 public:
  Screens();

  // The console's alone until it is known which it is, and while it is on its way back to it.
  QList<QScreen*> List() const;
  // The console's monitor; the primary one while the console's is away. In a Wayland session the one that the console
  // is seen on, whoever has put it there.
  QScreen* First() const;
  // Where the operator has put the console, null while that monitor is away.
  QScreen* Home() const;
  // The audience's, null when there is none.
  QScreen* Second() const;
  // Where the screen stands now, and what the desktop leaves of it to windows.
  QRect Place(const QScreen& screen) const;
  QRect Room(const QScreen& screen) const;
  // The screen that shows the point, null when none does.
  QScreen* At(QPoint point) const;
  // The console is seen on that monitor. Unless the monitors are changing, the operator has put it there. The first
  // word of it may be the toolkit's guess, which the desktop's own mends, however late that comes.
  void MoveHome(const QScreen& screen);
  // What is done to the console now is not the operator's doing either.
  void Unsettle() { Change(); }
  // False in a Wayland session until then.
  bool HomeIsKnown() const { return homeIsKnown_; }
  // True from a change of the monitors until it has settled: what moves meanwhile is not the operator's doing.
  bool IsChanging() const { return settled_.isActive(); }

  // Called soon after a change and once more when it has settled, in the order of subscribing.
  void Subscribe(std::function<void()> changed) { subscribers_.push_back(std::move(changed)); }

 private:
  void Watch(QScreen& screen);
  void MonitorsChanged();
  void Change();
  void NotifyChanged();
  bool ConsoleIsOnItsWay() const;

  // By name, so that a monitor which comes back is known again.
  QString home_;
  // Where the console is seen, by name; a Wayland session alone needs it.
  QString standing_;
  bool homeIsKnown_ = WindowsHavePlaces();
  // No monitor has come, gone or changed yet.
  bool areAsAtFirst_ = true;
  QTimer soon_, settled_;
  mutable XMonitors server_{[this] { Change(); }};
  std::vector<std::function<void()>> subscribers_;
};

}  // namespace pawnfield
