// Holds on the desktop's screen saver and on sleep, taken from services on a bus of the test's own.

#include "platform/desktop/sleep_inhibitor.h"

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

class SleepInhibitorTest : public testing::Test {
 protected:
  void SetUp() override {
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon_.waitForStarted() && daemon_.waitForReadyRead());
    address_ = QString::fromLatin1(daemon_.readLine()).trimmed();
  }
  void TearDown() override {
    for (const char* name : {"services", "program", "nowhere"}) QDBusConnection::disconnectFromBus(name);
    daemon_.terminate();
    daemon_.waitForFinished();
  }
  QDBusConnection Bus(const char* name) { return QDBusConnection::connectToBus(address_, name); }

  QProcess daemon_;
  QString address_;
};

TEST_F(SleepInhibitorTest, HoldsOnceAndGivesBackAlsoWhatComesLate) {
  SaverService saver;
  QDBusConnection services = Bus("services");
  ASSERT_TRUE(services.registerVirtualObject("/org/freedesktop/ScreenSaver", &saver));
  ASSERT_TRUE(services.registerService("org.freedesktop.ScreenSaver"));
  SleepInhibitor inhibitor(Bus("program"), QDBusConnection("none"));
  inhibitor.Hold();
  inhibitor.Hold();
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.held.size() == 1; }, 2000));
  EXPECT_EQ(saver.who, "Pawnfield");
  inhibitor.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.held.empty(); }, 2000));
  // The answer to this hold comes after its release.
  inhibitor.Hold();
  inhibitor.Release();
  EXPECT_TRUE(QTest::qWaitFor([&] { return saver.last == 2 && saver.held.empty(); }, 2000));
}

TEST_F(SleepInhibitorTest, AbsentServicesAndBusesAreNoMatter) {
  SleepInhibitor noService(Bus("program"), Bus("nowhere"));
  noService.Hold();
  SleepInhibitor noBus(QDBusConnection("none"), QDBusConnection("none"));
  noBus.Hold();
  QTest::qWait(100);
  noService.Release();
  noBus.Release();
}

}  // namespace
}  // namespace pawnfield
