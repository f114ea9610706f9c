// Sets packed with their media and opened again, by the editor's menu, a drop and a second start of the program.
#include "sets/set_bundles.h"

#include "engine/set_choice.h"
#include "forms/editor_form.h"
#include "forms/main_form.h"
#include "program/program.h"
#include "sets/set_parser.h"
#include "support/editor_fixture.h"

namespace pawnfield {
namespace {

const std::string kSets = "C:\\Pawnfield\\Trivia Sets\\";
const std::string kBundle = "C:\\Stick\\Quiz.pawnset";

class SetBundles : public EditorFixture, public testing::Test {
 protected:
  SetBundles() {
    OpenEditor("abcd");
    editor().SetFile(kSets + "Quiz.txt");
  }
  void Medium(std::size_t index, const std::string& path, const char* type, bool there = true) {
    record(index).QuestionText = path;
    record(index).QuestionType = type;
    if (there) sim.files.Put(path, "bytes of " + path);
  }
  void Pack() {
    sim.dialogs.ExpectFile(kBundle);
    sim.dialogs.ExpectMessage("\"Quiz.pawnset\" holds the set and");
    editor().mnuPackSet.Click();
  }
  // The names of what the bundle holds.
  std::string Packed() {
    std::string names = sim.bundles.All.at(kBundle).Contents.SetName;
    for (const std::string& name : sim.bundles.All.at(kBundle).Contents.Media) names += "|" + name;
    return names;
  }
  std::optional<std::string> Offer(const std::string& box, BoxAnswer answer) {
    sim.dialogs.ExpectMessage(box, answer);
    return OfferBundle(show(), kBundle);
  }
  // The wordings and paths of a set's file.
  std::string InFile(const std::string& path) {
    TriviaSet set;
    const int count = ParseSet(sim.files.Read(path), set);
    std::string text;
    for (int i = 0; i < count; ++i) text += set[static_cast<std::size_t>(i)].QuestionText + "|";
    return text;
  }
};

TEST_F(SetBundles, APackedSetComesBackWithItsMediaInAFolderOfItsName) {
  Medium(0, "C:\\Pictures\\dog.jpg", "P");
  Medium(2, "D:\\Other\\Dog.jpg", "P");
  Medium(3, kSets + "Media\\tune.mp3", "S");
  Pack();
  EXPECT_EQ(Packed(), "Quiz|dog.jpg|Dog (2).jpg|tune.mp3");
  const auto set =
      Offer("Would you like to add the set \"Quiz\" with 3 pictures and sounds to your sets?", BoxAnswer::Yes);
  ASSERT_EQ(set, kSets + "Quiz.txt");
  EXPECT_EQ(InFile(*set), ".\\Media\\Quiz\\dog.jpg|b|.\\Media\\Quiz\\Dog (2).jpg|.\\Media\\Quiz\\tune.mp3|");
  EXPECT_EQ(sim.files.Read(kSets + "Media\\Quiz\\Dog (2).jpg"), "bytes of D:\\Other\\Dog.jpg");
}

TEST_F(SetBundles, NothingThatIsThereIsTouched) {
  Medium(0, "C:\\Pictures\\dog.jpg", "P");
  Pack();
  sim.files.Put(kSets + "Quiz.txt", "mine");
  sim.files.PutFolder(kSets + "Media\\Quiz (2)");
  EXPECT_EQ(Offer("You have a set \"Quiz\" already.", BoxAnswer::No), std::nullopt);
  const auto set = Offer("beside it as \"Quiz (3)\"?", BoxAnswer::Yes);
  EXPECT_EQ(set, kSets + "Quiz (3).txt");
  EXPECT_EQ(InFile(*set), ".\\Media\\Quiz (3)\\dog.jpg|b|c|d|");
  EXPECT_EQ(sim.files.Read(kSets + "Quiz.txt"), "mine");

  sim.bundles.Stopped = true;
  EXPECT_EQ(Offer("You have a set", BoxAnswer::Yes), std::nullopt);
  EXPECT_FALSE(sim.files.CanOpen(kSets + "Quiz (4).txt"));
}

TEST_F(SetBundles, ASetFromElsewhereLeadsToNoOtherFileOfThisComputer) {
  TriviaSet set;
  set[0].QuestionText = "\\\\elsewhere\\share\\spy.jpg";
  set[1].QuestionText = "..\\..\\secret.jpg";
  set[2].QuestionText = "C:\\dog.jpg";
  for (std::size_t i = 0; i < 3; ++i) set[i].QuestionType = "P";
  sim.bundles.All[kBundle] = {{"Quiz", FormatSet(set), {"DOG.jpg"}}, {{"DOG.jpg", "bytes"}}};
  const auto file = Offer("Would you like to add the set \"Quiz\" with 1 picture or sound", BoxAnswer::Yes);
  EXPECT_EQ(InFile(file.value()), "spy.jpg|secret.jpg|.\\Media\\Quiz\\DOG.jpg|");
}

TEST_F(SetBundles, MissingFilesAreNamedBeforeAndOddNamesAreMadePlain) {
  Medium(0, "C:\\Pictures\\gone.jpg", "P", false);
  sim.dialogs.ExpectMessage("These files are missing:\r\n\r\ngone.jpg", BoxAnswer::No);
  editor().mnuPackSet.Click();
  EXPECT_TRUE(sim.bundles.All.empty());
  Medium(0, "C:\\Pictures\\.what?.jpg", "P");
  Pack();
  EXPECT_EQ(Packed(), "Quiz|_.what_.jpg");
}

TEST_F(SetBundles, WhatIsHandedOverIsOfferedAndNeverTakesAGameAway) {
  Pack();
  show().frmMain.Visible = true;
  const auto open = [this] { sim.bundles.OnOpened(kBundle); };
  sim.dialogs.ExpectMessage("Would you like to add the set \"Quiz\" to your sets?", BoxAnswer::Yes);
  sim.dialogs.ExpectMessage("Would you like to load the set \"Quiz\"?", BoxAnswer::Yes);
  open();
  EXPECT_EQ(show().state.LoadedSetPath, kSets + "Quiz.txt");
  EXPECT_EQ(show().NumGameQuestions, 4);

  show().state.GameStarted = true;
  sim.dialogs.ExpectMessage("beside it as \"Quiz (2)\"?", BoxAnswer::Yes);
  open();
  EXPECT_EQ(show().state.LoadedSetPath, kSets + "Quiz.txt");
  EXPECT_EQ(show().frmMain.lblStatusBar.Caption, "\"Quiz (2)\" was not loaded: a game is open.");
  sim.dialogs.ExpectMessage("\"gone.pawnset\" was not opened. File not found.");
  sim.bundles.OnOpened("C:\\gone.pawnset");
}

TEST_F(SetBundles, ASecondStartHandsItsFileOverInsteadOfComplaining) {
  sim.processes.AlreadyRuns = true;
  show().consoleDialog.FileName = kBundle;
  Main(show());
  EXPECT_EQ(sim.processes.HandedOver, std::vector<std::string>{kBundle});
  EXPECT_TRUE(sim.processes.Ended);
}

}  // namespace
}  // namespace pawnfield
