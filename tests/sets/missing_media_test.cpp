#include "sets/missing_media.h"

#include "forms/main_form.h"
#include "forms/missing_media_form.h"
#include "sets/set_parser.h"
#include "support/show_fixture.h"

namespace pawnfield {
namespace {

constexpr const char* kNamed = "These questions' files can't be shown";
constexpr const char* kSet = "C:\\Pawnfield\\Trivia Sets\\Media.txt";
constexpr const char* kOwn = "C:\\Shows\\Own.txt";
const std::string kHere = "C:\\Pawnfield\\Trivia Sets\\here.jpg";

class MissingMedia : public ShowFixture, public testing::Test {
 protected:
  MissingMedia() {
    Start();
    sim.files.Put(kHere, SimPictures::PictureBytes(4, 3));
  }
  // A set of pictures, those of the given indices missing, chosen from the list. act runs in the dialog.
  void Load(const std::vector<int>& missing, const std::function<void()>& act, int count = 100, bool isNamed = false) {
    std::string bytes;
    for (int i = 0; i < count; ++i) {
      const bool gone = std::find(missing.begin(), missing.end(), i) != missing.end();
      bytes += (gone ? ".\\gone" + std::to_string(i) + ".jpg" : ".\\here.jpg") + "\r\nA\r\nP\r\n";
    }
    sim.files.Put(kSet, bytes);
    if (act) sim.dialogs.ExpectForm("frmDialog2", act);
    if (isNamed) sim.dialogs.ExpectMessage(kNamed);
    ChooseSet("Media");
  }
  // Chooses a file for the one that is missing, and gives the filter and the folder that were offered.
  std::string Repair(const std::string& chosen) {
    sim.dialogs.ExpectFile(chosen);
    dialog.btnRepair.Click();
    const FileDialogRequest& request = sim.dialogs.FileRequests().back();
    return request.Filter + ", " + request.InitialFolder + ", " + request.FileName;
  }
  std::string Text(int index) { return show().GameSet.at(static_cast<std::size_t>(index)).QuestionText; }

  MissingMediaForm& dialog = show().frmDialog2;
};

TEST_F(MissingMedia, TheScanLooksAtAllAndBeginsWithTheFirst) {
  const std::tuple<std::vector<int>, int, const char*> cases[] = {
      {{0}, 1, "1 file is missing."},         {{5}, 6, "1 file is missing."},
      {{99}, 100, "1 file is missing."},      {{1, 3}, 2, "2 files are missing."},
      {{50, 60}, 51, "2 files are missing."}, {{7, 0, 5, 60}, 1, "4 files are missing."}};
  for (const auto& [missing, question, count] : cases) {
    int asked = 0;
    Load(
        missing,
        [&, told = std::string(count)] {
          asked = show().MissingQuestion;
          EXPECT_EQ(dialog.txtLocation.Text.Get(), Text(asked - 1));
          EXPECT_EQ(dialog.lblQuestionNum.Caption.Get(), "Question " + std::to_string(asked));
          EXPECT_EQ(dialog.lblCatNum.Caption.Get(), told);
          EXPECT_TRUE(dialog.btnRepair.Enabled && dialog.btnCancel.Enabled && !dialog.btnFinished.Enabled);
          dialog.btnCancel.Click();
        },
        100, true);
    EXPECT_EQ(asked, question);
    EXPECT_EQ(show().MissingQuestion, 1);
    EXPECT_TRUE(form().btnStart.Enabled);
  }
  Load({}, nullptr);
  EXPECT_EQ(Text(99), kHere);
}

TEST_F(MissingMedia, OnlyTheLetterMakesAMedium) {
  sim.files.Put(kSet, "none.jpg\r\nA\r\nT\r\nnone.wav\r\nA\r\n\r\nnone.bmp\r\nA\r\nP#\r\n");
  sim.dialogs.ExpectMessage(kNamed);
  ChooseSet("Media");
  sim.files.Put(kSet, "Q\r\nA\r\nT\r\nnothing\r\nA\r\nS\r\n");
  sim.dialogs.ExpectForm("frmDialog2", [&] {
    EXPECT_TRUE(Repair("").starts_with(", ")) << "an unknown ending keeps the filter of before";
    dialog.Unload();
  });
  ChooseSet("Media");
}

TEST_F(MissingMedia, TheWindowStaysUntilAllAreFoundAndTheSetGoesBackWhereItCameFrom) {
  const std::string sets = "C:\\Pawnfield\\Trivia Sets\\", moved = "D:\\Moved\\";
  for (const char* name : {"gone3.jpg", "gone6.jpg", "other.jpg"}) {
    sim.files.Put(moved + name, SimPictures::PictureBytes(4, 3));
  }
  // The missing ones, and what is chosen for each, with what the window shows then.
  using Steps = std::vector<std::pair<std::string, const char*>>;
  const std::pair<std::vector<int>, Steps> cases[] = {
      {{2}, {{kHere, "All files are found.  found"}}},
      {{2}, {{"", "1 file is missing. Question 3 repair"}, {kHere, "All files are found.  found"}}},
      {{2}, {{"C:\\vanished.jpg", "1 file is missing. Question 3 repair"}, {kHere, "All files are found.  found"}}},
      {{2, 4, 5},
       {{kHere, "2 files are missing. Question 5 repair found"},
        {"", "2 files are missing. Question 6 repair found"},
        {kHere, "1 file is missing. Question 5 repair found"},
        {kHere, "All files are found.  found"}}},
      // The folder in which one is found has others too.
      {{2, 3, 5, 6},
       {{moved + "other.jpg", "1 file is missing. Question 6 repair found"}, {kHere, "All files are found.  found"}}}};
  for (const auto& [missing, steps] : cases) {
    Load(
        missing,
        [&, todo = steps] {
          for (const auto& [chosen, window] : todo) {
            const std::string expected = "Picture Files(*bmp; *jpg)|*.bmp; *.jpg, " + sets + ", ";
            EXPECT_TRUE(Repair(chosen).starts_with(expected));
            EXPECT_EQ(dialog.lblCatNum.Caption.Get() + " " + dialog.lblQuestionNum.Caption.Get() +
                          (dialog.btnRepair.Enabled ? " repair" : "") + (dialog.btnFinished.Enabled ? " found" : ""),
                      window);
          }
          dialog.btnFinished.Click();
        },
        8);
    TriviaSet again;
    const std::string bytes = sim.files.Read(kSet);
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 24) << "three lines for each question and none more";
    EXPECT_EQ(ParseSet(bytes, again), 8);
    for (const int index : missing) {
      const bool beside = missing.size() == 4 && index != 5;
      EXPECT_EQ(again[static_cast<std::size_t>(index)].QuestionText.starts_with(beside ? moved : ".\\here"), true);
    }
    EXPECT_EQ(again[0].QuestionText, ".\\here.jpg") << "as it was, for the next computer";
    EXPECT_TRUE(sim.files.Read("C:\\Pawnfield\\Trivia Sets\\Media.bak").find("gone") != std::string::npos);
    EXPECT_EQ(show().MissingQuestion, 1);
  }
}

TEST_F(MissingMedia, ASetThatCannotBeWrittenIsReported) {
  int error = kErrorDiskFull;
  const auto finish = [&] {
    Repair(kHere);
    if (error != 0) sim.dialogs.ExpectMessage("Procedure: SaveFile");
    sim.files.FailNextWrite(std::exchange(error, 0));
    dialog.btnFinished.Click();
  };
  Load({0}, finish, 3);
  EXPECT_TRUE(sim.files.Read(kSet).starts_with(".\\gone0.jpg"));
  Load(
      {0},
      [&] {
        sim.files.Remove(kSet);
        sim.dialogs.ExpectMessage(
            "We encountered an error trying to fix the file. Please report if this error continues.");
        SaveRepairedSet(show());
        sim.dialogs.ExpectMessage(kNamed);
        dialog.btnCancel.Click();
      },
      3);
  // A set of the file dialog goes back to its file, and one of the list never to that.
  sim.files.Put(kOwn, ".\\gone.wav\r\nA\r\nS\r\n");
  sim.dialogs.ExpectFile(kOwn);
  sim.dialogs.ExpectForm("frmDialog2", [&] {
    EXPECT_TRUE(Repair(kHere).starts_with("Picture Files(*wav; *mp3; *.wma)|*.wav; *.mp3; *.wma, "));
    dialog.btnFinished.Click();
  });
  form().btnSelectGame.Click();
  EXPECT_EQ(sim.files.Read(kOwn), ".\\here.jpg\r\nA\r\nS\r\n");
  Load({0}, finish, 3);
  EXPECT_TRUE(sim.files.Read(kSet).starts_with(".\\here.jpg"));
  EXPECT_EQ(sim.files.Read(kOwn), ".\\here.jpg\r\nA\r\nS\r\n");
}

}  // namespace
}  // namespace pawnfield
