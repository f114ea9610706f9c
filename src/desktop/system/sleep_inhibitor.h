// Holds off the desktop's screen saver and the machine's sleep, by the freedesktop services and the desktop portal on
// the two buses. Where they are absent nothing happens, and nothing is waited for.
#pragma once

#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QString>
#include <functional>
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
  // Asks for a hold and calls when all services have answered, with who granted it; without a hold before, it is given
  // back.
  void Try(std::function<void(bool saver, bool sleep)> then);
  // False when all that could hold the screen saver off have refused or aren't there. Sleep is another matter.
  bool HoldsSaver() const { return !held_ || unanswered_ > 0 || saver_; }

 private:
  // A service that gives a cookie for a hold and takes it back.
  struct CookieService {
    QString name, path, interface;
    std::optional<unsigned> cookie;
  };
  void HoldBy(CookieService& service);
  void Take(CookieService& service, unsigned cookie);
  void GiveBack(CookieService& service);
  void HoldByPortal();
  void ReleasePortal();
  void HoldSleep();

  QDBusConnection session_, system_;
  std::vector<CookieService> services_;
  // Open while sleep is held off.
  QDBusUnixFileDescriptor sleepLock_;
  // The portal's request, empty while it holds nothing.
  QString portalRequest_;
  void Begin();
  void Answered();

  bool held_ = false;
  // What is still to be answered, and what was granted since the hold began.
  int unanswered_ = 0;
  bool saver_ = false, sleep_ = false;
  // The hold is there for the trial alone.
  bool onlyTries_ = false;
  std::function<void(bool saver, bool sleep)> tried_;
};

}  // namespace pawnfield
