// How long a press of a wireless remote takes from its report to the game, to both screens and to its clip.

#include <QTest>

#include "figures.h"
#include "forms/main_form.h"
#include "played_show.h"

namespace pawnfield {

namespace {

constexpr std::size_t kPresses = 1000;

struct Latencies {
  std::vector<double> Player, Screens, Clip;
};

void Print(const std::string& from, const Latencies& times) {
  PrintPercentiles("Press/player_from_" + from, times.Player);
  PrintPercentiles("Press/screens_from_" + from, times.Screens);
  PrintPercentiles("Press/clip_from_" + from, times.Clip);
}

}  // namespace

bool MeasurePresses() {
  PlayedShow show;
  Latencies fromHanding, fromPoll;
  for (std::size_t i = 0; i < kPresses; ++i) {
    QTest::qWait(static_cast<int>(i * 7 % 31));
    if (!show.PressRemote(1 + static_cast<int>(i) % PlayedShow::kRemotes)) return false;
    for (auto& [times, from] :
         {std::pair<Latencies*, Moment>{&fromHanding, show.Port.HandedAt}, {&fromPoll, show.Port.ReadAt}}) {
      times->Player.push_back(Milliseconds(from, show.Sees.PlayerAt));
      times->Clip.push_back(Milliseconds(from, show.Sees.ClipAt));
      times->Screens.push_back(Milliseconds(from, show.Port.WrittenAt));
    }
    show.JudgeIncorrect();
  }
  Print("handing", fromHanding);
  Print("poll", fromPoll);
  return true;
}

}  // namespace pawnfield
