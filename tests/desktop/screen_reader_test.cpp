// A screen reader's view of the running program: read, worked and heard over the real accessibility bus, from another
// process.

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
#include <vector>

#include "places.h"

namespace pawnfield {

constexpr const char* kLauncher = "/usr/libexec/at-spi-bus-launcher";

// As the bus numbers them.
enum class Role : unsigned {
  Canvas = 6,
  CheckBox = 7,
  List = 11,
  Text = 29,
  Button = 43,
  Option = 44,
  Square = 56,
  Notification = 101
};

struct Node {
  QString service, path;
};

class ScreenReader : public QObject {
  Q_OBJECT

 public:
  // False where no accessibility bus can be had.
  bool Start() {
    daemon_.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    if (!daemon_.waitForStarted() || !daemon_.waitForReadyRead()) return false;
    Address = QString::fromLatin1(daemon_.readLine()).trimmed();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DBUS_SESSION_BUS_ADDRESS", Address);
    environment.insert("XDG_RUNTIME_DIR", sockets_.path());
    launcher_.setProcessEnvironment(environment);
    launcher_.start(kLauncher, {"--launch-immediately"});
    QDBusConnection session = QDBusConnection::connectToBus(Address, "session");
    QElapsedTimer since;
    for (since.start(); since.elapsed() < kSlowMachineMs; QTest::qWait(100)) {
      const QDBusMessage answer =
          session.call(QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"),
                       QDBus::Block, 3000);
      if (answer.type() != QDBusMessage::ReplyMessage) continue;
      QDBusConnection::connectToBus(answer.arguments().value(0).toString(), "reader");
      return Listen();
    }
    return false;
  }
  ~ScreenReader() override {
    for (const char* name : {"session", "reader"}) QDBusConnection::disconnectFromBus(name);
    // Asked to end, the launcher ends the bus that it has started; killed, it would leave that behind.
    for (QProcess* process : {&launcher_, &daemon_}) {
      process->terminate();
      if (process->waitForFinished()) continue;
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
  bool IsChecked(const Node& node) const {
    constexpr unsigned kChecked = 1U << 4;
    const QDBusMessage answer = Call(node, "org.a11y.atspi.Accessible", "GetState", {});
    return (qdbus_cast<QList<uint>>(answer.arguments().value(0)).value(0) & kChecked) != 0;
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

  // That it has read out a text with this in it, all of it one announcement.
  bool Hears(const QString& text) {
    const auto heard = [&] { return !heard_.filter(text).isEmpty(); };
    const bool soon = QTest::qWaitFor(heard, 60000);
    if (!soon) ADD_FAILURE() << "not heard: " << text.toStdString() << "; but: " << heard_.join(" | ").toStdString();
    return soon;
  }
  QStringList Heard() const { return heard_; }

  QString Address;

 private slots:
  // What a screen reader reads out by itself: a notification that comes up.
  void StateChanged(const QDBusMessage& signal) {
    if (signal.arguments().value(0) != "showing" || signal.arguments().value(1).toInt() != 1) return;
    const Node source{signal.service(), signal.path()};
    if (RoleOf(source) == static_cast<unsigned>(Role::Notification)) heard_.append(Name(source));
  }

 private:
  // Programs tell nothing that nobody asked for.
  bool Listen() {
    const Node registry{"org.a11y.atspi.Registry", "/org/a11y/atspi/registry"};
    const QDBusMessage answer = Call(registry, "org.a11y.atspi.Registry", "RegisterEvent",
                                     {QString("object:state-changed:showing"), QStringList(), QString()});
    return answer.type() == QDBusMessage::ReplyMessage &&
           Bus().connect({}, {}, "org.a11y.atspi.Event.Object", "StateChanged", this, SLOT(StateChanged(QDBusMessage)));
  }
  static QDBusConnection Bus() { return QDBusConnection("reader"); }
  static QDBusMessage Call(const Node& node, const QString& interface, const QString& method,
                           const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(node.service, node.path, interface, method);
    call.setArguments(arguments);
    return Bus().call(call, QDBus::Block, 60000);
  }
  std::optional<Node> Below(const Node& node, const std::function<bool(const Node&)>& isIt) const {
    for (const Node& child : Children(node)) {
      if (isIt(child)) return child;
      if (const auto found = Below(child, isIt)) return found;
    }
    return std::nullopt;
  }

  QTemporaryDir sockets_;
  QProcess daemon_, launcher_;
  QStringList heard_;
};

// The program with a set of five questions, as somebody who can't see it has started it.
class ScreenReaderTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override {
    program_.terminate();
    program_.waitForFinished(kSlowMachineMs);
  }
  // Does what the button, option or square of that name is for.
  void Press(Role role, const QString& name) {
    const auto node = reader_.Await(role, name);
    ASSERT_TRUE(node) << name.toStdString();
    EXPECT_TRUE(reader_.Act(*node)) << name.toStdString();
  }
  // From Start to a question that is up.
  void Begin() {
    const auto start = reader_.Await(Role::Button, "Start");
    ASSERT_TRUE(start);
    // Until the set has been read it is greyed.
    EXPECT_TRUE(QTest::qWaitFor([&] { return reader_.Act(*start) && reader_.Find(Role::Text, "Oslo"); }, 60000));
  }

  QTemporaryDir folder_;
  ScreenReader reader_;
  QProcess program_;
};

void ScreenReaderTest::SetUp() {
  if (!QFile::exists(kLauncher)) GTEST_SKIP() << "no accessibility bus is installed";
  ASSERT_TRUE(reader_.Start());
  for (const char* name : {"run", "config/Pawnfield"}) QDir(folder_.path()).mkpath(name);
  QFile::setPermissions(folder_.filePath("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  QFile settings(folder_.filePath("config/Pawnfield/pawnfield.ini"));
  ASSERT_TRUE(settings.open(QFile::WriteOnly) && settings.write("[Settings]\nNoHardwareTold=True\n") > 0);
  settings.close();
  QFile set(folder_.filePath("Capitals.txt"));
  ASSERT_TRUE(set.open(QFile::WriteOnly));
  for (int i = 0; i < 5; ++i)
    set.write("What is the capital of Norway?\r\nOslo\r\nT#Arial#28#True#False#16777215#\r\n");
  set.close();

  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("DBUS_SESSION_BUS_ADDRESS", reader_.Address);
  environment.insert("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
  environment.insert("HOME", folder_.path());
  environment.insert("XDG_RUNTIME_DIR", folder_.filePath("run"));
  environment.insert("XDG_CONFIG_HOME", folder_.filePath("config"));
  environment.insert("XDG_DATA_HOME", folder_.filePath("data"));
  program_.setProcessEnvironment(environment);
  program_.start(QCoreApplication::applicationDirPath() + "/pawnfield", {set.fileName()});
  ASSERT_TRUE(program_.waitForStarted());
}

TEST_F(ScreenReaderTest, ReadsTheConsoleAndTheRoomsScreenInAQuestion) {
  const auto type = reader_.Await(Role::Option, "Trivia Mode C");
  ASSERT_TRUE(type);
  EXPECT_FALSE(reader_.Find(Role::CheckBox, "Trivia Mode C"));
  ASSERT_NO_FATAL_FAILURE(Begin());
  EXPECT_TRUE(reader_.Find(Role::Text, "What is the capital of Norway?"));
  EXPECT_TRUE(reader_.Find(Role::List, "Line bonus"));
  const auto room = reader_.Find(Role::Canvas, "Audience screen");
  ASSERT_TRUE(room);
  bool told = false;
  for (const Node& part : reader_.Children(*room)) {
    told = told || reader_.Name(part) == "What is the capital of Norway?";
    EXPECT_NE(reader_.Name(part), "Oslo");
  }
  EXPECT_TRUE(told) << "the room's screen tells the question";
}

TEST_F(ScreenReaderTest, OneGameTypeIsChosenWhateverIsToggled) {
  std::vector<Node> types;
  for (const char* name : {"Challenge Mode A", "Trivia Mode A", "Challenge Mode B", "Trivia Mode B", "Trivia Mode C"}) {
    const auto type = reader_.Await(Role::Option, name);
    ASSERT_TRUE(type) << name;
    types.push_back(*type);
  }
  // Each twice: the one that is chosen stays so.
  for (std::size_t i = 0; i < 2 * types.size(); ++i) {
    EXPECT_TRUE(reader_.Act(types[i / 2]));
    for (std::size_t other = 0; other < types.size(); ++other) {
      EXPECT_EQ(reader_.IsChecked(types[other]), other == i / 2) << reader_.Name(types[other]).toStdString();
    }
  }
}

// A whole question without a look at the screen.
TEST_F(ScreenReaderTest, HearsWhatChangesAndTakesASquareThatNothingLiesOver) {
  ASSERT_NO_FATAL_FAILURE(Begin());
  EXPECT_TRUE(reader_.Hears("What is the capital of Norway?"));
  ASSERT_NO_FATAL_FAILURE(Press(Role::Button, "Player 2 rings in (2)"));
  EXPECT_TRUE(reader_.Hears("PLAYER 2 answers"));
  ASSERT_NO_FATAL_FAILURE(Press(Role::Button, "The answer is correct"));
  EXPECT_TRUE(reader_.Hears("Correct!"));

  ASSERT_NO_FATAL_FAILURE(Press(Role::Button, "Hide the board behind standby"));
  EXPECT_TRUE(reader_.Hears("Standby"));
  const auto square = reader_.Find(Role::Square, "C3: free");
  ASSERT_TRUE(square);
  EXPECT_TRUE(reader_.Act(*square));
  ASSERT_NO_FATAL_FAILURE(Press(Role::Button, "Show the board"));
  EXPECT_TRUE(reader_.Hears("The show is on the screen"));
  EXPECT_EQ(reader_.Name(*square), "C3: free") << "it was pressed under standby";
  // The verdict may lie over it for a moment more.
  EXPECT_TRUE(QTest::qWaitFor([&] { return reader_.Act(*square) && reader_.Name(*square) != "C3: free"; }, 60000));
  EXPECT_TRUE(reader_.Hears("C3: PLAYER 2"));
  EXPECT_TRUE(reader_.Hears("PLAYER 2: 50"));
  EXPECT_TRUE(reader_.Heard().filter("Oslo").isEmpty()) << "the answer is read out to nobody";
}

}  // namespace pawnfield

#include "screen_reader_test.moc"
