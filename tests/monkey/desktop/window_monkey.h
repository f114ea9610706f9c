// A random operator of the real windows: does one thing after another, by real events, to whatever is visible and
// enabled, and checks between two of them what must always hold.
#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QPointer>
#include <deque>
#include <functional>

#include "monkey/chance.h"
#include "monkey/desktop/heartbeat.h"
#include "monkey/desktop/random_hand.h"
#include "monkey/desktop/slips.h"
#include "monkey/desktop/watched_application.h"
#include "monkey/desktop/world.h"
#include "monkey/invariants.h"

namespace pawnfield {

// Beside what holds for every show, and for each event of it: the message loop is never silent for more than two
// seconds, and the audience's window never lies over the console's monitor.
class WindowMonkey : public QObject {
 public:
  // Writes each action to the log before it is done, where that is open.
  WindowMonkey(WatchedApplication& application, DesktopProgram& program, World& world, Chance& chance, QFile& log);

  // From the program's entry to so many actions later. What was broken, empty when all held.
  QString Run(int actions);
  // Hardly anything but keys.
  void StrikeKeys() { hand_.StrikeKeys(); }
  const std::deque<QString>& LastActions() const { return last_; }
  // Called after each event that came to the program.
  std::function<void()> AfterEach;
  // How far he came: checks, events checked, questions asked, squares claimed and games won.
  struct Progress {
    int Checks = 0, Events = 0, Questions = 0, Claims = 0, Winners = 0;
  };
  const Progress& Came() const { return came_; }

 private:
  // One action in whatever loop runs: what opens a dialog has not ended when the next one begins.
  void Tick();
  void Act();
  void ActOnProgram();
  void ActInModal(QWidget& modal);
  void ReadBox(QWidget& box);
  // True when nothing is open any more.
  bool CloseAll();
  void Check();
  void CheckEvent();
  void CountProgress();
  QString WhatIsBroken();
  QString AudienceInTheWay();
  int NextPause();
  void Note(const QString& action);
  void Fail(const QString& what);

  WatchedApplication& application_;
  DesktopProgram& program_;
  Show& show_;
  World& world_;
  Chance& chance_;
  QFile& log_;
  RandomHand hand_;
  Heartbeat heart_;
  Slips slips_;
  QElapsedTimer sinceMonitors_;
  std::deque<QString> last_;
  QString broken_;
  LastAction event_;
  QPointer<QWidget> read_;
  int left_ = 0, depth_ = 0, closing_ = 0;
  Progress came_;
  bool question_ = false, winner_ = false;
  int claimed_ = 0;
  bool up_ = false, ended_ = false;
};

}  // namespace pawnfield
