#include "program/console_chips.h"

#include <algorithm>
#include <array>

#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "forms/second_screen_form.h"
#include "presentation/monitors.h"
#include "program/mending.h"
#include "program/show_check.h"
#include "show/page_state.h"
#include "show/phase.h"
#include "show/show.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

void Write(Chip& chip, const std::string& text, ChipState state, const std::string& tip) {
  chip.Caption = text;
  chip.State = state;
  chip.ToolTipText = tip;
}

std::string SizeOf(const MonitorInfo& monitor) {
  return std::to_string(monitor.Right - monitor.Left) + "x" + std::to_string(monitor.Bottom - monitor.Top);
}

void ShowAudienceChip(Show& show) {
  Chip& chip = show.frmMain.chpAudience;
  if (!HasSecondMonitor(show)) {
    const bool lost = show.state.DualScreen;
    Write(chip, lost ? "AUDIENCE LOST" : "NO AUDIENCE SCREEN", lost ? ChipState::Red : ChipState::Amber,
          "The room sees nothing: connect a projector or a second monitor. Click for how that is done.");
    return;
  }
  constexpr int kSecond = 2;
  const MonitorInfo monitor = MonitorRect(show, kSecond);
  const std::string name = monitor.Name.empty() ? "The room's screen" : monitor.Name;
  if (ScreenCovered(show)) {
    Write(chip, "AUDIENCE COVERED", ChipState::None, name + " shows standby until Show or Start is pressed");
  } else if (!show.platform.displays.KeepsAwake()) {
    Write(chip, "SCREENS MAY SLEEP", ChipState::Amber,
          name + ", " + SizeOf(monitor) +
              ": the room sees it. Nothing here keeps the screens awake for the program: "
              "switch the screen saver and power saving off before the show.");
  } else {
    Write(chip, "AUDIENCE " + SizeOf(monitor), ChipState::Good, name + ", " + SizeOf(monitor) + ": the room sees it");
  }
}

// The wired pads that have a player's place.
std::ptrdiff_t MappedPads(const Show& show) {
  const PadMap& map = show.presses.MFMap;
  const auto end = map.begin() + std::min<std::ptrdiff_t>(show.state.Players, std::ssize(map));
  return std::count_if(map.begin(), end, [](auto id) { return id != 0; });
}

void ShowBuzzersChip(Show& show) {
  Chip& chip = show.frmMain.chpBuzzers;
  const PressState& presses = show.presses;
  const std::string players = std::to_string(show.state.Players);
  if (presses.TransceiverLost) {
    Write(chip, "BUZZERS LOST", ChipState::Red,
          "The wireless transceiver is gone: plug it in again. Players can "
          "ring in by keys and by hand meanwhile.");
  } else if (show.dgTransceiver && show.dgTransceiver->Ready()) {
    Write(chip, "BUZZERS WIRELESS", ChipState::Good, "The transceiver listens. Click to see which remote is whose.");
  } else if (presses.ZR610Present) {
    const std::string pads = std::to_string(MappedPads(show));
    Write(chip, "BUZZERS " + pads + " of " + players, pads == players ? ChipState::Good : ChipState::Amber,
          pads + " wired pads are mapped for " + players + " players. Click to map them.");
  } else if (AreKeypads(show.state.SerialComm)) {
    Write(chip, "BUZZERS KEYPADS", ChipState::Good, "Keypads type for the players. Click to choose something else.");
  } else {
    Write(chip, "NO BUZZERS", ChipState::Amber,
          "Players ring in by the keys 1 to " + players + " or by hand. Click to choose what they press.");
  }
}

void ShowSoundChip(Show& show) {
  Chip& chip = show.frmMain.chpSound;
  if (show.SoundFound) {
    Write(chip, show.state.MusicMuted ? "MUSIC MUTED" : "SOUND", ChipState::Good,
          "Sounds are heard. Click for the volumes and the letters.");
  } else if (show.SoundOnceFound) {
    Write(chip, "SOUND LOST", ChipState::Red,
          "The sound device is gone: plug it in again, sounds come back by themselves. Click to look again.");
  } else {
    Write(chip, "NO SOUND DEVICE", ChipState::Amber, "Nothing is heard on this machine. Click to look again.");
  }
}

// The record is there from a game's first event on.
void ShowRecordChip(Show& show) {
  Chip& chip = show.frmMain.chpRecord;
  const ShowRecord& record = *show.record;
  chip.Visible = record.FileFails || !record.File.empty();
  if (record.FileFails) {
    Write(chip, "RECORD FAILS", ChipState::Amber,
          "The record can't be written to the disk. The show goes on, and what waits is tried each second. Click for "
          "what to do.");
  } else {
    Write(chip, "RECORD", ChipState::Good, "The show is on record: it can be brought back after a power cut.");
  }
}

void ShowPhonesChip(Show& show) {
  Chip& chip = show.frmMain.chpPhones;
  const PageState& pages = *show.pages;
  chip.Visible = pages.On;
  const auto phones = std::count_if(pages.Pages.begin(), pages.Pages.end(),
                                    [](const auto& page) { return page.second.Kind == PageKind::Phone; });
  Write(chip, "PHONES " + std::to_string(phones), phones > 0 ? ChipState::Good : ChipState::None,
        "Pages on the local network are on. Click for the address, the PIN and the seats.");
}

// Before a game a chip leads to the check, and in one to what mends it at once.
void OpenCheckOr(Show& show, CheckRow row, void (*mend)(Show&)) {
  if (MayCheck(show)) {
    OpenShowCheckAt(show, row);
  } else {
    mend(show);
  }
}

}  // namespace

void ShowChips(Show& show) {
  // Before the console is up nothing has been looked for.
  if (!show.frmMain.Visible) return;
  if (!show.SoundLookedFor) LookForSound(show);
  show.SoundLookedFor = true;
  ShowAudienceChip(show);
  ShowBuzzersChip(show);
  ShowSoundChip(show);
  ShowRecordChip(show);
  ShowPhonesChip(show);
}

void AttachChips(Show& show) {
  MainForm& form = show.frmMain;
  form.chpAudience.OnClick = [&show] {
    OpenCheckOr(show, CheckRow::Audience, [](Show& inGame) { inGame.frmMain.mnuHelpProjector.Click(); });
  };
  form.chpBuzzers.OnClick = [&show] { OpenCheckOr(show, CheckRow::Buzzers, OpenBuzzers); };
  form.chpSound.OnClick = [&show] { OpenCheckOr(show, CheckRow::Sound, OpenSound); };
  form.chpRecord.OnClick = [&show] {
    OpenCheckOr(show, CheckRow::Disk, [](Show& inGame) { inGame.frmMain.mnuHelpManual.Click(); });
  };
  form.chpPhones.OnClick = [&form] { form.mnuFilePages.Click(); };
  for (MediaChannel* player : Players(show)) {
    player->OnSilenceChange = [&show] { show.frmMain.Dispatch([&show] { LookForSound(show); }, "SoundDevice"); };
  }
}

}  // namespace pawnfield
