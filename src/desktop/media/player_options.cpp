#include "desktop/media/player_options.h"

#include <utility>

namespace pawnfield {

void SetPlayerOptions(mpv_handle* player) {
  for (const auto& [name, value] : {std::pair{"config", "no"},
                                    {"idle", "yes"},
                                    {"terminal", "no"},
                                    {"load-scripts", "no"},
                                    {"load-stats-overlay", "no"},
                                    {"load-osd-console", "no"},
                                    {"load-auto-profiles", "no"},
                                    // A list of other files is no medium, and nothing is fetched from anywhere.
                                    {"demuxer", "lavf"},
                                    {"stream-lavf-o", "protocol_whitelist=file"},
                                    {"demuxer-lavf-o", "protocol_whitelist=file"},
                                    {"osc", "no"},
                                    {"ytdl", "no"},
                                    {"sub-auto", "no"},
                                    {"gapless-audio", "no"},
                                    {"audio-fallback-to-null", "yes"},
                                    {"audio-display", "no"},
                                    {"sid", "no"},
                                    {"audio-file-auto", "no"},
                                    {"input-default-bindings", "no"},
                                    {"audio-client-name", "Pawnfield"}}) {
    mpv_set_option_string(player, name, value);
  }
}

}  // namespace pawnfield
