// Ties a form's controls to the widgets of its window, by name and kind: a user's action calls the model, and what
// changes in the model is seen in the widget.
#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/controls.h"

class QAction;

namespace pawnfield {

class Canvas;
class PictureCache;

// "lblPlayer1(0)" is named lblPlayer1_0 where only identifiers will do.
QString WidgetName(const std::string& controlName);

class Binder {
 public:
  // Binds every control that has a widget or an action of its name in the window.
  Binder(Form& form, QWidget& window, PictureCache& pictures);
  ~Binder();
  Binder(const Binder&) = delete;
  Binder& operator=(const Binder&) = delete;

  // Controls that only hold a value for others and are never seen.
  void Hold(const std::vector<std::string>& names);
  // The canvas shows what it was given.
  void AddCanvas(const Canvas& canvas) { canvases_.push_back(&canvas); }

  // Controls that nothing shows, and named widgets that stand for no control; both empty when all is well. Widgets of
  // layout have names that begin with "pnl".
  std::vector<std::string> UnboundControls() const;
  std::vector<std::string> UnboundWidgets() const;

 private:
  void Bind(Control& control, QWidget& widget);
  bool IsShownSomewhere(const Control& control) const;

  Form& form_;
  QWidget& window_;
  PictureCache& pictures_;
  std::vector<std::unique_ptr<Observer>> bindings_;
  std::set<std::string> bound_;
  std::set<std::string> held_;
  std::vector<const Canvas*> canvases_;
};

}  // namespace pawnfield
