#include "desktop/system/x_monitors.h"

#include <xcb/randr.h>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>

namespace pawnfield {

namespace {

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

QString NameOf(xcb_connection_t* connection, xcb_atom_t atom) {
  const Owned<xcb_get_atom_name_reply_t> reply(
      xcb_get_atom_name_reply(connection, xcb_get_atom_name(connection, atom), nullptr));
  if (!reply) return {};
  return QString::fromUtf8(xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get()));
}

}  // namespace

XMonitors::XMonitors(std::function<void()> changed) : changed_(std::move(changed)) {
  const auto* server = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  // An off-screen session can have the interface and no server.
  if (server == nullptr || server->connection() == nullptr) return;
  const auto* extension = xcb_get_extension_data(server->connection(), &xcb_randr_id);
  if (extension == nullptr || extension->present == 0) return;
  connection_ = server->connection();
  firstEvent_ = extension->first_event;
  // The toolkit has asked for these events already; they pass here before it looks at them.
  qGuiApp->installNativeEventFilter(this);
}

XMonitors::~XMonitors() {
  if (qGuiApp != nullptr) qGuiApp->removeNativeEventFilter(this);
}

std::optional<QRect> XMonitors::Place(const QScreen& screen) {
  if (connection_ == nullptr) return std::nullopt;
  if (!known_) Ask();
  const auto found = places_.constFind(screen.name());
  if (found == places_.constEnd()) return std::nullopt;
  const double ratio = screen.devicePixelRatio();
  return QRect(found->topLeft(), QSize(qRound(found->width() / ratio), qRound(found->height() / ratio)));
}

bool XMonitors::nativeEventFilter(const QByteArray& type, void* message, qintptr*) {
  if (type != "xcb_generic_event_t") return false;
  constexpr int kSentByOthers = 0x80;
  const int event = (static_cast<const xcb_generic_event_t*>(message)->response_type & ~kSentByOthers) - firstEvent_;
  if (event == XCB_RANDR_SCREEN_CHANGE_NOTIFY || event == XCB_RANDR_NOTIFY) {
    known_ = false;
    changed_();
  }
  return false;
}

void XMonitors::Ask() {
  places_.clear();
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
  const Owned<xcb_randr_get_monitors_reply_t> reply(
      xcb_randr_get_monitors_reply(connection_, xcb_randr_get_monitors(connection_, root, 1), nullptr));
  if (!reply) return;
  for (auto each = xcb_randr_get_monitors_monitors_iterator(reply.get()); each.rem > 0;
       xcb_randr_monitor_info_next(&each)) {
    places_[NameOf(connection_, each.data->name)] =
        QRect(each.data->x, each.data->y, each.data->width, each.data->height);
  }
  known_ = true;
}

}  // namespace pawnfield
