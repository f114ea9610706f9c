// What the program tells an X server of its windows beyond what the toolkit does. Elsewhere than on X nothing happens.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <cstdint>

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

// While it lives a window is active when the server gave it the keyboard, and not by the program's own wish: the
// toolkit hears its wishes too, and one that comes late would leave a window that is closed as the active one,
// whereupon no shortcut works any more.
class ActiveByServer : public QObject, public QAbstractNativeEventFilter {
 public:
  ActiveByServer();

 private:
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

  std::uint32_t wish_ = 0;
};

}  // namespace pawnfield
