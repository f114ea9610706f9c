// The monitors' places as the X server reports them. The toolkit can keep an old place for a while, of a monitor whose
// mode alone has changed for good.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QMap>
#include <QRect>
#include <QScreen>
#include <functional>
#include <optional>

struct xcb_connection_t;

namespace pawnfield {

class XMonitors : public QAbstractNativeEventFilter {
 public:
  // Calls changed at each word of the server on its monitors. Elsewhere than on X it does nothing and knows nothing.
  explicit XMonitors(std::function<void()> changed);
  ~XMonitors() override;
  XMonitors(const XMonitors&) = delete;
  XMonitors& operator=(const XMonitors&) = delete;

  // The screen's place in the toolkit's coordinates; none for one that the server doesn't name.
  std::optional<QRect> Place(const QScreen& screen);

 private:
  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;
  void Ask();

  std::function<void()> changed_;
  xcb_connection_t* connection_ = nullptr;
  int firstEvent_ = 0;
  // By name, in pixels, as the server said last; to be asked again after a change.
  QMap<QString, QRect> places_;
  bool known_ = false;
};

}  // namespace pawnfield
