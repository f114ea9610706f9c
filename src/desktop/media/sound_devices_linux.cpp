#include "desktop/media/sound_devices.h"

#include <mpv/client.h>

#include <QFile>
#include <QLocalSocket>
#include <memory>

#include "desktop/media/player_options.h"

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

// The lines of the cards' list that name one: " 0 [PCH            ]: HDA-Intel - HDA Intel PCH".
QStringList CardNames() {
  QFile cards("/proc/asound/cards");
  QStringList names;
  if (!cards.open(QIODevice::ReadOnly)) return names;
  for (const QString& line : QString::fromUtf8(cards.readAll()).split('\n')) {
    const qsizetype at = line.indexOf("]: ");
    if (at >= 0) names.append(line.mid(at + 3).section(" - ", 1));
  }
  return names;
}

QString TextAt(const mpv_node_list& fields, const char* key) {
  for (int i = 0; i < fields.num; ++i) {
    if (qstrcmp(fields.keys[i], key) == 0 && fields.values[i].format == MPV_FORMAT_STRING)
      return QString::fromUtf8(fields.values[i].u.string);
  }
  return {};
}

// The player asks the server for its outputs.
QStringList ServerOutputs() {
  QStringList names;
  const std::unique_ptr<mpv_handle, void (*)(mpv_handle*)> player(mpv_create(), mpv_terminate_destroy);
  if (!player) return names;
  SetPlayerOptions(player.get());
  mpv_set_option_string(player.get(), "ao", "pulse");
  mpv_node list;
  if (mpv_initialize(player.get()) < 0) return names;
  if (mpv_get_property(player.get(), "audio-device-list", MPV_FORMAT_NODE, &list) < 0) return names;
  for (int i = 0; list.format == MPV_FORMAT_NODE_ARRAY && i < list.u.list->num; ++i) {
    const mpv_node& device = list.u.list->values[i];
    if (device.format != MPV_FORMAT_NODE_MAP || !TextAt(*device.u.list, "name").startsWith("pulse/")) continue;
    names.append(TextAt(*device.u.list, "description"));
  }
  mpv_free_node_contents(&list);
  return names;
}

}  // namespace

QByteArray SoundOutputs() { return HasSoundCard() ? "pulse,alsa,null" : "pulse,null"; }

QStringList SoundDeviceNames() {
  const QStringList outputs = HasSoundServer() ? ServerOutputs() : QStringList();
  return outputs.isEmpty() ? CardNames() : outputs;
}

bool HasSoundDevice() { return HasSoundServer() || HasSoundCard(); }

}  // namespace pawnfield
