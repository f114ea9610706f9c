// The report to the companion as bytes, who sends it when, and the life of its flags.
#include "outward/companion.h"

#include "devices/transceiver.h"
#include "forms/small_forms.h"
#include "program/wireless.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

const std::string kLong(200, 'x');
const std::string kLook = "^16777215~~^0~~~~~~~~~^Comic Sans MS" + std::string(37, '~') + "^100^T^F^140";

TEST(CompanionReport, FollowsTheFormat) {
  const ScreenStyle plain, odd{kLong, 7, true, false, 255, -12345678901.0};
  // The flags are correct and incorrect; nothing sets the two behind them.
  const std::pair<CompanionReport, std::string> cases[] = {
      {{2, "", "", plain, "140"}, "02^~~~~~~~~~~^+000000" + kLook + "^F^F^F^F"},
      {{2, "Al", "125", plain, "140", true}, "02^Al~~~~~~~~^+000125" + kLook + "^T^F^F^F"},
      {{2, "ABCDEFGHIJ", "-25", plain, "140", false, true}, "02^ABCDEFGHIJ^-000025" + kLook + "^F^T^F^F"},
      {{2, "ABCDEFGHIJK", "999999", plain, "140", true, true}, "02^ABCDEFGHIJ^+999999" + kLook + "^T^T^F^F"},
      {{2, kLong, "-999999", plain, "140"}, "02^xxxxxxxxxx^-999999" + kLook + "^F^F^F^F"},
      {{2, "~^", "-1000100", plain, "140"}, "02^~^~~~~~~~~^-000100" + kLook + "^F^F^F^F"},
      {{2, "A", "1", odd, "140", true, true},
       "02^A~~~~~~~~~^+000001^-123456789^255~~~~~~~^" + std::string(50, 'x') + "^007^F^T^140^T^T^F^F"}};
  for (const auto& [report, text] : cases) EXPECT_EQ(ReportText(report), text);
}

constexpr const char* kAll = "1:139FF 2:140FF 3:141FF";

// A game of that type for three, not started, whose companion has had the reports of the console's coming up.
class Companion : public GamePlayer {
 public:
  explicit Companion(const std::string& setup, Screens screens = Screens::Two)
      : GamePlayer(setup + ", TSSupport=True", screens) {
    TakeReports();
  }
  // The texts that the transceiver was given, put together from their six pieces behind a header.
  std::vector<std::string> TakeTexts() {
    while (show().frmAlwaysLoaded.tmrCompanion.Enabled) fixture().sim.clock.Advance(2);
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

  SimPlatform& sim = fixture().sim;
};

TEST(Companion, HearsOfEveryStepOfAGame) {
  using Steps = std::vector<std::pair<const char*, const char*>>;
  const std::pair<const char*, Steps> games[] = {
      {"Trivia C, user advances, long remotes, not started",
       {{"choose the set from the list", kAll},
        {"start, player 2 rings in", ""},
        {"incorrect", "2:140FT"},
        {"player 3 rings in", ""},
        {"correct", "3:141TF"},
        {"click A1", "3:141FF"},
        {"wait 2 s", ""},
        {"undo", "3:141FF"},
        {"skip", kAll},
        {"clear all scores", kAll}}},
      // The new player comes first.
      {"Challenge A, long remotes, not started",
       {{"start", kAll},
        {"claim B2", "1:139FF 2:140FF 1:139FF"},
        {"next player, next player", "3:141FF 2:140FF 1:139FF 3:141FF"},
        {"2 players, next player, next player", "2:140FF 1:139FF 1:139FF 2:140FF"}}}};
  for (const auto& [setup, steps] : games) {
    Companion companion(setup);
    for (const auto& [step, reports] : steps) {
      companion.Do(step);
      EXPECT_EQ(companion.TakeReports(), reports) << step;
    }
  }
}

TEST(Companion, FlagsLastForOneReportOfAPlayer) {
  Companion companion("Trivia C, user advances, long remotes, not started");
  GameState& state = companion.show().state;
  state.C2CObject = " ";
  state.C2CCorrectFlag = true;
  for (const int player : {0, 4, 1}) SendC2CInfo(companion.show(), player);
  EXPECT_EQ(companion.TakeReports(), "1:999TF");
  // A report of the wrong length is not sent, and its flags are gone all the same.
  companion.Do("expect Message Length Incorrect: 115");
  state.C2CObject = "1390";
  state.C2CIncorrectFlag = true;
  SendC2CInfo(companion.show(), 1);
  EXPECT_FALSE(state.C2CIncorrectFlag);
  state.TSSupport = false;
  state.C2CObject = "139";
  SendC2CInfo(companion.show(), 1);
  EXPECT_EQ(companion.TakeReports(), "");
}

TEST(Companion, WaitsUntilThePressIsDoneAndTakes1260Ms) {
  Companion companion("Trivia C, user advances, long remotes, not started");
  SimPlatform& sim = companion.sim;
  companion.Do("choose the set from the list, start, room question panel is shown");
  EXPECT_TRUE(sim.hid.Writes.empty());
  const std::int64_t before = sim.clock.NowMs();
  const std::string text = "02^PLAYER 2~~^+000000" + kLook + "^F^F^F^F";
  EXPECT_EQ(companion.TakeTexts().at(1), text);
  EXPECT_NEAR(static_cast<double>(sim.clock.NowMs() - before), 1265, 5);
  companion.show().dgTransceiver.reset();
  sim.processes.Helper = "PadBridge.exe";
  SendC2CInfo(companion.show(), 2);
  sim.clock.Advance(5);
  EXPECT_EQ(sim.processes.HelperArguments, std::vector<std::string>{text.substr(0, 103) + "141^F^F^F^F"});
  sim.hid.Devices.clear();
  sim.hid.PlugTransceiver(kTransceiverShort);
  CreateTransceiver(companion.show());
  companion.Do("expect Procedure: SendC2CInfo, skip");
  EXPECT_EQ(companion.TakeReports(), "") << "a device that takes no text, which is reported once";
}

TEST(Companion, IsLeftBlankAtExit) {
  Companion companion("Trivia C, user advances, long remotes, not started", Screens::One);
  companion.Do("player 1 gains 1000");
  companion.fixture().Exit();
  ASSERT_EQ(companion.sim.hid.Writes.size(), 21U) << "sent before the program ends";
  const std::string text = companion.TakeTexts()[0];
  EXPECT_EQ(text.substr(0, 21) + text.substr(102, 5), "01^PLAYER 1~~^+000000^999^");
}

}  // namespace
}  // namespace pawnfield
