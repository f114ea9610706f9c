// Connects to the two buses of the desktop, beside the thread that shows the windows. A bus that accepts and never
// answers is dropped, where the toolkit's own connection would wait for minutes.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QThread>
#include <functional>
#include <memory>

namespace pawnfield {

// The toolkit asks the session's bus for its own ends and waits for minutes: one that doesn't answer within two seconds
// is kept from it. To be called before the application object is made.
void HideSilentBus();

class BusFinder : public QObject {
 public:
  using Found = std::function<void(QDBusConnection session, QDBusConnection system)>;
  // Looks from now on, for two seconds at most, and then calls once, on this thread. What doesn't answer is a
  // connection that isn't connected.
  explicit BusFinder(Found found);
  // Waits for the look to end.
  ~BusFinder() override;
  BusFinder(const BusFinder&) = delete;
  BusFinder& operator=(const BusFinder&) = delete;

 private:
  void Look();

  Found found_;
  std::unique_ptr<QThread> thread_;
};

}  // namespace pawnfield
