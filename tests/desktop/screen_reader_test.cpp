// A screen reader's view of the running program: read and worked over the real accessibility bus, from another process.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <functional>
#include <optional>

#include "places.h"

namespace pawnfield {
namespace {

constexpr const char* kLauncher = "/usr/libexec/at-spi-bus-launcher";

// As the bus numbers them.
enum class Role : unsigned { Canvas = 6, CheckBox = 7, List = 11, Text = 29, Button = 43, Option = 44 };

struct Node {
  QString service, path;
};

class ScreenReader {
 public:
  // False where no accessibility bus can be had.
  bool Start() {
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (!daemon_.waitForStarted() || !daemon_.waitForReadyRead()) return false;
    Address = QString::fromLatin1(daemon_.readLine()).trimmed();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", Address);
    launcher_.setProcessEnvironment(environment);
    launcher_.start(kLauncher, {"--launch-immediately"});
    QDBusConnection session = QDBusConnection::connectToBus(Address, "session");
    QElapsedTimer since;
    for (since.start(); since.elapsed() < 20000; QTest::qWait(100)) {
      const QDBusMessage answer =
          session.call(QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"),
                       QDBus::Block, 3000);
      if (answer.type() != QDBusMessage::ReplyMessage) continue;
      QDBusConnection::connectToBus(answer.arguments().value(0).toString(), "reader");
      return Bus().isConnected();
    }
    return false;
  }
  ~ScreenReader() {
    for (const char* name : {"session", "reader"}) QDBusConnection::disconnectFromBus(name);
    for (QProcess* process : {&launcher_, &daemon_}) {
      process->kill();
      process->waitForFinished();
    }
  }

  QList<Node> Children(const Node& node) const {
    const QDBusMessage answer = Call(node, "org.a11y.atspi.Accessible", "GetChildren", {});
    QList<Node> children;
    if (answer.arguments().isEmpty()) return children;
    const auto list = answer.arguments()[0].value<QDBusArgument>();
    for (list.beginArray(); !list.atEnd();) {
      Node child;
      QDBusObjectPath path;
      list.beginStructure();
      list >> child.service >> path;
      list.endStructure();
      child.path = path.path();
      children.append(child);
    }
    list.endArray();
    return children;
  }
  QString Name(const Node& node) const {
    const QDBusMessage answer =
        Call(node, "org.freedesktop.DBus.Properties", "Get", {QString("org.a11y.atspi.Accessible"), QString("Name")});
    return answer.arguments().value(0).value<QDBusVariant>().variant().toString();
  }
  unsigned RoleOf(const Node& node) const {
    return Call(node, "org.a11y.atspi.Accessible", "GetRole", {}).arguments().value(0).toUInt();
  }
  // The first node of that role whose name is the text, in what the program shows.
  std::optional<Node> Find(Role role, const QString& name) const {
    return Below({"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"},
                 [&](const Node& node) { return Name(node) == name && RoleOf(node) == static_cast<unsigned>(role); });
  }
  std::optional<Node> Await(Role role, const QString& name) const {
    QElapsedTimer since;
    for (since.start(); since.elapsed() < 60000; QTest::qWait(200)) {
      if (const auto found = Find(role, name)) return found;
    }
    return std::nullopt;
  }
  bool Act(const Node& node) const {
    return Call(node, "org.a11y.atspi.Action", "DoAction", {0}).arguments().value(0).toBool();
  }

  QString Address;

 private:
  static QDBusConnection Bus() { return QDBusConnection("reader"); }
  static QDBusMessage Call(const Node& node, const QString& interface, const QString& method,
                           const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(node.service, node.path, interface, method);
    call.setArguments(arguments);
    return Bus().call(call, QDBus::Block, 10000);
  }
  std::optional<Node> Below(const Node& node, const std::function<bool(const Node&)>& isIt) const {
    for (const Node& child : Children(node)) {
      if (isIt(child)) return child;
      if (const auto found = Below(child, isIt)) return found;
    }
    return std::nullopt;
  }

  QProcess daemon_, launcher_;
};

TEST(ScreenReader, PlaysIntoAQuestionAndHearsIt) {
  if (!QFile::exists(kLauncher)) GTEST_SKIP() << "no accessibility bus is installed";
  ScreenReader reader;
  ASSERT_TRUE(reader.Start());
  const QTemporaryDir folder;
  for (const char* name : {"run", "config/Pawnfield"}) QDir(folder.path()).mkpath(name);
  QFile::setPermissions(folder.filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  QFile settings(folder.filePath("config/Pawnfield/pawnfield.ini"));
  ASSERT_TRUE(settings.open(QFile::WriteOnly) && settings.write("[Settings]\nNoHardwareTold=True\n") > 0);
  settings.close();
  QFile set(folder.filePath("Capitals.txt"));
  ASSERT_TRUE(set.open(QFile::WriteOnly));
  for (int i = 0; i < 5; ++i)
    set.write("What is the capital of Norway?\r\nOslo\r\nT#Arial#28#True#False#16777215#\r\n");
  set.close();

  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DBUS_SESSION_BUS_ADDRESS", reader.Address);
  environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
  environment.insert("HOME", folder.path());
  environment.insert("XDG_RUNTIME_DIR", folder.filePath("run"));
  environment.insert("XDG_CONFIG_HOME", folder.filePath("config"));
  environment.insert("XDG_DATA_HOME", folder.filePath("data"));
  QProcess program;
  program.setProcessEnvironment(environment);
  program.start(QCoreApplication::applicationDirPath() + "/pawnfield", {set.fileName()});
  ASSERT_TRUE(program.waitForStarted());

  const auto type = reader.Await(Role::Option, "Trivia Mode C");
  ASSERT_TRUE(type);
  EXPECT_FALSE(reader.Find(Role::CheckBox, "Trivia Mode C"));
  const auto start = reader.Await(Role::Button, "Start");
  ASSERT_TRUE(start);
  EXPECT_TRUE(QTest::qWaitFor([&] { return reader.Act(*start) && reader.Find(Role::Text, "Oslo"); }, 60000));
  EXPECT_TRUE(reader.Find(Role::Text, "What is the capital of Norway?"));
  EXPECT_TRUE(reader.Find(Role::List, "Line bonus"));
  const auto room = reader.Find(Role::Canvas, "Audience screen");
  ASSERT_TRUE(room);
  bool told = false;
  for (const Node& part : reader.Children(*room)) {
    told = told || reader.Name(part) == "What is the capital of Norway?";
    EXPECT_NE(reader.Name(part), "Oslo");
  }
  EXPECT_TRUE(told) << "the room's screen tells the question";
  program.terminate();
  program.waitForFinished(30000);
}

}  // namespace
}  // namespace pawnfield
