// Holds off the desktop's screen saver and the machine's sleep, by the freedesktop services on the two buses. Where
// they are absent nothing happens, and nothing is waited for.
#pragma once

#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>
#include <optional>
#include <vector>

namespace pawnfield {

class SleepInhibitor : public QObject {
 public:
  SleepInhibitor(QDBusConnection session, QDBusConnection system);
  ~SleepInhibitor() override;
  SleepInhibitor(const SleepInhibitor&) = delete;
  SleepInhibitor& operator=(const SleepInhibitor&) = delete;

  void Hold();
  void Release();

 private:
  // A service that gives a cookie for a hold and takes it back.
  struct CookieService {
    QString name, path, interface;
    std::optional<unsigned> cookie;
  };
  void HoldBy(CookieService& service);
  void GiveBack(CookieService& service);
  void HoldSleep();

  QDBusConnection session_, system_;
  std::vector<CookieService> services_;
  // Open while sleep is held off.
  QDBusUnixFileDescriptor sleepLock_;
  bool held_ = false;
};

}  // namespace pawnfield
