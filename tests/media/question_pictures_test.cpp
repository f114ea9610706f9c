#include "media/question_pictures.h"

#include <gmock/gmock.h>

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
  bool ShowPath(const std::string& path) {
    form().lblQuestion[0].Caption = path;
    return ShowPic(show());
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

TEST_F(QuestionPictures, APictureThatCannotBeShownIsTold) {
  sim.files.Put("C:\\pics\\broken.jpg", "no picture");
  sim.dialogs.ExpectMessage("File not found: C:\\pics\\gone.jpg");
  EXPECT_FALSE(ShowPath("C:\\pics\\gone.jpg"));
  sim.dialogs.ExpectMessage(
      "An untrapped error has occurred.  Please make a note of the following information.\r\nError Number: 481\r\n");
  EXPECT_FALSE(ShowPath("C:\\pics\\broken.jpg"));
  EXPECT_FALSE(form().picQuestionPicture.Visible);
  EXPECT_THAT(sim.dialogs.Boxes().back().Text, testing::HasSubstr("Procedure: ShowPic\r\n"));
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
