// Keeps in sight what the show waits for.
#pragma once

class QEvent;
class QWidget;

namespace pawnfield {

// To be called with each change event of a window that holds the show until it is answered: when it was minimised it is
// back at once, in front and with the keyboard.
void StayInSight(QWidget& window, const QEvent& event);

}  // namespace pawnfield
