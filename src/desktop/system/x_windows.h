// What the program tells an X server of its windows beyond what the toolkit does. Elsewhere than on X nothing happens.
#pragma once

#include <QObject>

class QWindow;

namespace pawnfield {

// The name of the program's desktop file, by which desktops know its windows.
inline constexpr const char* kAppId = "org.pawnfield.Pawnfield";

// The window stands on every workspace, and in no list of tasks or windows. To be called before the window is shown and
// once more when it is.
void StandOnEveryWorkspace(QWindow& window);

// While it lives every window that is made bears the desktop file's name as its class.
class WindowClass : public QObject {
 public:
  WindowClass();
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace pawnfield
