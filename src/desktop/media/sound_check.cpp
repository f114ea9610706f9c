#include "desktop/media/sound_check.h"

#include <mpv/client.h>

#include <QFile>
#include <array>
#include <memory>

#include "desktop/media/player_options.h"

namespace pawnfield {

namespace {

constexpr double kPatienceS = 5;

using Player = std::unique_ptr<mpv_handle, void (*)(mpv_handle*)>;

// It hears everything at once and plays to nobody.
Player MakeSilentPlayer() {
  Player player(mpv_create(), mpv_terminate_destroy);
  if (!player) return player;
  SetPlayerOptions(player.get());
  for (const auto& [name, value] :
       {std::pair{"vid", "no"}, {"vo", "null"}, {"ao", "null"}, {"ao-null-untimed", "yes"}}) {
    mpv_set_option_string(player.get(), name, value);
  }
  if (mpv_initialize(player.get()) < 0) player.reset();
  return player;
}

}  // namespace

bool IsDecodableSound(const QString& file) {
  const Player player = MakeSilentPlayer();
  // Without a player there is nothing to be said against the file.
  if (!player) return true;
  const QByteArray path = QFile::encodeName(file);
  std::array<const char*, 3> load{"loadfile", path.constData(), nullptr};
  if (mpv_command_async(player.get(), 0, load.data()) < 0) return true;
  while (true) {
    const mpv_event* event = mpv_wait_event(player.get(), kPatienceS);
    if (event->event_id == MPV_EVENT_NONE || event->event_id == MPV_EVENT_PLAYBACK_RESTART) return true;
    if (event->event_id != MPV_EVENT_END_FILE) continue;
    return static_cast<const mpv_event_end_file*>(event->data)->reason == MPV_END_FILE_REASON_EOF;
  }
}

}  // namespace pawnfield
