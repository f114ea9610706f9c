// The report to the companion as bytes, who sends it when, and the life of its flags.
#include "controllers/companion.h"

#include <gtest/gtest.h>

#include "../support/show_fixture.h"
#include "controllers/ring_in.h"
#include "controllers/transceiver.h"
#include "engine/judging.h"

namespace pawnfield {
namespace {

const std::string kTwoHundred(200, 'x');

struct ReportCase {
  const char* What;
  std::string Name, Score;
  ScreenStyle Style;
  // Correct, incorrect, third, swapped.
  const char* Flags;
  // The whole report of player 2.
  std::string Text;
};

class ReportBytes : public ::testing::TestWithParam<ReportCase> {};

TEST_P(ReportBytes, FollowTheFormat) {
  const ReportCase& row = GetParam();
  CompanionReport report{2, row.Name, row.Score, row.Style, "140"};
  report.Correct = row.Flags[0] == 'T';
  report.Incorrect = row.Flags[1] == 'T';
  report.Third = row.Flags[2] == 'T';
  report.Swapped = row.Flags[3] == 'T';
  EXPECT_EQ(ReportText(report), row.Text) << row.What;
  EXPECT_EQ(ReportText(report).size(), kReportLength);
}

const ScreenStyle kDefault;
const std::string kLook = "^16777215~~^0~~~~~~~~~^Comic Sans MS" + std::string(37, '~') + "^100^T^F^140";

INSTANTIATE_TEST_SUITE_P(
    Reports, ReportBytes,
    ::testing::Values(
        ReportCase{"no name", "", "0", kDefault, "FFFF", "02^~~~~~~~~~~^+000000" + kLook + "^F^F^F^F"},
        ReportCase{"a short name", "Al", "125", kDefault, "TFFF", "02^Al~~~~~~~~^+000125" + kLook + "^T^F^F^F"},
        ReportCase{"10 characters", "ABCDEFGHIJ", "-25", kDefault, "FTFF",
                   "02^ABCDEFGHIJ^-000025" + kLook + "^F^T^F^F"},
        ReportCase{"11 characters", "ABCDEFGHIJK", "999999", kDefault, "FFTF",
                   "02^ABCDEFGHIJ^+999999" + kLook + "^F^F^T^F"},
        ReportCase{"200 characters", kTwoHundred, "-999999", kDefault, "FFFT",
                   "02^xxxxxxxxxx^-999999^0~~~~~~~~~^16777215~~" + kLook.substr(22) + "^F^F^F^T"},
        ReportCase{"a score of 7 digits", "~^", "-1000100", kDefault, "FFFF",
                   "02^~^~~~~~~~~^-000100" + kLook + "^F^F^F^F"},
        ReportCase{"a score that is no number", "A", "", kDefault, "FFFF",
                   "02^A~~~~~~~~~^+000000" + kLook + "^F^F^F^F"},
        ReportCase{"every style field", "A", "1", ScreenStyle{kTwoHundred, 7, true, false, 255, -12345678901.0}, "TTTF",
                   "02^A~~~~~~~~~^+000001^-123456789^255~~~~~~~^" + std::string(50, 'x') + "^007^F^T^140^T^T^T^F"}));

class Companion : public ::testing::Test {
 protected:
  void Start(int product, int gameType = kTriviaModeC) {
    fixture.sim.hid.PlugTransceiver(product);
    fixture.sim.settings.Preset("Pawnfield", "Settings", "TSSupport", "True");
    fixture.sim.settings.Preset("Pawnfield", "Settings", "AutoContinue", "6");
    fixture.sim.settings.Preset("Pawnfield", "Settings", "GameType", std::to_string(gameType));
    fixture.WriteNumberedSet("Keys", 20);
    fixture.Start();
  }
  // The texts that the transceiver was given, put together from their six pieces behind a header.
  std::vector<std::string> TakeTexts() {
    while (fixture.show().frmAlwaysLoaded.tmrCompanion.Enabled) fixture.sim.clock.Advance(2);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < fixture.sim.hid.Writes.size(); ++i) {
      const std::string& report = fixture.sim.hid.Writes[i].Report;
      if (i % 7 == 0) texts.emplace_back();
      if (i % 7 != 0) texts.back() += report.substr(9, static_cast<unsigned char>(report[2]) - 10U);
    }
    fixture.sim.hid.Writes.clear();
    return texts;
  }
  // Each report as player, object and verdict, "2:140FF".
  std::string TakeReports() {
    std::string taken;
    for (const std::string& text : TakeTexts()) {
      taken += (taken.empty() ? "" : " ") + text.substr(1, 1) + ":" + text.substr(103, 3) + text[107] + text[109];
    }
    return taken;
  }
  ShowFixture fixture;
  Show& show = fixture.show();
  MainForm& form = fixture.form();
};

TEST_F(Companion, HearsOfEveryStepOfARingInGame) {
  Start(kTransceiverLong);
  EXPECT_EQ(TakeReports(), "1:139FF 2:140FF 3:141FF") << "the console comes up";
  fixture.ChooseSet("Keys");
  EXPECT_EQ(TakeReports(), "1:139FF 2:140FF 3:141FF") << "a set is ready";
  form.btnStart.Click();
  form.KeyPress('2');
  EXPECT_EQ(TakeReports(), "") << "nobody has the turn";
  form.btnQuestionIncorrect.Click();
  EXPECT_EQ(TakeReports(), "2:140FT");
  form.KeyPress('3');
  form.btnQuestionCorrect.Click();
  EXPECT_EQ(TakeReports(), "3:141TF");
  fixture.Claim(0, 0);
  EXPECT_EQ(TakeReports(), "3:141FF") << "a verdict is reported once";
  fixture.sim.clock.Advance(2000);
  form.btnUndo.Click();
  EXPECT_EQ(TakeReports(), "3:141FF");
  form.btnSkipQuestion.Click();
  EXPECT_EQ(TakeReports(), "1:139FF 2:140FF 3:141FF");
  form.fileClearAllScores.Click();
  EXPECT_EQ(TakeReports(), "1:139FF 2:140FF 3:141FF");
}

TEST_F(Companion, HearsOfTheTurnNewPlayerFirst) {
  Start(kTransceiverLong, kChallengeModeA);
  TakeTexts();
  form.btnStart.Click();
  EXPECT_EQ(TakeReports(), "1:139FF 2:140FF 3:141FF");
  fixture.Claim(1, 1);
  EXPECT_EQ(TakeReports(), "1:139FF 2:140FF 1:139FF") << "the score, then the turn";
  form.btnNextPlayer.Click();
  form.btnNextPlayer.Click();
  EXPECT_EQ(TakeReports(), "3:141FF 2:140FF 1:139FF 3:141FF");
  form.optPlayers[0].Click();
  form.btnNextPlayer.Click();
  form.btnNextPlayer.Click();
  EXPECT_EQ(TakeReports(), "2:140FF 1:139FF 1:139FF 2:140FF");
}

TEST_F(Companion, FlagsLastForOneReportOfAPlayer) {
  Start(kTransceiverLong);
  TakeTexts();
  GameState& state = show.state;
  state.C2CObject = " ";
  state.C2CCorrectFlag = true;
  for (const int nobody : {0, 4}) SendC2CInfo(show, nobody);
  EXPECT_TRUE(state.C2CCorrectFlag);
  SendC2CInfo(show, 1);
  EXPECT_EQ(state.C2CObject, "999");
  EXPECT_EQ(TakeReports(), "1:999TF");
  fixture.sim.dialogs.ExpectMessage("Message Length Incorrect: 115");
  state.C2CObject = "1390";
  state.C2CIncorrectFlag = true;
  SendC2CInfo(show, 1);
  EXPECT_FALSE(state.C2CIncorrectFlag);
  state.C2CObject = "139";
  state.TSSupport = false;
  state.C2CCorrectFlag = true;
  SendC2CInfo(show, 1);
  EXPECT_FALSE(state.C2CCorrectFlag);
  EXPECT_EQ(TakeReports(), "");
}

TEST_F(Companion, WaitsUntilThePressIsDoneAndTakes1260Ms) {
  Start(kTransceiverLong);
  TakeTexts();
  fixture.ChooseSet("Keys");
  form.btnStart.Click();
  EXPECT_TRUE(fixture.sim.hid.Writes.empty());
  EXPECT_TRUE(fixture.audience().picQuestion.Visible);
  const std::int64_t before = fixture.sim.clock.NowMs();
  const std::string text = "02^PLAYER 2~~^+000000" + kLook + "^F^F^F^F";
  EXPECT_EQ(TakeTexts().at(1), text);
  EXPECT_GE(fixture.sim.clock.NowMs() - before, 1260);
  EXPECT_LE(fixture.sim.clock.NowMs() - before, 1270);
  show.dgTransceiver.reset();
  fixture.sim.processes.Helper = "PadBridge.exe";
  SendC2CInfo(show, 2);
  fixture.sim.clock.Advance(5);
  EXPECT_EQ(fixture.sim.processes.HelperArguments, (std::vector<std::string>{text.substr(0, 103) + "141^F^F^F^F"}));
}

TEST_F(Companion, TellsOnceOfATransceiverThatTakesNoText) {
  Start(kTransceiverLong);
  TakeTexts();
  fixture.sim.hid.Devices.clear();
  fixture.sim.hid.PlugTransceiver(kTransceiverShort);
  CreateTransceiver(show);
  fixture.sim.dialogs.ExpectMessage("Procedure: SendC2CInfo");
  btnSkipQuestion_Click(show);
  EXPECT_EQ(TakeReports(), "");
}

TEST_F(Companion, IsLeftBlankAtExit) {
  Start(kTransceiverLong);
  TakeTexts();
  form.btnScore1Up[2].Click();
  fixture.sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::Yes);
  form.mnuFileExit.Click();
  ASSERT_EQ(fixture.sim.hid.Writes.size(), 21U) << "sent before the program ends";
  const std::vector<std::string> texts = TakeTexts();
  EXPECT_EQ(texts[0].substr(0, 21) + texts[0].substr(102, 5), "01^PLAYER 1~~^+000000^999^");
}

}  // namespace
}  // namespace pawnfield
