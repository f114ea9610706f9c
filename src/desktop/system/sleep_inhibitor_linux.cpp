#include "desktop/system/sleep_inhibitor.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>
#include <utility>

namespace pawnfield {

namespace {

constexpr const char* kWho = "Pawnfield";
constexpr const char* kWhy = "A show is running";
constexpr const char* kPortal = "org.freedesktop.portal.Desktop";

}  // namespace

SleepInhibitor::SleepInhibitor(QDBusConnection session, QDBusConnection system)
    : session_(std::move(session)),
      system_(std::move(system)),
      services_{{"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver", {}},
                {"org.freedesktop.PowerManagement",
                 "/org/freedesktop/PowerManagement/Inhibit",
                 "org.freedesktop.PowerManagement.Inhibit",
                 {}}} {}

SleepInhibitor::~SleepInhibitor() { Release(); }

void SleepInhibitor::Hold() {
  onlyTries_ = false;
  Begin();
}

void SleepInhibitor::Try(std::function<void(bool saver, bool sleep)> then) {
  tried_ = std::move(then);
  if (!held_) onlyTries_ = true;
  // What is held is asked for anew: the desktop may have changed its mind.
  held_ = false;
  Begin();
  Answered();
}

void SleepInhibitor::Answered() {
  if (!tried_ || unanswered_ > 0) return;
  if (std::exchange(onlyTries_, false)) Release();
  std::exchange(tried_, {})(saver_, sleep_);
}

void SleepInhibitor::Begin() {
  if (held_) return;
  held_ = true;
  saver_ = sleep_ = false;
  for (CookieService& service : services_) HoldBy(service);
  HoldByPortal();
  HoldSleep();
}

void SleepInhibitor::Release() {
  held_ = false;
  for (CookieService& service : services_) GiveBack(service);
  ReleasePortal();
  sleepLock_ = QDBusUnixFileDescriptor();
}

void SleepInhibitor::HoldBy(CookieService& service) {
  if (!session_.isConnected()) return;
  QDBusMessage call = QDBusMessage::createMethodCall(service.name, service.path, service.interface, "Inhibit");
  call << QString(kWho) << QString(kWhy);
  auto* watcher = new QDBusPendingCallWatcher(session_.asyncCall(call), this);
  ++unanswered_;
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, &service, watcher] {
    watcher->deleteLater();
    const QDBusPendingReply<unsigned> reply = *watcher;
    --unanswered_;
    if (!reply.isError()) Take(service, reply.value());
    Answered();
  });
}

void SleepInhibitor::Take(CookieService& service, unsigned cookie) {
  saver_ = true;
  GiveBack(service);
  service.cookie = cookie;
  // The show may have gone to standby while the service was thinking.
  if (!held_) GiveBack(service);
}

void SleepInhibitor::GiveBack(CookieService& service) {
  if (!service.cookie) return;
  QDBusMessage call = QDBusMessage::createMethodCall(service.name, service.path, service.interface, "UnInhibit");
  call << *service.cookie;
  session_.send(call);
  service.cookie.reset();
}

void SleepInhibitor::HoldByPortal() {
  if (!session_.isConnected()) return;
  constexpr unsigned kSuspend = 4, kIdle = 8;
  QDBusMessage call = QDBusMessage::createMethodCall(kPortal, "/org/freedesktop/portal/desktop",
                                                     "org.freedesktop.portal.Inhibit", "Inhibit");
  call << QString() << (kSuspend | kIdle) << QVariantMap{{"reason", QString(kWhy)}};
  auto* watcher = new QDBusPendingCallWatcher(session_.asyncCall(call), this);
  ++unanswered_;
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    const QDBusPendingReply<QDBusObjectPath> reply = *watcher;
    --unanswered_;
    if (!reply.isError()) {
      saver_ = true;
      ReleasePortal();
      portalRequest_ = reply.value().path();
      if (!held_) ReleasePortal();
    }
    Answered();
  });
}

void SleepInhibitor::ReleasePortal() {
  if (portalRequest_.isEmpty()) return;
  session_.send(QDBusMessage::createMethodCall(kPortal, portalRequest_, "org.freedesktop.portal.Request", "Close"));
  portalRequest_.clear();
}

void SleepInhibitor::HoldSleep() {
  if (!system_.isConnected()) return;
  QDBusMessage call = QDBusMessage::createMethodCall("org.freedesktop.login1", "/org/freedesktop/login1",
                                                     "org.freedesktop.login1.Manager", "Inhibit");
  call << QString("sleep:idle") << QString(kWho) << QString(kWhy) << QString("block");
  auto* watcher = new QDBusPendingCallWatcher(system_.asyncCall(call), this);
  ++unanswered_;
  connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
    watcher->deleteLater();
    const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *watcher;
    --unanswered_;
    sleep_ = sleep_ || !reply.isError();
    if (!reply.isError() && held_) sleepLock_ = reply.value();
    Answered();
  });
}

}  // namespace pawnfield
