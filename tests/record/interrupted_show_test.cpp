#include <gtest/gtest.h>

#include "forms/main_form.h"
#include "forms/pages_form.h"
#include "forms/small_forms.h"
#include "platform/ports.h"
#include "program/program.h"
#include "program/start_up.h"
#include "record/capture.h"
#include "record/history.h"
#include "record/record_lines.h"
#include "show/show_record.h"
#include "support/game_player.h"
#include "support/same_show.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

constexpr const char* kFound = "A show was interrupted at 20:00: ";

// A program that was killed amid a game, and the next one on the same disk.
class Interrupted : public testing::Test {
 protected:
  void Play(const std::string& words, const std::string& setup = "Trivia C, 5x5") {
    played_ = std::make_unique<GamePlayer>(setup);
    played_->Do(words);
    // What is left to be taken down is, within a second.
    played_->fixture().sim.clock.Advance(60);
  }

  std::map<std::string, std::string>& Disk() { return played_->fixture().sim.records.Files; }

  void StartAgain(BoxAnswer answer, const std::string& told = kFound) {
    again_ = std::make_unique<ShowFixture>();
    again_->sim.files = played_->fixture().sim.files;
    again_->sim.records.Files = Disk();
    for (const auto& [key, value] : played_->fixture().sim.settings.Writes) {
      again_->sim.settings.Preset("Pawnfield", "Pages", key, value);
    }
    again_->sim.dialogs.ExpectMessage("No hardware was detected");
    if (!told.empty()) again_->sim.dialogs.ExpectMessage(told, answer);
    Main(again_->show());
    again_->sim.clock.Advance(told.empty() ? 10000 : 100);
  }

  std::unique_ptr<GamePlayer> played_;
  std::unique_ptr<ShowFixture> again_;
};

TEST_F(Interrupted, ComesBackUnderTheCoverAsItWas) {
  const char* const firstClaim = "player 2 rings in, correct, claim A1, ";
  const struct {
    const char* before;
    const char* last;
  } moments[] = {
      {firstClaim, "wait 3 s, player 1 rings in, incorrect"},
      {firstClaim, "wait 3 s, player 3 rings in, correct, click B2, wait 100 ms"},
      {"", "player 1 rings in"},
      {firstClaim, "wait 3 s, skip"},
      {firstClaim, "undo"},
      {"", "player 2 rings in, hide"},
  };
  for (const auto& [before, last] : moments) {
    SCOPED_TRACE(last);
    Play(std::string(before) + last, "Trivia C, 5x5, penalty");
    StartAgain(BoxAnswer::Yes);
    Show& show = again_->show();
    EXPECT_TRUE(show.frmMain.picStandby.Visible);
    EXPECT_FALSE(show.frmSplash.Visible);
    if (!played_->form().picStandby.Visible) show.frmMain.btnPlayMode.Click();
    Snapshot found = Capture(show);
    const Snapshot wanted = Capture(played_->show());
    // Show lights who has the turn, in its own way.
    found.Lit = wanted.Lit;
    found.Cursor = wanted.Cursor;
    EXPECT_EQ(UnlikeSnapshots(wanted, found), "");
  }
}

TEST_F(Interrupted, FindsItsPhonesAgain) {
  for (const BoxAnswer answer : {BoxAnswer::Yes, BoxAnswer::No}) {
    Play("player 2 rings in, correct, claim A1, wait 3 s");
    played_->show().frmPages.btnSwitch.Click();
    ASSERT_TRUE(played_->fixture().sim.network.Listens);
    StartAgain(answer);
    EXPECT_EQ(again_->sim.network.Listens, answer == BoxAnswer::Yes);
  }
}

TEST_F(Interrupted, SaysWhatWasPlayed) {
  Play("player 2 rings in, correct, claim A1, wait 3 s", "Trivia C, 2 players, 5x5");
  StartAgain(BoxAnswer::Yes, "A show was interrupted at 20:00: Long, question 2 of 30, PLAYER 1 0, PLAYER 2 50.");
}

TEST_F(Interrupted, GoesOnInItsRecordAndCanBeTakenBackFurther) {
  Play("player 2 rings in, correct, claim A1, wait 3 s, player 1 rings in, incorrect");
  const std::size_t kept = Disk().size();
  StartAgain(BoxAnswer::Yes);
  Show& show = again_->show();
  EXPECT_EQ(UndoText(show), "Incorrect for PLAYER 1");
  while (!UndoText(show).empty()) show.frmMain.btnUndo.Click();
  EXPECT_FALSE(show.state.GameStarted);
  while (!RedoText(show).empty()) Redo(show);
  EXPECT_EQ(again_->Scores(), "0 50 0");
  EXPECT_EQ(again_->sim.records.Files.size(), kept);
}

TEST_F(Interrupted, IsNotOfferedAgainWhenItWasLeftBehindEndedOrFinished) {
  Play("player 2 rings in, correct, claim A1");
  StartAgain(BoxAnswer::No);
  EXPECT_FALSE(again_->show().state.GameLoaded);
  Disk() = again_->sim.records.Files;
  StartAgain(BoxAnswer::No, "");
  for (const char* end : {"end game", "reset", "exit"}) {
    Play("player 2 rings in, correct, claim A1");
    if (std::string(end) == "exit") {
      played_->fixture().Exit();
    } else {
      played_->Do(std::string(end) + ", wait 6 s");
    }
    StartAgain(BoxAnswer::No, "");
  }
}

TEST_F(Interrupted, IsOfferedAfterASignalAndAfterAnExitThatKeptIt) {
  Play("player 2 rings in");
  EndWithoutAsking(played_->show());
  StartAgain(BoxAnswer::Yes);
  Play("player 2 rings in, correct");
  played_->fixture().sim.dialogs.ExpectMessage("Are you sure", BoxAnswer::Yes);
  played_->fixture().sim.dialogs.ExpectMessage("Is the show over?", BoxAnswer::No);
  played_->form().mnuFileExit.Click();
  StartAgain(BoxAnswer::Yes);
}

TEST_F(Interrupted, LosesATornLineAndNothingElse) {
  Play("player 2 rings in, correct, claim A1, wait 3 s, player 1 rings in, incorrect");
  std::string& file = Disk().begin()->second;
  const std::string whole = file;
  const auto record = ParseRecord(whole);
  ASSERT_TRUE(record);
  const std::size_t last = whole.rfind('\n', whole.size() - 2) + 1;
  for (std::size_t cut = last + 1; cut < whole.size(); cut += 37) {
    const auto torn = ParseRecord(whole.substr(0, cut));
    ASSERT_TRUE(torn);
    EXPECT_EQ(torn->Events.size() + 1, record->Events.size());
    EXPECT_EQ(torn->WholeBytes, last);
  }
  file[last + 20] ^= 1;
  EXPECT_EQ(ParseRecord(file)->Events.size() + 1, record->Events.size()) << "its sum is wrong";
  StartAgain(BoxAnswer::Yes);
  EXPECT_EQ(UndoText(again_->show()), "PLAYER 1 rings in");
}

TEST_F(Interrupted, ASetThatWasEditedLaterChangesNothing) {
  Play("player 2 rings in, correct, claim A1");
  played_->fixture().WriteSet("Long", {"Other 1?", "Other 2?"});
  StartAgain(BoxAnswer::Yes);
  EXPECT_EQ(again_->show().GameSet, played_->show().GameSet);
}

TEST_F(Interrupted, AQuestionThatWasEditedWhileItStoodComesBackAsItWasAsked) {
  Play("player 2 rings in, correct, claim A1, wait 3 s", "Trivia C, 5x5");
  Show& played = played_->show();
  played.GameSet[1].QuestionText = "Another wording of quite another length?";
  played.GameSet[1].AnswerText = "Another";
  played_->Do("player 3 rings in");
  played_->fixture().sim.clock.Advance(60);
  StartAgain(BoxAnswer::Yes);
  MainForm& form = again_->form();
  form.btnPlayMode.Click();
  EXPECT_EQ(form.lblQuestion[0].Caption.Get(), played.frmMain.lblQuestion[0].Caption.Get());
  EXPECT_EQ(form.lblQuestion[0].Top, played.frmMain.lblQuestion[0].Top);
  EXPECT_EQ(form.lblAnswer.Caption.Get(), played.frmMain.lblAnswer.Caption.Get());
  EXPECT_EQ(again_->show().GameSet[1], played.GameSet[1]) << "and the set as it was edited";
}

TEST_F(Interrupted, ARecordBeginsWithItsSetOnceAndTheBoardThatIsReady) {
  Play("choose the set, start, wait 60 ms", "Trivia C, 5x5, not started");
  const std::string& file = Disk().begin()->second;
  EXPECT_EQ(file.find("{\"set\""), file.rfind("{\"set\""));
  const auto record = ParseRecord(file);
  ASSERT_TRUE(record);
  ASSERT_EQ(record->Events.size(), 2U);
  EXPECT_EQ(record->Events[0].What, "Long is ready");
}

TEST_F(Interrupted, AFullDiskIsToldOnceAndLosesNothing) {
  played_ = std::make_unique<GamePlayer>("Trivia C, 5x5");
  MemoryRecords& records = played_->fixture().sim.records;
  records.Fail(kErrorDiskFull);
  played_->Do("player 2 rings in");
  played_->fixture().sim.clock.Advance(60);
  const std::string told = played_->form().lblStatusBar.Caption;
  EXPECT_EQ(told, "The show's record can't be written: Disk full. The show goes on.");
  played_->form().lblStatusBar.Caption = "";
  played_->Do("correct, claim A1");
  EXPECT_EQ(played_->form().lblStatusBar.Caption.Get(), "");
  EXPECT_TRUE(played_->form().chpRecord.Visible);
  EXPECT_EQ(played_->form().chpRecord.State.Get(), ChipState::Amber);
  records.GiveBack();
  EXPECT_EQ(played_->form().lblStatusBar.Caption.Get(), "The show's record is written again.");
  played_->Do("wait 3 s");
  EXPECT_EQ(played_->form().chpRecord.State.Get(), ChipState::Good);
  StartAgain(BoxAnswer::Yes);
  EXPECT_EQ(again_->Scores(), "0 50 0");
}

TEST(ShowRecord, KeepsTwentyShows) {
  GamePlayer player("Trivia C, 5x5, user advances, not started");
  ShowFixture again;
  for (int i = 10; i < 40; ++i) again.sim.records.Files["Show 2020-01-" + std::to_string(i) + " 20-00-00.jsonl"] = "x";
  again.Start();
  again.WriteNumberedSet("One", 30);
  again.ChooseSet("One");
  again.form().btnStart.Click();
  again.sim.clock.Advance(60);
  EXPECT_EQ(again.sim.records.Files.size(), 20U);
  EXPECT_TRUE(again.sim.records.Files.contains("Show 2020-01-39 20-00-00.jsonl"));
  EXPECT_FALSE(again.sim.records.Files.contains("Show 2020-01-20 20-00-00.jsonl"));
}

}  // namespace
}  // namespace pawnfield
