// Takes a file that is dropped on a widget.
#pragma once

#include <functional>
#include <string>

class QWidget;

namespace pawnfield {

// The first file of what is dropped on the widget, or on a part of it that takes none itself, goes to the routine.
void TakeDrops(QWidget& widget, std::function<void(const std::string& path)> take);

}  // namespace pawnfield
