#include "media/question_pictures.h"

#include <gmock/gmock.h>

#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "presentation/audience_step.h"
#include "presentation/both_screens.h"
#include "presentation/picture_question.h"
#include "presentation/screen_pairs.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

using Place = std::array<double, 4>;

Place PlaceOf(const auto& shape) { return {shape.Left, shape.Top, shape.Width, shape.Height}; }

class QuestionPictures : public ShowFixture, public testing::Test {
 protected:
  QuestionPictures() {
    FollowConsole(show());
    form().picQuestionPicture.MoveTo(0, 0, 800, 400);
    audience().picQuestionPicture.MoveTo(0, 0, 1600, 1000);
    audience().picQuestionPicture.Visible = false;
    sim.files.Put("C:\\pics\\dog.jpg", SimPictures::PictureBytes(400, 300));
  }
  // True when the picture is up.
  bool ShowPath(const std::string& path) {
    form().picQuestion.Visible = false;
    form().lblQuestion[0].Caption = path;
    ShowPic(show());
    return form().picQuestionPicture.Visible && form().picImageResize[0].Picture == path;
  }
};

TEST(PictureFit, FollowsTheLongerSideOfThePicture) {
  const std::tuple<const char*, PixelSize, double, double, Place, Place> cases[] = {
      {"square fills any frame", {50, 50}, 800, 400, {0, 0, 800, 400}, {0, 0, 800, 400}},
      {"wide, with bars above and below", {200, 100}, 400, 400, {0, 100, 400, 200}, {0, 100, 400, 200}},
      {"wide and too high is squeezed", {400, 300}, 800, 400, {0, 0, 800, 400}, {0, 0, 800, 600}},
      {"small is scaled up", {4, 2}, 400, 300, {0, 50, 400, 200}, {0, 50, 400, 200}},
      {"high", {100, 200}, 800, 400, {300, 0, 200, 400}, {300, 0, 200, 400}},
      {"high and too wide for the frame", {300, 400}, 200, 400, {0, 0, 300, 400}, {0, 0, 300, 400}},
      {"offsets are whole, halves to even", {10, 20}, 805, 400, {302, 0, 200, 400}, {302, 0, 200, 400}}};
  for (const auto& [what, picture, width, height, console, audience] : cases) {
    EXPECT_EQ(PlaceOf(FitPictureInFrame(picture, width, height)), console) << what;
    EXPECT_EQ(PlaceOf(FitPictureOnAudience(picture, width, height)), audience) << what;
  }
}

TEST_F(QuestionPictures, ThePictureStandsOnBothScreensWhileThereAreTwo) {
  for (const bool two : {false, true}) {
    show().state.DualScreen = two;
    audience().picImageResize[0].Picture = "";
    EXPECT_TRUE(ShowPath("C:\\pics\\dog.jpg"));
    EXPECT_EQ(audience().picQuestionPicture.Visible, two);
    EXPECT_EQ(audience().picImageResize[0].Picture == "C:\\pics\\dog.jpg", two);
    form().picQuestionPicture.Visible = false;
    form().picImageResize[0].Picture = std::string();
  }
  EXPECT_TRUE(ShowPath("C:\\pics\\dog.jpg"));
  EXPECT_EQ(form().picImageResize[0].Picture.Get(), "C:\\pics\\dog.jpg");
  EXPECT_EQ(PlaceOf(form().picImageResize[0]), (Place{0, 0, 800, 400}));
  EXPECT_EQ(PlaceOf(audience().picImageResize[0]), (Place{0, 0, 1600, 1200}));
}

TEST_F(QuestionPictures, WithoutItsPictureTheConsoleSaysSoTheRoomSeesACardAndNoBoxOpens) {
  sim.files.Put("C:\\pics\\broken.jpg", "no picture");
  show().state.DualScreen = true;
  show().state.CurrentQuestion = 6;
  for (const char* path : {"C:\\pics\\gone.jpg", "C:\\pics\\broken.jpg"}) {
    EXPECT_FALSE(ShowPath(path));
    for (const bool joined : {false, true}) {
      if (joined) BringAudienceInStep(show());
      EXPECT_TRUE(form().picQuestion.Visible && audience().picQuestion.Visible) << path;
      EXPECT_FALSE(form().picQuestionPicture.Visible || audience().picQuestionPicture.Visible) << path;
      EXPECT_EQ(form().lblQuestion[0].Caption.Get(), "Picture missing: read the question, or Skip");
      EXPECT_EQ(audience().lblQuestion[0].Caption.Get(), "Question 7") << "a screen that comes up: " << joined;
    }
  }
}

TEST_F(QuestionPictures, ASlowDiskHoldsThePictureUpAndNotTheQuestion) {
  sim.pictures.Slow = true;
  show().state.DualScreen = true;
  EXPECT_FALSE(ShowPath("C:\\pics\\dog.jpg"));
  EXPECT_TRUE(form().picQuestionPicture.Visible && audience().picQuestionPicture.Visible) << "the question is up";
  sim.pictures.Answer();
  EXPECT_EQ(audience().picImageResize[0].Picture.Get(), "C:\\pics\\dog.jpg");
  // The question has gone before its picture has come.
  ShowPath("C:\\pics\\gone.jpg");
  HidePanel(show(), Panel::QuestionPicture);
  sim.pictures.Answer();
  EXPECT_FALSE(form().picQuestion.Visible);
}

TEST_F(QuestionPictures, BackgroundsAreDrawnByNumberAndTheLastStaysWhenThereIsNone) {
  const std::string folder = "C:\\Pawnfield\\Question Backgrounds\\";
  for (const char* name : {"0", "1", "2", "49"}) sim.files.Put(folder + name + ".jpg", SimPictures::PictureBytes(4, 3));
  sim.files.Put(folder + "7.jpg", "no picture");
  sim.files.Remove(folder + "50.jpg");
  const std::pair<double, int> draws[] = {{0.0, 0},   {0.03, 2},   {0.01, 0},  {0.029, 1}, {0.05, 2},
                                          {0.98, 49}, {0.999, 49}, {0.14, 49}, {0.02, 1}};
  for (const auto& [draw, number] : draws) {
    show().state.DualScreen = number != 49;
    const std::string before = audience().imgQuestionBackground.Picture;
    sim.random.Scripted.push_back(draw);
    RandomQuestionBackground(show());
    const std::string wanted = folder + std::to_string(number) + ".jpg";
    EXPECT_EQ(form().imgQuestionBackground.Picture.Get(), wanted) << draw;
    EXPECT_EQ(audience().imgQuestionBackground.Picture.Get(), show().state.DualScreen ? wanted : before) << draw;
  }
  EXPECT_EQ(sim.random.Randomized, 9);
}

}  // namespace
}  // namespace pawnfield
