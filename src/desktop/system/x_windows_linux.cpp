#include "desktop/system/x_windows.h"

#include <xcb/xcb.h>

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace pawnfield {

namespace {

constexpr std::uint32_t kEveryWorkspace = 0xFFFFFFFF;
constexpr std::array<const char*, 3> kStates{"_NET_WM_STATE_STICKY", "_NET_WM_STATE_SKIP_TASKBAR",
                                             "_NET_WM_STATE_SKIP_PAGER"};

xcb_connection_t* Connection() {
  const auto* server = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return server == nullptr ? nullptr : server->connection();
}

xcb_atom_t Atom(xcb_connection_t* connection, const char* name) {
  const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
      xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

// What a window manager is asked for while it shows the window.
void Ask(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t what,
         const std::array<std::uint32_t, 4>& values) {
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = window;
  message.type = what;
  std::copy(values.begin(), values.end(), message.data.data32);
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  xcb_send_event(connection, 0, root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&message));
}

void WriteClass(xcb_connection_t* connection, xcb_window_t window) {
  // Two texts, each with its end: the program's own name and its class.
  const std::string name = std::string("pawnfield") + '\0' + kAppId + '\0';
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                      static_cast<std::uint32_t>(name.size()), name.data());
}

// The properties that a window manager reads when it is given the window.
void Write(xcb_connection_t* connection, xcb_window_t window) {
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, Atom(connection, "_NET_WM_DESKTOP"), XCB_ATOM_CARDINAL,
                      32, 1, &kEveryWorkspace);
  std::array<xcb_atom_t, kStates.size()> states{};
  for (std::size_t i = 0; i < kStates.size(); ++i) states[i] = Atom(connection, kStates[i]);
  // The toolkit adds its own states to these.
  xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, Atom(connection, "_NET_WM_STATE"), XCB_ATOM_ATOM, 32,
                      states.size(), states.data());
}

}  // namespace

void StandOnEveryWorkspace(QWindow& window) {
  xcb_connection_t* connection = Connection();
  if (connection == nullptr) return;
  const auto id = static_cast<xcb_window_t>(window.winId());
  // The toolkit may have made the window before it told of it.
  WriteClass(connection, id);
  if (!window.isVisible()) {
    Write(connection, id);
    return;
  }
  constexpr std::uint32_t kAdd = 1, kFromProgram = 1;
  Ask(connection, id, Atom(connection, "_NET_WM_DESKTOP"), {kEveryWorkspace, kFromProgram, 0, 0});
  for (const char* state : kStates) {
    Ask(connection, id, Atom(connection, "_NET_WM_STATE"), {kAdd, Atom(connection, state), 0, kFromProgram});
  }
  xcb_flush(connection);
}

WindowClass::WindowClass() {
  if (Connection() != nullptr) qGuiApp->installEventFilter(this);
}

bool WindowClass::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::PlatformSurface) return false;
  const auto made = static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType();
  auto* window = qobject_cast<QWindow*>(watched);
  if (window == nullptr || made != QPlatformSurfaceEvent::SurfaceCreated || !window->isTopLevel()) return false;
  WriteClass(Connection(), static_cast<xcb_window_t>(window->winId()));
  return false;
}

ActiveByServer::ActiveByServer() {
  xcb_connection_t* connection = Connection();
  if (connection == nullptr) return;
  wish_ = Atom(connection, "_NET_ACTIVE_WINDOW");
  qGuiApp->installNativeEventFilter(this);
}

bool ActiveByServer::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  constexpr int kSentByOthers = 0x80;
  const auto* event = static_cast<const xcb_generic_event_t*>(message);
  if ((event->response_type & ~kSentByOthers) != XCB_CLIENT_MESSAGE) return false;
  return static_cast<const xcb_client_message_event_t*>(message)->type == wish_;
}

}  // namespace pawnfield
