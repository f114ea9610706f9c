#include "media/media_handlers.h"

#include "forms/main_form.h"
#include "media/background_music.h"
#include "media/media_on_demand.h"
#include "media/optional_headers.h"
#include "media/sound_effects.h"
#include "show/show.h"

namespace pawnfield {

void AttachMediaHandlers(Show& show) {
  show.frmMain.tmrBGMusic.OnTimer = [&show] { tmrBGMusic_Timer(show); };
  AttachMediaOnDemandHandlers(show);
  AttachSoundEffectsHandlers(show);
  AttachOptionalHeadersHandlers(show);
}

}  // namespace pawnfield
