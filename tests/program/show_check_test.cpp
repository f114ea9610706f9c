// The check before the show: all right, and each thing wrong in turn; what its buttons do, and how it ends at Start.
#include "program/show_check.h"

#include <gmock/gmock.h>

#include "devices/transceiver.h"
#include "forms/connect_to_projector_form.h"
#include "forms/editor_form.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "program/check_rows.h"
#include "record/record_lines.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class ShowCheckTest : public ShowFixture, public testing::Test {
 protected:
  // Remotes, a second monitor, sound, and a set of 30 questions for 25 squares.
  void StartRight() {
    sim.hid.PlugTransceiver(kTransceiverShort);
    Start();
    form().optGameType[4].Click();
    WriteRightSet();
    ChooseSet("Right");
  }
  void WriteRightSet(int count = 30) {
    std::vector<std::string> questions;
    for (int i = 1; i <= count; ++i) questions.push_back("Who was number " + std::to_string(i) + "?");
    WriteSet("Right", questions);
  }
  void Open() { form().mnuFileShowCheck.Click(); }

  ShowCheckForm& check() { return show().frmShowCheck; }
  std::string Word(CheckRow row) { return WordOf(ShowCheckForm::Of(check().chpLight, row).State); }
  std::string Sentence(CheckRow row) { return ShowCheckForm::Of(check().lblSentence, row).Caption; }
  Button& Try(CheckRow row) { return ShowCheckForm::Of(check().btnTry, row); }
  Button& Mend(CheckRow row) { return ShowCheckForm::Of(check().btnMend, row); }
  // The rows that aren't ready, by their names.
  std::vector<std::string> NotReady() {
    std::vector<std::string> rows;
    for (std::size_t i = 0; i < kCheckRows; ++i) {
      if (check().chpLight[i].State.Get() != ChipState::Good) rows.push_back(check().lblThing[i].Caption);
    }
    return rows;
  }
  void PressRemote(int number) {
    sim.hid.Reports.push_back({'\0', '\0', static_cast<char>(number)});
    sim.clock.Advance(30);
  }
  void Later() { sim.clock.Advance(3500); }
  std::string Box(std::size_t player) { return check().lblPress[player - 1].Caption; }
  bool IsGreen(std::size_t player) { return check().lblPress[player - 1].BackColor == kGreen; }
};

TEST_F(ShowCheckTest, EverythingRightIsReadyAndTheRoomSeesAndHearsNothing) {
  StartRight();
  sim.media.Log.clear();
  Open();
  EXPECT_TRUE(check().Visible);
  EXPECT_THAT(NotReady(), IsEmpty());
  EXPECT_THAT(check().lblReady.Caption.Get(), HasSubstr("7 of 7 ready"));
  EXPECT_THAT(Sentence(CheckRow::Audience), HasSubstr("1920 x 1080, to the right of the console"));
  EXPECT_THAT(Sentence(CheckRow::Buzzers), HasSubstr("Wireless remotes, keys 1 to 3"));
  EXPECT_THAT(Sentence(CheckRow::Sound), HasSubstr("Built-in Audio"));
  EXPECT_EQ(Sentence(CheckRow::Questions), "30 questions, 25 squares.");
  EXPECT_THAT(Sentence(CheckRow::Disk), HasSubstr("40 GB free"));
  EXPECT_FALSE(audience().picTest.Visible);
  EXPECT_THAT(sim.media.Log, IsEmpty());
  // The sign and the word say what the colour says.
  EXPECT_THAT(ShowCheckForm::Of(check().chpLight, CheckRow::Disk).Caption.Get(), HasSubstr("READY"));
}

TEST_F(ShowCheckTest, EachThingThatGoesWrongTurnsItsRowAndNoOtherAndComesBack) {
  StartRight();
  Open();
  const std::vector<MonitorInfo> both = sim.displays.Monitors;
  sim.displays.Change({both[0]});
  EXPECT_THAT(NotReady(), ElementsAre("Audience screen"));
  EXPECT_THAT(Sentence(CheckRow::Audience), HasSubstr("the room sees nothing"));
  EXPECT_FALSE(Try(CheckRow::Audience).Visible);
  sim.displays.Change(both);
  sim.displays.Change({both[0], both[0]});
  EXPECT_THAT(Sentence(CheckRow::Audience), HasSubstr("shows the same as the console"));
  sim.displays.Change(both);
  sim.hid.Pull();
  sim.clock.Advance(60);
  EXPECT_THAT(NotReady(), ElementsAre("Buzzers"));
  EXPECT_EQ(Word(CheckRow::Buzzers), "NOT READY");
  sim.hid.PlugTransceiver(kTransceiverShort);
  sim.devices.Notify();
  sim.mediaFiles.Devices.clear();
  Later();
  EXPECT_THAT(NotReady(), ElementsAre("Sound"));
  EXPECT_THAT(Sentence(CheckRow::Sound), HasSubstr("sounds come back by themselves"));
  sim.mediaFiles.Devices = {"USB Headset"};
  sim.records.Place.FreeBytes = 3 << 20;
  Later();
  EXPECT_THAT(NotReady(), ElementsAre("Disk and record"));
  EXPECT_THAT(Sentence(CheckRow::Disk), HasSubstr("The disk is full: 3 MB free"));
  sim.records.Place.FreeBytes = std::int64_t{200} << 20;
  sim.displays.AwakeGrants = {true, false};
  Later();
  Try(CheckRow::Awake).Click();
  EXPECT_EQ(Word(CheckRow::Disk) + ", " + Word(CheckRow::Awake), "LOOK, LOOK");
  EXPECT_THAT(Sentence(CheckRow::Awake), HasSubstr("hold off sleep"));
  sim.records.Place.Problem = "Path/File access error";
  Later();
  EXPECT_EQ(Word(CheckRow::Disk), "NOT READY");
  sim.records.Place = MemoryRecords().Place;
  sim.displays.AwakeGrants = {true, true};
  Later();
  Try(CheckRow::Awake).Click();
  EXPECT_THAT(NotReady(), IsEmpty());
  EXPECT_THAT(Sentence(CheckRow::Sound), HasSubstr("USB Headset"));
}

TEST_F(ShowCheckTest, TheSetsRowsTellOfMissingFilesFewQuestionsAndNoSet) {
  Start();
  form().optGameType[4].Click();
  Open();
  EXPECT_THAT(NotReady(), ElementsAre("Buzzers", "Trivia set", "Questions"));
  EXPECT_EQ(Mend(CheckRow::Set).Caption.Get(), "Choose...");
  sim.files.Put("C:\\m\\broken.jpg", "no picture");
  WriteSet("Bad", {"Who?", "C:\\m\\broken.jpg", "WHO?"});
  sim.dialogs.ExpectMessage(
      "These questions' files can't be shown:\r\n\r\nQuestion 2: broken.jpg: no picture, or too large a one\r\n");
  ChooseSet("Bad");
  EXPECT_THAT(Sentence(CheckRow::Set), HasSubstr("Bad: 1 file can't be shown (question 2)"));
  EXPECT_EQ(Word(CheckRow::Set), "NOT READY");
  EXPECT_EQ(Sentence(CheckRow::Questions), "3 questions, 25 squares: the questions may end before the board is full.");
  const std::vector<ListView::Row> rows = check().lstFindings.ListItems;
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[1], (ListView::Row{"3", "The same as question 1"}));
  // A click leads to the question in the editor.
  check().lstFindings.Select(1);
  int opened = 0;
  sim.dialogs.ExpectForm("frmEditor", [&] {
    opened = show().frmEditor.EditQuestionNumber;
    EXPECT_EQ(show().frmEditor.lstQuestions.SelectedItem, 2) << "the list stands at it too";
    show().frmEditor.Unload();
  });
  check().lstFindings.DblClick();
  EXPECT_EQ(opened, 3);
  // A challenge asks nothing.
  form().optGameType[0].Click();
  EXPECT_EQ(Word(CheckRow::Set) + " " + Word(CheckRow::Questions), "READY READY");
}

TEST_F(ShowCheckTest, TheTestPictureLiesOverTheRoomsScreenForTenSecondsOrUntilItIsStopped) {
  StartRight();
  Open();
  const bool covered = form().picStandby.Visible;
  Button& button = Try(CheckRow::Audience);
  button.Click();
  EXPECT_TRUE(audience().picTest.Visible);
  EXPECT_EQ(audience().lblTestSize.Caption.Get(), "1920 x 1080");
  EXPECT_EQ(button.Caption.Get(), "Stop");
  sim.clock.Advance(9900);
  EXPECT_TRUE(audience().picTest.Visible);
  sim.clock.Advance(200);
  EXPECT_FALSE(audience().picTest.Visible);
  button.Click();
  button.Click();
  EXPECT_FALSE(audience().picTest.Visible);
  button.Click();
  sim.displays.Change({sim.displays.Monitors[0]});
  EXPECT_FALSE(audience().picTest.Visible) << "its monitor is gone";
  EXPECT_EQ(form().picStandby.Visible.Get(), covered);
}

TEST_F(ShowCheckTest, EachPressesOnceAndNobodyRingsIn) {
  StartRight();
  Open();
  Try(CheckRow::Buzzers).Click();
  EXPECT_THAT(Sentence(CheckRow::Buzzers), HasSubstr("1 PLAYER 1: press now."));
  PressRemote(1);
  EXPECT_THAT(Box(1), HasSubstr("1 PLAYER 1: ok, remote 1, "));
  EXPECT_TRUE(IsGreen(1));
  EXPECT_FALSE(IsGreen(2));
  Later();
  // By a key, with the keyboard in the check.
  check().KeyPress('2');
  EXPECT_THAT(Box(2), HasSubstr("ok, key 2, 0 ms"));
  Later();
  PressRemote(3);
  EXPECT_THAT(Sentence(CheckRow::Buzzers), HasSubstr("All have pressed."));
  EXPECT_EQ(Word(CheckRow::Buzzers), "READY");
  EXPECT_EQ(show().state.CurrentPlayer, 0);
  EXPECT_THAT(sim.media.Log, Not(testing::Contains(HasSubstr("RingsIn"))));
}

TEST_F(ShowCheckTest, APressThatComesTwiceOrForSomebodyElseIsSaid) {
  StartRight();
  Open();
  Try(CheckRow::Buzzers).Click();
  const auto note = [&] { return check().lblPressNote.Caption.Get(); };
  PressRemote(2);
  EXPECT_EQ(note(), "That was the button of 2 PLAYER 2 (remote 2), but 1 PLAYER 1 was asked.");
  EXPECT_FALSE(IsGreen(2));
  Later();
  PressRemote(1);
  EXPECT_FALSE(check().lblPressNote.Visible);
  check().KeyPress('1');
  EXPECT_THAT(note(), HasSubstr("1 PLAYER 1's press came twice within"));
  EXPECT_THAT(note(), HasSubstr("by remote 1 and by key 1"));
  Later();
  // Two remotes of one player; the game itself passes over what a remote repeats.
  show().state.Routing[5] = 1;
  PressRemote(5);
  EXPECT_THAT(note(), HasSubstr("button of 1 PLAYER 1 (remote 5), but 2 PLAYER 2 was asked"));
  Later();
  PressRemote(2);
  PressRemote(2);
  EXPECT_FALSE(check().lblPressNote.Visible);
  Later();
  show().state.Routing[7] = 0;
  PressRemote(7);
  EXPECT_THAT(note(), HasSubstr("Remote 7 is no player's"));
  EXPECT_EQ(Word(CheckRow::Buzzers), "LOOK");
}

TEST_F(ShowCheckTest, TheFiveChannelsPlayInTurnAtTheirVolumesAndTheMusicGoesOn) {
  StartRight();
  show().state.MusicEnabled = true;
  show().MusicPlayed = "C:\\music\\a.mp3";
  sim.media.BackgroundPlayer.SetUrl(show().MusicPlayed);
  sim.clock.Advance(4000);
  Open();
  sim.media.Log.clear();
  Try(CheckRow::Sound).Click();
  EXPECT_THAT(Sentence(CheckRow::Sound), HasSubstr("Now: effects, one pip."));
  std::vector<std::string> heard;
  sim.clock.Advance(8000);
  for (const std::string& line : sim.media.Log) {
    if (line.find(" url ") != std::string::npos)
      heard.push_back(line.substr(0, line.find(' ')) + line.substr(line.rfind('\\')));
  }
  EXPECT_THAT(heard, ElementsAre("EventPlayer\\Check1.Wav", "KeyPressPlayer\\Check2.Wav", "SoundClipPlayer\\Check3.Wav",
                                 "BackgroundPlayer\\Check4.Wav", "BackgroundPlayer\\a.mp3",
                                 "CorrectIncorrectPlayer\\Check5.Wav"));
  EXPECT_GT(sim.media.BackgroundPlayer.CurrentPosition(), 4.0);
  EXPECT_THAT(sim.media.Log, Not(testing::Contains(HasSubstr("volume"))));
  EXPECT_THAT(Sentence(CheckRow::Sound), HasSubstr("All five were played."));
  show().state.KeyPressPlayerVolume = 0;
  Later();
  EXPECT_EQ(Word(CheckRow::Sound), "LOOK");
  EXPECT_THAT(Sentence(CheckRow::Sound), HasSubstr("Not to be heard: keys."));
}

// Whatever runs in it ends with it, and what it said stands in the record before the game's first line.
TEST_F(ShowCheckTest, ItEndsAtStartAndItsResultStandsInTheRecord) {
  StartRight();
  Open();
  Try(CheckRow::Audience).Click();
  Try(CheckRow::Buzzers).Click();
  Try(CheckRow::Sound).Click();
  sim.records.Place.FreeBytes = 3 << 20;
  Later();
  form().btnStart.Click();
  EXPECT_FALSE(check().Visible);
  EXPECT_FALSE(audience().picTest.Visible);
  EXPECT_FALSE(sim.media.EventPlayer.Playing && sim.media.EventPlayer.Url.find("Check") != std::string::npos);
  sim.clock.Advance(500);
  PressRemote(2);
  EXPECT_EQ(show().state.CurrentPlayer, 2) << "presses ring in again";
  sim.clock.Advance(500);
  ASSERT_EQ(sim.records.Files.size(), 1U);
  const auto record = ParseRecord(sim.records.Files.begin()->second);
  ASSERT_TRUE(record);
  ASSERT_EQ(record->Checked.size(), kCheckRows - 1);
  EXPECT_EQ(record->Checked[0].Row + " " + record->Checked[0].Light, "Audience screen READY");
  EXPECT_EQ(record->Checked[6].Light, "NOT READY");
  EXPECT_THAT(record->Checked[6].Sentence, HasSubstr("3 MB free"));
  // In a game nothing may be tried, and the chips lead to what mends at once.
  Open();
  EXPECT_FALSE(check().Visible);
  EXPECT_THAT(StatusBar().Caption.Get(), HasSubstr("before a game"));
}

TEST_F(ShowCheckTest, TheChipsOpenItBeforeAGameAndWhatMendsInOne) {
  StartRight();
  form().chpSound.Click();
  EXPECT_TRUE(check().Visible);
  EXPECT_EQ(check().ActiveControl, &Try(CheckRow::Sound));
  check().btnClose.Click();
  EXPECT_FALSE(check().Visible);
  form().btnStart.Click();
  bool helped = false;
  sim.dialogs.ExpectForm("frmConnectToProjector", [&] {
    helped = true;
    show().frmConnectToProjector.Unload();
  });
  form().chpAudience.Click();
  EXPECT_TRUE(helped);
  EXPECT_FALSE(check().Visible);
}

TEST_F(ShowCheckTest, TheEmergencyPageOpensOrSaysThatItIsMissing) {
  StartRight();
  Open();
  Try(CheckRow::Emergency).Click();
  EXPECT_EQ(sim.pages.Opened.back(), "emergency.html");
  sim.pages.Works = false;
  sim.dialogs.ExpectMessage("The page \"emergency.html\" of the manual was not found");
  Try(CheckRow::Emergency).Click();
}

}  // namespace
}  // namespace pawnfield
