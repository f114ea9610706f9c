// Mouse and keyboard led by chance: one act at a time on a window, by events that go the way of real ones.
#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "monkey/chance.h"
#include "show/show.h"

namespace pawnfield {

class RandomHand {
 public:
  // The note is given each act before it is done.
  RandomHand(Show& show, Chance& chance, std::function<void(const QString&)> note)
      : show_(show), chance_(chance), note_(std::move(note)) {}

  void ActIn(QWidget& window);
  // An open menu or list.
  void ActInPopup(QWidget& popup);
  // A dialog of the toolkit; a file dialog is given that file, or none.
  void Answer(QWidget& dialog, const QString& file);
  void PressKey(QWidget& window);
  // From now on hardly anything but Space, Enter, Tab and letters.
  void StrikeKeys() { onlyKeys_ = true; }
  // A button is being held, and time passes in its own loop.
  bool Holds() const { return holding_; }

 private:
  void PressHabitKey(QWidget& target);
  void Hold(QWidget& widget);
  void ActOn(QWidget& widget);
  void ActOnCanvas(QWidget& canvas);
  void ActOnRows(QWidget& view);
  void TypeInto(QWidget& widget);
  void Drag(QWidget& widget);
  // May open a dialog, and then returns when that is closed: the widget can be gone by then.
  void Click(QWidget& widget, const QPoint& at);
  std::vector<QWidget*> Targets(const QWidget& window);
  QPoint AnyPoint(const QWidget& widget);

  bool onlyKeys_ = false;
  bool holding_ = false;
  Show& show_;
  Chance& chance_;
  std::function<void(const QString&)> note_;
};

}  // namespace pawnfield
