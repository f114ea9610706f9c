#include "program/mending.h"

#include <algorithm>
#include <array>

#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "show/show.h"

namespace pawnfield {

namespace {

bool AnyIsSilent(const Show& show) {
  const MediaChannels& media = show.platform.media;
  const std::array<const MediaChannel*, 6> players{&media.EventPlayer,      &media.KeyPressPlayer,
                                                   &media.SoundClipPlayer,  &media.CorrectIncorrectPlayer,
                                                   &media.BackgroundPlayer, &media.MediaPlayer1};
  return std::any_of(players.begin(), players.end(), [](const MediaChannel* player) { return player->IsSilent(); });
}

}  // namespace

void LookForSound(Show& show) {
  show.SoundFound = !AnyIsSilent(show) && show.platform.mediaFiles.HasSoundDevice();
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
