#include "program/check_presses.h"

#include <algorithm>
#include <utility>

#include "data/press_order.h"
#include "forms/main_form.h"
#include "platform/escapes.h"
#include "show/show.h"
#include "show/show_check_state.h"

namespace pawnfield {

namespace {

// A second one within that time is no press of its own.
constexpr std::int64_t kTwiceUs = 1000000;
// What remotes and phones repeat within that time is passed over in the game too.
constexpr std::int64_t kRepeatUs = 200000;

std::string Named(const Show& show, int player) {
  return std::to_string(player) + " " + Isolated(show.frmMain.PlayerName(player));
}

std::string WayText(const TriedPress& press) {
  const std::string number = std::to_string(press.Number);
  switch (press.What.Way) {
    case PressWay::Remote:
      return "remote " + number;
    case PressWay::Pad:
      return "pad " + number;
    case PressWay::Phone:
      return "the phone of seat " + number;
    case PressWay::Key:
    case PressWay::Hand:
      break;
  }
  return "key " + number;
}

bool IsSameButton(const TriedPress& a, const TriedPress& b) { return a.What.Way == b.What.Way && a.Number == b.Number; }

bool Repeats(const PressTrial& trial, const TriedPress& press) {
  const bool own = press.What.Way == PressWay::Remote || press.What.Way == PressWay::Phone;
  return own && std::any_of(trial.Last.begin(), trial.Last.end(), [&](const TriedPress& last) {
           return IsSameButton(last, press) && press.What.TimeUs - last.What.TimeUs <= kRepeatUs;
         });
}

// The player's press just before this one, by whatever way.
const TriedPress* JustBefore(const PressTrial& trial, const TriedPress& press) {
  const auto found = std::find_if(trial.Last.begin(), trial.Last.end(), [&](const TriedPress& last) {
    return last.What.Player == press.What.Player && press.What.TimeUs - last.What.TimeUs <= kTwiceUs;
  });
  return found == trial.Last.end() ? nullptr : &*found;
}

void Say(PressTrial& trial, const std::string& fault) {
  trial.Note = fault;
  trial.Faults.push_back(fault);
}

int NextAsked(const Show& show) {
  for (int player = 1; player <= show.state.Players; ++player) {
    if (!show.check->Presses.Boxes[player].Came) return player;
  }
  return 0;
}

std::string NobodysText(const TriedPress& press) {
  const std::string way = WayText(press);
  switch (press.What.Way) {
    case PressWay::Remote:
      return "Remote " + std::to_string(press.Number) + " is no player's: give it one in the options.";
    case PressWay::Pad:
      return "That pad isn't mapped: map it in the ZR-610 System menu.";
    default:
      return way + " is no player's.";
  }
}

std::string MillisecondsText(std::int64_t us) { return std::to_string(Milliseconds(us)) + " ms"; }

void TakeTwice(PressTrial& trial, const Show& show, const TriedPress& before, const TriedPress& press) {
  Say(trial, Named(show, press.What.Player) + "'s press came twice within " +
                 MillisecondsText(press.What.TimeUs - before.What.TimeUs) + ": by " + WayText(before) + " and by " +
                 WayText(press) + ".");
}

// A press of a player who was not asked.
void TakeOther(PressTrial& trial, const Show& show, const TriedPress& press) {
  const int player = press.What.Player;
  const auto& came = trial.Boxes[player].Came;
  if (came && (IsSameButton(*came, press) || trial.Asked == 0)) {
    trial.Note = Named(show, player) + " pressed again.";
  } else {
    Say(trial, "That was the button of " + Named(show, player) + " (" + WayText(press) + "), but " +
                   Named(show, trial.Asked) + " was asked.");
  }
}

void TakeAsked(PressTrial& trial, const Show& show, const TriedPress& press) {
  PressBox& box = trial.Boxes[press.What.Player];
  box.Came = press;
  box.WaitUs = std::max<std::int64_t>(0, show.platform.clock.NowUs() - press.What.TimeUs);
  trial.Note.clear();
  trial.Asked = NextAsked(show);
}

void Take(Show& show, const TriedPress& press) {
  PressTrial& trial = show.check->Presses;
  if (Repeats(trial, press)) return;
  const TriedPress* before = JustBefore(trial, press);
  const int player = press.What.Player;
  if (!IsPlayer(player)) {
    Say(trial, NobodysText(press));
  } else if (!Plays(show.state, player)) {
    Say(trial, WayText(press) + " is player " + std::to_string(player) + "'s, who doesn't play.");
  } else if (before != nullptr) {
    TakeTwice(trial, show, *before, press);
  } else if (player == trial.Asked) {
    TakeAsked(trial, show, press);
  } else {
    TakeOther(trial, show, press);
  }
  std::erase_if(trial.Last, [&](const TriedPress& last) { return press.What.TimeUs - last.What.TimeUs > kTwiceUs; });
  trial.Last.push_back(press);
}

}  // namespace

void BeginPressTrial(Show& show) {
  PressTrial& trial = show.check->Presses;
  trial = {};
  trial.Running = true;
  trial.Asked = 1;
  show.presses.OnTried = [&show](const TriedPress& press) { Take(show, press); };
}

void EndPressTrial(Show& show) {
  show.check->Presses.Running = false;
  show.presses.OnTried = {};
}

std::string PressTrialText(const Show& show) {
  const PressTrial& trial = show.check->Presses;
  if (trial.Running && trial.Asked > 0) return Named(show, trial.Asked) + ": press now.";
  if (trial.Asked > 0) return "Not all have pressed.";
  const bool any = trial.Boxes[1].Came.has_value();
  if (!any) return {};
  return trial.Faults.empty() ? "All have pressed."
                              : "All have pressed; " + std::to_string(trial.Faults.size()) + " to look at.";
}

std::string PressBoxText(const Show& show, int player) {
  const PressTrial& trial = show.check->Presses;
  const PressBox& box = trial.Boxes[player];
  const std::string name = Named(show, player);
  if (!box.Came) return name + (trial.Asked == player ? ": press now" : ": waits");
  return name + ": ok, " + WayText(*box.Came) + ", " + MillisecondsText(box.WaitUs);
}

}  // namespace pawnfield
