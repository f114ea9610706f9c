#include "program/mending.h"

#include <algorithm>

#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

std::array<MediaChannel*, 6> Players(const Show& show) {
  const MediaChannels& media = show.platform.media;
  return {&media.EventPlayer,      &media.KeyPressPlayer,         &media.SoundClipPlayer,
          &media.BackgroundPlayer, &media.CorrectIncorrectPlayer, &media.MediaPlayer1};
}

void LookForSound(Show& show) {
  const auto players = Players(show);
  const bool silent = std::any_of(players.begin(), players.end(), [](auto* player) { return player->IsSilent(); });
  show.SoundFound = !silent && show.platform.mediaFiles.HasSoundDevice();
  show.SoundOnceFound = show.SoundOnceFound || show.SoundFound;
}

void OpenBuzzers(Show& show) {
  MainForm& form = show.frmMain;
  if (show.presses.ZR610Present) {
    form.mnuMapMF.Click();
  } else if (show.dgTransceiver && show.dgTransceiver->Ready()) {
    form.mnuFileOptions.Click();
  } else {
    form.mnuFileInterface.Click();
  }
}

void OpenSound(Show& show) {
  LookForSound(show);
  if (show.SoundFound) show.frmMain.btnCues.Click();
}

}  // namespace pawnfield
