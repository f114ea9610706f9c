#include "media/question_pictures.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "engine/show.h"
#include "platform/sim/sim_platform.h"

namespace pawnfield {
namespace {

using testing::IsEmpty;
using testing::StartsWith;

class QuestionPictures : public testing::Test {
 protected:
  QuestionPictures() {
    show.frmMain.picQuestionPicture.MoveTo(0, 0, 800, 400);
    show.frmFSMain.picQuestionPicture.MoveTo(0, 0, 1600, 1000);
    show.frmFSMain.picQuestionPicture.Visible = false;
    machine.files.Put("C:\\pics\\dog.jpg", SimPictures::PictureBytes(400, 300));
  }
  ~QuestionPictures() override { EXPECT_THAT(machine.dialogs.TakeFaults(), IsEmpty()); }

  bool ShowPath(const std::string& path) {
    show.frmMain.lblQuestion[0].Caption = path;
    return ShowPic(show);
  }

  SimPlatform machine;
  Show show{machine.platform};
};

void ExpectAt(const Control& control, double left, double top, double width, double height) {
  EXPECT_DOUBLE_EQ(control.Left, left);
  EXPECT_DOUBLE_EQ(control.Top, top);
  EXPECT_DOUBLE_EQ(control.Width, width);
  EXPECT_DOUBLE_EQ(control.Height, height);
}

TEST(PictureFit, FollowsTheLongerSideOfThePicture) {
  struct Case {
    const char* what;
    PixelSize picture;
    double frameWidth, frameHeight;
    FittedPicture console, audience;
  };
  const Case cases[] = {
      {"square fills any frame", {50, 50}, 800, 400, {0, 0, 800, 400}, {0, 0, 800, 400}},
      {"wide, with bars above and below", {200, 100}, 400, 400, {0, 100, 400, 200}, {0, 100, 400, 200}},
      {"wide and too high is squeezed", {400, 300}, 800, 400, {0, 0, 800, 400}, {0, 0, 800, 600}},
      {"small is scaled up", {4, 2}, 400, 300, {0, 50, 400, 200}, {0, 50, 400, 200}},
      {"high", {100, 200}, 800, 400, {300, 0, 200, 400}, {300, 0, 200, 400}},
      {"high and too wide for the frame", {300, 400}, 200, 400, {0, 0, 300, 400}, {0, 0, 300, 400}},
      {"offsets are whole, halves to even", {10, 20}, 805, 400, {302, 0, 200, 400}, {302, 0, 200, 400}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    const auto check = [](const FittedPicture& got, const FittedPicture& wanted) {
      EXPECT_DOUBLE_EQ(got.Left, wanted.Left);
      EXPECT_DOUBLE_EQ(got.Top, wanted.Top);
      EXPECT_DOUBLE_EQ(got.Width, wanted.Width);
      EXPECT_DOUBLE_EQ(got.Height, wanted.Height);
    };
    check(FitPictureInFrame(c.picture, c.frameWidth, c.frameHeight), c.console);
    check(FitPictureOnAudience(c.picture, c.frameWidth, c.frameHeight), c.audience);
  }
}

TEST_F(QuestionPictures, ThePictureStandsOnBothScreensWhileThereAreTwo) {
  EXPECT_TRUE(ShowPath("C:\\pics\\dog.jpg"));
  EXPECT_TRUE(show.frmMain.picQuestionPicture.Visible);
  EXPECT_EQ(show.frmMain.picImageResize[0].Picture.Get(), "C:\\pics\\dog.jpg");
  ExpectAt(show.frmMain.picImageResize[0], 0, 0, 800, 400);
  EXPECT_FALSE(show.frmFSMain.picQuestionPicture.Visible);
  EXPECT_EQ(show.frmFSMain.picImageResize[0].Picture.Get(), "");

  show.state.DualScreen = true;
  EXPECT_TRUE(ShowPath("C:\\pics\\dog.jpg"));
  EXPECT_TRUE(show.frmFSMain.picQuestionPicture.Visible);
  EXPECT_EQ(show.frmFSMain.picImageResize[0].Picture.Get(), "C:\\pics\\dog.jpg");
  ExpectAt(show.frmFSMain.picImageResize[0], 0, 0, 1600, 1200);
}

TEST_F(QuestionPictures, APictureThatCannotBeShownIsTold) {
  machine.files.Put("C:\\pics\\broken.jpg", "no picture");
  const std::pair<const char*, const char*> cases[] = {
      {"C:\\pics\\gone.jpg", "File not found: C:\\pics\\gone.jpg"},
      {"C:\\pics\\broken.jpg",
       "An untrapped error has occurred.  Please make a note of the following information.\r\nError Number: 481\r\n"}};
  for (const auto& [path, text] : cases) {
    machine.dialogs.ExpectMessage(text);
    EXPECT_FALSE(ShowPath(path));
    EXPECT_FALSE(show.frmMain.picQuestionPicture.Visible);
    EXPECT_EQ(show.frmMain.picImageResize[0].Picture.Get(), "");
    EXPECT_THAT(machine.dialogs.Boxes().back().Text, StartsWith(text));
  }
  EXPECT_NE(machine.dialogs.Boxes().back().Text.find("Procedure: ShowPic\r\n"), std::string::npos);
}

TEST_F(QuestionPictures, BackgroundsAreDrawnByNumberAndTheLastStaysWhenThereIsNone) {
  for (const int number : {0, 1, 2, 49}) {
    machine.files.Put("C:\\Pawnfield\\Question Backgrounds\\" + std::to_string(number) + ".jpg",
                      SimPictures::PictureBytes(4, 3));
  }
  machine.files.Put("C:\\Pawnfield\\Question Backgrounds\\7.jpg", "no picture");
  machine.files.Remove("C:\\Pawnfield\\Question Backgrounds\\50.jpg");
  const std::pair<double, int> draws[] = {{0.0, 0},   {0.03, 2},   {0.01, 0},  {0.029, 1}, {0.05, 2},
                                          {0.98, 49}, {0.999, 49}, {0.14, 49}, {0.02, 1}};
  for (const auto& [draw, number] : draws) {
    show.state.DualScreen = number != 49;
    const std::string before = show.frmFSMain.imgQuestionBackground.Picture;
    machine.random.Scripted.push_back(draw);
    RandomQuestionBackground(show);
    const std::string wanted = "C:\\Pawnfield\\Question Backgrounds\\" + std::to_string(number) + ".jpg";
    EXPECT_EQ(show.frmMain.imgQuestionBackground.Picture.Get(), wanted) << draw;
    EXPECT_EQ(show.frmFSMain.imgQuestionBackground.Picture.Get(), show.state.DualScreen ? wanted : before) << draw;
  }
  EXPECT_EQ(machine.random.Randomized, 9);
}

}  // namespace
}  // namespace pawnfield
