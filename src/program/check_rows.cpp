#include "program/check_rows.h"

#include <algorithm>
#include <cctype>
#include <vector>

#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "forms/second_screen_form.h"
#include "platform/escapes.h"
#include "platform/text.h"
#include "presentation/monitors.h"
#include "program/check_presses.h"
#include "program/check_sounds.h"
#include "sets/set_file.h"
#include "show/page_state.h"
#include "show/phase.h"
#include "show/show.h"
#include "show/show_check_state.h"
#include "show/show_record.h"

namespace pawnfield {

namespace {

constexpr int kSecond = 2;
constexpr std::int64_t kMegabyte = 1024 * 1024;
// A record of an evening is a few megabytes, and a full disk fails the settings and the sets too.
constexpr std::int64_t kTooLittle = 20 * kMegabyte, kLittle = 500 * kMegabyte;

std::string Counted(std::size_t count, const std::string& one) {
  return std::to_string(count) + " " + one + (count == 1 ? "" : "s");
}

std::string Joined(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts) text += (text.empty() ? "" : ", ") + part;
  return text;
}

bool IsSamePlace(const MonitorInfo& a, const MonitorInfo& b) { return a.Left == b.Left && a.Top == b.Top; }

// Where the second monitor stands, seen from the console's.
std::string PlaceText(const MonitorInfo& console, const MonitorInfo& other) {
  if (other.Left >= console.Right) return "to the right of the console";
  if (other.Right <= console.Left) return "to the left of the console";
  return other.Top < console.Top ? "above the console" : "below the console";
}

RowFacts AudienceFacts(const Show& show) {
  if (!HasSecondMonitor(show)) {
    const bool lost = show.state.DualScreen;
    return {ChipState::Red,
            std::string(lost ? "The audience's screen is gone" : "No second monitor") +
                ": the room sees nothing. Connect a projector or a monitor, it is taken up by itself.",
            "How to connect"};
  }
  const MonitorInfo console = MonitorRect(show, 1), other = MonitorRect(show, kSecond);
  std::string sentence = (other.Name.empty() ? "Second monitor" : other.Name) + ", " + SizeText(other) + ", ";
  const std::string tryIt = show.check->TestPictureShown ? "Stop" : "Test picture";
  if (IsSamePlace(console, other)) {
    return {ChipState::Red,
            sentence +
                "shows the same as the console: choose \"extend\" in the desktop's display "
                "settings.",
            "How to connect"};
  }
  sentence += PlaceText(console, other);
  if (!show.frmSS.Visible) return {ChipState::Amber, sentence + ". Its window isn't up yet.", "How to connect"};
  return {ChipState::Good, sentence + (show.check->TestPictureShown ? ". The room sees the test picture." : ""), "",
          tryIt};
}

std::size_t PhonesOnSeats(const Show& show) {
  std::size_t seats = 0;
  for (int player = 1; player <= show.state.Players; ++player) {
    if (show.pages->Pages.contains(show.pages->Seats[player].Page)) ++seats;
  }
  return seats;
}

std::size_t MappedPads(const Show& show) {
  const PadMap& map = show.presses.MFMap;
  const auto end = map.begin() + std::min<std::ptrdiff_t>(show.state.Players, std::ssize(map));
  return static_cast<std::size_t>(std::count_if(map.begin(), end, [](auto id) { return id != 0; }));
}

bool HasWireless(const Show& show) { return show.dgTransceiver && show.dgTransceiver->Ready(); }

// Every way that is connected, keys last, which always are.
std::string WaysText(const Show& show) {
  const std::string players = std::to_string(show.state.Players);
  std::vector<std::string> ways;
  if (HasWireless(show)) ways.push_back("wireless remotes");
  if (show.presses.ZR610Present)
    ways.push_back("wired pads, " + std::to_string(MappedPads(show)) + " of " + players + " mapped");
  if (show.pages->On) ways.push_back("phones on " + std::to_string(PhonesOnSeats(show)) + " of " + players + " seats");
  if (AreKeypads(show.state.SerialComm)) ways.push_back("keypads");
  ways.push_back("keys 1 to " + players);
  std::string text = Joined(ways);
  text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

std::string BuzzersMend(const Show& show) {
  if (show.presses.ZR610Present) return "Map pads...";
  return HasWireless(show) ? "Options..." : "Choose...";
}

RowFacts BuzzersFacts(const Show& show) {
  const PressTrial& trial = show.check->Presses;
  RowFacts facts{ChipState::Good, WaysText(show) + ".", BuzzersMend(show), trial.Running ? "Stop" : "Press each once"};
  const bool nothing =
      !HasWireless(show) && !show.presses.ZR610Present && !show.pages->On && !AreKeypads(show.state.SerialComm);
  const bool unmapped = show.presses.ZR610Present && MappedPads(show) < static_cast<std::size_t>(show.state.Players);
  if (show.presses.TransceiverLost) {
    facts.Light = ChipState::Red;
    facts.Sentence =
        "The wireless transceiver is gone: plug it in again, it is taken up by itself. Left: " + WaysText(show) + ".";
  } else if (nothing) {
    facts.Light = ChipState::Amber;
    facts.Sentence =
        "No buzzers: players ring in by the keys 1 to " + std::to_string(show.state.Players) + " or by hand.";
  } else if (unmapped || !trial.Faults.empty()) {
    facts.Light = ChipState::Amber;
  }
  const std::string said = PressTrialText(show);
  if (!said.empty()) facts.Sentence += " " + said;
  return facts;
}

RowFacts SoundFacts(const Show& show) {
  const ShowCheckState& check = *show.check;
  if (!show.SoundFound) {
    return {ChipState::Red,
            std::string(show.SoundOnceFound ? "The sound device is gone" : "No sound device") +
                ": nothing is heard. Plug it in or start the sound server, sounds come back by themselves within a "
                "second or two.",
            "Look again"};
  }
  const std::string devices = check.SoundDevices ? Joined(*check.SoundDevices) : std::string();
  const std::string device = devices.empty() ? "Sound device found" : devices;
  const std::string silent = SilentChannels(show);
  RowFacts facts{silent.empty() ? ChipState::Good : ChipState::Amber, device + ". ", "Volumes...",
                 check.Channel > 0 ? "Stop" : "Play each"};
  if (check.Channel > 0) {
    facts.Sentence += "Now: " + ChannelText(check.Channel) + ".";
  } else if (!silent.empty()) {
    facts.Sentence += "Not to be heard: " + silent + ".";
  } else {
    facts.Sentence += check.SoundsPlayed ? "All five were played." : "Effects, keys, clips, music, verdicts.";
  }
  return facts;
}

std::string NumbersOf(const std::map<int, std::string>& errors) {
  std::vector<std::string> numbers;
  numbers.reserve(errors.size());
  for (const auto& [number, error] : errors) numbers.push_back(std::to_string(number));
  constexpr std::size_t kMost = 8;
  const bool more = numbers.size() > kMost;
  if (more) numbers.resize(kMost);
  return Joined(numbers) + (more ? " and more" : "");
}

bool NeedsSet(const Show& show) { return show.state.Nature().Trivia; }

RowFacts SetFacts(const Show& show) {
  if (!NeedsSet(show)) return {ChipState::Good, "This game type plays without a set."};
  if (!show.state.GameLoaded || show.NumGameQuestions == 0) {
    return {ChipState::Red, "No set is loaded: choose one at the console or here.", "Choose..."};
  }
  const std::string name = Isolated(SetName(ExtractFileName(show.state.LoadedSetPath)));
  const MediaCheck& files = show.mediaCheck;
  if (files.Left > 0) {
    return {ChipState::None, name + ": its files are being looked at, " + std::to_string(files.Files - files.Left) +
                                 " of " + std::to_string(files.Files) + "."};
  }
  const std::vector<SetFinding>& findings = show.check->Findings;
  if (!files.Errors.empty()) {
    return {ChipState::Red,
            name + ": " + Counted(files.Errors.size(), "file") + " can't be shown (question" +
                (files.Errors.size() == 1 ? " " : "s ") + NumbersOf(files.Errors) + ").",
            "Open question"};
  }
  if (findings.empty()) return {ChipState::Good, name + ": wordings, answers, letters and files are right."};
  const bool grave = std::any_of(findings.begin(), findings.end(), [](const auto& f) { return IsGrave(f.Kind); });
  return {grave ? ChipState::Red : ChipState::Amber, name + ": " + Counted(findings.size(), "thing") + " to look at.",
          "Open question"};
}

RowFacts QuestionsFacts(const Show& show) {
  if (!NeedsSet(show)) return {ChipState::Good, "This game type asks none."};
  if (!show.state.GameLoaded) return {ChipState::None, "Known as soon as a set is loaded."};
  const int questions = show.NumGameQuestions, squares = show.state.GridSize * show.state.GridSize;
  const std::string counts =
      Counted(static_cast<std::size_t>(questions), "question") + ", " + std::to_string(squares) + " squares";
  if (questions >= squares) return {ChipState::Good, counts + "."};
  return {ChipState::Amber, counts + ": the questions may end before the board is full."};
}

RowFacts AwakeFacts(const Show& show) {
  const auto& answer = show.check->Awake;
  if (!answer) return {ChipState::None, "The desktop is being asked."};
  if (answer->Saver && answer->Sleep)
    return {ChipState::Good, "Held off while the room is shown the game.", "", "Try again"};
  const std::string what = answer->Saver ? "sleep" : answer->Sleep ? "its screen saver" : "its screen saver and sleep";
  return {ChipState::Amber,
          "The desktop doesn't promise to hold off " + what + ": turn that off in its settings for the show.", "",
          "Try again"};
}

std::string RoomText(std::int64_t bytes) {
  const std::int64_t megabytes = bytes / kMegabyte;
  return megabytes >= 10 * 1024 ? std::to_string(megabytes / 1024) + " GB" : std::to_string(megabytes) + " MB";
}

RowFacts DiskFacts(const Show& show) {
  const auto& place = show.check->Place;
  if (show.record->FileFails) {
    return {ChipState::Red, "The record of the show can't be written; it is tried again each second.", "What to do",
            "Look again"};
  }
  if (!place) return {ChipState::None, "The disk is being asked."};
  if (!place->Problem.empty()) {
    return {ChipState::Red, "No record can be written to " + place->Folder + ": " + place->Problem + ".", "What to do",
            "Look again"};
  }
  const std::string free = place->FreeBytes < 0 ? "Room unknown" : RoomText(place->FreeBytes) + " free";
  const std::string sentence = free + "; the show is recorded in " + place->Folder;
  if (place->FreeBytes >= 0 && place->FreeBytes < kTooLittle) {
    return {ChipState::Red, "The disk is full: " + sentence + ". Make room before the show.", "What to do",
            "Look again"};
  }
  const bool little = place->FreeBytes >= 0 && place->FreeBytes < kLittle;
  return {little ? ChipState::Amber : ChipState::Good, sentence, "", "Look again"};
}

RowFacts EmergencyFacts() {
  return {ChipState::Good, "One page to print: the keys, and what to do when something fails.", "", "Open to print"};
}

}  // namespace

RowFacts FactsOf(const Show& show, CheckRow row) {
  switch (row) {
    case CheckRow::Audience:
      return AudienceFacts(show);
    case CheckRow::Buzzers:
      return BuzzersFacts(show);
    case CheckRow::Sound:
      return SoundFacts(show);
    case CheckRow::Set:
      return SetFacts(show);
    case CheckRow::Questions:
      return QuestionsFacts(show);
    case CheckRow::Awake:
      return AwakeFacts(show);
    case CheckRow::Disk:
      return DiskFacts(show);
    case CheckRow::Emergency:
      return EmergencyFacts();
  }
  return {};
}

std::string WordOf(ChipState light) {
  switch (light) {
    case ChipState::Good:
      return "READY";
    case ChipState::Amber:
      return "LOOK";
    case ChipState::Red:
      return "NOT READY";
    case ChipState::None:
      break;
  }
  return "...";
}

std::string SignOf(ChipState light) {
  constexpr char32_t kCheck = 0x2713, kCross = 0x2715;
  switch (light) {
    case ChipState::Good:
      return EscapeOf(kCheck);
    case ChipState::Amber:
      return "!";
    case ChipState::Red:
      return EscapeOf(kCross);
    case ChipState::None:
      break;
  }
  return "?";
}

std::string ReadyText(const ControlArray<Chip, kCheckRows>& lights) {
  constexpr std::size_t kCounted = kCheckRows - 1;
  std::size_t ready = 0;
  for (std::size_t i = 0; i < kCounted; ++i)
    if (lights[i].State == ChipState::Good) ++ready;
  return std::to_string(ready) + " of " + std::to_string(kCounted) +
         " ready. The room sees and hears nothing of this, unless a button says so.";
}

}  // namespace pawnfield
