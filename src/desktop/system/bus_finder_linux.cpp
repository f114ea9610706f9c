#include "desktop/system/bus_finder.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>
#include <optional>

namespace pawnfield {

namespace {

constexpr int kLimitMs = 2000;

// The addresses that the library would try, where the variables say nothing else.
QString SessionAddress() {
  const QString address = qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS");
  return address.isEmpty() ? "unix:path=" + qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus" : address;
}

QString SystemAddress() {
  const QString address = qEnvironmentVariable("DBUS_SYSTEM_BUS_ADDRESS");
  return address.isEmpty() ? "unix:path=/run/dbus/system_bus_socket" : address;
}

// Of the address's first local socket; nothing for an address of another kind.
std::optional<sockaddr_un> SocketOf(const QString& address) {
  static const QRegularExpression place("unix:(?:[^;]*,)?(path|abstract)=([^,;]+)");
  const QRegularExpressionMatch match = place.match(address);
  QByteArray path = QUrl::fromPercentEncoding(match.captured(2).toUtf8()).toUtf8();
  if (match.captured(1) == "abstract") path.prepend('\0');
  sockaddr_un socket{AF_UNIX, {}};
  if (path.isEmpty() || static_cast<std::size_t>(path.size()) >= sizeof socket.sun_path) return std::nullopt;
  std::copy(path.begin(), path.end(), socket.sun_path);
  return socket;
}

// Goes as far as a bus must answer: the greeting by which a caller says who it is.
bool Greet(int caller, const sockaddr_un& bus, int limitMs) {
  const bool abstract = bus.sun_path[0] == '\0';
  const std::size_t length =
      offsetof(sockaddr_un, sun_path) + (abstract ? 1 : 0) + strlen(bus.sun_path + (abstract ? 1 : 0));
  if (connect(caller, reinterpret_cast<const sockaddr*>(&bus), static_cast<socklen_t>(length)) != 0) return false;
  const QByteArray greeting = QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(geteuid()).toHex() + "\r\n";
  pollfd answer{caller, POLLIN, 0};
  std::array<char, 2> begin{};
  return send(caller, greeting.constData(), static_cast<std::size_t>(greeting.size()), MSG_NOSIGNAL) ==
             greeting.size() &&
         poll(&answer, 1, limitMs) == 1 && read(caller, begin.data(), begin.size()) == 2 && begin[0] == 'O' &&
         begin[1] == 'K';
}

bool Answers(const QString& address, const QDeadlineTimer& limit) {
  const auto bus = SocketOf(address);
  const int caller = bus ? socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0) : -1;
  if (caller < 0) return false;
  const bool answers = Greet(caller, *bus, static_cast<int>(limit.remainingTime()));
  close(caller);
  return answers;
}

}  // namespace

void HideSilentBus() {
  const QString address = SessionAddress();
  if (SocketOf(address) && !Answers(address, QDeadlineTimer(kLimitMs))) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
  }
}

BusFinder::BusFinder(Found found) : found_(std::move(found)), thread_(QThread::create([this] { Look(); })) {
  thread_->start();
}

BusFinder::~BusFinder() { thread_->wait(); }

void BusFinder::Look() {
  const QDeadlineTimer limit(kLimitMs);
  const QDBusConnection none("none");
  const QDBusConnection session = Answers(SessionAddress(), limit) ? QDBusConnection::sessionBus() : none;
  const QDBusConnection system = Answers(SystemAddress(), limit) ? QDBusConnection::systemBus() : none;
  QMetaObject::invokeMethod(
      this, [this, session, system] { found_(session, system); }, Qt::QueuedConnection);
}

}  // namespace pawnfield
