// Holds on the desktop's screen saver and on sleep, taken from services on a bus of the test's own.

#include "desktop/system/sleep_inhibitor.h"

#include <gtest/gtest.h>

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>

namespace pawnfield {
namespace {

// The desktop portal's: each hold is a request, which is closed.
class Portal : public QDBusVirtualObject {
 public:
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (message.member() == "Inhibit") {
      flags = message.arguments().at(1).toUInt();
      bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(kRequest))));
      ++held;
    } else if (message.member() == "Close" && message.path() == kRequest) {
      --held;
    }
    return true;
  }
  static constexpr const char* kRequest = "/org/freedesktop/portal/desktop/request/1";
  unsigned flags = 0;
  int held = 0;
};

// Gives out cookies and counts what is held.
class SaverService : public QDBusVirtualObject {
 public:
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (message.member() == "Inhibit") {
      held.insert(++last);
      who = message.arguments().at(0).toString();
      bus.send(message.createReply(last));
    } else {
      held.erase(message.arguments().at(0).toUInt());
    }
    return true;
  }
  std::set<unsigned> held;
  unsigned last = 0;
  QString who;
};

TEST(SleepInhibitorTest, HoldsOnceGivesBackAlsoWhatComesLateAndBearsAbsentServices) {
  QProcess daemon;
  daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
  ASSERT_TRUE(daemon.waitForStarted() && daemon.waitForReadyRead());
  const QString address = QString::fromLatin1(daemon.readLine()).trimmed();
  const auto bus = [&](const char* name) { return QDBusConnection::connectToBus(address, name); };
  const QDBusConnection none("none");
  SaverService saver;
  SleepInhibitor inhibitor(bus("program"), bus("nowhere")), noBus(none, none);
  for (SleepInhibitor* early : {&inhibitor, &noBus}) early->Hold();
  QTest::qWait(100);
  for (SleepInhibitor* early : {&inhibitor, &noBus}) early->Release();

  QDBusConnection services = bus("services");
  ASSERT_TRUE(services.registerVirtualObject("/org/freedesktop/ScreenSaver", &saver));
  ASSERT_TRUE(services.registerService("org.freedesktop.ScreenSaver"));
  inhibitor.Hold();
  inhibitor.Hold();
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.held.size() == 1; }, 120000));
  EXPECT_EQ(saver.who, "Pawnfield");
  inhibitor.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.held.empty(); }, 120000));
  // The answer to this hold comes after its release.
  inhibitor.Hold();
  inhibitor.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.last == 2 && saver.held.empty(); }, 120000));

  // With the services gone nothing holds the saver, and that is known once they have all been asked.
  inhibitor.Hold();
  EXPECT_TRUE(inhibitor.HoldsSaver());
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.held.size() == 1; }, 120000));
  // The service has answered before the program hears it.
  QTest::qWait(500);
  EXPECT_TRUE(inhibitor.HoldsSaver());
  inhibitor.Release();
  ASSERT_TRUE(services.unregisterService("org.freedesktop.ScreenSaver"));
  inhibitor.Hold();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !inhibitor.HoldsSaver(); }, 120000));
  inhibitor.Release();

  Portal portal;
  ASSERT_TRUE(services.registerVirtualObject("/org/freedesktop/portal", &portal, QDBusConnection::SubPath));
  ASSERT_TRUE(services.registerService("org.freedesktop.portal.Desktop"));
  inhibitor.Hold();
  EXPECT_TRUE(QTest::qWaitFor([&] { return portal.held == 1; }, 120000));
  QTest::qWait(300);
  EXPECT_TRUE(inhibitor.HoldsSaver()) << "the portal is enough";
  EXPECT_EQ(portal.flags, 12U) << "sleep and idle";
  inhibitor.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return portal.held == 0; }, 120000));
  for (const char* name : {"services", "program", "nowhere"}) QDBusConnection::disconnectFromBus(name);
  daemon.terminate();
  daemon.waitForFinished();
}

}  // namespace
}  // namespace pawnfield
