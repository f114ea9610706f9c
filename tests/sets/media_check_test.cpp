// What is said of a set's pictures and sounds when the set is loaded.
#include "sets/media_check.h"

#include "forms/main_form.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

class LoadedMedia : public ShowFixture, public testing::Test {
 protected:
  LoadedMedia() {
    Start();
    sim.files.Put("C:\\m\\dog.jpg", SimPictures::PictureBytes(400, 300));
    sim.files.Put("C:\\m\\broken.jpg", "no picture");
    sim.files.Put("C:\\m\\horn.wav", "sound");
    sim.files.Put("C:\\m\\empty.wav", "");
    form().optGameType[2].Click();
  }
};

TEST_F(LoadedMedia, WhatCannotBeShownIsNamedWithItsQuestionBeforeTheShow) {
  WriteSet("Good", {"C:\\m\\dog.jpg", "Who?", "C:\\m\\horn.wav"});
  ChooseSet("Good");
  WriteSet("Bad", {"Who?", "C:\\m\\broken.jpg", "C:\\m\\dog.jpg", "C:\\m\\empty.wav"});
  sim.dialogs.ExpectMessage(
      "These questions' files can't be shown:\r\n\r\n"
      "Question 2: broken.jpg: no picture, or too large a one\r\nQuestion 4: empty.wav: no such file, or no sound\r\n");
  ChooseSet("Bad");
  EXPECT_EQ(form().lblStatusBar.Caption.Get(), "Can't be shown: the files of questions 2, 4");
  ChooseSet("Good");
  EXPECT_EQ(form().lblStatusBar.Caption.Get(), "");
}

TEST_F(LoadedMedia, ASlowDiskShowsABarAndNeverABoxInTheShow) {
  sim.pictures.Slow = true;
  WriteSet("Bad", {"Who?", "C:\\m\\broken.jpg", "C:\\m\\dog.jpg"});
  ChooseSet("Bad");
  EXPECT_FALSE(form().prgMediaCheck.Visible);
  sim.clock.Advance(500);
  EXPECT_TRUE(form().prgMediaCheck.Visible);
  form().btnStart.Click();
  sim.pictures.Answer();
  EXPECT_FALSE(form().prgMediaCheck.Visible);
  EXPECT_EQ(form().lblStatusBar.Caption.Get(), "Can't be shown: the file of question 2");
}

// What the disk says of a set that has been left is about another one's questions.
TEST_F(LoadedMedia, ALateAnswerSaysNothingOfTheNextSet) {
  sim.pictures.Slow = true;
  WriteSet("Bad", {"C:\\m\\broken.jpg"});
  WriteSet("Good", {"C:\\m\\dog.jpg"});
  ChooseSet("Bad");
  ChooseSet("Good");
  sim.pictures.Answer();
  EXPECT_EQ(show().mediaCheck.Errors.size(), 0U);
}

TEST_F(LoadedMedia, TheNextPictureIsReadAhead) {
  WriteSet("Good", {"C:\\m\\dog.jpg", "Who?", "C:\\m\\dog.jpg"});
  ChooseSet("Good");
  EXPECT_EQ(sim.pictures.Held, (std::vector<std::string>{"C:\\m\\dog.jpg"}));
}

}  // namespace
}  // namespace pawnfield
