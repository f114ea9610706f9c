// One observer for each kind of control: widget from model, and the user's action to the model.
#pragma once

#include <memory>

#include "platform/controls.h"

class QAction;
class QWidget;

namespace pawnfield {

class PictureCache;

// Null when a control of this kind can't be shown by such a widget.
std::unique_ptr<Observer> MakeBinding(Control& control, QWidget& widget, PictureCache& pictures);
std::unique_ptr<Observer> MakeActionBinding(Menu& menu, QAction& action);

}  // namespace pawnfield
