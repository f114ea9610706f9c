// What a whole game costs in virtual time: every square of the 5x5 board is asked for, judged, claimed and turned, on
// both screens, through the handlers of the buttons.
#include <benchmark/benchmark.h>

#include "forms/main_form.h"
#include "program/program.h"
#include "sets/set_parser.h"
#include "show/show.h"
#include "sim/sim_platform.h"

namespace pawnfield {
namespace {

constexpr int kTriviaModeAIndex = 2;
constexpr int kLongestPause = 8000;

void WriteSet(SimPlatform& machine) {
  TriviaSet set;
  for (std::size_t i = 0; i < 100; ++i) {
    set[i].QuestionType = "T";
    set[i].QuestionText = "Which is the answer to question number " + std::to_string(i + 1) + "?";
    set[i].AnswerText = "That one";
  }
  machine.files.Put("C:\\Pawnfield\\Trivia Sets\\full.txt", FormatSet(set));
}

void StartProgram(SimPlatform& machine, Show& show) {
  machine.displays.Monitors = {{0, 0, 1280, 800}, {1280, 0, 3200, 1080}};
  WriteSet(machine);
  machine.dialogs.ExpectMessage("No hardware was detected");
  Main(show);
  machine.clock.Advance(10000);
}

void PlayGame(SimPlatform& machine, Show& show) {
  MainForm& form = show.frmMain;
  form.optGameType[kTriviaModeAIndex].Click();
  form.cboList.DropDown();
  form.cboList.Select(1);
  form.btnStart.Click();
  for (int square = 0; square < 25; ++square) {
    form.btnQuestionCorrect.Click();
    form.img.At(square / 5, square % 5)->Click();
    machine.clock.Advance(kLongestPause);
  }
}

void WholeGame(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    SimPlatform machine;
    Show show(machine.platform);
    StartProgram(machine, show);
    state.ResumeTiming();
    PlayGame(machine, show);
    state.PauseTiming();
    const bool over = show.frmMain.lblWinner.Caption->starts_with("Game Over!") && !show.state.GameLoaded;
    const bool clean = machine.dialogs.TakeErrors().empty();
    if (!over || !clean) {
      state.SkipWithError("the game did not come to its end");
      break;
    }
    state.ResumeTiming();
  }
}

BENCHMARK(WholeGame)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace pawnfield
