// Whole games of Trivia Mode C from recorded streams: reports of the wireless remotes, and bytes of the wired pads.
#include <gtest/gtest.h>

#include <sstream>

#include "../support/show_fixture.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;

// A stream is a list of steps, parted by blanks:
//   3      a press of remote or pad 3 arrives; no time passes
//   .      a poll's time passes, ".7" seven of them
//   +  -   the host judges          H  V   the board is hidden, shown
//   [ ]    a message box comes up with what stands between them arriving meanwhile
//   =2     player 2 holds the question, =0 nobody does
//   @12    the holder claims row 1, column 2 and the next question comes
class StreamPlayer {
 public:
  explicit StreamPlayer(bool wired) : wired_(wired) {
    if (wired) {
      fixture_.sim.serial.Plug();
      fixture_.sim.files.Put("C:\\Ostara Show Kit Data\\MFMap.dat", FormatPadMap({101, 102, 103}));
    } else {
      fixture_.sim.hid.PlugTransceiver(kTransceiverShort);
    }
    fixture_.WriteNumberedSet("Stream", 30);
    fixture_.Start();
    fixture_.form().optGridControl[0].Click();
    fixture_.form().optGameEnds[0].Click();
    fixture_.ChooseSet("Stream");
    fixture_.form().btnStart.Click();
  }

  void Play(const std::string& stream) {
    std::istringstream steps(stream);
    for (std::string step; steps >> step;) {
      if (step == "[") {
        PlayAtBox(steps);
      } else {
        Step(step);
      }
    }
  }

  std::string Winner() {
    EXPECT_EQ(fixture_.form().lblWinner.Caption.Get(), fixture_.audience().lblWinner.Caption.Get());
    return fixture_.form().lblWinner.Caption;
  }

 private:
  void PlayAtBox(std::istringstream& steps) {
    std::string within, step;
    while (steps >> step && step != "]") within += step + " ";
    fixture_.sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::No, [this, within] { Play(within); });
    fixture_.form().mnuFileExit.Click();
  }

  void Step(const std::string& step) {
    MainForm& form = fixture_.form();
    const int number = step.size() > 1 ? std::stoi(step.substr(1)) : 1;
    if (step[0] == '.') fixture_.sim.clock.Advance(30 * number);
    if (step[0] == '+') form.btnQuestionCorrect.Click();
    if (step[0] == '-') form.btnQuestionIncorrect.Click();
    if (step[0] == 'H') form.btnStandbyMode.Click();
    if (step[0] == 'V') form.btnPlayMode.Click();
    if (step[0] == '=') {
      EXPECT_EQ(fixture_.show().state.CurrentPlayer, number) << "at " << ++checks_;
    }
    if (step[0] == '@') Claim(number / 10, number % 10);
    if (step[0] >= '1' && step[0] <= '9') Press(step[0] - '0');
  }

  void Claim(int row, int column) {
    fixture_.Claim(row, column);
    fixture_.sim.clock.Advance(9000);
  }

  void Press(int number) {
    if (wired_) {
      fixture_.sim.serial.Feed("MF\0\4\xFD\0\0"s + static_cast<char>(100 + number));
    } else {
      fixture_.sim.hid.Reports.push_back({'\0', '\0', static_cast<char>(number)});
    }
  }

  ShowFixture fixture_;
  bool wired_;
  int checks_ = 0;
};

TEST(PressGames, RemotesWinByTheirFirstReport) {
  StreamPlayer game(false);
  game.Play("2 1 3 . =2 .2 =2 + @00 ");
  game.Play("1 1 1 2 . =1 .5 =1 - =0 1 . =0 3 . =3 + @11 ");
  game.Play("[ 1 .2 ] =0 1 . =0 .8 1 . =1 - H 2 . =0 V .8 2 . =2 + @01 ");
  game.Play("3 .2 =3 - .9 2 3 1 .3 =2 + @02");
  EXPECT_EQ(game.Winner(), "Game Over!\r\nPLAYER 2\r\nWins!");
}

TEST(PressGames, PadsWinByTheirFirstFrame) {
  StreamPlayer game(true);
  game.Play("2 1 3 =2 + @00 1 1 1 2 =1 - =0 3 =3 + @11 ");
  game.Play("[ 2 1 . ] =0 . =2 + @01 3 =3 - 2 3 1 =2 + @02");
  EXPECT_EQ(game.Winner(), "Game Over!\r\nPLAYER 2\r\nWins!");
}

TEST(PressGames, BetweenQuestionsAndInStandbyNobodyRingsIn) {
  StreamPlayer game(false);
  game.Play("1 . =1 + 2 3 .4 =1 @00 .9 H 2 3 .4 =0 V .9 3 . =3 - + =0");
}

}  // namespace
}  // namespace pawnfield
