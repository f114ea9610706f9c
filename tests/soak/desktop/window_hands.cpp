#include "soak/desktop/window_hands.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>
#include <cctype>

#include "desktop/windows/audience_window.h"
#include "desktop/windows/binder.h"
#include "desktop/windows/console_window.h"

namespace pawnfield {

namespace {

constexpr int kLookAtFormMs = 700;

// "img23" is the square of row 2 and column 3.
bool IsSquare(const std::string& name) {
  return name.size() == 5 && name.starts_with("img") && std::isdigit(static_cast<unsigned char>(name[3])) != 0;
}

}  // namespace

bool WindowHands::Press(Control& control) {
  const std::string& name = control.Name();
  if (IsSquare(name)) return driver_.PressSquare(name[3] - '0', name[4] - '0');
  if (control.Kind() != ControlKind::Menu) return driver_.Press(WidgetName(name));
  auto* action = driver_.Program().Console().findChild<QAction*>(WidgetName(name));
  if (action == nullptr || !action->isEnabled()) return false;
  action->trigger();
  return true;
}

bool WindowHands::Choose(ComboBox& list, const std::string& item) {
  return driver_.Choose(WidgetName(list.Name()), QString::fromStdString(item));
}

// A modal form holds the press until it is closed.
bool WindowHands::Visit(Control& opener) {
  QTimer close;
  QObject::connect(&close, &QTimer::timeout, &close, [this] {
    for (FormWindow* window : driver_.Program().Windows()) {
      const bool screen = window == &driver_.Program().Console() || window == &driver_.Program().Audience();
      if (!screen && window->isVisible()) window->close();
    }
  });
  close.start(kLookAtFormMs);
  const bool pressed = Press(opener);
  Wait(kLookAtFormMs + 300);
  return pressed;
}

void WindowHands::Type(char key) {
  QWidget& console = driver_.Program().Console();
  QWidget* focus = console.focusWidget() != nullptr ? console.focusWidget() : &console;
  QKeyEvent press(QEvent::KeyPress, Qt::Key_A + key - 'a', Qt::NoModifier, QString(QLatin1Char(key)));
  QCoreApplication::sendEvent(focus, &press);
}

}  // namespace pawnfield
