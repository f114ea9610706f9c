// Holds on the desktop's screen saver and on sleep, taken from services on a bus of the test's own.

#include "desktop/system/sleep_inhibitor.h"

#include <gtest/gtest.h>

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTest>

namespace pawnfield {
namespace {

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
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.held.size() == 1; }, 30000));
  EXPECT_EQ(saver.who, "Pawnfield");
  inhibitor.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.held.empty(); }, 30000));
  // The answer to this hold comes after its release.
  inhibitor.Hold();
  inhibitor.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.last == 2 && saver.held.empty(); }, 30000));
  for (const char* name : {"services", "program", "nowhere"}) QDBusConnection::disconnectFromBus(name);
  daemon.terminate();
  daemon.waitForFinished();
}

}  // namespace
}  // namespace pawnfield
