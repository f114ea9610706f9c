#include "desktop/media/sound_devices.h"

#include <QFile>
#include <QLocalSocket>

namespace pawnfield {

namespace {

constexpr int kConnectMs = 20;

bool HasSoundCard() {
  QFile cards("/proc/asound/cards");
  return cards.open(QIODevice::ReadOnly) && cards.readAll().contains('[');
}

// Where the sound server listens; empty for one on another machine.
QString ServerSocket() {
  QString server = qEnvironmentVariable("PULSE_SERVER");
  if (server.startsWith("unix:")) server.remove(0, 5);
  if (!server.isEmpty()) return server.startsWith('/') ? server : QString();
  const QString own = qEnvironmentVariable("PULSE_RUNTIME_PATH");
  if (!own.isEmpty()) return own + "/native";
  const QString session = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return session.isEmpty() ? "/run/pulse/native" : session + "/pulse/native";
}

bool HasSoundServer() {
  const QString place = ServerSocket();
  // One on another machine is not asked, which could take long.
  if (place.isEmpty()) return true;
  QLocalSocket socket;
  socket.connectToServer(place);
  return socket.state() == QLocalSocket::ConnectedState || socket.waitForConnected(kConnectMs);
}

}  // namespace

QByteArray SoundOutputs() { return HasSoundCard() ? "pulse,alsa,null" : "pulse,null"; }

bool HasSoundDevice() { return HasSoundServer() || HasSoundCard(); }

}  // namespace pawnfield
