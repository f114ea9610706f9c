// The wired pads on a real serial line: a pseudo-terminal whose far side the test works.
#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <cmath>

#include "forms/main_form.h"
#include "pad_line.h"
#include "places.h"
#include "program/detection.h"
#include "program/handlers.h"
#include "show/show_record.h"

namespace pawnfield {
namespace {

using std::string_literals::operator""s;

class SerialLineTest : public testing::Test {
 protected:
  SerialLineTest() : line_(std::make_unique<PadLine>()) {
    AttachHandlers(show_);
    tmrSplash_Timer(show_);
    show_.presses.MFMap = {101, 102, 103};
    form_.cboList.DropDown();
    form_.cboList.Select(1);
    form_.btnStart.Click();
  }
  DesktopPlaces Places() {
    DesktopPlaces places = PlacesIn(folder_);
    places.serialAdapters = [this] {
      return line_ ? std::vector<SerialAdapter>{line_->Adapter()} : std::vector<SerialAdapter>{};
    };
    return places;
  }
  // That player rings in, nobody after him shuts him out, and the question is open again.
  void ExpectRingsIn(int player) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return show_.state.CurrentPlayer == player; }, kSlowMachineMs));
    QTest::qWait(30);
    EXPECT_EQ(show_.state.CurrentPlayer, player);
    form_.btnQuestionIncorrect.Click();
    EXPECT_EQ(show_.state.CurrentPlayer, 0);
  }

  QTemporaryDir folder_;
  std::unique_ptr<PadLine> line_;
  DesktopProgram program_{Places()};
  Show& show_ = program_.TheShow();
  MainForm& form_ = show_.frmMain;
};

TEST_F(SerialLineTest, CutFramesNoiseAndSeveralInOneReadAreTakenInOrder) {
  ASSERT_TRUE(show_.platform.serial.PortOpen());
  line_->Write(Pad(101).substr(0, 3));
  QTest::qWait(30);
  EXPECT_EQ(show_.state.CurrentPlayer, 0);
  line_->Write(Pad(101).substr(3));
  ExpectRingsIn(1);
  // Control characters are bytes like any other.
  line_->Write("\r\n\x11\x13\x03 noise"s + Pad(103) + Pad(102));
  ExpectRingsIn(3);
  line_->Write(Pad(102) + Pad(101) + Pad(102) + Pad(103));
  // The program is busy.
  QTest::qSleep(150);
  ExpectRingsIn(2);
}

// How far the times that two presses are given lie from those at which they went onto the line, while the program is
// busy. A machine that is busy itself may be late once, and so it has ten tries.
TEST_F(SerialLineTest, PressesOfABusyMomentKeepTheirTimes) {
  for (const int apart : {5, 40}) {
    double leastOff = apart + 5;
    for (int tries = 0; tries < 10 && leastOff > 4; ++tries) {
      QElapsedTimer between;
      between.start();
      line_->Write(Pad(103));
      QTest::qSleep(apart);
      const double written = static_cast<double>(between.nsecsElapsed()) / 1e6;
      line_->Write(Pad(101));
      QTest::qSleep(200);
      ASSERT_TRUE(QTest::qWaitFor([&] { return show_.record->Presses.size() == 2; }, kSlowMachineMs));
      const std::vector<Press>& presses = show_.record->Presses;
      EXPECT_EQ(presses[0].Player, 3);
      EXPECT_EQ(presses[1].Player, 1);
      const double margin = static_cast<double>(presses[1].TimeUs - presses[0].TimeUs) / 1000;
      leastOff = std::min(leastOff, std::abs(margin - written));
      form_.btnQuestionIncorrect.Click();
      form_.btnSkipQuestion.Click();
      if (form_.btnContinue.Enabled) form_.btnContinue.Click();
    }
    EXPECT_LE(leastOff, 4) << apart << " ms apart";
  }
}

TEST_F(SerialLineTest, AFloodOfNoiseFillsNothingAndTheNextFrameRingsIn) {
  line_->Write(std::string(1 << 20, '\x5A'));
  EXPECT_LT(show_.presses.RxBuffer.Waiting(), 140000u);
  line_->Write(Pad(102));
  ExpectRingsIn(2);
}

TEST_F(SerialLineTest, APulledAdapterIsClosedOnceAndComesBackInTheSameQuestion) {
  int lost = 0;
  const auto onComm = show_.platform.serial.OnComm;
  show_.platform.serial.OnComm = [&](SerialEvent event) {
    if (event == SerialEvent::Lost) ++lost;
    onComm(event);
  };
  line_->Pull();
  EXPECT_TRUE(QTest::qWaitFor([&] { return !show_.platform.serial.PortOpen(); }, kSlowMachineMs));
  QTest::qWait(100);
  EXPECT_EQ(lost, 1);
  EXPECT_NE(form_.lblStatusBar.Caption->find("was unplugged"), std::string::npos);
  line_ = std::make_unique<PadLine>();
  form_.mnuReconnectMF.Click();
  ASSERT_TRUE(show_.platform.serial.PortOpen());
  line_->Write(Pad(102));
  ExpectRingsIn(2);
}

}  // namespace
}  // namespace pawnfield
