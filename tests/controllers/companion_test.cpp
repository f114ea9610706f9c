// The report to the companion as bytes, who sends it when, and the life of its flags.
#include "controllers/companion.h"

#include "../support/show_fixture.h"
#include "controllers/ring_in.h"
#include "controllers/transceiver.h"
#include "engine/judging.h"

namespace pawnfield {
namespace {

const std::string kLong(200, 'x');
const std::string kLook = "^16777215~~^0~~~~~~~~~^Comic Sans MS" + std::string(37, '~') + "^100^T^F^140";

TEST(CompanionReport, FollowsTheFormat) {
  const ScreenStyle plain, odd{kLong, 7, true, false, 255, -12345678901.0};
  // The flags are correct, incorrect, third and swapped.
  const std::pair<CompanionReport, std::string> cases[] = {
      {{2, "", "", plain, "140"}, "02^~~~~~~~~~~^+000000" + kLook + "^F^F^F^F"},
      {{2, "Al", "125", plain, "140", true}, "02^Al~~~~~~~~^+000125" + kLook + "^T^F^F^F"},
      {{2, "ABCDEFGHIJ", "-25", plain, "140", false, true}, "02^ABCDEFGHIJ^-000025" + kLook + "^F^T^F^F"},
      {{2, "ABCDEFGHIJK", "999999", plain, "140", false, false, true}, "02^ABCDEFGHIJ^+999999" + kLook + "^F^F^T^F"},
      {{2, kLong, "-999999", plain, "140", false, false, false, true},
       "02^xxxxxxxxxx^-999999^0~~~~~~~~~^16777215~~" + kLook.substr(22) + "^F^F^F^T"},
      {{2, "~^", "-1000100", plain, "140"}, "02^~^~~~~~~~~^-000100" + kLook + "^F^F^F^F"},
      {{2, "A", "1", odd, "140", true, true, true},
       "02^A~~~~~~~~~^+000001^-123456789^255~~~~~~~^" + std::string(50, 'x') + "^007^F^T^140^T^T^T^F"}};
  for (const auto& [report, text] : cases) EXPECT_EQ(ReportText(report), text);
}

class Companion : public ShowFixture, public testing::Test {
 protected:
  void StartWith(int gameType = kTriviaModeC) {
    sim.hid.PlugTransceiver();
    Preset("TSSupport", "True");
    Preset("AutoContinue", "6");
    Preset("GameType", std::to_string(gameType));
    WriteNumberedSet("Keys", 20);
    Start();
    EXPECT_EQ(TakeReports(), kAll) << "the console comes up";
  }
  // The texts that the transceiver was given, put together from their six pieces behind a header.
  std::vector<std::string> TakeTexts() {
    while (show().frmAlwaysLoaded.tmrCompanion.Enabled) sim.clock.Advance(2);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < sim.hid.Writes.size(); ++i) {
      const std::string& report = sim.hid.Writes[i].Report;
      if (i % 7 == 0) texts.emplace_back();
      if (i % 7 != 0) texts.back() += report.substr(9, static_cast<unsigned char>(report[2]) - 10U);
    }
    sim.hid.Writes.clear();
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
  static constexpr const char* kAll = "1:139FF 2:140FF 3:141FF";
};

TEST_F(Companion, HearsOfEveryStepOfARingInGame) {
  StartWith();
  const std::tuple<const char*, std::function<void()>, const char*> steps[] = {
      {"a set is ready", [&] { ChooseSet("Keys"); }, kAll},
      {"started", [&] { form().btnStart.Click(); }, ""},
      {"rung in", [&] { form().KeyPress('2'); }, ""},
      {"incorrect", [&] { form().btnQuestionIncorrect.Click(); }, "2:140FT"},
      {"rung in again", [&] { form().KeyPress('3'); }, ""},
      {"correct", [&] { form().btnQuestionCorrect.Click(); }, "3:141TF"},
      {"a verdict is reported once", [&] { Claim(0, 0); }, "3:141FF"},
      {"claimed", [&] { sim.clock.Advance(2000); }, ""},
      {"undone", [&] { form().btnUndo.Click(); }, "3:141FF"},
      {"skipped", [&] { form().btnSkipQuestion.Click(); }, kAll},
      {"cleared", [&] { form().fileClearAllScores.Click(); }, kAll}};
  for (const auto& [what, step, reports] : steps) {
    step();
    EXPECT_EQ(TakeReports(), reports) << what;
  }
}

TEST_F(Companion, HearsOfTheTurnNewPlayerFirst) {
  StartWith(kChallengeModeA);
  form().btnStart.Click();
  EXPECT_EQ(TakeReports(), kAll);
  Claim(1, 1);
  EXPECT_EQ(TakeReports(), "1:139FF 2:140FF 1:139FF") << "the score, then the turn";
  form().btnNextPlayer.Click();
  form().btnNextPlayer.Click();
  EXPECT_EQ(TakeReports(), "3:141FF 2:140FF 1:139FF 3:141FF");
  form().optPlayers[0].Click();
  form().btnNextPlayer.Click();
  form().btnNextPlayer.Click();
  EXPECT_EQ(TakeReports(), "2:140FF 1:139FF 1:139FF 2:140FF");
}

TEST_F(Companion, FlagsLastForOneReportOfAPlayer) {
  StartWith();
  GameState& state = show().state;
  state.C2CObject = " ";
  state.C2CCorrectFlag = true;
  for (const int player : {0, 4, 1}) SendC2CInfo(show(), player);
  EXPECT_EQ(TakeReports(), "1:999TF");
  sim.dialogs.ExpectMessage("Message Length Incorrect: 115");
  state.C2CObject = "1390";
  state.C2CIncorrectFlag = true;
  SendC2CInfo(show(), 1);
  EXPECT_FALSE(state.C2CIncorrectFlag);
  state.C2CObject = "139";
  state.TSSupport = false;
  state.C2CCorrectFlag = true;
  SendC2CInfo(show(), 1);
  EXPECT_FALSE(state.C2CCorrectFlag);
  EXPECT_EQ(TakeReports(), "");
}

TEST_F(Companion, WaitsUntilThePressIsDoneAndTakes1260Ms) {
  StartWith();
  ChooseSet("Keys");
  form().btnStart.Click();
  EXPECT_TRUE(sim.hid.Writes.empty() && audience().picQuestion.Visible);
  const std::int64_t before = sim.clock.NowMs();
  const std::string text = "02^PLAYER 2~~^+000000" + kLook + "^F^F^F^F";
  EXPECT_EQ(TakeTexts().at(1), text);
  EXPECT_NEAR(static_cast<double>(sim.clock.NowMs() - before), 1265, 5);
  show().dgTransceiver.reset();
  sim.processes.Helper = "PadBridge.exe";
  SendC2CInfo(show(), 2);
  sim.clock.Advance(5);
  EXPECT_EQ(sim.processes.HelperArguments, std::vector<std::string>{text.substr(0, 103) + "141^F^F^F^F"});
  sim.hid.Devices.clear();
  sim.hid.PlugTransceiver(kTransceiverShort);
  CreateTransceiver(show());
  sim.dialogs.ExpectMessage("Procedure: SendC2CInfo");
  btnSkipQuestion_Click(show());
  EXPECT_EQ(TakeReports(), "") << "a device that takes no text, which is told once";
}

TEST_F(Companion, IsLeftBlankAtExit) {
  StartWith();
  form().btnScore1Up[2].Click();
  Exit();
  ASSERT_EQ(sim.hid.Writes.size(), 21U) << "sent before the program ends";
  const std::string text = TakeTexts()[0];
  EXPECT_EQ(text.substr(0, 21) + text.substr(102, 5), "01^PLAYER 1~~^+000000^999^");
}

}  // namespace
}  // namespace pawnfield
