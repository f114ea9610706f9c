// The chase light of the idle show: whose lamp is on, and the codes that go round with it.

#include <gtest/gtest.h>

#include "forms/main_form.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

struct Turn {
  int Ticks;
  const char* Lamps;
  const char* Codes;
};

TEST(Lamps, ChaseTheLightWithTheScoresInTheTimeThatTheSpeedAllows) {
  const struct {
    const char* MicsOnWithBuzzer;
    char On, Off;
  } kinds[] = {{"False", '3', '1'}, {"True", '2', '0'}};
  // The first light takes one tick more, for the count starts at nothing and goes on from one.
  const Turn turns[] = {{2, "+--", "//"},       {1, "-+-", "10/20/30"}, {1, "-+-", "10/20/30"},
                        {1, "--+", "30/10/20"}, {2, "+--", "20/30/10"}, {2, "-+-", "10/20/30"}};
  for (const auto& kind : kinds) {
    ShowFixture fixture;
    fixture.Preset("LedSpeed", "9");
    fixture.Preset("MicsOnWithBuzzer", kind.MicsOnWithBuzzer);
    fixture.Start();
    GameState& state = fixture.show().state;
    fixture.form().tmrRotate.Enabled = false;
    state.RotateCount = 0;
    state.Lamp = {0, 0, 0};
    state.LampCode = {"", "", ""};
    for (const int player : {1, 2, 3}) fixture.form().Score(player).Caption = std::to_string(player * 10);
    fixture.form().tmrRotate.Enabled = true;
    for (const Turn& turn : turns) {
      fixture.sim.clock.Advance(turn.Ticks * 25);
      std::string lamps;
      for (const int lamp : state.Lamp) {
        lamps += lamp == kind.On ? '+' : lamp == kind.Off || lamp == 0 ? '-' : '?';
      }
      EXPECT_EQ(lamps, turn.Lamps) << kind.On;
      EXPECT_EQ(state.LampCode[1] + "/" + state.LampCode[2] + "/" + state.LampCode[3], turn.Codes) << kind.On;
    }
  }
}

}  // namespace
}  // namespace pawnfield
